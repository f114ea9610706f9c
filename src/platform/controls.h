// Control models: the properties of a form's controls as plain values. Logic reads and writes these; each change is
// announced to the control's observers (a widget, a canvas, a clock). Setting a property to the value it has is silent.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "platform/observer.h"

namespace pawnfield {

class Control;
class Form;

// Windows colour: 0x00BBGGRR, 255 is red.
using Color = std::int32_t;
inline constexpr Color kRed = 255;
inline constexpr Color kGreen = 65280;
inline constexpr Color kYellow = 65535;
inline constexpr Color kWhite = 16777215;
inline constexpr Color kBlack = 0;

// Sizes are in points.
struct Font {
  std::string Name = "Segoe UI";
  double Size = 8;
  bool Bold = false;
  bool Italic = false;
  bool operator==(const Font&) const = default;
};

enum class ControlKind {
  Form,
  Label,
  Button,
  Image,
  PictureBox,
  TextBox,
  ComboBox,
  CheckBox,
  OptionButton,
  Timer,
  Menu,
  Frame,
  ProgressBar,
  Grid,
  MediaPlayer,
  ListView,
  Chip,
  Fader
};

template <typename T>
class Property {
 public:
  Property(Control& owner, PropertyId id, T initial = T{}) : owner_(owner), id_(id), value_(std::move(initial)) {}
  Property(const Property&) = delete;

  operator const T&() const { return value_; }
  const T& Get() const { return value_; }
  const T* operator->() const { return &value_; }
  Control& Owner() const { return owner_; }
  PropertyId Id() const { return id_; }
  Property& operator=(const T& value);
  Property& operator=(const Property& other) { return *this = other.value_; }
  friend bool operator==(const Property& property, const T& value) requires(std::is_class_v<T>) {
    return property.value_ == value;
  }

 private:
  Control& owner_;
  PropertyId id_;
  T value_;
};

// What every control has. Coordinates are twips relative to the container (the form when there is none).
class Control {
 public:
  Control(Form& form, std::string name, ControlKind kind);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  ControlKind Kind() const { return kind_; }
  Form& Owner() const { return form_; }

  // True when the control and all its containers are visible (and, for IsReachable, enabled too).
  bool IsShown() const;
  bool IsReachable() const;
  // What a user's click does: runs the click handler through the form's guard if the control can be reached.
  virtual void Click();
  void DblClick();
  void BringToFront();
  void SetFocus();
  void MoveTo(double left, double top, double width, double height);

  void AddObserver(Observer& observer) { observers_.Add(observer); }
  void RemoveObserver(Observer& observer) { observers_.Remove(observer); }
  void Notify(PropertyId id) { observers_.Announce(*this, id); }

  Property<bool> Visible{*this, PropertyId::Visible, true};
  Property<bool> Enabled{*this, PropertyId::Enabled, true};
  Property<double> Left{*this, PropertyId::Left, 0};
  Property<double> Top{*this, PropertyId::Top, 0};
  Property<double> Width{*this, PropertyId::Width, 0};
  Property<double> Height{*this, PropertyId::Height, 0};
  Property<int> ZOrder{*this, PropertyId::ZOrder, 0};
  Property<std::string> ToolTipText{*this, PropertyId::ToolTipText};
  Control* Container = nullptr;
  std::function<void()> OnClick;
  std::function<void()> OnDblClick;

 protected:
  void Raise(const std::function<void()>& handler, const char* event);

 private:
  Form& form_;
  std::string name_;
  ControlKind kind_;
  ObserverList observers_;
};

template <typename T>
Property<T>& Property<T>::operator=(const T& value) {
  if (!(value_ == value)) {
    value_ = value;
    owner_.Notify(id_);
  }
  return *this;
}

// A form owns its controls as members; each registers itself in order of declaration.
class Form : public Control {
 public:
  explicit Form(std::string name);

  const std::vector<Control*>& Controls() const { return controls_; }
  // The control of that name ("btnStart", "lblPlayer1(0)"), or null.
  Control* Find(const std::string& name) const;
  // Runs an event's handler inside the guard; procedure is the handler's name ("btnStart_Click").
  void Dispatch(const std::function<void()>& handler, const std::string& procedure);
  // A key on the form by its Windows-1252 code, as typed: Ctrl+N is 14. Runs the handler while the form is enabled.
  void KeyPress(int keyAscii);
  // Ends the form: hides it and, when it was shown modally, ends that.
  void Unload();

  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<std::string> MouseIcon{*this, PropertyId::MouseIcon};
  Property<Color> BackColor{*this, PropertyId::BackColor, kBlack};
  // 0 as placed, 1 minimised.
  Property<int> WindowState{*this, PropertyId::WindowState, 0};
  // The control that was given the focus last, null for none.
  Control* ActiveControl = nullptr;
  // What the window's close box asks first; returns true to let the form close. Null means always.
  std::function<bool()> OnQueryUnload;
  std::function<void()> OnUnload;
  std::function<void()> OnResize;
  std::function<void()> OnMove;
  std::function<void(int keyAscii)> OnKeyPress;
  // Wraps every event that enters the program's logic; unset means the handler is called plainly.
  std::function<void(const std::function<void()>& handler, const std::string& form, const std::string& procedure)>
      Guard;

 private:
  friend class Control;
  std::vector<Control*> controls_;
  int front_ = 0;
};

class Label : public Control {
 public:
  Label(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Label) {}
  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<Color> ForeColor{*this, PropertyId::ForeColor, kWhite};
  Property<Color> BackColor{*this, PropertyId::BackColor, kBlack};
  Property<int> BackStyle{*this, PropertyId::BackStyle, 0};
  Property<pawnfield::Font> Font{*this, PropertyId::Font};
};

class Button : public Control {
 public:
  Button(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Button) {}
  Property<std::string> Caption{*this, PropertyId::Caption};
};

// What a chip says of what it stands for.
enum class ChipState { None, Good, Amber, Red };

// A short word on what is connected, in the menu bar; a click opens what mends it.
class Chip : public Control {
 public:
  Chip(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Chip) {}
  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<ChipState> State{*this, PropertyId::Value, ChipState::None};
};

// A value 0..100 that a hand slides.
class Fader : public Control {
 public:
  Fader(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Fader) {}
  // A user slides it; runs the handler when it can be reached.
  void Slide(int value);
  Property<int> Value{*this, PropertyId::Value, 0};
};

// An image: draws its picture stretched to its size. Picture is a file's path as the program spells it, empty for none.
class Image : public Control {
 public:
  Image(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Image) {}
  Property<std::string> Picture{*this, PropertyId::Picture};
};

// A panel that can hold other controls and shows a picture behind them.
class PictureBox : public Control {
 public:
  PictureBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::PictureBox) {}
  Property<std::string> Picture{*this, PropertyId::Picture};
  Property<Color> BackColor{*this, PropertyId::BackColor, kBlack};
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::TextBox) {}
  // A user's edit: sets Text, cut to MaxLength, and runs OnChange.
  void Type(const std::string& text);
  // A user goes to the box, by a click or by the keyboard.
  void GotFocus();
  // Marks the whole text, so that the next character typed replaces it.
  void SelectAll() { Notify(PropertyId::Selection); }
  // A user leaves the box for another control.
  void LoseFocus();
  Property<std::string> Text{*this, PropertyId::Text};
  Property<pawnfield::Font> Font{*this, PropertyId::Font, {"Segoe UI", 28, true, false}};
  Property<Color> ForeColor{*this, PropertyId::ForeColor, kWhite};
  Property<Color> BackColor{*this, PropertyId::BackColor, kBlack};
  // In characters; 0 for no limit.
  std::size_t MaxLength = 0;
  std::function<void()> OnChange;
  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
};

class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::ComboBox) {}
  void AddItem(const std::string& text);
  void Clear();
  // The selected item's text, empty when nothing is selected.
  std::string Text() const;
  // A user opens the list, and a user picks an item; both run the handler when the box can be reached.
  void DropDown();
  void Select(int index);
  Property<std::vector<std::string>> List{*this, PropertyId::List};
  // -1 for nothing selected. Setting it from logic runs no handler.
  Property<int> ListIndex{*this, PropertyId::ListIndex, -1};
  std::function<void()> OnDropDown;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name) : Control(form, std::move(name), ControlKind::CheckBox) {}
  // A user's click toggles Value (0 or 1) first.
  void Click() override;
  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<int> Value{*this, PropertyId::Value, 0};
};

class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name) : Control(form, std::move(name), ControlKind::OptionButton) {}
  // A user's click selects this one of its Group first; a click on the selected one still runs the handler.
  void Click() override;
  // Selects this one and clears the others of its group, without running a handler.
  void SelectInGroup();
  Property<std::string> Caption{*this, PropertyId::Caption};
  Property<bool> Value{*this, PropertyId::Value, false};
  std::vector<OptionButton*> Group;
};

class Frame : public Control {
 public:
  Frame(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Frame) {}
  Property<std::string> Caption{*this, PropertyId::Caption};
};

// Rows of texts under column headings, with one row selected.
class ListView : public Control {
 public:
  using Row = std::vector<std::string>;
  ListView(Form& form, std::string name) : Control(form, std::move(name), ControlKind::ListView) {}
  // A user picks a row by its index; runs the handler when the list can be reached.
  void Select(int index);
  std::vector<std::string> ColumnHeaders;
  Property<std::vector<Row>> ListItems{*this, PropertyId::List};
  // -1 for nothing selected.
  Property<int> SelectedItem{*this, PropertyId::ListIndex, -1};
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string name) : Control(form, std::move(name), ControlKind::ProgressBar) {}
};

// A table of texts with one selected cell. Row 0 and column 0 are its headings.
class Grid : public Control {
 public:
  Grid(Form& form, std::string name, int rows, int columns);
  int Rows() const { return rows_; }
  int Columns() const { return columns_; }
  // Empty outside the table; writing there does nothing.
  std::string Cell(int row, int column) const;
  void SetCell(int row, int column, const std::string& text);
  void SelectCell(int row, int column);

  // What a user does: each selects the cell first, and a heading takes none of it.
  void ClickCell(int row, int column);
  void DblClickCell(int row, int column);
  void DropFile(int row, int column, const std::string& path);
  // A key on the selected cell: by its key code, and then by its character where it has one.
  void PressKey(int keyCode, int keyAscii);

  Property<int> Row{*this, PropertyId::Row, 1};
  Property<int> Col{*this, PropertyId::Col, 1};
  // A text that stands for an empty cell.
  std::string Placeholder;
  std::function<void(int keyCode)> OnKeyDown;
  std::function<void(int keyAscii)> OnKeyPress;
  std::function<void(const std::string& path)> OnDropFile;

 private:
  bool IsBody(int row, int column) const { return row > 0 && row < rows_ && column > 0 && column < columns_; }
  int rows_, columns_;
  std::vector<std::string> cells_;
};

// What a form shows of a player: its file, its dress ("full" with controls, "none" without) and how it stands.
class MediaPlayer : public Control {
 public:
  MediaPlayer(Form& form, std::string name) : Control(form, std::move(name), ControlKind::MediaPlayer) {}
  Property<std::string> URL{*this, PropertyId::URL};
  Property<std::string> uiMode{*this, PropertyId::UiMode};
  Property<bool> stretchToFit{*this, PropertyId::StretchToFit, false};
  // 0..100; 1 stopped, 2 paused, 3 playing.
  Property<int> Volume{*this, PropertyId::Volume, 100};
  Property<int> PlayState{*this, PropertyId::PlayState, 1};
};

class Menu : public Control {
 public:
  Menu(Form& form, std::string name) : Control(form, std::move(name), ControlKind::Menu) {}
  Property<std::string> Caption{*this, PropertyId::Caption};
};

// Fires every Interval ms while Enabled; the platform's clock observes it. Starts disabled.
class Timer : public Control {
 public:
  Timer(Form& form, std::string name);
  Timer(Form& form, std::string name, int interval, bool enabled = false);
  // Called by the clock when the timer is due.
  void Fire();
  // Enabled with its whole interval before it, also when it runs already.
  void Restart();
  Property<int> Interval{*this, PropertyId::Interval, 0};
  std::function<void()> OnTimer;
  // Set before the clock is given the form: may fire up to half a second early or late, together with the others of its
  // kind, so that the machine wakes once for all of them.
  bool Relaxed = false;
};

// A control array "name(0)".."name(N-1)".
template <typename T, std::size_t N>
class ControlArray {
 public:
  ControlArray(Form& form, const std::string& name) {
    for (std::size_t i = 0; i < N; ++i) items_[i] = std::make_unique<T>(form, name + "(" + std::to_string(i) + ")");
  }
  T& operator[](std::size_t index) { return *items_.at(index); }
  const T& operator[](std::size_t index) const { return *items_.at(index); }
  static constexpr std::size_t Size() { return N; }

 private:
  std::array<std::unique_ptr<T>, N> items_;
};

// The squares "img00".."img55", by row and column.
class SquareGrid {
 public:
  explicit SquareGrid(Form& form);
  // Row and column 0..5, otherwise null.
  Image* At(int row, int column);
  template <typename F>
  void ForEach(F&& visit) {
    for (auto& square : squares_) visit(*square);
  }

 private:
  std::array<std::unique_ptr<Image>, 36> squares_;
};

}  // namespace pawnfield
