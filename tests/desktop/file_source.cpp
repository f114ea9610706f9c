// pawnfield_file_source X Y FILE: a small window at that place of the desktop, from which the file can be dragged as
// out of a file manager. Prints "ready" when it is seen, and after each drag whether it was taken.

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QTextStream>
#include <QUrl>

namespace {

class FileSource : public QLabel {
 public:
  explicit FileSource(const QString& file) : QLabel(file), file_(file) {
    setWindowFlags(Qt::X11BypassWindowManagerHint | Qt::WindowStaysOnTopHint);
    setFixedSize(160, 60);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    QLabel::paintEvent(event);
    if (!seen_) QTextStream(stdout) << "ready" << Qt::endl;
    seen_ = true;
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if ((event->buttons() & Qt::LeftButton) == 0) return;
    auto* files = new QMimeData;
    files->setUrls({QUrl::fromLocalFile(file_)});
    // It is asked for the file after the drag has ended, and goes by itself.
    auto* drag = new QDrag(this);
    drag->setMimeData(files);
    const bool taken = drag->exec(Qt::CopyAction) == Qt::CopyAction;
    QTextStream(stdout) << (taken ? "taken" : "refused") << Qt::endl;
  }

 private:
  QString file_;
  bool seen_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 4) return 2;
  FileSource source(arguments[3]);
  source.move(arguments[1].toInt(), arguments[2].toInt());
  source.show();
  return QApplication::exec();
}
