#include "show/settings_table.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#include "platform/text.h"

namespace pawnfield {

namespace {

// What a whole number that was read becomes.
using Clamp = std::function<int(int)>;

Clamp Any() {
  return [](int value) { return value; };
}

Clamp Within(Range range, int outside) {
  return [range, outside](int value) { return range.Holds(value) ? value : outside; };
}

template <std::size_t N>
Clamp OneOf(const std::array<int, N>& choices) {
  return [&choices](int value) {
    return std::find(choices.begin(), choices.end(), value) == choices.end() ? choices.front() : value;
  };
}

// A whole number of 16 bits, as settings hold them.
std::optional<int> WholeNumber(const std::string& text) {
  using Limits = std::numeric_limits<std::int16_t>;
  const std::optional<double> value = ParseNumber(text);
  if (!value || *value < Limits::min() || *value > Limits::max()) return std::nullopt;
  return static_cast<int>(RoundHalfEven(*value));
}

// A field is the member's own type; a game type or an interface code is a whole number outside.
template <typename Field>
SettingRow Whole(std::string key, int standard, Clamp clamp, Field field) {
  using Value = std::remove_reference_t<decltype(field(std::declval<GameState&>()))>;
  const auto take = [clamp = std::move(clamp), field](GameState& state, const std::string& text) {
    const std::optional<int> value = WholeNumber(text);
    if (value) field(state) = static_cast<Value>(clamp(*value));
    return value.has_value();
  };
  const auto text = [field](const GameState& state) { return std::to_string(static_cast<int>(field(state))); };
  return {std::move(key), std::to_string(standard), ReadAt::Load, SaveAt::ExitToo, take, text};
}

template <typename Field>
SettingRow Truth(std::string key, bool standard, Field field) {
  const auto take = [field](GameState& state, const std::string& text) {
    const std::optional<bool> value = ParseBoolean(text);
    if (value) field(state) = *value;
    return value.has_value();
  };
  const auto text = [field](const GameState& state) { return BooleanText(field(state)); };
  return {std::move(key), BooleanText(standard), ReadAt::Load, SaveAt::ExitToo, take, text};
}

template <typename Field>
SettingRow Real(std::string key, double standard, Field field) {
  const auto take = [field](GameState& state, const std::string& text) {
    const std::optional<double> value = ParseNumber(text);
    if (value) field(state) = *value;
    return value.has_value();
  };
  const auto text = [field](const GameState& state) { return NumberText(field(state)); };
  return {std::move(key), NumberText(standard), ReadAt::Load, SaveAt::ExitToo, take, text};
}

// A blank text becomes the default.
template <typename Field>
SettingRow Text(std::string key, std::string standard, Field field) {
  const auto take = [field, standard](GameState& state, const std::string& text) {
    field(state) = Trim(text).empty() ? standard : text;
    return true;
  };
  const auto text = [field](const GameState& state) { return field(state); };
  return {std::move(key), standard, ReadAt::Load, SaveAt::ExitToo, take, text};
}

SettingRow WrittenOnly(SettingRow row) {
  row.Read = ReadAt::Never;
  return row;
}

SettingRow AtChangeOnly(SettingRow row) {
  row.Save = SaveAt::ChangeOnly;
  return row;
}

template <typename Value>
auto FieldOf(Value GameState::*member) {
  return [member](auto& state) -> auto& { return state.*member; };
}

// A field of the score screen's style of a player.
template <typename Value>
auto StyleField(int player, Value ScreenStyle::*member) {
  return [ player, member ](auto& state) -> auto& { return state.ScreenFonts[player].*member; };
}

using Rows = std::vector<SettingRow>;

void AddRouting(Rows& rows) {
  for (int remote = kRoutes.Low; remote <= kRoutes.High; ++remote) {
    const auto field = [remote](auto& state) -> auto& { return state.Routing[static_cast<std::size_t>(remote)]; };
    rows.push_back(Whole("Routing" + std::to_string(remote), remote, Within(kRoutes, 1), field));
  }
}

void AddGame(Rows& rows) {
  using State = GameState;
  const Range types{1, static_cast<int>(kGameTypes.size())};
  rows.push_back(Whole("MODPictureTimer", 5, Within(kPictureHolds, 5), FieldOf(&State::MODPictureTimer)));
  rows.push_back(Whole("GameType", 5, Within(types, 1), FieldOf(&State::GameType)));
  rows.push_back(Whole("Players", 3, Within(kPlayerCounts, 3), FieldOf(&State::Players)));
  rows.push_back(Truth("HideQuestion", true, FieldOf(&State::HideQuestion)));
  rows.push_back(Whole("GridControl", 5, Within(kGridSizes, 5), FieldOf(&State::GridSize)));
  rows.push_back(Whole("SoundSet", 1, Any(), FieldOf(&State::SoundSet)));
  rows.push_back(Truth("KeyControl", true, FieldOf(&State::KeyControl)));
  rows.push_back(Truth("Animation", false, FieldOf(&State::Animation)));
  rows.push_back(Whole("TimedResponse", 0, OneOf(kTimedResponses), FieldOf(&State::TimedResponse)));
  rows.push_back(Whole("PenaltyPoints", 0, OneOf(kPenaltyChoices), FieldOf(&State::PenaltyPoints)));
  rows.push_back(Text("KeyCorrect", "Y", FieldOf(&State::KeyCorrect)));
  rows.push_back(Text("KeyIncorrect", "N", FieldOf(&State::KeyIncorrect)));
  rows.push_back(Truth("GameEnds", false, FieldOf(&State::GameEnds)));
  rows.push_back(Truth("IncorrectPenalty", false, FieldOf(&State::IncorrectPenalty)));
  rows.push_back(Whole("LedEffects", 0, Any(), FieldOf(&State::LedEffects)));
  rows.push_back(Whole("LedSpeed", 5, Any(), FieldOf(&State::LedSpeed)));
  const int nothing = static_cast<int>(InterfaceCode::OutOfRange);
  rows.push_back(WrittenOnly(Whole(kSerialCommKey, nothing, Any(), FieldOf(&State::SerialComm))));
  rows.push_back(Whole("AutoContinue", 3, Within(kAutoContinues, 3), FieldOf(&State::AutoContinue)));
  for (int player = 1; player <= kPlayers; ++player) {
    const auto field = [player](auto& state) -> auto& { return state.PlayerPenalty[player]; };
    rows.push_back(Truth("Player" + std::to_string(player) + "Penalty", false, field));
  }
}

void AddDevices(Rows& rows) {
  const std::pair<const char*, int GameState::*> volumes[] = {
      {"EventPlayerVolume", &GameState::EventPlayerVolume},
      {"KeyPressPlayerVolume", &GameState::KeyPressPlayerVolume},
      {"SoundClipPlayerVolume", &GameState::SoundClipPlayerVolume},
      {"BackgroundPlayerVolume", &GameState::BackgroundPlayerVolume},
      {"CorrectIncorrectVolume", &GameState::CorrectIncorrectVolume}};
  for (const auto& [key, member] : volumes) rows.push_back(Whole(key, 75, Within(kVolumes, 75), FieldOf(member)));
  rows.push_back(Truth("MicsOnWithBuzzer", false, FieldOf(&GameState::MicsOnWithBuzzer)));
  rows.push_back(Truth("TSSupport", false, FieldOf(&GameState::TSSupport)));
}

void AddScreens(Rows& rows) {
  constexpr double kWhiteText = 16777215;
  const auto each = [&rows](const auto& make) {
    for (int player = 1; player <= kPlayers; ++player) rows.push_back(make(player, "Screen" + std::to_string(player)));
  };
  using Style = ScreenStyle;
  const auto size = [](int value) { return value == 0 ? 100 : value; };
  each([](int p, const std::string& s) { return Real(s + "BG", 0, StyleField(p, &Style::BackColor)); });
  each([](int p, const std::string& s) { return Real(s + "FG", kWhiteText, StyleField(p, &Style::ForeColor)); });
  each([](int p, const std::string& s) { return Text(s + "Font", "Comic Sans MS", StyleField(p, &Style::FontName)); });
  each([&](int p, const std::string& s) { return Whole(s + "FontSize", 100, size, StyleField(p, &Style::FontSize)); });
  each([](int p, const std::string& s) { return Truth(s + "FontBold", true, StyleField(p, &Style::FontBold)); });
  each([](int p, const std::string& s) { return Truth(s + "FontItalic", false, StyleField(p, &Style::FontItalic)); });
}

void AddRest(Rows& rows) {
  using State = GameState;
  rows.push_back(WrittenOnly(Truth("FullScreenGameBoard", false, FieldOf(&State::FullScreenGameBoard))));
  rows.push_back(WrittenOnly(Truth("ZR650", false, FieldOf(&State::ZR650))));
  rows.push_back(Whole("LCDResolutions", 1, Within({1, 3}, 1), FieldOf(&State::LCDResolutions)));
  rows.push_back(Whole("BackGroundMusic", 0, Within(kMusicModes, 0), FieldOf(&State::BackgroundMusic)));
  rows.push_back(Text("BgMusicFileName", "", FieldOf(&State::BgMusicFileName)));
  rows.push_back(Whole("LCDScreensTop", 0, Any(), FieldOf(&State::LCDScreensTop)));
  rows.push_back(AtChangeOnly(Whole("Scoring", 5, Within(kPointChoices, 5), FieldOf(&State::Scoring))));
  rows.push_back(AtChangeOnly(Whole("Bonus", 5, Within(kPointChoices, 5), FieldOf(&State::Bonus))));
  rows.push_back(AtChangeOnly(Text("ImportColumns", "", FieldOf(&State::ImportColumns))));
  rows.push_back(AtChangeOnly(Truth("SpellChecker", false, FieldOf(&State::SpellChecker))));
  rows.push_back(AtChangeOnly(Truth(kShowBaseHeaderKey, true, FieldOf(&State::ShowBaseHeader))));
}

Rows MakeTable() {
  Rows rows;
  AddRouting(rows);
  // Other programs of the family look for it; it stands for nothing here.
  rows.push_back({"RememberCommPort", "False", ReadAt::Never, SaveAt::ExitToo, {}, [](const GameState&) {
                    return BooleanText(false);
                  }});
  AddGame(rows);
  AddDevices(rows);
  AddScreens(rows);
  AddRest(rows);
  return rows;
}

}  // namespace

const std::vector<SettingRow>& SettingsTable() {
  static const Rows table = MakeTable();
  return table;
}

const SettingRow& SettingOf(const std::string& key) {
  const Rows& table = SettingsTable();
  const auto row = std::find_if(table.begin(), table.end(), [&](const SettingRow& one) { return one.Key == key; });
  if (row == table.end()) throw SubscriptError();
  return *row;
}

}  // namespace pawnfield
