#include "desktop/windows/editor_window.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/ground.h"
#include "desktop/windows/model_widgets.h"
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
constexpr int kPreviewUnit = 180;

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
  PreviewArea() { setMinimumSize(4 * kPreviewUnit, 3 * kPreviewUnit); }
  void Hold(QWidget& preview) { preview_ = &preview; }

 protected:
  void resizeEvent(QResizeEvent*) override {
    const QSize fitted = QSize(4, 3).scaled(size(), Qt::KeepAspectRatio);
    preview_->setGeometry(QRect(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2), fitted));
  }

 private:
  QWidget* preview_ = nullptr;
};

}  // namespace

EditorWindow::EditorWindow(EditorForm& form, FormWindows& windows, PictureCache& pictures)
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
  ShowTitle();
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

void EditorWindow::AddMenu() {
  auto* menu = Named(menuBar()->addMenu(QString()), "mnuFile");
  const std::pair<const char*, QKeySequence> entries[] = {
      {"mnuFileNew", QKeySequence::New},     {"mnuFileOpen", QKeySequence::Open},
      {"mnuFileSave", QKeySequence::Save},   {"mnuSaveAs", QKeySequence("Ctrl+Shift+S")},
      {"mnuFilePrint", QKeySequence::Print}, {"mnuFileExit", QKeySequence()},
  };
  for (const auto& [name, keys] : entries) {
    auto* action = Named(new QAction(this), name);
    action->setShortcut(keys);
    if (action->objectName() == "mnuFileExit") menu->addSeparator();
    menu->addAction(action);
  }
}

void EditorWindow::AddTools(QVBoxLayout& column) {
  QHBoxLayout& row = *AddRow(column);
  AddButtons(row, kToolHeight, {"btnNewFile", "btnFileOpen", "btnSave", "btnSaveAs", "btnPrint"});
  row.addSpacing(kEdge);
  AddButtons(row, kToolHeight, {"btnText", "btnPicture", "btnSound"});
  row.addSpacing(kEdge);
  AddButtons(row, kToolHeight, {"btnFont", "btnFontColor", "btnDefault"});
  row.addSpacing(kEdge);
  row.addStretch();
  row.addWidget(MakeLabel("lblImport", "quiet"));
  row.addWidget(MakeButton("btnImport", QSize(0, kToolHeight)));
}

void EditorWindow::AddQuestion(QVBoxLayout& column, PictureCache& pictures) {
  auto* halves = new QHBoxLayout;
  halves->setSpacing(kEdge);
  column.addLayout(halves, 1);
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
  grid->addWidget(Named(new QCheckBox, "chkSpellChecker"), 7, 0);
  grid->setRowStretch(4, 3);
  grid->setRowStretch(6, 2);
  setTabOrder(question, answer);
}

void EditorWindow::AddNavigation(QVBoxLayout& column) {
  QHBoxLayout& row = *AddRow(column);
  AddButtons(row, kMoveHeight, {"btnBack10", "btnBack", "btnForward", "btnForward10"});
  row.addSpacing(kEdge * 2);
  AddButtons(row, kMoveHeight, {"btnInsertQuestion", "btnDeleteQuestion"});
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
  numbers.addWidget(MakeLabel("lblQuestionNum"));
  numbers.addSpacing(kGap);
  numbers.addWidget(MakeLabel("lblCatNum"));
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
