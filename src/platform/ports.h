// The ports: what the program asks of the machine it runs on. Small abstract interfaces; paths are spelled as the
// program spells them (backslashes allowed), text is Windows-1252.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/pages.h"

namespace pawnfield {

// An error with the number and words that the shared error box shows.
class RuntimeError : public std::runtime_error {
 public:
  RuntimeError(int number, const std::string& description) : std::runtime_error(description), number_(number) {}
  int Number() const { return number_; }

 private:
  int number_;
};

inline constexpr int kErrorInvalidArgument = 5;
inline constexpr int kErrorOverflow = 6;
inline constexpr int kErrorSubscript = 9;
inline constexpr int kErrorTypeMismatch = 13;
inline constexpr int kErrorFileNotFound = 53;
inline constexpr int kErrorDeviceIo = 57;
inline constexpr int kErrorDiskFull = 61;
inline constexpr int kErrorPathAccess = 75;
inline constexpr int kErrorPathNotFound = 76;
inline constexpr int kErrorInvalidPicture = 481;

// What an index outside its table raises.
inline RuntimeError SubscriptError() { return {kErrorSubscript, "Subscript out of range"}; }
inline constexpr int kErrorPrinter = 482;
inline constexpr int kErrorInvalidPort = 8002;

// A moment of the calendar, in the machine's own time zone.
struct LocalTime {
  int Year = 2000, Month = 1, Day = 1;
  int Hour = 0, Minute = 0, Second = 0;
};

// Time: milliseconds of a clock that never goes back. Attach makes the clock an observer of a form's timers, so that
// they run while enabled; a detached form's timers stop.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::int64_t NowMs() const = 0;
  // The same clock's microseconds, counted from a moment of its own.
  virtual std::int64_t NowUs() const { return NowMs() * 1000; }
  virtual LocalTime Now() const = 0;
  virtual void Attach(Form& form) = 0;
  virtual void Detach(Form& form) = 0;
  // Holds the program for that long; no event reaches it meanwhile. What has changed is on the screens before it.
  virtual void Pause(int ms) = 0;
};

enum class BoxKind { Plain, Critical, YesNoCancel, YesNo, Exclamation };
enum class BoxAnswer { Ok, Yes, No, Cancel };

// A question whose buttons may say what they do; each word is empty for the plain "Yes", "No" and "Cancel".
struct BoxQuestion {
  std::string Text;
  BoxKind Kind = BoxKind::YesNo;
  // What loses nothing: it has the focus, and Escape and the close box give it.
  BoxAnswer Safe = BoxAnswer::No;
  std::string Yes{}, No{}, Cancel{};
};

// The words for a file that is about to be replaced.
inline constexpr const char* kReplace = "Replace";
inline constexpr const char* kSpareFile = "Keep the Old File";

enum class ModalKind { None, Box, Window };

struct FileDialogRequest {
  std::string Title;
  // Pairs "text|pattern" joined by "|", as in "Game Sets(*.txt)|*.txt".
  std::string Filter;
  std::string InitialFolder;
  bool Save = false;
  // A name to begin with, and what a name typed without an extension gets (no point).
  std::string FileName{};
  std::string DefaultExtension{};
  // False where the program itself asks before it replaces a file.
  bool ConfirmsOverwrite = true;
};

// Modal, synchronous questions to the operator.
class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual BoxAnswer MessageBox(const std::string& text, const std::string& title, BoxKind kind) = 0;
  // The same question with the question's own words on its buttons, where there are buttons to write on.
  virtual BoxAnswer Ask(const BoxQuestion& question, const std::string& title) {
    return MessageBox(question.Text, title, question.Kind);
  }
  // The chosen path, empty when cancelled.
  virtual std::string ChooseFile(const FileDialogRequest& request) = 0;
  // The choice, nothing when cancelled.
  virtual std::optional<Font> ChooseFont(const Font& start) = 0;
  virtual std::optional<Color> ChooseColor(Color start) = 0;
  // Shows the form and returns when it has been unloaded.
  virtual void ShowModal(Form& form) = 0;
  // What waits for the operator now; where one stands over another, the upper one.
  virtual ModalKind Modal() const = 0;
};

enum class PlayState { Stopped = 1, Paused = 2, Playing = 3 };

// One independent player. Assigning a path starts it; an empty path or no such file is silence without a message.
class MediaChannel {
 public:
  virtual ~MediaChannel() = default;
  virtual void SetUrl(const std::string& path) = 0;
  // Seconds from the start. A paused player goes on from there; a stopped one stays stopped.
  virtual void SetPosition(double seconds) = 0;
  // Goes on after a pause; starts its file anew after a stop or the end.
  virtual void Play() = 0;
  virtual void Stop() = 0;
  virtual void Pause() = 0;
  // 0..100.
  virtual void SetVolume(int volume) = 0;
  // Seconds. The two are equal when a file has been played to its end and when nothing is loaded (both 0), and differ
  // at any other time.
  virtual double CurrentPosition() const = 0;
  virtual double Duration() const = 0;
  // True while what it plays goes nowhere, because the machine has no sound device or has lost it.
  virtual bool IsSilent() const { return false; }
  // Called, between events, when that has changed.
  std::function<void()> OnSilenceChange;

  // Called at every change of state, by the program's wish or by the player's own controls.
  std::function<void(PlayState state)> OnPlayStateChange;
};

// A key and its value.
struct Setting {
  std::string Key, Value;
};

// A per-user store of text values. Keys are compared without regard to case.
class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  // Called on the main thread when what was saved can't be written to the disk.
  std::function<void(const RuntimeError& error)> OnSaveFailed;
  // Why an application's settings can't be read, in words; empty when they can, or there are none yet.
  virtual std::string Problem(const std::string& /*application*/) const { return {}; }
  // Saves them without making the caller wait for the disk, which may have them a second later.
  virtual void SaveSettingsAsync(const std::string& application, const std::string& section,
                                 const std::vector<Setting>& settings) {
    SaveSettings(application, section, settings);
  }
  // All that was saved is on the disk when it returns; a RuntimeError when that can't be. For the program's end.
  virtual void Flush() {}
  virtual std::string GetSetting(const std::string& application, const std::string& section, const std::string& key,
                                 const std::string& fallback) const = 0;
  virtual void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                           const std::string& value) = 0;
  // Saves all of them, in their order; a store that can saves either all or none.
  virtual void SaveSettings(const std::string& application, const std::string& section,
                            const std::vector<Setting>& settings) {
    for (const auto& [key, value] : settings) SaveSetting(application, section, key, value);
  }
};

// Files. Each failure is a RuntimeError with the number of its kind.
class FileSystem {
 public:
  virtual ~FileSystem() = default;
  virtual std::string Read(const std::string& path) const = 0;
  // Replaces the file as a whole: after a failure the old file is there unharmed.
  virtual void Write(const std::string& path, const std::string& bytes) = 0;
  // The same, for whoever may read and write the other file and for nobody else.
  virtual void WriteLike(const std::string& path, const std::string& bytes, const std::string& other) = 0;
  // True when a plain file can be opened for reading.
  virtual bool CanOpen(const std::string& path) const = 0;
  virtual bool FolderExists(const std::string& path) const = 0;
  virtual void CreateFolder(const std::string& path) = 0;
  // Names (no folder) of the files in the folder that end in the extension (".txt", any case), sorted; empty when the
  // folder can't be read.
  virtual std::vector<std::string> List(const std::string& folder, const std::string& extension) const = 0;
};

inline constexpr const char* kRecordEnding = ".jsonl";

// Where the records lie, as the system spells it, and how many bytes its disk has left; below 0 where that isn't known.
struct RecordPlace {
  std::string Folder;
  std::int64_t FreeBytes = -1;
  // Why nothing could be written there now, in words; empty when it could.
  std::string Problem{};
};

// The records of the shows: files of the user's data folder that only grow. Names are without a folder and end in
// kRecordEnding.
class RecordFiles {
 public:
  virtual ~RecordFiles() = default;
  // Told on the main thread when lines can't be brought to the disk, and when they are there after all. What waits is
  // tried again and again.
  std::function<void(const RuntimeError& error)> OnFailed;
  std::function<void()> OnBack;
  // Sorted, so that the oldest is the first; empty when there are none or they can't be read.
  virtual std::vector<std::string> List() const = 0;
  // Empty when it can't be read.
  virtual std::string Read(const std::string& name) const = 0;
  // Reads it beside the main thread: `take` gets the bytes there, and must not touch the show; `done` comes on the main
  // thread afterwards.
  virtual void ReadBeside(const std::string& name, std::function<void(const std::string& bytes)> take,
                          std::function<void()> done) = 0;
  // Adds the lines at the end of the record, which is made where it isn't there. The caller waits for no disk; they are
  // on it within a second.
  virtual void Append(const std::string& name, const std::string& lines) = 0;
  // Cuts what stands behind that many bytes, before anything is added.
  virtual void CutTo(const std::string& name, std::size_t bytes) = 0;
  virtual void Remove(const std::string& name) = 0;
  // Reports, between events, where they lie and what room there is.
  virtual void LookAtPlace(std::function<void(const RecordPlace& place)> then) = 0;
  // Returns when all is on the disk, or has failed once more.
  virtual void Flush() = 0;
};

struct TextSize {
  double Width = 0;
  double Height = 0;
};

// Letters of a text, each once and as the text has them: those that a font lacks and that come from another one, and
// those that no font of the machine has.
struct LackedLetters {
  std::string Borrowed;
  std::string Missing;
  bool operator==(const LackedLetters&) const = default;
};

// Measures text as a label that wraps at words and sizes itself: the width is wrapWidth, or the widest word's width
// where that is more. All in twips. Every advance and line height is exactly proportional to the font's size: measuring
// is as if done at one large reference size without hinting, with the text wrapped at the width scaled to it. A text
// that fits a box at one size thus fits it at every smaller one, which the search for a fitting size relies on.
class TextMeasurer {
 public:
  virtual ~TextMeasurer() = default;
  virtual TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const = 0;
  // What the font can't show of the text by itself.
  virtual LackedLetters Lacked(const Font& /*font*/, const std::string& /*text*/) const { return {}; }
};

struct PixelSize {
  int Width = 0;
  int Height = 0;
};

// What is known of a picture: its size as it stands upright, and the number of the error that keeps it from being
// shown: 0 for none, 53 for no such file, 481 for a file that holds no picture or one that is too large.
struct PictureFacts {
  PixelSize Size;
  int Error = 0;
};

class PictureReader {
 public:
  virtual ~PictureReader() = default;
  // Reports what is known: at once of a picture that is held, else between events when it has been read beside. It can
  // be painted then without the disk.
  virtual void Look(const std::string& path, std::function<void(const PictureFacts&)> then) = 0;
  // Reads the whole file in the background, caches nothing of it and reports, later than any Look.
  virtual void Check(const std::string& path, std::function<void(const PictureFacts&)> then) = 0;
  // Reads the picture ahead, so that a Look finds it.
  virtual void Hold(const std::string& path) = 0;
};

// Looks at sounds and films beside the program.
class MediaReader {
 public:
  virtual ~MediaReader() = default;
  // Reports, at once or between events, whether the path is a file that a player takes.
  virtual void Look(const std::string& path, std::function<void(bool plays)> then) = 0;
  // The same of a sound, which is also decoded as far as its beginning. Takes some 50 ms longer.
  virtual void Check(const std::string& path, std::function<void(bool plays)> then) = 0;
  // Reports, between events, how many seconds a sound or film lasts; 0 where that can't be told.
  virtual void Measure(const std::string& /*path*/, std::function<void(double seconds)> /*then*/) {}
  // Whether there is something to play sound on. Takes a few milliseconds.
  virtual bool HasSoundDevice() const { return true; }
  // Reports, between events, what the sound comes out of, as the system calls it: the devices that there are to choose
  // from where the system chooses; none where they can't be told.
  virtual void NameSoundDevices(std::function<void(const std::vector<std::string>& names)> then) { then({}); }
};

struct MonitorInfo {
  int Left = 0, Top = 0, Right = 0, Bottom = 0;
  // As the system calls it, "HDMI-1"; may be empty.
  std::string Name{};
};

// Whether the desktop does what it is asked for: holds its screen saver off, and the machine's sleep.
struct AwakeAnswer {
  bool Saver = false, Sleep = false;
};

class Displays {
 public:
  virtual ~Displays() = default;
  // In the system's order, the console's first.
  virtual std::vector<MonitorInfo> Enumerate() const = 0;
  // Called from now on, between events, when a monitor has come, gone or changed its size or place.
  virtual void OnChanged(std::function<void()> changed) = 0;
  // Keeps the form's window above all others or not; never moves it.
  virtual void SetTopMost(Form& form, bool onTop) = 0;
  // Rounds the corners of the form's window, with a radius in pixels.
  virtual void RoundWindow(Form& form, int radius) = 0;
  // Holds the desktop's screen saver and sleep off while true. A machine without such a service is no error.
  virtual void KeepAwake(bool awake) = 0;
  // Asks the desktop to hold both off, reports its answers between events, and leaves all as KeepAwake has it.
  virtual void TryAwake(std::function<void(const AwakeAnswer& answer)> then) = 0;
  // False once it is known that nothing on this machine holds the screen saver off, although it was asked to.
  virtual bool KeepsAwake() const = 0;
};

struct ProcessInfo {
  std::string Caption;
  std::int64_t Handle = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  // True when this user already runs the program; otherwise marks it as running for the life of the process.
  virtual bool AnotherInstanceRuns() = 0;
  virtual std::vector<ProcessInfo> List() const = 0;
  virtual std::int64_t CurrentId() const = 0;
  // Brings that process's window to the front; 0 means the other instance of this program.
  virtual void Activate(std::int64_t id) = 0;
  // Hands a file over to the other instance of this program, which comes to the front. False when it doesn't answer.
  virtual bool HandOver(const std::string& path) = 0;
  // Starts the program of that name that lies beside this one, hidden, with the text as its one argument, and doesn't
  // wait for it. False when there is none. No shell takes part, so that every character arrives as it is.
  virtual bool StartHelper(const std::string& name, const std::string& argument) = 0;
  // Ends the message loop once the present event is done.
  virtual void EndProgram() = 0;
  // Starts the program of that file in a maximised window with the focus, and doesn't wait for it.
  virtual void Start(const std::string& path) = 0;
};

struct HidDevice {
  int Vendor = 0;
  int Product = 0;
};

// Bytes of a whole report, the leading report number included; 0 for a kind of report that the device doesn't have.
struct HidLengths {
  std::size_t Input = 0;
  std::size_t Output = 0;
};

enum class HidRead { Report, Nothing, Failed };

// The HID devices of the machine, one of which can be open. A report is its bytes behind the report number, which is 0
// where the device numbers none.
class HidPort {
 public:
  virtual ~HidPort() = default;
  // Those present, in the system's order.
  virtual std::vector<HidDevice> Enumerate() const = 0;
  // Opens the first that is the vendor's and one of the products, for reading and writing. Its product number; none
  // when there is no such device or it can't be opened.
  virtual std::optional<int> Open(int vendor, const std::vector<int>& products) = 0;
  // Both 0 while none is open.
  virtual HidLengths Lengths() const = 0;
  // Takes the oldest report that has arrived, without waiting for one. Failed when the device is gone.
  virtual HidRead Read(std::string& report) = 0;
  // When the report that Read gave last arrived, in the clock's microseconds; 0 where nobody has looked.
  virtual std::int64_t ArrivedUs() const { return 0; }
  // Called between events as soon as a report waits, or the device has gone. A port that can't is polled alone.
  std::function<void()> OnReport;
  // The bytes written; 0 when nothing could be.
  virtual std::size_t Write(const std::string& report) = 0;
  virtual void Close() = 0;
};

// Reports devices that come and go, when the system announces them; nothing polls for them.
class DeviceWatch {
 public:
  virtual ~DeviceWatch() = default;
  // Called from now on, between events, soon after a device has come, gone or become free to be opened.
  virtual void OnChanged(std::function<void()> changed) = 0;
};

// Lines that belong on one page where a page can hold them.
using PrintBlock = std::vector<std::string>;

struct PrintDocument {
  std::string Title;
  std::vector<PrintBlock> Blocks;
};

class Printing {
 public:
  virtual ~Printing() = default;
  // Asks for a printer; the copies to print, nothing when cancelled.
  virtual std::optional<int> ChoosePrinter() = 0;
  // Prints on the printer chosen last, each copy from a new page. RuntimeError 482 when it can't.
  virtual void Print(const PrintDocument& document, int copies) = 0;
};

// A serial port of the machine as the system lists it: the texts that say which adapter it belongs to.
struct SerialDevice {
  std::string DeviceID;
  std::string Description;
  std::string Caption;
};

// No handshaking; RTS is on while the port is open.
struct SerialSettings {
  int Baud = 9600;
  char Parity = 'n';
  int DataBits = 8;
  int StopBits = 1;
};

enum class SerialEvent { Received, Lost };

// One serial line, whose events come from the message loop.
class SerialPort {
 public:
  virtual ~SerialPort() = default;
  // The ports present, in the system's order.
  virtual std::vector<SerialDevice> Enumerate() const = 0;
  // Opens the port of that number with nothing in its buffers. RuntimeError when it can't be opened.
  virtual void Open(int number, const SerialSettings& settings) = 0;
  virtual bool PortOpen() const = 0;
  virtual void Close() = 0;
  // Takes what arrived together, the oldest first; empty when nothing waits.
  virtual std::string Input() = 0;
  // When that arrived which Input gave last, in the clock's microseconds; 0 where nobody has looked.
  virtual std::int64_t ArrivedUs() const { return 0; }
  virtual std::size_t InBufferCount() const = 0;
  // Bytes have arrived, or the device is gone; the latter may be announced many times until the port is closed.
  std::function<void(SerialEvent)> OnComm;
};

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  virtual void Randomize() = 0;
  // At least 0, below 1.
  virtual double Next() = 0;
};

// Pages for people to read, beside the program's own windows.
class HelpPages {
 public:
  virtual ~HelpPages() = default;
  // An address that begins with "http" opens in the system's browser; any other is the name of a page of the shipped
  // manual ("index.html"). Returns at once; false when the page can't be shown.
  virtual bool Open(const std::string& address) = 0;
};

class Bundles;
class SheetFiles;
class Spelling;

// Folders without a trailing backslash; the operator's data lies below DataRoot.
struct Folders {
  std::string App;
  std::string DataRoot;
  // The system's drive ("C:"), empty where drives have no letters.
  std::string SystemDrive{};
};

struct MediaChannels {
  MediaChannel& EventPlayer;
  MediaChannel& KeyPressPlayer;
  MediaChannel& SoundClipPlayer;
  MediaChannel& CorrectIncorrectPlayer;
  MediaChannel& BackgroundPlayer;
  // Shows video too: wherever a form's control of that name stands.
  MediaChannel& MediaPlayer1;
};

// Everything the program is given at its start.
struct Platform {
  Clock& clock;
  Dialogs& dialogs;
  MediaChannels media;
  SettingsStore& settings;
  FileSystem& files;
  TextMeasurer& text;
  PictureReader& pictures;
  MediaReader& mediaFiles;
  Displays& displays;
  Processes& processes;
  RandomSource& random;
  HidPort& hid;
  DeviceWatch& devices;
  Printing& printing;
  HelpPages& pages;
  SerialPort& serial;
  Pages& webPages;
  RecordFiles& records;
  SheetFiles& sheets;
  Bundles& bundles;
  Spelling& spelling;
  Folders folders;
};

}  // namespace pawnfield
