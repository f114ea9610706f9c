#include "desktop/system/qt_dialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDialog>
#include <QFontInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <tuple>

#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"
#include "desktop/system/house_box.h"

namespace pawnfield {

namespace {

constexpr double kSmallestFont = 6;

QMessageBox::StandardButtons ButtonsOf(BoxKind kind) {
  switch (kind) {
    case BoxKind::YesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case BoxKind::YesNo:
      return QMessageBox::Yes | QMessageBox::No;
    default:
      return QMessageBox::Ok;
  }
}

// A sign in the house's colours, as large as the box's text is high; none for plain news.
QPixmap SignOf(BoxKind kind, const QWidget& box) {
  constexpr int kSide = 40;
  if (kind == BoxKind::Plain) return {};
  const bool error = kind == BoxKind::Critical;
  const double ratio = box.devicePixelRatioF();
  QPixmap sign(QSize(kSide, kSide) * ratio);
  sign.setDevicePixelRatio(ratio);
  sign.fill(Qt::transparent);
  QPainter painter(&sign);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(error ? "#C7363C" : "#F2B84B"));
  painter.drawEllipse(1, 1, kSide - 2, kSide - 2);
  QFont font = box.font();
  font.setPixelSize(26);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(error ? "#FFFFFF" : "#1B1403"));
  const bool asks = kind == BoxKind::YesNo || kind == BoxKind::YesNoCancel;
  painter.drawText(QRect(0, 0, kSide, kSide), Qt::AlignCenter, asks ? "?" : "!");
  return sign;
}

// The question's own words, and the focus on what loses nothing. Of two buttons that would do the same one is enough:
// the one without a word goes.
void WriteButtons(QMessageBox& box, const BoxQuestion& question) {
  const bool worded = !question.Yes.empty();
  for (const auto& [button, word, answer] : {std::tuple(QMessageBox::Yes, question.Yes, BoxAnswer::Yes),
                                             std::tuple(QMessageBox::No, question.No, BoxAnswer::No),
                                             std::tuple(QMessageBox::Cancel, question.Cancel, BoxAnswer::Cancel)}) {
    QAbstractButton* view = box.button(button);
    if (view == nullptr) continue;
    if (worded && word.empty()) {
      box.removeButton(view);
      continue;
    }
    if (worded) view->setText(Unescape(word));
    if (answer != question.Safe) continue;
    box.setDefaultButton(button);
    box.setEscapeButton(button);
  }
}

// Closing the box without a choice is the most careful of the answers it offers.
BoxAnswer AnswerOf(int button, BoxKind kind) {
  if (kind == BoxKind::Plain || kind == BoxKind::Critical || kind == BoxKind::Exclamation) return BoxAnswer::Ok;
  if (button == QMessageBox::Yes) return BoxAnswer::Yes;
  if (button == QMessageBox::No) return BoxAnswer::No;
  return kind == BoxKind::YesNo ? BoxAnswer::No : BoxAnswer::Cancel;
}

// The folder asked for, or where it is gone the nearest one above it; without any, the current one.
QString StartFolder(const std::string& spelled) {
  QString folder = NativePath(spelled);
  if (folder.isEmpty() || QDir::isRelativePath(folder)) return QDir::currentPath();
  while (!QFileInfo(folder).isDir() && !QDir(folder).isRoot()) folder = QFileInfo(folder).path();
  return folder;
}

// Ends a modal form's message loop with the form.
class FormEnd : public Observer {
 public:
  FormEnd(Form& form, QEventLoop& loop) : form_(form), loop_(loop) { form_.AddObserver(*this); }
  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::Visible && !form_.Visible) loop_.quit();
  }

 private:
  Form& form_;
  QEventLoop& loop_;
};

}  // namespace

QWidget* OperatorsWindow() {
  QWidget* active = QApplication::activeWindow();
  if (active != nullptr && !active->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) return active;
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == "frmMain" && window->isVisible()) return window;
  }
  return nullptr;
}

QString FilterList(const std::string& filter) {
  const QStringList parts = Unescape(filter).split('|', Qt::SkipEmptyParts);
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const qsizetype bracket = parts[i].indexOf('(');
    const QString title = (bracket < 0 ? parts[i] : parts[i].left(bracket)).trimmed();
    filters.append(title + " (" + QString(parts[i + 1]).replace(';', ' ') + ')');
  }
  return filters.join(";;");
}

BoxAnswer QtDialogs::MessageBox(const std::string& text, const std::string& title, BoxKind kind) {
  return Ask({text, kind, AnswerOf(QMessageBox::NoButton, kind)}, title);
}

BoxAnswer QtDialogs::Ask(const BoxQuestion& question, const std::string& title) {
  HouseBox box(OperatorsWindow());
  box.setWindowTitle(Unescape(title));
  box.setTextFormat(Qt::PlainText);
  box.setText(Unescape(question.Text).replace("\r\n", "\n"));
  box.setIconPixmap(SignOf(question.Kind, box));
  box.setStandardButtons(ButtonsOf(question.Kind));
  WriteButtons(box, question);
  return AnswerOf(box.exec(), question.Kind);
}

std::string QtDialogs::ChooseFile(const FileDialogRequest& request) {
  QFileDialog dialog(OperatorsWindow(), Unescape(request.Title), StartFolder(request.InitialFolder));
  dialog.setAcceptMode(request.Save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.Save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setOption(QFileDialog::DontConfirmOverwrite, !request.ConfirmsOverwrite);
  if (!request.Filter.empty()) dialog.setNameFilters(FilterList(request.Filter).split(";;"));
  if (!request.FileName.empty()) dialog.selectFile(Unescape(request.FileName));
  dialog.setDefaultSuffix(Unescape(request.DefaultExtension));
  // The toolkit keeps the folders gone through for every dialog to come.
  dialog.setHistory({});
  const bool accepted = dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty();
  if (!accepted) return "";
  return SpelledPath(dialog.selectedFiles().first());
}

std::optional<Font> QtDialogs::ChooseFont(const Font& start) {
  QFont first(Unescape(start.Name));
  first.setPointSizeF(start.Size > 0 ? start.Size : kSmallestFont);
  first.setBold(start.Bold);
  first.setItalic(start.Italic);
  // A face that isn't installed is painted by another; the dialog lists and opens on that one.
  first.setFamily(QFontInfo(first).family());
  QFontDialog dialog(first, OperatorsWindow());
  dialog.setOption(QFontDialog::DontUseNativeDialog);
  const QFont opened = dialog.currentFont();
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QFont font = dialog.selectedFont();
  // What the operator left as it was stays as it was spelled, installed or not.
  const bool sameFace = font.family() == opened.family();
  const bool sameStyle = font.bold() == opened.bold() && font.italic() == opened.italic();
  const std::string name = sameFace ? start.Name : Escape(font.family());
  return Font{name, font.pointSizeF() == opened.pointSizeF() ? start.Size : font.pointSizeF(),
              sameStyle ? start.Bold : font.bold(), sameStyle ? start.Italic : font.italic()};
}

std::optional<Color> QtDialogs::ChooseColor(Color start) {
  const QColor first(start & 0xFF, (start >> 8) & 0xFF, (start >> 16) & 0xFF);
  QColorDialog dialog(first, OperatorsWindow());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const QColor color = dialog.selectedColor();
  return color.red() | color.green() << 8 | color.blue() << 16;
}

void QtDialogs::ShowModal(Form& form) {
  QWidget* window = windows_.Find(form);
  if (window == nullptr) return;
  window->setWindowModality(Qt::ApplicationModal);
  form.Visible = true;
  QEventLoop loop;
  const FormEnd end(form, loop);
  if (form.Visible) loop.exec();
}

ModalKind QtDialogs::Modal() const {
  const QWidget* upper = QApplication::activeModalWidget();
  if (upper == nullptr) return ModalKind::None;
  return qobject_cast<const QMessageBox*>(upper) != nullptr ? ModalKind::Box : ModalKind::Window;
}

}  // namespace pawnfield
