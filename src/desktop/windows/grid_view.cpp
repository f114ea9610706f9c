#include "desktop/windows/grid_view.h"

#include <QCursor>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QToolTip>
#include <QUrl>

#include "desktop/files/native_path.h"
#include "desktop/files/windows_1252.h"

namespace pawnfield {

namespace {

constexpr int kDeleteCode = 46;
constexpr int kEnterCode = 13;

// Those dragged that are files of this machine.
QStringList DraggedFiles(const QMimeData& data) {
  QStringList files;
  for (const QUrl& url : data.urls()) files << url.toLocalFile();
  files.removeAll(QString());
  return files;
}

class GridBinding : public Observer {
 public:
  GridBinding(Grid& grid, GridView& view) : model_(grid), view_(view) {
    view_.setRowCount(model_.Rows() - 1);
    view_.setColumnCount(model_.Columns() - 1);
    ShowTexts();
    ShowSelection();
    QObject::connect(&view_, &QTableWidget::cellClicked, &view_,
                     [this](int row, int column) { model_.ClickCell(row + 1, column + 1); });
    QObject::connect(&view_, &QTableWidget::cellDoubleClicked, &view_,
                     [this](int row, int column) { model_.DblClickCell(row + 1, column + 1); });
    QObject::connect(&view_, &QTableWidget::currentCellChanged, &view_, [this](int row, int column, int, int) {
      if (row >= 0 && column >= 0) model_.SelectCell(row + 1, column + 1);
    });
    QObject::connect(&view_, &GridView::KeyPressed, &view_,
                     [this](int code, int ascii) { model_.PressKey(code, ascii); });
    QObject::connect(&view_, &GridView::FileDropped, &view_, [this](int row, int column, const QString& path) {
      model_.DropFile(row + 1, column + 1, SpelledPath(path));
    });
    model_.AddObserver(*this);
  }

  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::List) ShowTexts();
    if (id == PropertyId::Row || id == PropertyId::Col) ShowSelection();
    view_.setEnabled(model_.Enabled);
  }

 private:
  QString Text(int row, int column) const { return Unescape(model_.Cell(row, column)); }

  void ShowTexts() {
    QStringList columns;
    QStringList rows;
    for (int column = 1; column < model_.Columns(); ++column) columns << Text(0, column);
    for (int row = 1; row < model_.Rows(); ++row) rows << Text(row, 0);
    view_.setHorizontalHeaderLabels(columns);
    view_.setVerticalHeaderLabels(rows);
    for (int row = 1; row < model_.Rows(); ++row) {
      for (int column = 1; column < model_.Columns(); ++column) ShowCell(row, column);
    }
  }

  void ShowCell(int row, int column) {
    QTableWidgetItem* item = view_.item(row - 1, column - 1);
    if (item == nullptr) {
      item = new QTableWidgetItem;
      view_.setItem(row - 1, column - 1, item);
    }
    const QString text = Text(row, column);
    if (item->text() == text && !text.isEmpty()) return;
    item->setText(text);
    item->setToolTip(text);
  }

  void ShowSelection() {
    // The model changes the row first and then the column.
    if (view_.currentRow() == model_.Row - 1 && view_.currentColumn() == model_.Col - 1) return;
    const QSignalBlocker blocker(view_);
    view_.setCurrentCell(model_.Row - 1, model_.Col - 1);
  }

  Grid& model_;
  GridView& view_;
};

}  // namespace

GridView::GridView(QWidget* parent) : QTableWidget(parent) {
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAcceptDrops(true);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Delete) {
    emit KeyPressed(kDeleteCode, 0);
  } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    emit KeyPressed(kEnterCode, kEnterCode);
  } else {
    QTableWidget::keyPressEvent(event);
  }
}

void GridView::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFiles(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void GridView::dragMoveEvent(QDragMoveEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  if (!cell.isValid() || DraggedFiles(*event->mimeData()).isEmpty()) {
    event->ignore();
    return;
  }
  setCurrentIndex(cell);
  event->acceptProposedAction();
}

void GridView::dropEvent(QDropEvent* event) {
  const QModelIndex cell = indexAt(event->position().toPoint());
  const QStringList files = DraggedFiles(*event->mimeData());
  if (!cell.isValid() || files.isEmpty()) return;
  event->acceptProposedAction();
  const int room = rowCount() - cell.row();
  for (int i = 0; i < qMin<int>(room, static_cast<int>(files.size())); ++i) {
    emit FileDropped(cell.row() + i, cell.column(), files[i]);
  }
  if (files.size() <= room) return;
  QToolTip::showText(QCursor::pos(), QString("%1 files found no cell left in this column.").arg(files.size() - room),
                     this);
}

std::unique_ptr<Observer> MakeGridBinding(Grid& grid, QWidget& widget) {
  auto* view = qobject_cast<GridView*>(&widget);
  if (view == nullptr) return nullptr;
  return std::make_unique<GridBinding>(grid, *view);
}

}  // namespace pawnfield
