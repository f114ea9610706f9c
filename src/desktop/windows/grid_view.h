// The widget of a grid's model: a table whose headings are the model's row 0 and column 0, and whose cells take files
// dropped on them: several take a cell each, downwards.
#pragma once

#include <QTableWidget>
#include <memory>

#include "platform/controls.h"

namespace pawnfield {

class GridView : public QTableWidget {
  Q_OBJECT
 public:
  explicit GridView(QWidget* parent);

 signals:
  void KeyPressed(int keyCode, int keyAscii);
  void FileDropped(int row, int column, const QString& path);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};

// Null when the widget is no grid view.
std::unique_ptr<Observer> MakeGridBinding(Grid& grid, QWidget& widget);

}  // namespace pawnfield
