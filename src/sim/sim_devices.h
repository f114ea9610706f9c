// The smaller ports as simulations: text measuring, pictures, monitors, processes and chance.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/ports.h"
#include "sim/sim_files.h"

namespace pawnfield {

// Every measure grows in proportion to the font's size, so that what a fit must come to can be worked out by hand: a
// character is a fixed share of the size wide, a line 1.2 times the size high. A point is 20 twips.
class LinearTextMeasurer : public TextMeasurer {
 public:
  TextSize Measure(const Font& font, const std::string& text, double wrapWidth) const override;
  LackedLetters Lacked(const Font& font, const std::string& text) const override;
  // Width of one line of text in thousandths of the font's size.
  static int Units(const std::string& text);

  // Letters that no font has, and those that only a font other than the asked one has.
  std::string NoFontHas;
  std::map<std::string, std::string> FontLacks;
};

// A picture is a file of the simulated tree made by PictureBytes; any other file holds no picture.
class SimPictures : public PictureReader {
 public:
  explicit SimPictures(const SimFiles& files) : files_(files) {}
  // RuntimeError with the number of a picture's error.
  PixelSize Size(const std::string& path) const;
  void Look(const std::string& path, std::function<void(const PictureFacts&)> then) override;
  void Check(const std::string& path, std::function<void(const PictureFacts&)> then) override { Look(path, then); }
  void Hold(const std::string& path) override { Held.push_back(path); }
  // The disk gives what was asked of it while it was slow, in order.
  void Answer();
  // Where true, each look waits for Answer.
  bool Slow = false;
  // What was read ahead, in order.
  std::vector<std::string> Held;
  static std::string PictureBytes(int width, int height);

 private:
  const SimFiles& files_;
  std::deque<std::function<void()>> waiting_;
};

// Any file that is not empty plays.
class SimMediaFiles : public MediaReader {
 public:
  explicit SimMediaFiles(const SimFiles& files) : files_(files) {}
  void Look(const std::string& path, std::function<void(bool plays)> then) override {
    then(files_.CanOpen(path) && !files_.Read(path).empty());
  }
  void Check(const std::string& path, std::function<void(bool plays)> then) override { Look(path, std::move(then)); }
  bool HasSoundDevice() const override { return !Devices.empty(); }
  void NameSoundDevices(std::function<void(const std::vector<std::string>& names)> then) override { then(Devices); }

  // What sound comes out of.
  std::vector<std::string> Devices{"Built-in Audio"};

 private:
  const SimFiles& files_;
};

class SimDisplays : public Displays {
 public:
  std::vector<MonitorInfo> Enumerate() const override { return Monitors; }
  void OnChanged(std::function<void()> changed) override { changed_ = std::move(changed); }
  void SetTopMost(Form& form, bool onTop) override { TopMost.emplace_back(form.Name(), onTop); }
  void RoundWindow(Form& form, int radius) override { Rounded[form.Name()] = radius; }
  void KeepAwake(bool awake) override { Awake = awake; }
  void TryAwake(std::function<void(const AwakeAnswer& answer)> then) override { then(AwakeGrants); }
  bool KeepsAwake() const override { return !Awake || AwakeGrants.Saver; }
  // The cable is pulled or put in, or a mode is changed.
  void Change(std::vector<MonitorInfo> monitors);

  std::vector<MonitorInfo> Monitors{{0, 0, 1280, 800}};
  // Every call, in order.
  std::vector<std::pair<std::string, bool>> TopMost;
  std::map<std::string, int> Rounded;
  bool Awake = false;
  // What the desktop says when it is asked to hold saver and sleep off.
  AwakeAnswer AwakeGrants{true, true};

 private:
  std::function<void()> changed_;
};

class SimDeviceWatch : public DeviceWatch {
 public:
  void OnChanged(std::function<void()> changed) override { changed_ = std::move(changed); }
  // The system reports a device that was plugged in or pulled.
  void Notify() const {
    if (changed_) changed_();
  }

 private:
  std::function<void()> changed_;
};

class SimPrinter : public Printing {
 public:
  std::optional<int> ChoosePrinter() override;
  void Print(const PrintDocument& document, int copies) override;

  // What the operator chooses next; nothing cancels.
  std::optional<int> Copies;
  bool Broken = false;
  std::vector<PrintDocument> Printed;
};

class SimProcesses : public Processes {
 public:
  bool AnotherInstanceRuns() override { return AlreadyRuns; }
  std::vector<ProcessInfo> List() const override { return Others; }
  std::int64_t CurrentId() const override { return 4711; }
  void Activate(std::int64_t id) override { Activated.push_back(id); }
  bool HandOver(const std::string& path) override {
    HandedOver.push_back(path);
    return AlreadyRuns;
  }
  bool StartHelper(const std::string& name, const std::string& argument) override;
  void EndProgram() override { Ended = true; }
  void Start(const std::string& path) override { Started.push_back(path); }

  bool AlreadyRuns = false;
  // The program that lies beside this one, empty for none, and the arguments that it was started with.
  std::string Helper;
  std::vector<std::string> HelperArguments;
  std::vector<ProcessInfo> Others;
  std::vector<std::int64_t> Activated;
  std::vector<std::string> HandedOver;
  bool Ended = false;
  std::vector<std::string> Started;
};

// Notes what was opened, in order.
class SimPages : public HelpPages {
 public:
  bool Open(const std::string& address) override {
    Opened.push_back(address);
    return Works;
  }

  std::vector<std::string> Opened;
  bool Works = true;
};

// Gives the scripted values first, then a fixed sequence.
class SimRandom : public RandomSource {
 public:
  explicit SimRandom(std::uint32_t seed = 1) : state_(seed) {}
  void Randomize() override { ++Randomized; }
  double Next() override;

  std::deque<double> Scripted;
  int Randomized = 0;

 private:
  std::uint32_t state_;
};

}  // namespace pawnfield
