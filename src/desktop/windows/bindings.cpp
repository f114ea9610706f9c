#include "desktop/windows/bindings.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QColor>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>
#include <QSlider>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/picture_cache.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/blinker.h"
#include "desktop/windows/grid_view.h"
#include "desktop/windows/hold_button.h"
#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"
#include "desktop/windows/set_text_edit.h"

namespace pawnfield {

namespace {

constexpr double kSmallestSample = 8;
constexpr double kLargestSample = 24;

// The common half: what every widget takes from its model.
template <typename Model, typename Widget>
class Binding : public Observer {
 public:
  Binding(Model& boundModel, Widget& boundWidget)
      : model(boundModel), widget(boundWidget), ownTip_(boundWidget.toolTip()) {
    QSizePolicy policy = widget.sizePolicy();
    // A hidden control keeps its place, so that nothing moves under the operator's hand; a box for typing leaves its
    // own to what stands beside it.
    policy.setRetainSizeWhenHidden(model.Kind() != ControlKind::TextBox);
    widget.setSizePolicy(policy);
    if (widget.property("blinks").toBool()) blinker_ = std::make_unique<Blinker>(widget, model.Visible);
    ShowCommon();
    model.AddObserver(*this);
  }

  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::Focus) {
      widget.setFocus();
    } else {
      ShowCommon();
      ShowOwn(id);
    }
  }

 protected:
  virtual void ShowOwn(PropertyId) {}

  Model& model;
  Widget& widget;

 private:
  void ShowCommon() {
    if (blinker_) {
      blinker_->Show(model.Visible);
    } else if (widget.isHidden() == model.Visible) {
      widget.setVisible(model.Visible);
    }
    widget.setEnabled(model.Enabled);
    const QString tip = Unescape(model.ToolTipText);
    if (tip != tip_) ShowTip(tip.isEmpty() ? ownTip_ : tip);
    tip_ = tip;
  }

  // A tip that is but a key is in the widget's own, which also says what the key does.
  void ShowTip(const QString& tip) { widget.setToolTip(ownTip_.endsWith('(' + tip + ')') ? ownTip_ : tip); }

  QString ownTip_;
  // The model's.
  QString tip_;
  // For what blinks all the time that nobody plays.
  std::unique_ptr<Blinker> blinker_;
};

class ButtonBinding : public Binding<Button, QAbstractButton> {
 public:
  ButtonBinding(Button& button, QAbstractButton& view) : Binding(button, view) {
    ShowOwn(PropertyId::Caption);
    // A button that wants a hold is tied by what guards it.
    if (qobject_cast<HoldButton*>(&view) != nullptr) return;
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [this] { model.Click(); });
  }

 private:
  void ShowOwn(PropertyId) override { widget.setText(Unescape(model.Caption)); }
};

class LabelBinding : public Binding<Label, QLabel> {
 public:
  LabelBinding(Label& label, QLabel& view) : Binding(label, view) {
    widget.setTextFormat(Qt::PlainText);
    ShowOwn(PropertyId::Caption);
    auto* clickable = qobject_cast<ModelLabel*>(&widget);
    if (clickable == nullptr) return;
    QObject::connect(clickable, &ModelLabel::Clicked, &widget, [this] { Clicked(); });
    QObject::connect(clickable, &ModelLabel::DoubleClicked, &widget, [this] { model.DblClick(); });
  }

 private:
  // The text of a check box is a label of its own, whose property "clicks" names the box.
  void Clicked() {
    const std::string other = widget.property("clicks").toString().toStdString();
    Control* target = other.empty() ? &model : model.Owner().Find(other);
    if (target != nullptr) target->Click();
  }
  void ShowOwn(PropertyId) override {
    widget.setText(Unescape(model.Caption).replace("\r\n", "\n"));
    if (model.ForeColor == kWhite) return;
    QPalette palette = widget.palette();
    palette.setColor(QPalette::WindowText, ToQColor(model.ForeColor));
    widget.setPalette(palette);
  }
};

class CheckBoxBinding : public Binding<CheckBox, QCheckBox> {
 public:
  CheckBoxBinding(CheckBox& box, QCheckBox& view) : Binding(box, view) {
    ShowOwn(PropertyId::Value);
    QObject::connect(&widget, &QCheckBox::clicked, &widget, [this] {
      model.Click();
      ShowOwn(PropertyId::Value);
    });
  }

 private:
  void ShowOwn(PropertyId) override {
    widget.setText(Unescape(model.Caption));
    widget.setChecked(model.Value != 0);
  }
};

class OptionBinding : public Binding<OptionButton, QRadioButton> {
 public:
  OptionBinding(OptionButton& option, QRadioButton& view) : Binding(option, view) {
    // The model decides which one of its group is on.
    widget.setAutoExclusive(false);
    ShowOwn(PropertyId::Value);
    QObject::connect(&widget, &QRadioButton::clicked, &widget, [this] {
      model.Click();
      ShowOwn(PropertyId::Value);
    });
  }

 private:
  void ShowOwn(PropertyId) override {
    widget.setText(Unescape(model.Caption));
    widget.setChecked(model.Value);
  }
};

class ComboBinding : public Binding<ComboBox, ModelComboBox> {
 public:
  ComboBinding(ComboBox& box, ModelComboBox& view) : Binding(box, view) {
    ShowOwn(PropertyId::List);
    QObject::connect(&widget, &ModelComboBox::AboutToOpen, &widget, [this] { model.DropDown(); });
    QObject::connect(&widget, &QComboBox::activated, &widget, [this](int index) {
      model.Select(index);
      widget.setCurrentIndex(model.ListIndex);
    });
  }

 private:
  void ShowOwn(PropertyId id) override {
    if (id == PropertyId::List) {
      widget.clear();
      for (const std::string& item : model.List.Get()) widget.addItem(Unescape(item));
    }
    widget.setCurrentIndex(model.ListIndex);
  }
};

// Notifies the model when the user goes to its box. A window that merely comes back to the front is no such event.
class FocusWatch : public QObject {
 public:
  FocusWatch(TextBox& box, QWidget& view) : QObject(&view), box_(box) { view.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::FocusIn) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool byUser = reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason ||
                        reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    if (byUser) box_.GotFocus();
    return false;
  }

 private:
  TextBox& box_;
};

class TextBoxBinding : public Binding<TextBox, QLineEdit> {
 public:
  TextBoxBinding(TextBox& box, QLineEdit& view) : Binding(box, view) {
    ShowOwn(PropertyId::Text);
    new FocusWatch(box, view);
    QObject::connect(&widget, &QLineEdit::textEdited, &widget, [this](const QString& text) { Edited(text); });
  }

 private:
  void Edited(const QString& text) {
    model.Type(Escape(text.normalized(QString::NormalizationForm_C)));
    ShowOwn(PropertyId::Text);
  }
  void ShowOwn(PropertyId id) override {
    // The press that gives the focus places the cursor afterwards.
    if (id == PropertyId::Selection) QTimer::singleShot(0, &widget, &QLineEdit::selectAll);
    const QString text = Unescape(model.Text);
    if (widget.text() != text) widget.setText(text);
    if (widget.property("showsLook").toBool()) {
      ShowLook();
      return;
    }
    if (widget.property("showsTurn").toBool()) return;
    // Black is the design's own ground; any other colour is a sign to the operator.
    const QString sign = model.BackColor == kBlack ? QString() : ToQColor(model.BackColor).name();
    if (sign == sign_) return;
    sign_ = sign;
    const bool bright = ToQColor(model.BackColor).lightness() > 140 || model.BackColor == kYellow;
    widget.setStyleSheet(
        sign.isEmpty()
            ? QString()
            : QString("QLineEdit { border: 3px solid %1; color: %2; }").arg(sign, bright ? "#FFE9A8" : "#E6EAF2"));
  }
  // The box is a sample of what its text will look like; larger letters would burst the dialog.
  void ShowLook() {
    const Font& font = model.Font;
    const QString look =
        QString(
            "font-family: \"%1\"; font-size: %2pt; font-weight: %3; font-style: %4; color: %5; "
            "background: %6; padding: 2px 8px;")
            .arg(Unescape(font.Name).remove('"'))
            .arg(std::clamp(font.Size, kSmallestSample, kLargestSample))
            .arg(font.Bold ? 700 : 400)
            .arg(font.Italic ? "italic" : "normal", ToQColor(model.ForeColor).name(), ToQColor(model.BackColor).name());
    if (look == sign_) return;
    sign_ = look;
    widget.setStyleSheet("QLineEdit { " + look + " }");
  }
  QString sign_;
};

class FrameBinding : public Binding<Frame, QWidget> {
 public:
  FrameBinding(Frame& frame, QWidget& view) : Binding(frame, view) { ShowOwn(PropertyId::Caption); }

 private:
  void ShowOwn(PropertyId) override {
    auto* group = qobject_cast<QGroupBox*>(&widget);
    if (group != nullptr && !model.Caption->empty()) group->setTitle(Unescape(model.Caption));
  }
};

// Of an Image or a PictureBox that stands outside the canvas.
template <typename Model>
class PictureBinding : public Binding<Model, PictureFrame> {
 public:
  PictureBinding(Model& picture, PictureFrame& view, PictureCache& pictures)
      : Binding<Model, PictureFrame>(picture, view), pictures_(pictures) {
    ShowOwn(PropertyId::Picture);
    QObject::connect(&pictures_, &PictureCache::Decoded, &view, [this](const std::string& path) {
      if (path == this->model.Picture.Get()) ShowOwn(PropertyId::Picture);
    });
    QObject::connect(&view, &PictureFrame::Clicked, &view, [this] { this->model.Click(); });
  }

 private:
  void ShowOwn(PropertyId id) override {
    if (id != PropertyId::Picture) return;
    this->widget.SetPicture(pictures_.Original(this->model.Picture));
    this->widget.SetLit(IsLitBox(this->model.Picture));
  }
  PictureCache& pictures_;
};

// A bar that grows: its share of the form's width is the progress.
class ProgressBinding : public Binding<ProgressBar, QProgressBar> {
 public:
  ProgressBinding(ProgressBar& bar, QProgressBar& view) : Binding(bar, view) {
    widget.setRange(0, 1000);
    ShowOwn(PropertyId::Width);
  }

 private:
  void ShowOwn(PropertyId) override {
    const double whole = model.Owner().Width;
    widget.setValue(whole > 0 ? static_cast<int>(1000 * model.Width / whole) : 0);
  }
};

class ListViewBinding : public Binding<ListView, QTreeWidget> {
 public:
  ListViewBinding(ListView& list, QTreeWidget& view) : Binding(list, view) {
    QStringList headers;
    for (const std::string& header : model.ColumnHeaders) headers.append(Unescape(header));
    widget.setHeaderLabels(headers);
    widget.setRootIsDecorated(false);
    widget.setUniformRowHeights(true);
    widget.setAllColumnsShowFocus(true);
    ShowOwn(PropertyId::List);
    QObject::connect(&widget, &QTreeWidget::currentItemChanged, &widget, [this] { Picked(); });
  }

 private:
  void Picked() {
    if (showing_) return;
    model.Select(widget.indexOfTopLevelItem(widget.currentItem()));
    ShowOwn(PropertyId::ListIndex);
  }
  void ShowOwn(PropertyId) override {
    const auto& rows = model.ListItems.Get();
    showing_ = true;
    while (widget.topLevelItemCount() > static_cast<int>(rows.size())) delete widget.takeTopLevelItem(0);
    while (widget.topLevelItemCount() < static_cast<int>(rows.size())) new QTreeWidgetItem(&widget);
    for (int row = 0; row < widget.topLevelItemCount(); ++row) ShowRow(*widget.topLevelItem(row), rows, row);
    widget.setCurrentItem(widget.topLevelItem(model.SelectedItem));
    widget.scrollToItem(widget.currentItem());
    showing_ = false;
  }
  static void ShowRow(QTreeWidgetItem& item, const std::vector<ListView::Row>& rows, int row) {
    const ListView::Row& texts = rows[static_cast<std::size_t>(row)];
    for (std::size_t column = 0; column < texts.size(); ++column) {
      const QString text = Unescape(texts[column]);
      item.setText(static_cast<int>(column), text);
      // What the column has no room for is read there.
      item.setToolTip(static_cast<int>(column), text);
    }
  }
  bool showing_ = false;
};

class OrderBinding : public Binding<ListView, OrderView> {
 public:
  OrderBinding(ListView& list, OrderView& view) : Binding(list, view) { ShowOwn(PropertyId::List); }

 private:
  void ShowOwn(PropertyId) override {
    QList<QStringList> rows;
    for (const ListView::Row& texts : model.ListItems.Get()) {
      rows.append(QStringList());
      for (const std::string& text : texts) rows.last().append(Unescape(text));
    }
    widget.SetRows(rows);
  }
};

class ChipBinding : public Binding<Chip, ChipView> {
 public:
  ChipBinding(Chip& chip, ChipView& view) : Binding(chip, view) {
    // A chip that has nothing to tell leaves its room to the others.
    LeavePlace(widget);
    ShowOwn(PropertyId::Caption);
    QObject::connect(&widget, &QAbstractButton::clicked, &widget, [this] { model.Click(); });
  }

 private:
  void ShowOwn(PropertyId) override { widget.Show(Unescape(model.Caption), model.State); }
};

class FaderBinding : public Binding<Fader, QSlider> {
 public:
  FaderBinding(Fader& fader, QSlider& view) : Binding(fader, view) {
    widget.setRange(0, 100);
    ShowOwn(PropertyId::Value);
    QObject::connect(&widget, &QSlider::valueChanged, &widget, [this](int value) { model.Slide(value); });
  }

 private:
  void ShowOwn(PropertyId) override {
    const QSignalBlocker blocker(widget);
    widget.setValue(model.Value);
  }
};

class ActionBinding : public Observer {
 public:
  ActionBinding(Menu& menu, QAction& action) : menu_(menu), action_(action) {
    Changed(menu, PropertyId::Caption);
    menu.AddObserver(*this);
    QObject::connect(&action_, &QAction::triggered, &action_, [this] { menu_.Click(); });
  }

  void Changed(Control&, PropertyId) override {
    action_.setText(Unescape(menu_.Caption));
    action_.setVisible(menu_.Visible);
    action_.setEnabled(menu_.Enabled);
  }

 private:
  Menu& menu_;
  QAction& action_;
};

template <typename BindingType, typename Widget, typename Model>
std::unique_ptr<Observer> Make(Control& control, QWidget& widget, auto&... more) {
  auto* view = qobject_cast<Widget*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<BindingType>(static_cast<Model&>(control), *view, more...);
}

}  // namespace

std::unique_ptr<Observer> MakeBinding(Control& control, QWidget& widget, PictureCache& pictures) {
  switch (control.Kind()) {
    case ControlKind::Button:
      return Make<ButtonBinding, QAbstractButton, Button>(control, widget);
    case ControlKind::Label:
      return Make<LabelBinding, QLabel, Label>(control, widget);
    case ControlKind::CheckBox:
      return Make<CheckBoxBinding, QCheckBox, CheckBox>(control, widget);
    case ControlKind::OptionButton:
      return Make<OptionBinding, QRadioButton, OptionButton>(control, widget);
    case ControlKind::ComboBox:
      return Make<ComboBinding, ModelComboBox, ComboBox>(control, widget);
    case ControlKind::TextBox:
      if (auto* edit = qobject_cast<SetTextEdit*>(&widget)) {
        return MakeSetTextBinding(static_cast<TextBox&>(control), *edit);
      }
      return Make<TextBoxBinding, QLineEdit, TextBox>(control, widget);
    case ControlKind::Frame:
      return Make<FrameBinding, QWidget, Frame>(control, widget);
    case ControlKind::Image:
      return Make<PictureBinding<Image>, PictureFrame, Image>(control, widget, pictures);
    case ControlKind::PictureBox:
      return Make<PictureBinding<PictureBox>, PictureFrame, PictureBox>(control, widget, pictures);
    case ControlKind::Grid:
      return MakeGridBinding(static_cast<Grid&>(control), widget);
    case ControlKind::ProgressBar:
      return Make<ProgressBinding, QProgressBar, ProgressBar>(control, widget);
    case ControlKind::Fader:
      return Make<FaderBinding, QSlider, Fader>(control, widget);
    case ControlKind::Chip:
      return Make<ChipBinding, ChipView, Chip>(control, widget);
    case ControlKind::ListView:
      if (auto order = Make<OrderBinding, OrderView, ListView>(control, widget)) return order;
      return Make<ListViewBinding, QTreeWidget, ListView>(control, widget);
    default:
      return nullptr;
  }
}

std::unique_ptr<Observer> MakeActionBinding(Menu& menu, QAction& action) {
  return std::make_unique<ActionBinding>(menu, action);
}

}  // namespace pawnfield
