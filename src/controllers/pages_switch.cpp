#include "controllers/pages_switch.h"

#include <algorithm>
#include <sstream>

#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "outward/page_views.h"
#include "platform/text.h"
#include "show/page_state.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kSection = "Pages";
constexpr int kUsualPort = 8473;
constexpr int kControlPort = 8474;
constexpr std::size_t kPinDigits = 4, kHostPinDigits = 6, kTokenBytes = 16;

std::string Kept(const Show& show, const std::string& key) {
  return show.platform.settings.GetSetting(kAppTitle, kSection, key, "");
}

// Of random bytes, so many decimal digits.
std::string Digits(Show& show, std::size_t count) {
  std::string digits;
  while (digits.size() < count) {
    for (const char digit : show.platform.webPages.Secret(kTokenBytes)) {
      if (digit >= '0' && digit <= '9' && digits.size() < count) digits += digit;
    }
  }
  return digits;
}

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
  return text;
}

void MakeSecrets(Show& show) {
  PageState& pages = *show.pages;
  if (pages.Pin.size() != kPinDigits) pages.Pin = Digits(show, kPinDigits);
  if (pages.HostPin.size() != kHostPinDigits) pages.HostPin = Digits(show, kHostPinDigits);
  if (pages.ControlToken.empty()) pages.ControlToken = show.platform.webPages.Secret(kTokenBytes);
}

// A new evening: other people sit in the room.
void ForgetSecrets(PageState& pages) {
  pages.Pin.clear();
  pages.HostPin.clear();
  for (PhoneSeat& seat : pages.Seats) seat = {};
}

void OfferAddresses(Show& show) {
  ComboBox& box = show.frmPages.cboAddress;
  const std::vector<std::string> addresses = show.platform.webPages.Addresses();
  box.List = addresses;
  const auto at = std::find(addresses.begin(), addresses.end(), show.pages->Place.Address);
  const auto outside = [](const std::string& address) { return !address.starts_with("127.") && address != "::1"; };
  const auto best = at != addresses.end() ? at : std::find_if(addresses.begin(), addresses.end(), outside);
  const auto chosen = best != addresses.end() ? best : addresses.begin();
  box.ListIndex = addresses.empty() ? -1 : static_cast<int>(chosen - addresses.begin());
}

std::string UrlOf(const PageState& pages, const std::string& tail) {
  const std::string& address = pages.Place.Address;
  const std::string host = address.find(':') == std::string::npos ? address : "[" + address + "]";
  return "http://" + host + ":" + std::to_string(pages.Place.Port) + "/" + tail;
}

void ShowSwitch(Show& show) {
  PagesForm& form = show.frmPages;
  const PageState& pages = *show.pages;
  form.btnSwitch.Caption = pages.On ? "Switch off" : "Switch on";
  form.cboAddress.Enabled = !pages.On;
  form.chkControl.Enabled = !pages.On;
  form.txtControlAddresses.Enabled = !pages.On && pages.Place.Control;
  form.chkKeepOn.Value = pages.KeepOn ? 1 : 0;
  form.chkControl.Value = pages.Place.Control ? 1 : 0;
  form.optWeighing[pages.Weighs == Weighing::ByTimePressed ? 0 : 1].SelectInGroup();
  form.lblPhonesAddress.Caption = pages.On ? UrlOf(pages, "") : "";
  form.lblHostAddress.Caption = pages.On ? UrlOf(pages, "host") : "";
  form.lblScoresAddress.Caption = pages.On ? UrlOf(pages, "scores") : "";
  form.lblPin.Caption = pages.On ? pages.Pin : "";
  form.lblHostPin.Caption = pages.On ? pages.HostPin : "";
  const bool control = pages.On && pages.Place.Control;
  form.lblControlToken.Caption = control ? "Token " + pages.ControlToken : "";
}

std::string SeatText(const PageState& pages, int player) {
  const PhoneSeat& seat = pages.Seats[player];
  const auto page = pages.Pages.find(seat.Page);
  std::string text = seat.Token.empty() ? "free" : "away";
  if (page != pages.Pages.end()) {
    text = std::to_string((page->second.Clock.LastRoundTripUs() + 999) / 1000) + " ms";
  }
  return seat.Locked ? text + ", locked" : text;
}

void ShowSeats(Show& show) {
  PagesForm& form = show.frmPages;
  for (int player = 1; player <= kPlayers; ++player) {
    const std::size_t i = PlayerIndex(player);
    form.lblSeatName[i].Caption = show.frmMain.PlayerName(player);
    form.lblSeat[i].Caption = SeatText(*show.pages, player);
    form.btnEmptySeat[i].Enabled = !show.pages->Seats[player].Token.empty();
    form.btnLockSeat[i].Caption = show.pages->Seats[player].Locked ? "Unlock" : "Lock";
  }
}

const char* KindText(PageKind kind) {
  constexpr const char* kTexts[] = {"Joining", "Phone", "Host's page", "Scores", "Control"};
  return kTexts[static_cast<std::size_t>(kind)];
}

std::vector<ListView::Row> ConnectedRows(const Show& show) {
  std::vector<ListView::Row> rows;
  for (const auto& [number, page] : show.pages->Pages) {
    std::string what = KindText(page.Kind);
    if (page.Seat != 0) what += " of " + show.frmMain.PlayerName(page.Seat);
    const std::int64_t roundTrip = page.Clock.LastRoundTripUs();
    rows.push_back({what, page.Address, roundTrip == 0 ? "" : std::to_string((roundTrip + 999) / 1000) + " ms"});
  }
  return rows;
}

void Listen(Show& show) {
  PagesPlace& place = show.pages->Place;
  place.ControlPort = kControlPort;
  if (place.Port == 0) place.Port = kUsualPort;
  try {
    place.Port = show.platform.webPages.Open(place);
  } catch (const RuntimeError&) {
    // Another program has it. What a QR code on the wall says would change too, so the usual one is tried each time.
    PagesPlace other = place;
    other.Port = 0;
    place.Port = show.platform.webPages.Open(other);
  }
}

void Report(Show& show, const std::string& text) {
  show.frmPages.lblPagesStatus.Caption = text;
  show.frmMain.lblStatusBar.Caption = text;
}

}  // namespace

void SwitchPagesOn(Show& show) {
  PageState& pages = *show.pages;
  if (pages.On) return;
  OfferAddresses(show);
  pages.Place.Address = show.frmPages.cboAddress.Text();
  MakeSecrets(show);
  try {
    Listen(show);
    pages.On = true;
    pages.Told = {};
    show.frmPages.tmrPing.Enabled = true;
    show.frmPages.lblPagesStatus.Caption = "";
  } catch (const RuntimeError& error) {
    Report(show, std::string("Phones and pages can't be switched on: ") + error.what());
  }
  SavePages(show);
  ShowSwitch(show);
}

void SwitchPagesOff(Show& show) {
  PageState& pages = *show.pages;
  show.platform.webPages.Close();
  pages.On = false;
  pages.Pages.clear();
  pages.Weighed.clear();
  pages.Guesses.clear();
  for (PhoneSeat& seat : pages.Seats) seat.Page = 0;
  show.frmPages.tmrPing.Enabled = false;
  show.frmPages.tmrWeigh.Enabled = false;
  SavePages(show);
  ShowSwitch(show);
  ShowWhoIsConnected(show);
}

void btnSwitch_Click(Show& show) {
  if (show.pages->On) {
    SwitchPagesOff(show);
    ForgetSecrets(*show.pages);
    SavePages(show);
    return;
  }
  show.pages->Place.Address = show.frmPages.cboAddress.Text();
  SwitchPagesOn(show);
}

void chkKeepOn_Click(Show& show) {
  show.pages->KeepOn = show.frmPages.chkKeepOn.Value == 1;
  SavePages(show);
}

void chkControl_Click(Show& show) {
  show.pages->Place.Control = show.frmPages.chkControl.Value == 1;
  ShowSwitch(show);
  SavePages(show);
}

void optWeighing_Click(Show& show, int index) {
  show.pages->Weighs = index == 0 ? Weighing::ByTimePressed : Weighing::ByArrival;
  SavePages(show);
}

void txtControlAddresses_Change(Show& show) {
  show.pages->Place.ControlAddresses = WordsOf(show.frmPages.txtControlAddresses.Text);
  SavePages(show);
}

void mnuFilePages_Click(Show& show) {
  OfferAddresses(show);
  ShowSwitch(show);
  ShowWhoIsConnected(show);
  show.frmPages.txtControlAddresses.Text = Joined(show.pages->Place.ControlAddresses);
  show.frmPages.Visible = true;
  show.frmPages.BringToFront();
}

void LoadPages(Show& show) {
  PageState& pages = *show.pages;
  pages.KeepOn = Kept(show, "KeepOn") == "True";
  pages.Weighs = Kept(show, "Weighing") == "Arrival" ? Weighing::ByArrival : Weighing::ByTimePressed;
  pages.Place.Address = Kept(show, "Address");
  pages.Place.Control = Kept(show, "Control") == "True";
  pages.Place.ControlAddresses = WordsOf(Kept(show, "ControlAddresses"));
  pages.ControlToken = Kept(show, "ControlToken");
  pages.Pin = Kept(show, "Pin");
  pages.HostPin = Kept(show, "HostPin");
  const double port = LeadingNumber(Kept(show, "Port"));
  pages.Place.Port = port >= 1 && port <= 65535 ? static_cast<int>(port) : 0;
  for (int player = 1; player <= kPlayers; ++player) {
    pages.Seats[player].Token = Kept(show, "Seat" + std::to_string(player));
  }
  if (pages.KeepOn) SwitchPagesOn(show);
}

void BringPagesBack(Show& show) {
  if (Kept(show, "On") == "True") SwitchPagesOn(show);
}

void EndPages(Show& show) {
  if (show.pages->On) SwitchPagesOff(show);
  if (!show.pages->KeepOn) ForgetSecrets(*show.pages);
  SavePages(show);
}

void SavePages(Show& show) {
  const PageState& pages = *show.pages;
  std::vector<Setting> settings{{"KeepOn", BooleanText(pages.KeepOn)},
                                {"On", BooleanText(pages.On)},
                                {"Weighing", pages.Weighs == Weighing::ByArrival ? "Arrival" : "TimePressed"},
                                {"Address", pages.Place.Address},
                                {"Port", std::to_string(pages.Place.Port)},
                                {"Pin", pages.Pin},
                                {"HostPin", pages.HostPin},
                                {"Control", BooleanText(pages.Place.Control)},
                                {"ControlToken", pages.ControlToken},
                                {"ControlAddresses", Joined(pages.Place.ControlAddresses)}};
  for (int player = 1; player <= kPlayers; ++player) {
    settings.push_back({"Seat" + std::to_string(player), pages.Seats[player].Token});
  }
  // Only what has changed, also from what stands where nothing is saved yet.
  std::erase_if(settings, [&](const Setting& one) {
    const std::string kept = Kept(show, one.Key);
    const bool first = one.Value == "False" || one.Value == "TimePressed" || one.Value == "0";
    return kept == one.Value || (kept.empty() && first);
  });
  if (!settings.empty()) show.platform.settings.SaveSettingsAsync(kAppTitle, kSection, settings);
}

void ShowWhoIsConnected(Show& show) {
  if (!show.frmPages.Visible) return;
  ShowSeats(show);
  show.frmPages.lstPages.ListItems = ConnectedRows(show);
}

}  // namespace pawnfield
