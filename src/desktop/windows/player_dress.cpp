#include "desktop/windows/player_dress.h"

#include <QAbstractButton>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "data/house_colors.h"
#include "data/players.h"
#include "desktop/files/windows_1252.h"
#include "desktop/painting/player_card.h"
#include "desktop/windows/model_widgets.h"
#include "forms/main_form.h"

namespace pawnfield {

namespace {

constexpr int kSignSide = 14;
// Pictures are drawn larger than they are shown, for screens with more pixels to the inch.
constexpr int kFiner = 4;

QPixmap Drawn(const QPainterPath& shape, int side, const QColor& color) {
  QPixmap picture(side * kFiner, side * kFiner);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kFiner, kFiner);
  painter.fillPath(shape, color);
  painter.end();
  picture.setDevicePixelRatio(kFiner);
  return picture;
}

QPixmap VerdictSign(bool right, int side, const QColor& color) {
  QPainterPath lines;
  if (right) {
    lines.moveTo(side * 0.14, side * 0.54);
    lines.lineTo(side * 0.40, side * 0.80);
    lines.lineTo(side * 0.86, side * 0.22);
  } else {
    lines.moveTo(side * 0.2, side * 0.2);
    lines.lineTo(side * 0.8, side * 0.8);
    lines.moveTo(side * 0.8, side * 0.2);
    lines.lineTo(side * 0.2, side * 0.8);
  }
  QPainterPathStroker stroker;
  stroker.setWidth(side * 0.17);
  stroker.setCapStyle(Qt::RoundCap);
  return Drawn(stroker.createStroke(lines), side, color);
}

QPixmap PlaySign(bool play, int side, const QColor& color) {
  QPainterPath shape;
  if (play) {
    shape.moveTo(side * 0.22, side * 0.1);
    shape.lineTo(side * 0.9, side * 0.5);
    shape.lineTo(side * 0.22, side * 0.9);
    shape.closeSubpath();
  } else {
    shape.addRoundedRect(QRectF(side * 0.16, side * 0.16, side * 0.68, side * 0.68), 1.5, 1.5);
  }
  return Drawn(shape, side, color);
}

void GiveIcon(QWidget& window, const QString& name, const QPixmap& picture, const QPixmap& disabled, int side) {
  auto* button = window.findChild<QAbstractButton*>(name);
  if (button == nullptr) return;
  QIcon icon(picture);
  icon.addPixmap(disabled, QIcon::Disabled);
  button->setIcon(icon);
  button->setIconSize(QSize(side, side));
}

// The row of cards closes up for two players.
class ThirdCard : public Observer {
 public:
  ThirdCard(MainForm& form, QWidget& frame) : form_(form), frame_(frame) {
    form_.PlayerBox(3).AddObserver(*this);
    Changed(form_.PlayerBox(3), PropertyId::Visible);
  }
  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::Visible) frame_.setVisible(form_.PlayerBox(3).Visible);
  }

 private:
  MainForm& form_;
  QWidget& frame_;
};

// A player's sign that stands in a widget and grows with its letters; player 0 has none.
class GrowingSign : public QWidget {
 public:
  GrowingSign(QWidget& letters, int player) : QWidget(&letters), player_(player) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    letters.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) Place();
    return false;
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    if (player_ != 0) PaintPlayerSign(painter, player_, rect(), true);
  }
  virtual void Place() = 0;

  int player_;
};

// At the left edge of a name.
class NameSign : public GrowingSign {
 public:
  NameSign(QLabel& name, int player) : GrowingSign(name, player), name_(name) { NameSign::Place(); }

 protected:
  void Place() override {
    const int side = kSignSide * QFontInfo(name_.font()).pixelSize() / kSmallestPixels;
    const QMargins beside(side + 4, 0, 0, 0);
    if (name_.contentsMargins() != beside) name_.setContentsMargins(beside);
    setGeometry(0, (name_.height() - side) / 2, side, side);
  }

 private:
  QLabel& name_;
};

// Of the square's box: the sign before its letters, which it grows with, and the room around it.
constexpr double kSignToLetters = 0.73;
constexpr int kBoxEdge = 9;
int SignSideIn(const QLineEdit& box) {
  return static_cast<int>(std::lround(QFontInfo(box.font()).pixelSize() * kSignToLetters));
}

// Says whose turn it is by that player's sign.
class SignInBox : public GrowingSign {
 public:
  explicit SignInBox(QLineEdit& box) : GrowingSign(box, 0), box_(box) {
    setObjectName("pnlSignInBox");
    setAccessibleName("Whose turn it is");
  }
  // Player 0 for nobody.
  void Show(int player) {
    player_ = player;
    setVisible(player != 0);
    Place();
    update();
  }

 protected:
  void Place() override {
    const int side = SignSideIn(box_);
    const QMargins margins(player_ == 0 ? 0 : side + kBoxEdge, 0, 0, 0);
    if (box_.textMargins() != margins) box_.setTextMargins(margins);
    setGeometry(kBoxEdge, (box_.height() - side) / 2, side, side);
  }

 private:
  QLineEdit& box_;
};

// Stands in the square's box while nothing is typed, in letters that may shrink: a placeholder has the box's own, in
// which a name is cut.
class NameInBox : public QWidget {
 public:
  explicit NameInBox(QLineEdit& box) : QWidget(&box), box_(box) {
    setObjectName("pnlNameInBox");
    setAttribute(Qt::WA_TransparentForMouseEvents);
    box.installEventFilter(this);
    QObject::connect(&box, &QLineEdit::textChanged, this, [this] { setVisible(box_.text().isEmpty()); });
  }
  void Show(const QString& name, const QColor& color) {
    name_ = name;
    color_ = color;
    box_.setAccessibleDescription(name);
    update();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Resize && event->type() != QEvent::FontChange) return false;
    setGeometry(box_.rect().adjusted(SignSideIn(box_) + 2 * kBoxEdge, 0, -kBoxEdge, 0));
    return false;
  }
  void paintEvent(QPaintEvent*) override {
    constexpr double kShare = 0.75;
    QFont letters("Inter");
    letters.setWeight(QFont::Bold);
    letters.setPixelSize(static_cast<int>(QFontInfo(box_.font()).pixelSize() * kShare));
    const auto width = [&] { return QFontMetrics(letters).horizontalAdvance(name_); };
    while (width() > this->width() && letters.pixelSize() > kSmallestPixels)
      letters.setPixelSize(letters.pixelSize() - 1);
    QPainter painter(this);
    painter.setFont(letters);
    painter.setPen(color_);
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(letters).elidedText(name_, Qt::ElideRight, this->width()));
  }

 private:
  QLineEdit& box_;
  QString name_;
  QColor color_;
};

// The box for the square: whose it is is said by his sign, his name and the light of his colour.
class TurnInBox : public Observer {
 public:
  TurnInBox(MainForm& form, QLineEdit& box) : form_(form), box_(box) {
    box_.setProperty("showsTurn", true);
    name_ = new NameInBox(box_);
    sign_ = new SignInBox(box_);
    for (int player = 1; player <= kPlayers; ++player) {
      form_.PlayerBox(player).AddObserver(*this);
      form_.lblPlayer1[PlayerIndex(player)].AddObserver(*this);
    }
    ShowTurn();
  }
  void Changed(Control&, PropertyId id) override {
    if (id == PropertyId::Picture || id == PropertyId::Caption) ShowTurn();
  }

 private:
  int LitPlayer() const {
    for (int player = 1; player <= kPlayers; ++player) {
      if (IsLitBox(form_.PlayerBox(player).Picture)) return player;
    }
    return 0;
  }
  void ShowTurn() {
    const int player = LitPlayer();
    sign_->Show(player);
    const QColor color = ToQColor(player == 0 ? kQuietText : kPlayerColors[player]);
    name_->Show(player == 0 ? QString() : Unescape(form_.lblPlayer1[PlayerIndex(player)].Caption), color);
    // As large with either edge.
    box_.setStyleSheet(player == 0 ? QString("QLineEdit { margin: 2px; }")
                                   : QString("QLineEdit { border: 3px solid %1; color: #FFFFFF; }").arg(color.name()));
  }

  MainForm& form_;
  QLineEdit& box_;
  SignInBox* sign_ = nullptr;
  NameInBox* name_ = nullptr;
};

void DressCard(QWidget& window, int player) {
  const QString number = QString::number(player);
  auto* card = window.findChild<PictureFrame*>("picPlayer" + number);
  if (card != nullptr) {
    card->SetCard(player, true);
    QMargins margins = card->layout()->contentsMargins();
    margins.setLeft(30);
    card->layout()->setContentsMargins(margins);
  }
  if (auto* score = window.findChild<PictureFrame*>("picP" + number + "Score")) score->SetCard(player, false);
  if (auto* name = window.findChild<QLabel*>("pnlScoreName" + number)) new NameSign(*name, player);
}

}  // namespace

QPixmap PlayerSignPicture(int player, int side, const QColor& color) {
  return Drawn(PlayerSign(player, QRectF(1, 1, side - 2, side - 2)), side, color);
}

std::vector<std::unique_ptr<Observer>> DressPlayers(MainForm& form, QWidget& window) {
  const QColor grey("#6F7C99");
  for (int player = 1; player <= kPlayers; ++player) {
    DressCard(window, player);
    const QColor color = ToQColor(kPlayerColors[player]);
    const QPixmap off = PlayerSignPicture(player, kSignSide, grey);
    const QString index = QString::number(player - 1);
    GiveIcon(window, "btnSelectPlayer_" + index, PlayerSignPicture(player, kSignSide, color), off, kSignSide);
    // The lit strip is all of the player's colour.
    GiveIcon(window, "btnBuzzer_" + index, PlayerSignPicture(player, kSignSide, Qt::black), off, kSignSide - 4);
  }
  constexpr int kVerdictSide = 24;
  for (const bool right : {true, false}) {
    GiveIcon(window, right ? "btnQuestionCorrect" : "btnQuestionIncorrect",
             VerdictSign(right, kVerdictSide, ToQColor(right ? kRightInk : kWrongInk)),
             VerdictSign(right, kVerdictSide, grey), kVerdictSide);
  }
  for (const bool play : {true, false}) {
    GiveIcon(window, play ? "btnPlay" : "btnStop", PlaySign(play, kSignSide, ToQColor(kGold)),
             PlaySign(play, kSignSide, grey), kSignSide);
  }
  std::vector<std::unique_ptr<Observer>> followers;
  if (auto* box = window.findChild<QLineEdit*>("txtDJCommand")) {
    followers.push_back(std::make_unique<TurnInBox>(form, *box));
  }
  if (auto* third = window.findChild<QWidget*>("pnlPlayer3")) {
    followers.push_back(std::make_unique<ThirdCard>(form, *third));
  }
  return followers;
}

}  // namespace pawnfield
