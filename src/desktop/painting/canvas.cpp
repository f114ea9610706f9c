#include "desktop/painting/canvas.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariantAnimation>
#include <algorithm>
#include <cmath>

#include "data/house_colors.h"
#include "desktop/media/film.h"
#include "desktop/media/mpv_video.h"
#include "desktop/painting/ground.h"
#include "desktop/painting/player_card.h"
#include "desktop/painting/test_card.h"
#include "desktop/painting/text_layout.h"

namespace pawnfield {

// What a control writes, how and in which colour.
struct TextSource {
  std::string Caption;
  Font Typeface;
  Color Fore = kWhite;
};

namespace {

// The share of their width to which letters may be narrowed.
constexpr double kNarrowest = 0.6;
// The share of their distance to which the lines of a name may come together.
constexpr double kClosest = 0.78;
// A picture under this many pixels is scaled as it is painted, so that the flip leaves no copies behind.
constexpr int kCachedArea = 40000;
// The share of its size at which a text begins to grow.
constexpr double kRiseFrom = 0.4;
// The share of its size by which it swings past it on the way, with its edge.
constexpr double kRisePast = 0.08;
// A player's sign before a name and the room between them, as shares of the letters' size.
constexpr double kSignSide = 0.75;
constexpr double kSignGap = 0.4;

void PaintSign(QPainter& painter, const QPixmap& sign, const QRectF& rect) {
  if (sign.isNull()) return;
  QRectF place(QPointF(), QSizeF(sign.size()).scaled(rect.size(), Qt::KeepAspectRatio));
  place.moveCenter(rect.center());
  painter.drawPixmap(place, sign, QRectF(sign.rect()));
}

// Painted as a brush, because a clip would leave the round corners rough.
void PaintRounded(QPainter& painter, const QPixmap& picture, const QRectF& rect, const ItemStyle& style) {
  if (picture.isNull()) return;
  QBrush brush(picture);
  brush.setTransform(QTransform::fromTranslate(rect.x(), rect.y())
                         .scale(rect.width() / picture.width(), rect.height() / picture.height()));
  const double edgeX = style.Edge * picture.height() * rect.width() / picture.width();
  const double edgeY = style.Edge * rect.height();
  const double radius = style.Corner * rect.height();
  painter.setPen(Qt::NoPen);
  painter.setBrush(brush);
  painter.drawRoundedRect(rect.adjusted(edgeX, edgeY, -edgeX, -edgeY), radius, radius);
  painter.setBrush(Qt::NoBrush);
}

// A picture as large as the panel it stands in.
bool FillsItsPanel(const Control& control) {
  const Control* container = control.Container;
  return container != nullptr && control.Width >= container->Width && control.Height >= container->Height;
}

bool ReadText(const Control& control, TextSource& source) {
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    source = {label->Caption, label->Font, label->ForeColor};
  } else if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
    source = {box->Text, box->Font, box->ForeColor};
  }
  return !source.Caption.empty();
}

// The colour in which a text of that told colour is drawn.
QColor Ink(const ItemStyle& style, Color told) {
  if (style.IsVerdict) return ToQColor(told == kGreen ? kRightWords : kWrongWords);
  return ToQColor(style.OnCardOf == nullptr ? told : OnCard(told, IsLitBox(style.OnCardOf->Picture)));
}

}  // namespace

struct Canvas::Item : Observer {
  Item(Canvas& canvas, Control& shown, const ItemStyle& itemStyle, std::size_t place)
      : owner(canvas), control(shown), style(itemStyle), declared(place) {}
  void Changed(Control&, PropertyId id) override { owner.ItemChanged(*this, id); }

  Canvas& owner;
  Control& control;
  ItemStyle style;
  std::size_t declared;
  // The path of what it shows, empty for none.
  std::string picture;
  // Laid out text, cached until caption, font or width changes.
  std::unique_ptr<TextBlock> text;
  double textWidth = 0;
  QVariantAnimation rise;
  // The share of their width that the letters have.
  double squeeze = 1;
  // The letters' size in twips, and what of the width the sign before them takes.
  double lettering = 0;
  double signRoom = 0;
  // What the item covered when it was last looked at, empty when hidden.
  QRect covered;
};

Canvas::Canvas(PictureCache& pictures, QWidget* parent) : QWidget(parent), pictures_(pictures) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  connect(&pictures, &PictureCache::Decoded, this, &Canvas::PictureDecoded);
}

Canvas::~Canvas() = default;

void Canvas::SetLogicalSize(double widthTwips, double heightTwips) {
  logicalWidth_ = widthTwips;
  logicalHeight_ = heightTwips;
  resizeEvent(nullptr);
}

void Canvas::Add(Control& control, const ItemStyle& style) {
  const auto& all = control.Owner().Controls();
  const auto place = static_cast<std::size_t>(std::find(all.begin(), all.end(), &control) - all.begin());
  auto item = std::make_unique<Item>(*this, control, style, place);
  Item& added = *item;
  items_[&control] = std::move(item);
  control.AddObserver(added);
  order_.clear();
  ItemChanged(added, PropertyId::Picture);
}

void Canvas::AddVideo(MediaPlayer& control, MpvVideo& video) {
  Add(control);
  video_ = &video;
  connect(&video, &MpvVideo::FrameChanged, this, [this, &control] {
    if (control.IsShown()) update(FillRect(*items_.at(&control)).toAlignedRect());
  });
}

void Canvas::Embed(Control& control, QWidget& widget) {
  // The host follows the containers' visibility, and the widget its own.
  auto* host = new QWidget(this);
  auto* fill = new QVBoxLayout(host);
  fill->setContentsMargins(0, 0, 0, 0);
  fill->addWidget(&widget);
  embedded_.emplace_back(&control, host);
  PlaceEmbedded();
}

void Canvas::SetSpoken(const QString& name, std::vector<SpokenPart> parts) {
  setAccessibleName(name);
  spoken_ = std::move(parts);
  // One that was made while the canvas was no more than a widget is made anew.
  QAccessibleInterface* known = QAccessible::queryAccessibleInterface(this);
  if (known != nullptr) QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(known));
}

void Canvas::ItemChanged(Item& item, PropertyId id) {
  if (id == PropertyId::Picture) {
    if (const auto* image = dynamic_cast<Image*>(&item.control)) item.picture = image->Picture;
    if (const auto* box = dynamic_cast<PictureBox*>(&item.control)) item.picture = box->Picture;
  }
  if (id == PropertyId::Caption || id == PropertyId::Text || id == PropertyId::Font) item.text.reset();
  if (id == PropertyId::ZOrder) order_.clear();
  if (id == PropertyId::Visible && item.control.IsShown()) StartRising(item.control);
  if (item.control.Kind() == ControlKind::PictureBox || item.control.Kind() == ControlKind::Frame) {
    PlaceEmbedded();
    // What stands in it comes to the front with it.
    if (id == PropertyId::ZOrder) update();
  }
  Refresh(item);
}

void Canvas::StartRising(const Control& panel) {
  constexpr int kRiseMs = 450;
  for (const auto& [control, item] : items_) {
    if (!item->style.Rises || control->Container != &panel) continue;
    Item& rising = *item;
    rising.rise.disconnect();
    rising.rise.setDuration(kRiseMs);
    rising.rise.setStartValue(kRiseFrom);
    rising.rise.setEndValue(1.0);
    rising.rise.setEasingCurve(QEasingCurve::OutBack);
    connect(&rising.rise, &QVariantAnimation::valueChanged, this, [this, &rising] { Refresh(rising); });
    rising.rise.start();
  }
}

void Canvas::PictureDecoded(const std::string& path) {
  for (const auto& [control, item] : items_) {
    if (item->picture == path) Refresh(*item);
  }
}

void Canvas::Refresh(Item& item) {
  const QRect before = item.covered;
  // An edge of two pixels takes in what smoothing and slanted letters add.
  item.covered = item.control.IsShown() ? FillRect(item).toAlignedRect().adjusted(-2, -2, 2, 2) : QRect();
  update(before);
  update(item.covered);
}

const std::vector<Canvas::Item*>& Canvas::InOrder() const {
  if (!order_.empty()) return order_;
  const auto depthKey = [](const Item* item) {
    // Containers from the outside in, each by its place among its neighbours.
    std::vector<std::pair<int, std::size_t>> key;
    for (const Control* c = &item->control; c != nullptr; c = c->Container) {
      const auto& all = c->Owner().Controls();
      const auto place = static_cast<std::size_t>(std::find(all.begin(), all.end(), c) - all.begin());
      key.emplace_back(c->ZOrder.Get(), place);
    }
    std::reverse(key.begin(), key.end());
    return key;
  };
  std::vector<std::pair<std::vector<std::pair<int, std::size_t>>, Item*>> keyed;
  for (const auto& [control, item] : items_) keyed.emplace_back(depthKey(item.get()), item.get());
  std::sort(keyed.begin(), keyed.end());
  for (const auto& [key, item] : keyed) order_.push_back(item);
  return order_;
}

QRectF Canvas::PixelRect(const Control& control) const {
  double left = control.Left;
  double top = control.Top;
  for (const Control* c = control.Container; c != nullptr; c = c->Container) {
    left += c->Left;
    top += c->Top;
  }
  return {origin_.x() + left * scale_, origin_.y() + top * scale_, control.Width * scale_, control.Height * scale_};
}

// What overruns its room stays as it is.
QRectF Canvas::Grown(const QRectF& rect, const QRectF& room) {
  if (rect.isEmpty()) return rect;
  const QSizeF grown = rect.size().scaled(room.size(), Qt::KeepAspectRatio);
  if (grown.width() < rect.width()) return rect;
  QRectF place(QPointF(), grown);
  place.moveCenter(room.center());
  return place;
}

// A panel as wide as the layout takes the display's whole width, and its height at each edge that it reaches. Its other
// edges lie between whole pixels: what it covers would show through a part of one.
QRectF Canvas::Filled(const QRectF& rect) const {
  constexpr double kRounding = 0.5;
  const double pixels = devicePixelRatioF();
  const double layoutBottom = origin_.y() + logicalHeight_ * scale_;
  const double top = rect.top() <= origin_.y() + kRounding ? 0 : std::floor(rect.top() * pixels) / pixels;
  const double bottom =
      rect.bottom() >= layoutBottom - kRounding ? height() : std::ceil(rect.bottom() * pixels) / pixels;
  return {0, top, static_cast<double>(width()), bottom - top};
}

QRectF Canvas::FillRect(const Item& item) const {
  const Control& control = item.control;
  QRectF rect = PixelRect(control);
  if (item.style.Grows) {
    const auto panel = items_.find(control.Container);
    return Grown(rect, panel == items_.end() ? QRectF(this->rect()) : FillRect(*panel->second));
  }
  const bool isPanel = item.style.PaintsGround || FillsItsPanel(control) || control.Height >= logicalHeight_;
  if (fillsDisplay_ && control.Width >= logicalWidth_ && isPanel) return Filled(rect);
  // Slanted outline copies and negative margins may reach past a label's box.
  if (control.Kind() == ControlKind::Label) rect.adjust(-rect.height() * 0.1, 0, rect.height() * 0.1, 0);
  if (item.style.Rises) {
    const QSizeF past = rect.size() * kRisePast / 2;
    rect.adjust(-past.width(), -past.height(), past.width(), past.height());
  }
  return rect;
}

Control* Canvas::At(const QPoint& point) const {
  const std::vector<Item*>& order = InOrder();
  const auto touched = std::find_if(order.rbegin(), order.rend(), [&](const Item* item) {
    const Control& control = item->control;
    const bool touchable = control.Kind() != ControlKind::Label || control.OnDblClick || control.OnClick;
    return touchable && control.IsShown() && PixelRect(control).contains(point);
  });
  return touched == order.rend() ? nullptr : &(*touched)->control;
}

void Canvas::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform | QPainter::TextAntialiasing);
  const QRectF area = event->rect();
  const std::size_t lowest = LowestSeen(area);
  if (lowest == 0 && backdrop_) {
    painter.drawPixmap(QPoint(), Backdrop());
  } else if (lowest == 0) {
    painter.fillRect(area, Qt::black);
  }
  const std::vector<Item*>& order = InOrder();
  for (std::size_t i = lowest; i < order.size(); ++i) {
    Item& item = *order[i];
    if (item.control.IsShown() && event->region().intersects(FillRect(item).toAlignedRect())) PaintItem(painter, item);
  }
}

// What lies beneath a ground that covers the whole area isn't painted: a film's frame would cost the board with it.
std::size_t Canvas::LowestSeen(const QRectF& area) const {
  const std::vector<Item*>& order = InOrder();
  for (std::size_t i = order.size(); i > 0; --i) {
    const Item& item = *order[i - 1];
    const bool opaque = item.style.PaintsGround || item.control.Kind() == ControlKind::MediaPlayer;
    if (opaque && item.control.IsShown() && FillRect(item).contains(area)) return i - 1;
  }
  return 0;
}

// Painted once for each size: a gradient over a large display takes longer than all that stands on it.
const QPixmap& Canvas::Backdrop() {
  const QSize pixels = size() * devicePixelRatioF();
  if (backdropPicture_.size() == pixels) return backdropPicture_;
  backdropPicture_ = QPixmap(pixels);
  backdropPicture_.setDevicePixelRatio(devicePixelRatioF());
  QPainter painter(&backdropPicture_);
  backdrop_(painter, rect());
  return backdropPicture_;
}

void Canvas::PaintItem(QPainter& painter, Item& item) {
  const QRectF rect = FillRect(item);
  if (item.style.PaintsGround) {
    const auto* box = dynamic_cast<PictureBox*>(&item.control);
    painter.fillRect(rect, box != nullptr ? ToQColor(box->BackColor) : QColor(Qt::black));
  }
  if (item.control.Kind() == ControlKind::TextBox) {
    painter.fillRect(rect, ToQColor(static_cast<TextBox&>(item.control).BackColor));
  }
  if (item.control.Kind() == ControlKind::MediaPlayer && video_ != nullptr) {
    const bool hasFile = !static_cast<MediaPlayer&>(item.control).URL->empty();
    PaintFilm(painter, rect, hasFile ? video_->Frame() : QImage());
  }
  if (item.style.IsTestCard) {
    PaintTestCard(painter, rect);
  } else if (item.style.IsResult) {
    PaintResultGround(painter, rect.toAlignedRect());
  } else if (item.style.Card != 0) {
    PaintCard(painter, item, rect);
  } else if (!item.picture.empty()) {
    PaintPicture(painter, item, rect);
  }
  PaintText(painter, item, PixelRect(item.control));
}

void Canvas::PaintCard(QPainter& painter, const Item& item, const QRectF& rect) const {
  const bool lit = IsLitBox(item.picture);
  PaintPlayerCard(painter, rect, item.style.Card, lit);
  const double height = rect.height();
  const double side = height * kCardSign;
  PaintPlayerSign(painter, item.style.Card,
                  QRectF(rect.left() + height * kCardSignLeft, rect.center().y() - side / 2, side, side), lit);
}

void Canvas::PaintPicture(QPainter& painter, Item& item, const QRectF& rect) {
  const QSize size = rect.toRect().size();
  if (size.isEmpty()) return;
  if (item.style.IsSign) {
    PaintSign(painter, pictures_.Original(item.picture), rect);
    return;
  }
  if (item.style.Corner > 0) {
    PaintRounded(painter, pictures_.Original(item.picture), rect, item.style);
    return;
  }
  if (size.width() * size.height() < kCachedArea) {
    const QPixmap picture = pictures_.Original(item.picture);
    if (!picture.isNull()) painter.drawPixmap(rect, picture, QRectF(picture.rect()));
    return;
  }
  const auto fill =
      item.style.PaintsGround || FillsItsPanel(item.control) ? PictureCache::Fill::Cover : PictureCache::Fill::Stretch;
  const QPixmap picture = pictures_.Scaled(item.picture, size * devicePixelRatioF(), fill);
  if (devicePixelRatioF() == 1) {
    painter.drawPixmap(rect.toRect().topLeft(), picture);
  } else {
    painter.drawPixmap(rect.toRect(), picture, picture.rect());
  }
}

void Canvas::LayOutText(Item& item) {
  TextSource source;
  if (!ReadText(item.control, source)) {
    item.text.reset();
    return;
  }
  if (item.text && item.textWidth == item.control.Width) return;
  item.textWidth = item.control.Width;
  if (item.style.IsOneLine) {
    LayOutLine(item, source);
    return;
  }
  const double least = item.style.SmallestSize;
  // A name keeps a little room to its card's edge.
  const double room = item.control.Height * (least > kLeastSize ? 0.8 : 1);
  const auto layOut = [&](double size, double squeeze, Breaks breaks, double pitch = 1) {
    source.Typeface.Size = size;
    item.squeeze = squeeze;
    item.lettering = size * kTwipsPerPoint;
    item.signRoom = item.style.Sign == 0 ? 0 : item.lettering * (kSignSide + kSignGap);
    const double width = (item.textWidth - item.signRoom) / squeeze;
    item.text = std::make_unique<TextBlock>(source.Typeface, source.Caption, width, item.style.Align, breaks, pitch);
    return item.text->Height() <= room && item.text->Width() <= width + 1;
  };
  bool fits = layOut(source.Typeface.Size, 1, Breaks::AtWords) || !item.style.ShrinkToFit;
  while (!fits && source.Typeface.Size > least) {
    fits = layOut(std::max(least, source.Typeface.Size - 2), 1, Breaks::AtWords);
  }
  if (least <= kLeastSize) return;
  for (const double pitch : {1.0, kClosest}) {
    for (double squeeze = 1; !fits && squeeze > kNarrowest - 0.01; squeeze -= 0.05) {
      fits = layOut(least, squeeze, Breaks::AtWords, pitch);
    }
  }
  if (!fits) layOut(least, kNarrowest, Breaks::AnywhereIfNeeded, kClosest);
}

void Canvas::LayOutLine(Item& item, const TextSource& source) {
  constexpr double kRoom = 0.94;
  Font font = source.Typeface;
  const TextBlock asked(font, source.Caption, item.textWidth, item.style.Align, Breaks::Never);
  const double wide = asked.WidthOfLetters() / (item.textWidth * kRoom);
  const double high = asked.Height() / item.control.Height;
  font.Size = std::max(item.style.SmallestSize, font.Size / std::max({1.0, wide, high}));
  item.squeeze = wide > 0 ? std::min(1.0, source.Typeface.Size / (font.Size * wide)) : 1;
  item.text =
      std::make_unique<TextBlock>(font, source.Caption, item.textWidth / item.squeeze, item.style.Align, Breaks::Never);
}

double Canvas::LetterHeight(const Control& control) {
  const auto found = items_.find(&control);
  if (found == items_.end()) return 0;
  LayOutText(*found->second);
  return found->second->text ? found->second->text->LetterHeight() : 0;
}

void Canvas::PaintText(QPainter& painter, Item& item, const QRectF& rect) {
  LayOutText(item);
  TextSource source;
  if (!item.text || !ReadText(item.control, source)) return;
  painter.save();
  painter.translate(rect.topLeft());
  if (item.rise.state() == QAbstractAnimation::Running) {
    const double share = item.rise.currentValue().toDouble();
    const QPointF middle(rect.width() / 2, rect.height() / 2);
    painter.translate(middle * (1 - share));
    painter.scale(share, share);
  }
  painter.scale(scale_ * item.squeeze, scale_);
  painter.setPen(Ink(item.style, source.Fore));
  const double width = (item.control.Width - item.signRoom) / item.squeeze;
  const double height =
      item.style.SmallestSize > kLeastSize ? item.text->WholeLines(item.control.Height) : item.text->Height();
  const double spareHeight = item.style.Align.testFlag(Qt::AlignVCenter) ? item.control.Height - height : 0;
  const double spareWidth = std::min(0.0, width - item.text->Width());
  if (height < item.text->Height()) painter.setClipRect(QRectF(0, spareHeight / 2, width, height), Qt::IntersectClip);
  const QPointF at(item.signRoom + spareWidth / 2, spareHeight / 2);
  if (item.style.Sign != 0) PaintNameSign(painter, item, ToQColor(source.Fore));
  if (item.style.IsOutlined) item.text->Outline(painter, at, Qt::black);
  item.text->Draw(painter, at);
  painter.restore();
}

// In twips from the text's corner; sign and letters stand in the middle of its width together.
void Canvas::PaintNameSign(QPainter& painter, const Item& item, const QColor& ink) const {
  constexpr double kEdge = 0.06;
  const double side = item.lettering * kSignSide;
  const double left = (item.control.Width - item.signRoom - item.text->WidthOfLetters()) / 2;
  const QPainterPath sign = PlayerSign(item.style.Sign, {left, (item.control.Height - side) / 2, side, side});
  painter.strokePath(sign, QPen(Qt::black, item.lettering * kEdge, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.fillPath(sign, ink);
}

void Canvas::resizeEvent(QResizeEvent*) {
  scale_ = std::min(width() / logicalWidth_, height() / logicalHeight_);
  origin_ = QPointF((width() - logicalWidth_ * scale_) / 2, (height() - logicalHeight_ * scale_) / 2);
  for (const auto& [control, item] : items_) Refresh(*item);
  PlaceEmbedded();
  update();
}

void Canvas::PlaceEmbedded() {
  for (const auto& [control, host] : embedded_) {
    host->setGeometry(PixelRect(*control).toRect());
    host->setVisible((control->Container == nullptr || control->Container->IsShown()) && !IsCovered(*control));
    host->raise();
  }
}

// A panel in front paints over what stands behind it, which a widget would show through.
bool Canvas::IsCovered(const Control& control) const {
  const auto stands = [&](const Control& panel) {
    for (const Control* c = &control; c != nullptr; c = c->Container) {
      if (c == &panel) return true;
    }
    return false;
  };
  const Control* outer = &control;
  while (outer->Container != nullptr) outer = outer->Container;
  return std::any_of(items_.begin(), items_.end(), [&](const auto& held) {
    const Item* item = held.second.get();
    const Control& panel = item->control;
    return item->style.PaintsGround && panel.ZOrder > outer->ZOrder && panel.IsShown() && !stands(panel);
  });
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (Control* control = At(event->position().toPoint())) control->Click();
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (Control* control = At(event->position().toPoint())) control->DblClick();
}

}  // namespace pawnfield
