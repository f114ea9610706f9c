// Paints a form's pictures, panels and texts from their models. Both screens use it: twips become pixels at one scale,
// the logical screen stands in the middle, and only what changed is painted again.
#pragma once

#include <QAccessible>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/painting/picture_cache.h"
#include "platform/controls.h"

namespace pawnfield {

class MpvVideo;
class TextBlock;
struct TextSource;

inline constexpr double kLeastSize = 6;

// How one item is drawn where its model does not say.
struct ItemStyle {
  Qt::Alignment Align = Qt::AlignCenter;
  // Texts that no rule has fitted are drawn smaller when they would not fit; fitted ones are drawn as told.
  bool ShrinkToFit = true;
  // The smallest size in points to which it is shrunk. Where that is more than the least there is, letters are then
  // made narrower, words broken at last, and lines that still don't fit left out.
  double SmallestSize = kLeastSize;
  // A panel paints its ground, and its picture covers it in the picture's own shape.
  bool PaintsGround = false;
  // A panel that stands on the ground of results, whatever its picture.
  bool IsResult = false;
  // A fitted picture takes the room that the display has beyond the layout, in its own shape.
  bool Grows = false;
  // A sign on a dark ground: keeps its shape, and only what is lighter than the board is seen of it.
  bool IsSign = false;
  // Cuts the picture's dark corners: the edge and the corner's radius as shares of its height.
  double Edge = 0;
  double Corner = 0;
  // The card of that player 1..3, drawn in the place of its picture, which only tells whether the player has the turn.
  int Card = 0;
  // A text on that card, which is as light or dim as the card is.
  const PictureBox* OnCardOf = nullptr;
  // The sign of that player 1..3 stands before its letters.
  int Sign = 0;
  // The words of a verdict: the told green and red are drawn as the house's.
  bool IsVerdict = false;
  // Never broken: a text that is too wide is drawn smaller, and then narrower.
  bool IsOneLine = false;
  // Letters with a dark edge.
  bool IsOutlined = false;
  // The ground of the test picture, to the display's very edges.
  bool IsTestCard = false;
  // Grows from small to its size when its panel comes up.
  bool Rises = false;
};

// One of the things that a canvas tells an assistive device.
struct SpokenPart {
  QAccessible::Role Role = QAccessible::StaticText;
  // Empty while it isn't there.
  std::function<QString()> Text;
  // Where it stands; the whole canvas for null.
  const Control* Place = nullptr;
  // As by a hand; empty for what can't be pressed.
  std::function<void()> Press;
};

class Canvas : public QWidget {
 public:
  Canvas(PictureCache& pictures, QWidget* parent);
  ~Canvas() override;

  void SetLogicalSize(double widthTwips, double heightTwips);
  // Lets panels that fill the logical screen fill the whole widget.
  void SetFillsDisplay(bool fills) { fillsDisplay_ = fills; }
  void SetBackdrop(std::function<void(QPainter&, const QRect&)> paint) { backdrop_ = std::move(paint); }
  // Paints the control from now on, and in it everything that stands in it.
  void Add(Control& control, const ItemStyle& style = {});
  // Shows the film at the control's place while it has a file.
  void AddVideo(MediaPlayer& control, MpvVideo& video);
  bool Holds(const Control& control) const { return items_.count(&control) != 0; }
  // What the canvas is called and tells, from back to front.
  void SetSpoken(const QString& name, std::vector<SpokenPart> parts);
  const std::vector<SpokenPart>& Spoken() const { return spoken_; }
  // A widget that stands on the canvas at its control's place.
  void Embed(Control& control, QWidget& widget);

  // The control's rectangle in pixels of this widget.
  QRectF PixelRect(const Control& control) const;
  // How high a capital of the control's text is painted, in twips; 0 for none.
  double LetterHeight(const Control& control);
  // The front-most shown control at the point, or null.
  Control* At(const QPoint& point) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  struct Item;
  void ItemChanged(Item& item, PropertyId id);
  void StartRising(const Control& panel);
  void PictureDecoded(const std::string& path);
  void Refresh(Item& item);
  const std::vector<Item*>& InOrder() const;
  QRectF FillRect(const Item& item) const;
  static QRectF Grown(const QRectF& rect, const QRectF& room);
  QRectF Filled(const QRectF& rect) const;
  const QPixmap& Backdrop();
  void PaintItem(QPainter& painter, Item& item);
  void PaintPicture(QPainter& painter, Item& item, const QRectF& rect);
  void LayOutText(Item& item);
  static void LayOutLine(Item& item, const TextSource& source);
  void PaintText(QPainter& painter, Item& item, const QRectF& rect);
  void PaintNameSign(QPainter& painter, const Item& item, const QColor& ink) const;
  void PaintCard(QPainter& painter, const Item& item, const QRectF& rect) const;
  void PlaceEmbedded();
  bool IsCovered(const Control& control) const;
  std::size_t LowestSeen(const QRectF& area) const;

  PictureCache& pictures_;
  std::function<void(QPainter&, const QRect&)> backdrop_;
  QPixmap backdropPicture_;
  double logicalWidth_ = 1, logicalHeight_ = 1;
  double scale_ = 1;
  QPointF origin_;
  bool fillsDisplay_ = false;
  std::map<const Control*, std::unique_ptr<Item>> items_;
  // Back to front, containers before what stands in them. Empty when it has changed, until it is asked for: a
  // question's letters come to the front five times over.
  mutable std::vector<Item*> order_;
  std::vector<std::pair<Control*, QWidget*>> embedded_;
  MpvVideo* video_ = nullptr;
  std::vector<SpokenPart> spoken_;
};

}  // namespace pawnfield
