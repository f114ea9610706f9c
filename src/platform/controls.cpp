#include "platform/controls.h"

#include <algorithm>

#include "platform/escapes.h"

namespace pawnfield {

Control::Control(Form& form, std::string name, ControlKind kind) : form_(form), name_(std::move(name)), kind_(kind) {
  if (kind != ControlKind::Form) form.controls_.push_back(this);
}

bool Control::IsShown() const {
  for (const Control* c = this; c != nullptr; c = c->Container) {
    if (!c->Visible) return false;
  }
  return true;
}

bool Control::IsReachable() const {
  for (const Control* c = this; c != nullptr; c = c->Container) {
    if (!c->Visible || !c->Enabled) return false;
  }
  return true;
}

void Control::Raise(const std::function<void()>& handler, const char* event) {
  if (handler) form_.Dispatch(handler, name_ + event);
}

void Control::Click() {
  if (IsReachable()) Raise(OnClick, "_Click");
}

void Fader::Slide(int value) {
  if (!IsReachable()) return;
  Value = std::clamp(value, 0, 100);
  Raise(OnClick, "_Change");
}

void Control::DblClick() {
  if (IsReachable()) Raise(OnDblClick, "_DblClick");
}

void Control::BringToFront() { ZOrder = ++form_.front_; }

void Control::SetFocus() {
  form_.ActiveControl = this;
  Notify(PropertyId::Focus);
}

void Control::MoveTo(double left, double top, double width, double height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
}

Form::Form(std::string name) : Control(*this, std::move(name), ControlKind::Form) { Visible = false; }

Control* Form::Find(const std::string& name) const {
  const auto it = std::find_if(controls_.begin(), controls_.end(), [&](const Control* c) { return c->Name() == name; });
  return it == controls_.end() ? nullptr : *it;
}

void Form::Dispatch(const std::function<void()>& handler, const std::string& procedure) {
  if (Guard) {
    Guard(handler, Name(), procedure);
  } else {
    handler();
  }
}

void Form::KeyPress(int keyAscii) {
  if (Visible && Enabled && OnKeyPress) Dispatch([this, keyAscii] { OnKeyPress(keyAscii); }, "Form_KeyPress");
}

void Form::Unload() {
  if (OnUnload) Dispatch(OnUnload, "Form_Unload");
  Visible = false;
}

void TextBox::Type(const std::string& text) {
  if (!IsReachable()) return;
  Text = MaxLength == 0 ? text : FirstLetters(text, MaxLength);
  Raise(OnChange, "_Change");
}

void TextBox::GotFocus() {
  if (!IsReachable()) return;
  Owner().ActiveControl = this;
  Raise(OnGotFocus, "_GotFocus");
}

void TextBox::LoseFocus() { Raise(OnLostFocus, "_LostFocus"); }

void ComboBox::AddItem(const std::string& text) {
  auto items = List.Get();
  items.push_back(text);
  List = items;
}

void ComboBox::Clear() {
  List = {};
  ListIndex = -1;
}

std::string ComboBox::Text() const {
  const int index = ListIndex;
  if (index < 0 || index >= static_cast<int>(List->size())) return "";
  return (*List.operator->())[static_cast<std::size_t>(index)];
}

void ComboBox::DropDown() {
  if (IsReachable()) Raise(OnDropDown, "_DropDown");
}

void ComboBox::Select(int index) {
  if (!IsReachable() || index < 0 || index >= static_cast<int>(List->size())) return;
  ListIndex = index;
  Raise(OnClick, "_Click");
}

void ListView::Select(int index) {
  if (!IsReachable() || index < 0 || index >= static_cast<int>(ListItems->size())) return;
  SelectedItem = index;
  Raise(OnClick, "_Click");
}

void CheckBox::Click() {
  if (!IsReachable()) return;
  Value = Value == 0 ? 1 : 0;
  Raise(OnClick, "_Click");
}

void OptionButton::Click() {
  if (!IsReachable()) return;
  SelectInGroup();
  Raise(OnClick, "_Click");
}

void OptionButton::SelectInGroup() {
  for (OptionButton* other : Group) {
    if (other != this) other->Value = false;
  }
  Value = true;
}

Grid::Grid(Form& form, std::string name, int rows, int columns)
    : Control(form, std::move(name), ControlKind::Grid),
      rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}

std::string Grid::Cell(int row, int column) const {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) return "";
  return cells_[static_cast<std::size_t>(row * columns_ + column)];
}

void Grid::SetCell(int row, int column, const std::string& text) {
  if (row < 0 || row >= rows_ || column < 0 || column >= columns_) return;
  std::string& cell = cells_[static_cast<std::size_t>(row * columns_ + column)];
  if (cell == text) return;
  cell = text;
  Notify(PropertyId::List);
}

void Grid::SelectCell(int row, int column) {
  Row = row;
  Col = column;
}

void Grid::ClickCell(int row, int column) {
  if (!IsReachable() || !IsBody(row, column)) return;
  SelectCell(row, column);
  Raise(OnClick, "_Click");
}

void Grid::DblClickCell(int row, int column) {
  if (!IsReachable() || !IsBody(row, column)) return;
  SelectCell(row, column);
  Raise(OnDblClick, "_DblClick");
}

void Grid::DropFile(int row, int column, const std::string& path) {
  if (!IsReachable() || !IsBody(row, column) || !OnDropFile) return;
  SelectCell(row, column);
  Raise([&] { OnDropFile(path); }, "_DropFile");
}

void Grid::PressKey(int keyCode, int keyAscii) {
  if (!IsReachable()) return;
  if (OnKeyDown) Raise([&] { OnKeyDown(keyCode); }, "_KeyDown");
  if (OnKeyPress && keyAscii != 0) Raise([&] { OnKeyPress(keyAscii); }, "_KeyPress");
}

Timer::Timer(Form& form, std::string name) : Timer(form, std::move(name), 0) {}

Timer::Timer(Form& form, std::string name, int interval, bool enabled)
    : Control(form, std::move(name), ControlKind::Timer) {
  Interval = interval;
  Enabled = enabled;
}

void Timer::Fire() {
  if (Enabled) Raise(OnTimer, "_Timer");
}

void Timer::Restart() {
  Enabled = false;
  Enabled = true;
}

SquareGrid::SquareGrid(Form& form) {
  for (std::size_t i = 0; i < squares_.size(); ++i) {
    squares_[i] = std::make_unique<Image>(form, "img" + std::to_string(i / 6) + std::to_string(i % 6));
  }
}

Image* SquareGrid::At(int row, int column) {
  if (row < 0 || row > 5 || column < 0 || column > 5) return nullptr;
  return squares_[static_cast<std::size_t>(row * 6 + column)].get();
}

}  // namespace pawnfield
