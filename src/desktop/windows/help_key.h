// F1 in any window but the console's, whose menu has it: opens the page of the manual that is about that window.
#pragma once

#include <QObject>

namespace pawnfield {

struct Show;

class HelpKey : public QObject {
 public:
  explicit HelpKey(Show& show);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Show& show_;
};

}  // namespace pawnfield
