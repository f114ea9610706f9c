#include "desktop/windows/file_drop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

#include "desktop/files/native_path.h"

namespace pawnfield {

namespace {

class FileDrop : public QObject {
 public:
  FileDrop(QWidget& widget, std::function<void(const std::string&)> take) : QObject(&widget), take_(std::move(take)) {
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool comes = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
    if (!comes && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
    auto* drop = static_cast<QDropEvent*>(event);
    const QString file = FileOf(*drop->mimeData());
    if (file.isEmpty()) return QObject::eventFilter(watched, event);
    drop->acceptProposedAction();
    // The program it came from waits until the drop is done, and what follows may ask the operator.
    if (!comes) QTimer::singleShot(0, this, [this, file] { take_(SpelledPath(file)); });
    return true;
  }

 private:
  static QString FileOf(const QMimeData& data) {
    for (const QUrl& url : data.urls()) {
      if (url.isLocalFile()) return url.toLocalFile();
    }
    return {};
  }

  std::function<void(const std::string&)> take_;
};

}  // namespace

void TakeDrops(QWidget& widget, std::function<void(const std::string&)> take) { new FileDrop(widget, std::move(take)); }

}  // namespace pawnfield
