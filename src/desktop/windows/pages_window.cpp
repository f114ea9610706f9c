#include "desktop/windows/pages_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/files/windows_1252.h"
#include "desktop/windows/model_widgets.h"
#include "desktop/windows/qr_view.h"

namespace pawnfield {

namespace {

constexpr QSize kButtonSize(92, 32);
constexpr int kLineHeight = 22;

ModelLabel* MakeLabel(const QString& name, const char* role = nullptr) {
  auto* label = new ModelLabel;
  label->setObjectName(name);
  label->setMinimumHeight(kLineHeight);
  if (role != nullptr) label->setProperty("role", role);
  return label;
}

template <typename Widget>
Widget* MakeNamed(const QString& name) {
  auto* widget = new Widget;
  widget->setObjectName(name);
  return widget;
}

// A group that stands as one card of the window.
QVBoxLayout* AddGroup(QBoxLayout& to, const QString& name, int stretch = 0) {
  auto* group = MakeNamed<QFrame>(name);
  group->setProperty("role", "group");
  to.addWidget(group, stretch);
  auto* column = new QVBoxLayout(group);
  column->setContentsMargins(16, 12, 16, 14);
  column->setSpacing(8);
  return column;
}

// What stands on the wall: an address that can be copied, large enough to be read out.
ModelLabel* MakeFact(const QString& name, const char* role) {
  ModelLabel* label = MakeLabel(name, role);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

QHBoxLayout* SwitchRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(10);
  row->addWidget(MakeLabel("lblNetwork"));
  auto* addresses = MakeNamed<ModelComboBox>("cboAddress");
  addresses->setMinimumSize(190, kButtonSize.height());
  addresses->setAccessibleName("Network");
  row->addWidget(addresses);
  row->addWidget(MakeButton("btnSwitch", {110, kButtonSize.height()}));
  row->addSpacing(8);
  row->addWidget(MakeNamed<QCheckBox>("chkKeepOn"));
  row->addStretch(1);
  return row;
}

void AddAddresses(QVBoxLayout& column, QrView& code) {
  auto* row = new QHBoxLayout;
  row->setSpacing(18);
  code.setObjectName("pnlCode");
  code.setFixedSize(210, 210);
  row->addWidget(&code);
  auto* facts = new QVBoxLayout;
  facts->setSpacing(2);
  const struct {
    const char* name;
    const char* role;
  } lines[] = {{"lblPhonesPrompt", "note"}, {"lblPhonesAddress", "fact"}, {"lblPinPrompt", "note"},
               {"lblPin", "pin"},           {"lblHostPrompt", "note"},    {"lblHostAddress", "fact"},
               {"lblHostPin", "fact"},      {"lblScoresPrompt", "note"},  {"lblScoresAddress", "fact"}};
  for (const auto& [name, role] : lines) {
    const bool isNote = QString(role) == "note";
    facts->addWidget(isNote ? MakeLabel(name, role) : MakeFact(name, role));
    if (!isNote && QString(name) != "lblHostAddress") facts->addSpacing(4);
  }
  facts->addStretch(1);
  row->addLayout(facts, 1);
  column.addLayout(row);
}

void AddSeats(QVBoxLayout& column) {
  column.addWidget(MakeLabel("lblSeats", "title"));
  auto* seats = new QGridLayout;
  seats->setHorizontalSpacing(10);
  seats->setVerticalSpacing(6);
  seats->setColumnStretch(1, 1);
  for (int i = 0; i < kPlayers; ++i) {
    seats->addWidget(MakeLabel(QString("lblSeatName_%1").arg(i)), i, 0);
    seats->addWidget(MakeLabel(QString("lblSeat_%1").arg(i)), i, 1);
    for (const char* name : {"btnEmptySeat_%1", "btnLockSeat_%1"}) {
      auto* button = MakeButton(QString(name).arg(i), {72, 28});
      seats->addWidget(button, i, QString(name).startsWith("btnE") ? 2 : 3);
    }
  }
  column.addLayout(seats);
  auto* weighing = new QHBoxLayout;
  weighing->setSpacing(14);
  weighing->addWidget(MakeLabel("lblWeighing", "note"));
  for (int i = 0; i < 2; ++i) weighing->addWidget(MakeNamed<QRadioButton>(QString("optWeighing_%1").arg(i)));
  weighing->addStretch(1);
  column.addLayout(weighing);
}

void AddControl(QVBoxLayout& column) {
  column.addWidget(MakeNamed<QCheckBox>("chkControl"));
  column.addWidget(MakeFact("lblControlToken", "fact"));
  column.addWidget(MakeLabel("lblControlAddresses", "note"));
  auto* addresses = MakeNamed<QLineEdit>("txtControlAddresses");
  addresses->setMinimumHeight(30);
  addresses->setAccessibleName("Addresses for OSC");
  column.addWidget(addresses);
}

}  // namespace

PagesWindow::PagesWindow(PagesForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  QVBoxLayout* column = MakeContent(*this, 18, 12);
  auto* what = MakeLabel("lblWhat", "note");
  what->setWordWrap(true);
  what->setMinimumSize(720, 36);
  column->addWidget(what);
  column->addLayout(SwitchRow());
  column->addWidget(MakeLabel("lblPagesStatus", "warning"));
  auto* halves = new QHBoxLayout;
  halves->setSpacing(12);
  auto* code = new QrView;
  AddAddresses(*AddGroup(*halves, "pnlAddresses", 1), *code);
  auto* right = new QVBoxLayout;
  right->setSpacing(12);
  AddSeats(*AddGroup(*right, "pnlSeats"));
  AddControl(*AddGroup(*right, "pnlControl"));
  halves->addLayout(right, 1);
  column->addLayout(halves);
  auto* list = MakeNamed<QTreeWidget>("lstPages");
  list->setRootIsDecorated(false);
  list->setSelectionMode(QAbstractItemView::NoSelection);
  list->setAccessibleName("Who is connected");
  list->setMinimumHeight(84);
  column->addWidget(list, 1);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  row->addWidget(MakeButton("btnClose", kButtonSize));
  column->addLayout(row);
  BindForm();
  list->header()->resizeSection(0, 280);
  list->header()->resizeSection(1, 200);
  // The code says what the address says.
  class Follow : public Observer {
   public:
    Follow(Label& label, QrView& view) : label_(label), view_(view) { label.AddObserver(*this); }
    void Changed(Control&, PropertyId id) override {
      if (id == PropertyId::Caption) view_.SetText(Unescape(label_.Caption));
    }

   private:
    Label& label_;
    QrView& view_;
  };
  follow_ = std::make_unique<Follow>(form.lblPhonesAddress, *code);
  code->SetText(Unescape(form.lblPhonesAddress.Caption));
}

}  // namespace pawnfield
