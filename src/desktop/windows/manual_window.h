// Shows the pages of the shipped manual in a window of its own, which stays open beside the console.
#pragma once

#include <QMainWindow>
#include <memory>

class QAction;
class QTextBrowser;
class QTextDocument;
class QUrl;

namespace pawnfield {

// The page as it goes to paper, black on white.
std::unique_ptr<QTextDocument> PaperPage(const QUrl& page);

class ManualWindow : public QMainWindow {
 public:
  explicit ManualWindow(const QString& folder);
  // Shows the page of that name and comes to the front; false when there is no such page.
  bool ShowPage(const QString& page);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Links lead to other pages here, and to the system's browser for what isn't a file.
  void Follow(const QUrl& link);
  // The page that is shown, on paper.
  void Print();

  QString folder_;
  QTextBrowser* browser_;
};

}  // namespace pawnfield
