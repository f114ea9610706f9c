#include "desktop/windows/text_rows.h"

#include <QHelpEvent>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QTreeWidget>

namespace pawnfield {

namespace {

class TextDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString text = index.data().toString();
    const bool isCut = sizeHint(option, index).width() > view->visualRect(index).width();
    QToolTip::showText(event->globalPos(), isCut ? text : QString(), view);
    return true;
  }

 protected:
  // The column stays where it is; only the letters turn.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    if (!option->text.isRightToLeft()) return;
    option->text.prepend(QChar(0x2067));
    option->text.append(QChar(0x2069));
  }
};

}  // namespace

void ShowTextsWhole(QTreeWidget& list) { list.setItemDelegate(new TextDelegate(&list)); }

}  // namespace pawnfield
