#include "desktop/windows/show_check_window.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/windows/line_views.h"
#include "desktop/windows/model_widgets.h"

namespace pawnfield {

namespace {

constexpr int kLightWidth = 122, kThingWidth = 118, kSentenceWidth = 330, kButtonWidth = 118, kButtonHeight = 28;
// Three lines.
constexpr int kSentenceHeight = 45;
// With all that it can tell the window still fits on the smallest desktop.
constexpr int kLeastList = 64, kLongestList = 150;

QLabel* MakeText(const QString& name, const char* role) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setProperty("role", role);
  return label;
}

QString Numbered(const char* name, std::size_t index) { return QString("%1_%2").arg(name).arg(index); }

// The light only shows: what can be done stands in the buttons.
ChipView* MakeLight(std::size_t index) {
  auto* light = new ChipView;
  light->setObjectName(Numbered("chpLight", index));
  light->setFocusPolicy(Qt::NoFocus);
  light->setCursor(Qt::ArrowCursor);
  light->setAttribute(Qt::WA_TransparentForMouseEvents);
  return light;
}

QFrame* MakeRow(std::size_t index) {
  auto* row = new QFrame;
  row->setObjectName(Numbered("pnlRow", index));
  row->setProperty("role", "group");
  auto* across = new QHBoxLayout(row);
  across->setContentsMargins(10, 2, 10, 2);
  across->setSpacing(8);
  auto* place = new QWidget;
  place->setFixedWidth(kLightWidth);
  auto* left = new QHBoxLayout(place);
  left->setContentsMargins(0, 0, 0, 0);
  left->addWidget(MakeLight(index), 0, Qt::AlignLeft);
  across->addWidget(place);
  QLabel* thing = MakeText(Numbered("lblThing", index), "thing");
  thing->setFixedWidth(kThingWidth);
  across->addWidget(thing);
  QLabel* sentence = MakeText(Numbered("lblSentence", index), "note");
  sentence->setWordWrap(true);
  sentence->setMinimumWidth(kSentenceWidth);
  sentence->setMinimumHeight(kSentenceHeight);
  across->addWidget(sentence, 1);
  for (const char* name : {"btnMend", "btnTry"}) {
    QPushButton* button = MakeButton(Numbered(name, index), {kButtonWidth, kButtonHeight});
    across->addWidget(button);
  }
  return row;
}

QWidget* MakePressRow() {
  auto* boxes = new QWidget;
  boxes->setObjectName("pnlPress");
  auto* across = new QHBoxLayout(boxes);
  across->setContentsMargins(0, 0, 0, 0);
  across->setSpacing(8);
  for (std::size_t i = 0; i < kPlayers; ++i) {
    QLabel* box = MakeText(Numbered("lblPress", i), "press");
    box->setWordWrap(true);
    box->setMinimumHeight(34);
    across->addWidget(box, 1);
  }
  return boxes;
}

QTreeWidget* MakeList() {
  auto* list = new QTreeWidget;
  list->setObjectName("lstFindings");
  list->setAccessibleName("What was found in the set");
  list->setMaximumHeight(kLongestList);
  list->setMinimumHeight(kLeastList);
  return list;
}

// Grows the window when something comes up in it, as far as the screen goes, and takes the place of the row of boxes
// while there are none.
class GrowingParts : public Observer {
 public:
  GrowingParts(ShowCheckForm& form, QWidget& window) : form_(form), window_(window) {
    form.lblPress[0].AddObserver(*this);
    form.lblPressNote.AddObserver(*this);
    form.lstFindings.AddObserver(*this);
    ShowBoxes();
  }
  void Changed(Control& control, PropertyId id) override {
    if (id != PropertyId::Visible) return;
    ShowBoxes();
    // The widget follows, and the layout after it.
    if (control.Visible) QTimer::singleShot(0, &window_, [this] { Grow(); });
  }

 private:
  void ShowBoxes() { window_.findChild<QWidget*>("pnlPress")->setVisible(form_.lblPress[0].Visible); }
  void Grow() {
    const QRect room = window_.screen()->availableGeometry();
    const QSize frame = window_.frameSize() - window_.size();
    window_.resize(window_.size().expandedTo(window_.sizeHint().boundedTo(room.size() - frame)));
    const int below = window_.frameGeometry().bottom() - room.bottom();
    if (below > 0) window_.move(window_.pos() - QPoint(0, below));
  }

  ShowCheckForm& form_;
  QWidget& window_;
};

class PressedBox : public Observer {
 public:
  PressedBox(Label& label, QWidget& box) : label_(label), box_(box) { label.AddObserver(*this); }
  void Changed(Control&, PropertyId id) override {
    if (id != PropertyId::BackColor) return;
    box_.setProperty("pressed", label_.BackColor != kBlack);
    box_.style()->unpolish(&box_);
    box_.style()->polish(&box_);
  }

 private:
  Label& label_;
  QWidget& box_;
};

}  // namespace

ShowCheckWindow::ShowCheckWindow(ShowCheckForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  QVBoxLayout* column = MakeContent(*this, 10, 4);
  column->addWidget(MakeText("lblReady", "fact"));
  for (std::size_t i = 0; i < kCheckRows; ++i) {
    column->addWidget(MakeRow(i));
    if (static_cast<CheckRow>(i) == CheckRow::Buzzers) {
      column->addWidget(MakePressRow());
      QLabel* note = MakeText("lblPressNote", "warning");
      note->setWordWrap(true);
      column->addWidget(note);
    }
    if (static_cast<CheckRow>(i) == CheckRow::Set) column->addWidget(MakeList());
  }
  column->addStretch(1);
  auto* foot = new QHBoxLayout;
  auto* front = new QCheckBox;
  front->setObjectName("chkInFront");
  foot->addWidget(front);
  foot->addStretch(1);
  foot->addWidget(MakeButton("btnClose", {92, 28}));
  column->addLayout(foot);
  BindForm();
  TieFindings(form);
}

void ShowCheckWindow::TieFindings(ShowCheckForm& form) {
  auto* list = findChild<QTreeWidget*>("lstFindings");
  list->header()->resizeSection(0, 90);
  list->installEventFilter(this);
  LeavePlace(*list);
  LeavePlace(*findChild<QWidget*>("lblPressNote"));
  const auto open = [&form] { form.lstFindings.DblClick(); };
  connect(list, &QTreeWidget::itemClicked, this, open);
  connect(list, &QTreeWidget::itemActivated, this, open);
  for (std::size_t i = 0; i < kPlayers; ++i) {
    auto* box = findChild<QWidget*>(Numbered("lblPress", i));
    LeavePlace(*box);
    follow_.push_back(std::make_unique<PressedBox>(form.lblPress[i], *box));
  }
  follow_.push_back(std::make_unique<GrowingParts>(form, *this));
}

bool ShowCheckWindow::TakeDigit(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.size() != 1 || text[0] < u'0' || text[0] > u'9' || event.isAutoRepeat()) return false;
  form_.KeyPress(text[0].unicode());
  return true;
}

void ShowCheckWindow::keyPressEvent(QKeyEvent* event) {
  if (!TakeDigit(*event)) FormWindow::keyPressEvent(event);
}

// A list would look for a row that begins with the digit.
bool ShowCheckWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && TakeDigit(static_cast<QKeyEvent&>(*event))) return true;
  return FormWindow::eventFilter(watched, event);
}

}  // namespace pawnfield
