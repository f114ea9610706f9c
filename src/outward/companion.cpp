#include "outward/companion.h"

#include <algorithm>
#include <utility>

#include "devices/transceiver.h"
#include "forms/main_form.h"
#include "forms/small_forms.h"
#include "platform/errors.h"
#include "platform/escapes.h"
#include "platform/text.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr std::size_t kShortField = 10;
constexpr std::size_t kFontField = 50;
constexpr int kFirstBox = 139;
constexpr const char* kNoObject = "999";
// Two flags that the display knows and no show sets.
constexpr const char* kUnusedFlags = "^F^F";

std::string Filled(const std::string& text, std::size_t length) {
  return FirstLetters(text + std::string(length, '~'), length);
}

std::string LastCharacters(const std::string& text, std::size_t length) {
  return (std::string(length, '0') + text).substr(text.size());
}

std::string ScoreField(const std::string& score) {
  std::string digits = score;
  digits.erase(std::remove(digits.begin(), digits.end(), '-'), digits.end());
  return (LeadingNumber(score) >= 0 ? "+" : "-") + LastCharacters(digits, 6);
}

const char* Flag(bool set) { return set ? "^T" : "^F"; }

CompanionReport ReportOf(Show& show, int player) {
  const GameState& state = show.state;
  CompanionReport report;
  report.Player = player;
  report.Name = Trim(show.frmMain.PlayerName(player));
  report.Score = show.frmMain.Score(player).Caption;
  report.Style = state.ScreenFonts[player];
  report.Object = state.C2CObject;
  report.Correct = state.C2CCorrectFlag;
  report.Incorrect = state.C2CIncorrectFlag;
  return report;
}

void Send(Show& show, const std::string& text) {
  if (show.dgTransceiver) {
    show.dgTransceiver->SendData(PlainLetters(text));
  } else {
    show.platform.processes.StartHelper("PadBridge.exe", PlainLetters(text));
  }
}

// A device that can't take a report would refuse every one; the operator reads of the first.
void SendOldest(Show& show) {
  const std::string text = show.CompanionReports.front();
  show.CompanionReports.pop_front();
  try {
    Send(show, text);
    show.CompanionFails = false;
  } catch (const RuntimeError& error) {
    if (!std::exchange(show.CompanionFails, true)) {
      ReportError(show.platform.dialogs, error, "frmMain", "SendC2CInfo");
    }
  }
}

}  // namespace

std::string ReportText(const CompanionReport& report) {
  const ScreenStyle& style = report.Style;
  std::string text = "0" + std::to_string(report.Player);
  text += "^" + Filled(report.Name, kShortField) + "^" + ScoreField(report.Score);
  text +=
      "^" + Filled(NumberText(style.ForeColor), kShortField) + "^" + Filled(NumberText(style.BackColor), kShortField);
  text += "^" + Filled(style.FontName, kFontField) + "^" + LastCharacters(std::to_string(style.FontSize), 3);
  text += std::string(Flag(style.FontBold)) + Flag(style.FontItalic) + "^" + report.Object;
  return text + Flag(report.Correct) + Flag(report.Incorrect) + kUnusedFlags;
}

void SendC2CInfo(Show& show, int player) {
  GameState& state = show.state;
  if (!IsPlayer(player)) return;
  if (Trim(state.C2CObject).size() < 3) state.C2CObject = kNoObject;
  const std::string text = ReportText(ReportOf(show, player));
  const std::size_t length = Trim(text).size();
  if (length != kReportLength) {
    show.platform.dialogs.MessageBox("Message Length Incorrect: " + std::to_string(length), kAppTitle, BoxKind::Plain);
  } else if (state.TSSupport) {
    show.CompanionReports.push_back(text);
    show.frmAlwaysLoaded.tmrCompanion.Enabled = true;
  }
  state.C2CCorrectFlag = false;
  state.C2CIncorrectFlag = false;
}

void ReportPlayer(Show& show, int player, double color) {
  GameState& state = show.state;
  if (!state.TSSupport) return;
  state.C2CColor = color;
  if (IsPlayer(player)) state.C2CObject = std::to_string(kFirstBox + player - 1);
  SendC2CInfo(show, player);
}

void ReportPlayers(Show& show, double color) {
  for (int player = 1; player <= kPlayers; ++player) ReportPlayer(show, player, color);
}

void ReportVerdict(Show& show, int player, bool correct) {
  if (!show.state.TSSupport) return;
  (correct ? show.state.C2CCorrectFlag : show.state.C2CIncorrectFlag) = true;
  ReportPlayer(show, player, kWhite);
}

void ReportFirstTurn(Show& show) {
  ReportPlayer(show, 1, kRed);
  for (int player = 2; player <= kPlayers; ++player)
    ReportPlayer(show, player, show.state.ScreenFonts[player].ForeColor);
}

void ReportExit(Show& show) {
  if (!show.state.TSSupport) return;
  for (int player = 1; player <= kPlayers; ++player) show.frmMain.Score(player).Caption = "0";
  show.state.C2CObject = kNoObject;
  for (int player = 1; player <= kPlayers; ++player) SendC2CInfo(show, player);
  while (!show.CompanionReports.empty()) SendOldest(show);
  show.frmAlwaysLoaded.tmrCompanion.Enabled = false;
}

void tmrCompanion_Timer(Show& show) {
  if (!show.CompanionReports.empty()) SendOldest(show);
  // One report at a time lets keys, pictures and timers in between two of them.
  show.frmAlwaysLoaded.tmrCompanion.Enabled = !show.CompanionReports.empty();
}

}  // namespace pawnfield
