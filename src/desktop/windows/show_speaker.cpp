#include "desktop/windows/show_speaker.h"

#include <QAccessible>
#include <QStringList>

#include "desktop/files/windows_1252.h"
#include "desktop/painting/canvas.h"
#include "desktop/windows/audience_window.h"
#include "desktop/windows/console_window.h"
#include "engine/show_line.h"
#include "forms/fs_main_form.h"
#include "forms/main_form.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr int kMostSquares = 5;

QString NameOf(const Show& show, int player) { return Unescape(show.frmMain.PlayerName(player)); }

int OwnerAt(const Show& show, int row, int column) {
  return show.state.Board[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
}

QString SquareTold(const Show& show, int row, int column) {
  if (row >= show.state.GridRows || column >= show.state.GridCols) return {};
  const int owner = OwnerAt(show, row, column);
  const QString square = QString::fromStdString(SquareText(row, column));
  return square + ": " + (owner >= 1 && owner <= kPlayers ? NameOf(show, owner) : "free");
}

template <typename BoardForm>
QString QuestionTold(BoardForm& form) {
  if (form.picQuestionPicture.IsShown()) return "Question: a picture";
  if (form.picSound.IsShown()) return "Question: a sound";
  if (!form.picQuestion.IsShown() || form.lblQuestion[0].Caption->empty()) return {};
  return Unescape(form.lblQuestion[0].Caption).replace("\r\n", " ");
}

template <typename BoardForm>
std::vector<SpokenPart> PartsOf(const Show& show, Canvas& canvas, BoardForm& form) {
  std::vector<SpokenPart> parts;
  for (int row = 0; row < kMostSquares; ++row) {
    for (int column = 0; column < kMostSquares; ++column) {
      Image* square = form.img.At(row, column);
      // As a hand's click does, which meets whatever lies over the square.
      const auto press = [&canvas, square] {
        if (canvas.At(canvas.PixelRect(*square).center().toPoint()) == square) square->Click();
      };
      const auto told = [&show, row, column] { return SquareTold(show, row, column); };
      parts.push_back({QAccessible::Cell, told, square, press});
    }
  }
  const auto add = [&parts](QAccessible::Role role, const Control& place, std::function<QString()> told) {
    parts.push_back({role, std::move(told), &place, {}});
  };
  add(QAccessible::StaticText, form.picQuestion,
      [&show, &form] { return IsPhase(show, PhaseKind::Notice) ? QString() : QuestionTold(form); });
  add(QAccessible::AlertMessage, form.picQuestion,
      [&show, &form] { return IsPhase(show, PhaseKind::Notice) ? QuestionTold(form) : QString(); });
  add(QAccessible::StaticText, form.picCorrect,
      [&form] { return form.picCorrect.IsShown() ? Unescape(form.lblRightWrong.Caption) : QString(); });
  add(QAccessible::StaticText, form.picWinner,
      [&form] { return form.picWinner.IsShown() ? Unescape(form.lblWinner.Caption).replace("\r\n", " ") : QString(); });
  add(QAccessible::StaticText, form.picBonus,
      [&form] { return form.picBonus.IsShown() ? QString("Bonus") : QString(); });
  add(QAccessible::StaticText, form.picStandby,
      [&form] { return form.picStandby.IsShown() ? QString("Standby") : QString(); });
  return parts;
}

}  // namespace

ShowSpeaker::ShowSpeaker(Show& show, ConsoleWindow& console, AudienceWindow& audience)
    : show_(show), console_(console.Board()) {
  MainForm& form = show.frmMain;
  std::vector<SpokenPart> parts = PartsOf(show, console.Board(), form);
  // The last one; announcements are read from it.
  parts.push_back({QAccessible::Notification, [told = announcement_] { return *told; }, nullptr, {}});
  console.Board().SetSpoken("Board", std::move(parts));
  console.Answer().SetSpoken(
      "Answer", {{QAccessible::StaticText, [&form] { return Unescape(form.lblAnswer.Caption); }, &form.lblAnswer, {}}});
  audience.Screen().SetSpoken("Audience screen", PartsOf(show, audience.Screen(), show.frmFSMain));
  soon_.setSingleShot(true);
  soon_.callOnTimeout(this, [this] { Announce(); });
  for (Control* control : {static_cast<Control*>(&form.picQuestion), static_cast<Control*>(&form.picQuestionPicture),
                           static_cast<Control*>(&form.picSound), static_cast<Control*>(&form.lblQuestion[0]),
                           static_cast<Control*>(&form.picCorrect), static_cast<Control*>(&form.picWinner),
                           static_cast<Control*>(&form.picStandby), static_cast<Control*>(&form.lblLineExpected),
                           static_cast<Control*>(&form.lblLineWho)}) {
    control->AddObserver(*this);
  }
  for (int player = 1; player <= kPlayers; ++player) form.ScoreCopy(player).AddObserver(*this);
  form.img.ForEach([this](Image& square) { square.AddObserver(*this); });
  QAccessible::installActivationObserver(this);
  accessibilityActiveChanged(QAccessible::isActive());
}

ShowSpeaker::~ShowSpeaker() {
  QAccessible::removeActivationObserver(this);
  // Who asks later hears nothing of a show that is gone.
  soon_.stop();
}

// One event changes much; it is looked at when it is over.
void ShowSpeaker::Changed(Control&, PropertyId) {
  if (isHeard_ && !soon_.isActive()) soon_.start(0);
}

void ShowSpeaker::accessibilityActiveChanged(bool active) {
  isHeard_ = active;
  active ? static_cast<void>(told_ = Now()) : soon_.stop();
}

ShowSpeaker::Told ShowSpeaker::Now() const {
  MainForm& form = show_.frmMain;
  Told now;
  now.question = QuestionTold(form);
  if (form.picWinner.IsShown()) now.winner = Unescape(form.lblWinner.Caption).replace("\r\n", " ");
  const GamePhase phase = Phase(show_);
  now.answers = phase.Kind == PhaseKind::Answering ? phase.Player : 0;
  now.verdicts = show_.lastVerdict.Count;
  now.standby = form.picStandby.IsShown();
  now.board = show_.state.Board;
  for (int player = 1; player <= kPlayers; ++player) {
    now.scores[PlayerIndex(player)] = Unescape(form.ScoreCopy(player).Caption);
  }
  return now;
}

void ShowSpeaker::Announce() {
  const Told now = Now();
  QStringList news;
  if (now.standby != told_.standby) news += now.standby ? "Standby" : "The show is on the screen";
  if (now.question != told_.question) news += now.question;
  if (now.answers != told_.answers && now.answers != 0) news += NameOf(show_, now.answers) + " answers";
  // Without animation there is no picture of it. Undo takes one away, which is no news.
  if (now.verdicts > told_.verdicts) news += show_.lastVerdict.Correct ? "Correct!" : "Incorrect";
  for (int row = 0; row < show_.state.GridRows; ++row) {
    for (int column = 0; column < show_.state.GridCols; ++column) {
      const auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(column);
      if (now.board[r][c] != told_.board[r][c] && now.board[r][c] != 0) news += SquareTold(show_, row, column);
    }
  }
  for (int player = 1; player <= kPlayers; ++player) {
    const QString& score = now.scores[PlayerIndex(player)];
    if (score != told_.scores[PlayerIndex(player)]) news += NameOf(show_, player) + ": " + score;
  }
  if (now.winner != told_.winner) news += now.winner;
  told_ = now;
  news.removeAll(QString());
  if (news.isEmpty()) return;
  *announcement_ = news.join(". ");
  QAccessibleInterface* board = QAccessible::queryAccessibleInterface(&console_);
  QAccessibleInterface* line =
      board == nullptr ? nullptr : board->child(static_cast<int>(console_.Spoken().size()) - 1);
  if (line == nullptr) return;
  // A notification that comes up is read out.
  for (const QAccessible::Event type : {QAccessible::ObjectHide, QAccessible::NameChanged, QAccessible::ObjectShow}) {
    QAccessibleEvent event(line, type);
    QAccessible::updateAccessibility(&event);
  }
}

}  // namespace pawnfield
