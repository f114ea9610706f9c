#include "desktop/windows/editor_window.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/ground.h"
#include "desktop/windows/file_drop.h"
#include "desktop/windows/model_widgets.h"
#include "desktop/windows/question_list_view.h"
#include "desktop/windows/set_text_edit.h"
#include "forms/editor_form.h"
#include "forms/missing_media_form.h"
#include "platform/text.h"

namespace pawnfield {

namespace {

constexpr int kToolHeight = 32;
constexpr int kMoveHeight = 44;
constexpr int kGap = 8;
constexpr int kEdge = 16;
constexpr int kPreviewUnit = 160;
constexpr int kLeastPreviewUnit = 90;

template <typename Widget>
Widget* Named(Widget* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

QLabel* MakeLabel(const char* name, const char* role = "") {
  auto* label = Named(new QLabel, name);
  label->setProperty("role", role);
  return label;
}

SetTextEdit* MakeText(const char* name, int lines, const char* spokenName) {
  auto* edit = Named(new SetTextEdit, name);
  edit->setMinimumHeight(24 + lines * 22);
  edit->setAccessibleName(spokenName);
  return edit;
}

// A path is read, and copied perhaps, but never typed.
QLineEdit* MakePath(const char* name, const char* spokenName) {
  auto* line = Named(new QLineEdit, name);
  line->setReadOnly(true);
  line->setMinimumHeight(kToolHeight);
  line->setAccessibleName(spokenName);
  return line;
}

QFrame* MakeGroup() {
  auto* group = new QFrame;
  group->setProperty("role", "group");
  return group;
}

QHBoxLayout* AddRow(QVBoxLayout& column) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  column.addLayout(row);
  return row;
}

void AddButtons(QHBoxLayout& row, int height, std::initializer_list<const char*> names) {
  for (const char* name : names) row.addWidget(MakeButton(name, QSize(0, height)));
}

// Keeps the preview in the proportions of the audience's screen, whatever the window's are.
class PreviewArea : public QWidget {
 public:
  PreviewArea() { setMinimumSize(4 * kLeastPreviewUnit, 3 * kLeastPreviewUnit); }
  QSize sizeHint() const override { return {4 * kPreviewUnit, 3 * kPreviewUnit}; }
  void Hold(QWidget& preview) { preview_ = &preview; }

 protected:
  void resizeEvent(QResizeEvent*) override {
    const QSize fitted = QSize(4, 3).scaled(size(), Qt::KeepAspectRatio);
    preview_->setGeometry(QRect(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted));
  }

 private:
  QWidget* preview_ = nullptr;
};

// Puts the speller into the boxes while the check box is set.
class SpellingSwitch : public Observer {
 public:
  SpellingSwitch(CheckBox& box, Speller& speller, QList<SetTextEdit*> edits)
      : box_(box), speller_(speller), edits_(std::move(edits)) {
    box.AddObserver(*this);
  }
  void Changed(Control&, PropertyId) override {
    for (SetTextEdit* edit : edits_) edit->SetSpeller(box_.Value == 1 ? &speller_ : nullptr);
  }

 private:
  CheckBox& box_;
  Speller& speller_;
  QList<SetTextEdit*> edits_;
};

}  // namespace

EditorWindow::~EditorWindow() = default;

EditorWindow::EditorWindow(EditorForm& form, FormWindows& windows, PictureCache& pictures, Speller& speller)
    : FormWindow(form, windows), editor_(form) {
  AddMenu();
  QVBoxLayout& column = *MakeContent(*this, kEdge);
  AddTools(column);
  AddQuestion(column, pictures);
  AddNavigation(column);
  BindForm();
  FillPreview(form);
  Bindings()->AddCanvas(*preview_);
  Bindings()->Hold({"lblQuestionAutoResize"});
  FitColumns();
  ShowTitle();
  TakeDrops(*this, [&form](const std::string& path) { form.DropFile(path); });
  spelling_ = std::make_unique<SpellingSwitch>(
      form.chkSpellChecker, speller,
      QList{findChild<SetTextEdit*>("txtEnterQuestion"), findChild<SetTextEdit*>("txtAnswer")});
}

void EditorWindow::Changed(Control& control, PropertyId id) {
  FormWindow::Changed(control, id);
  if (id == PropertyId::Caption || id == PropertyId::Value || id == PropertyId::Text) ShowTitle();
}

void EditorWindow::ShowTitle() {
  const std::string file = ExtractFileName(editor_.EditFileName);
  const QString name = file.empty() ? QString("New set") : Unescape(file);
  setWindowTitle(Unescape(editor_.Caption) + " - " + name + "[*]");
  setWindowModified(editor_.EditDirty);
}

void EditorWindow::AddEntries(const char* menuName, std::initializer_list<Entry> entries) {
  auto* menu = Named(menuBar()->addMenu(QString()), menuName);
  for (const auto& [name, keys] : entries) {
    auto* action = Named(new QAction(this), name);
    action->setShortcuts(keys);
    if (action->objectName() == "mnuFileExit") menu->addSeparator();
    menu->addAction(action);
  }
}

void EditorWindow::AddMenu() {
  AddEntries("mnuFile", {{"mnuFileNew", {QKeySequence::New}},
                         {"mnuFileOpen", {QKeySequence::Open}},
                         {"mnuFileSave", {QKeySequence::Save}},
                         {"mnuSaveAs", {QKeySequence("Ctrl+Shift+S")}},
                         {"mnuFilePrint", {QKeySequence::Print}},
                         {"mnuImport", {QKeySequence("Ctrl+I")}},
                         {"mnuExport", {}},
                         {"mnuPackSet", {}},
                         {"mnuFileExit", {}}});
  AddEntries("mnuEdit", {{"mnuEditUndo", {QKeySequence("Ctrl+Z")}},
                         {"mnuEditRedo", {QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}},
                         {"mnuEditDuplicate", {QKeySequence("Ctrl+D")}},
                         {"mnuEditFind", {QKeySequence::Find}}});
}

void EditorWindow::AddTools(QVBoxLayout& column) {
  QHBoxLayout& row = *AddRow(column);
  AddButtons(row, kToolHeight, {"btnNewFile", "btnFileOpen", "btnSave", "btnSaveAs", "btnPrint"});
  row.addSpacing(kEdge);
  AddButtons(row, kToolHeight, {"btnText", "btnPicture", "btnSound"});
  row.addSpacing(kEdge);
  AddButtons(row, kToolHeight, {"btnFont", "btnFontColor", "btnDefault"});
  row.addSpacing(kEdge);
  AddButtons(row, kToolHeight, {"btnUndo", "btnRedo"});
  row.addSpacing(kEdge);
  row.addStretch();
  row.addWidget(MakeLabel("lblImport", "quiet"));
  row.addWidget(MakeButton("btnImport", QSize(0, kToolHeight)));
}

void EditorWindow::AddList(QHBoxLayout& halves) {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  halves.addLayout(column, 3);
  auto* row = AddRow(*column);
  auto* find = Named(new QLineEdit, "txtFind");
  find->setMinimumHeight(kToolHeight);
  find->setPlaceholderText("Find in questions and answers");
  find->setAccessibleName("Find");
  find->setClearButtonEnabled(true);
  row->addWidget(find, 1);
  row->addWidget(MakeLabel("lblFound", "quiet"));
  AddButtons(*row, kToolHeight, {"btnFindNext"});
  auto* list = Named(new QuestionListView, "lstQuestions");
  list->setAccessibleName("All questions");
  column->addWidget(list, 1);
  connect(list, &QuestionListView::Moved, this, [this](int from, int to) { editor_.lstQuestions.Move(from, to); });
  connect(list, &QuestionListView::DeletePressed, this, [this] { editor_.lstQuestions.Delete(); });
  connect(list, &QuestionListView::DuplicatePressed, this, [this] { editor_.lstQuestions.Duplicate(); });
  auto* next = findChild<QPushButton*>("btnFindNext");
  if (next != nullptr) next->setShortcut(QKeySequence::FindNext);
  connect(find, &QLineEdit::returnPressed, this, [this] { editor_.btnFindNext.Click(); });
}

// The wording has what room the numbers and kinds leave.
void EditorWindow::FitColumns() {
  QHeaderView& header = *findChild<QTreeWidget*>("lstQuestions")->header();
  header.setStretchLastSection(false);
  const int widths[] = {40, 62, 150, 92, 96};
  for (int column = 0; column < header.count(); ++column) header.resizeSection(column, widths[column]);
  header.setSectionResizeMode(2, QHeaderView::Stretch);
}

void EditorWindow::AddQuestion(QVBoxLayout& column, PictureCache& pictures) {
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kEdge);
  column.addLayout(halves, 1);
  AddList(*halves);
  auto* area = new PreviewArea;
  preview_ = Named(new Canvas(pictures, area), "pnlPreview");
  area->Hold(*preview_);
  halves->addWidget(area, 3);
  auto* sound = Named(new QFrame(preview_), "frmSoundButtons");
  auto* soundRow = new QHBoxLayout(sound);
  soundRow->setSpacing(kGap);
  AddButtons(*soundRow, kMoveHeight, {"btnPlay", "btnStop"});

  QFrame* group = MakeGroup();
  halves->addWidget(group, 2);
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  grid->setVerticalSpacing(kGap);
  grid->addWidget(MakeLabel("lblQuestion", "number"), 0, 0);
  auto* count = new QHBoxLayout;
  count->setSpacing(kGap);
  count->addWidget(MakeLabel("lblNumberOfQuestion", "quiet"));
  count->addWidget(MakeLabel("lblNumQuestions", "count"));
  count->addStretch();
  grid->addLayout(count, 1, 0);
  grid->setRowMinimumHeight(2, kGap);
  // A question has a wording or a path, and each stands in the other's place.
  grid->addWidget(MakeLabel("lblQuestionPrompt"), 3, 0);
  grid->addWidget(MakeLabel("lblPath"), 3, 0);
  auto* question = MakeText("txtEnterQuestion", 6, "Question");
  grid->addWidget(question, 4, 0);
  grid->addWidget(MakePath("txtPath", "Path of the picture or sound"), 4, 0, Qt::AlignTop);
  grid->addWidget(MakeLabel("lblAnswer"), 5, 0);
  auto* answer = MakeText("txtAnswer", 3, "Answer");
  grid->addWidget(answer, 6, 0);
  auto* spelling = new QHBoxLayout;
  spelling->setSpacing(kGap);
  spelling->addWidget(Named(new QCheckBox, "chkSpellChecker"));
  // A long reason takes a second line, and no room from the list.
  QLabel* why = MakeLabel("lblSpelling", "quiet");
  why->setWordWrap(true);
  spelling->addWidget(why, 1);
  grid->addLayout(spelling, 7, 0);
  grid->setRowStretch(4, 3);
  grid->setRowStretch(6, 2);
  setTabOrder(question, answer);
}

void EditorWindow::AddNavigation(QVBoxLayout& column) {
  QHBoxLayout& row = *AddRow(column);
  AddButtons(row, kMoveHeight, {"btnBack10", "btnBack", "btnForward", "btnForward10"});
  row.addSpacing(kEdge * 2);
  AddButtons(row, kMoveHeight, {"btnInsertQuestion", "btnDuplicateQuestion", "btnDeleteQuestion"});
  row.addStretch();
  row.addWidget(MakeButton("btnNext", QSize(180, kMoveHeight)));
  // What is written is followed by the next question.
  setTabOrder(findChild<QWidget*>("txtAnswer"), findChild<QWidget*>("btnNext"));
  setTabOrder(findChild<QWidget*>("btnNext"), findChild<QWidget*>("btnBack10"));
}

void EditorWindow::FillPreview(EditorForm& form) {
  preview_->SetLogicalSize(form.txtDisplayQuestion.Width, form.txtDisplayQuestion.Height);
  preview_->SetBackdrop(PaintGround);
  preview_->Add(form.txtDisplayQuestion);
  preview_->Add(form.picQuestionPicture);
  preview_->Add(form.imgQuestionPicture);
  preview_->Embed(form.frmSoundButtons, *findChild<QWidget*>("frmSoundButtons"));
}

EditChoiceWindow::EditChoiceWindow(EditChoiceForm& form, FormWindows& windows) : FormWindow(form, windows, kDialog) {
  QVBoxLayout& column = *MakeContent(*this, 24);
  column.addWidget(MakeLabel("lblPrompt"));
  QHBoxLayout& row = *AddRow(column);
  row.addStretch();
  row.addWidget(MakeButton("btnCurrent", QSize(140, kMoveHeight)));
  row.addWidget(MakeButton("New", QSize(140, kMoveHeight)));
  BindForm();
}

MissingMediaWindow::MissingMediaWindow(MissingMediaForm& form, FormWindows& windows)
    : FormWindow(form, windows, kDialog) {
  QVBoxLayout& column = *MakeContent(*this, 24);
  column.addWidget(MakeLabel("lblMissingMedia"));
  QHBoxLayout& numbers = *AddRow(column);
  // The question goes when no file is missing any more; the count begins the line.
  numbers.addWidget(MakeLabel("lblCatNum"));
  numbers.addSpacing(kGap);
  numbers.addWidget(MakeLabel("lblQuestionNum"));
  numbers.addStretch();
  column.addWidget(MakeLabel("Label2", "quiet"));
  auto* location = MakePath("txtLocation", "Location of the missing file");
  location->setMinimumWidth(560);
  column.addWidget(location);
  QHBoxLayout& row = *AddRow(column);
  row.addWidget(MakeButton("btnRepair", QSize(130, kMoveHeight)));
  row.addWidget(MakeLabel("lblRecommended", "quiet"));
  row.addStretch();
  row.addWidget(MakeButton("btnCancel", QSize(130, kMoveHeight)));
  row.addWidget(MakeButton("btnFinished", QSize(130, kMoveHeight)));
  BindForm();
}

}  // namespace pawnfield
