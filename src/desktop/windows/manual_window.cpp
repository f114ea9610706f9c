#include "desktop/windows/manual_window.h"

#include <QAction>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QScreen>
#include <QTextBrowser>
#include <QToolBar>

namespace pawnfield {

namespace {
constexpr QSize kWanted{900, 700};
}

ManualWindow::ManualWindow(const QString& folder)
    : QMainWindow(nullptr), folder_(folder), browser_(new QTextBrowser(this)) {
  setObjectName("winManual");
  setWindowTitle("Pawnfield - Operator's Manual");
  browser_->setOpenLinks(false);
  browser_->setAccessibleName("Page of the manual");
  setCentralWidget(browser_);
  auto* bar = addToolBar("Pages");
  bar->setMovable(false);
  QAction* contents = bar->addAction("Contents");
  QAction* back = bar->addAction("Back");
  contents->setShortcut(Qt::ALT | Qt::Key_Home);
  back->setShortcut(Qt::ALT | Qt::Key_Left);
  back->setEnabled(false);
  QAction* print = bar->addAction("Print...");
  print->setShortcut(QKeySequence::Print);
  connect(print, &QAction::triggered, this, &ManualWindow::Print);
  connect(contents, &QAction::triggered, this, [this] { ShowPage("index.html"); });
  connect(back, &QAction::triggered, browser_, &QTextBrowser::backward);
  connect(browser_, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
  connect(browser_, &QTextBrowser::anchorClicked, this, &ManualWindow::Follow);
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    resize(kWanted.boundedTo(screen->availableGeometry().size()));
    move(screen->availableGeometry().center() - rect().center());
  }
}

bool ManualWindow::ShowPage(const QString& page) {
  const QString path = folder_ + '/' + page;
  if (!QFileInfo(path).isReadable()) return false;
  browser_->setSource(QUrl::fromLocalFile(path));
  show();
  raise();
  activateWindow();
  browser_->setFocus();
  return true;
}

void ManualWindow::Follow(const QUrl& link) {
  const QUrl target = browser_->source().resolved(link);
  if (target.isLocalFile()) {
    browser_->setSource(target);
  } else {
    QDesktopServices::openUrl(target);
  }
}

// The pages are light on dark, which no paper is.
std::unique_ptr<QTextDocument> PaperPage(const QUrl& page) {
  static const QRegularExpression style("<style>.*</style>", QRegularExpression::DotMatchesEverythingOption);
  QFile file(page.toLocalFile());
  auto document = std::make_unique<QTextDocument>();
  if (!file.open(QIODevice::ReadOnly)) return document;
  document->setDefaultFont(QFont("Liberation Sans", 9));
  document->setDefaultStyleSheet("td, th { padding: 2px 8px 2px 0; } th { text-align: left; }");
  document->setBaseUrl(page);
  document->setHtml(QString::fromUtf8(file.readAll()).remove(style));
  return document;
}

void ManualWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(browser_->documentTitle());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) PaperPage(browser_->source())->print(&printer);
}

void ManualWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace pawnfield
