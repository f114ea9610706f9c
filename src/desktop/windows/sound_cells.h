// How the cells of the sound table look: a faint dash where nothing is, which is a "+" under the mouse, and in a filled
// one a play triangle, the file's name and its length. The model keeps what it is told.
#pragma once

#include <QStyledItemDelegate>

#include "desktop/media/media_lengths.h"

namespace pawnfield {

class GridView;
struct SoundEffectsForm;

class SoundCells : public QStyledItemDelegate {
  Q_OBJECT
 public:
  SoundCells(SoundEffectsForm& form, GridView& view);
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  // A click on the triangle plays, and one on the "+" asks for a file.
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  bool IsEmpty(const QModelIndex& index) const;

  SoundEffectsForm& form_;
  GridView& view_;
  mutable MediaLengths lengths_;
};

}  // namespace pawnfield
