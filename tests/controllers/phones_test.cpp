// Phones and pages: joining, seats, presses and their margins, what each page is told, and control devices.
#include <gmock/gmock.h>

#include "controllers/pages_switch.h"
#include "data/players.h"
#include "forms/main_form.h"
#include "forms/pages_form.h"
#include "record/ring_in_order.h"
#include "show/page_state.h"
#include "show/phase.h"
#include "support/game_player.h"

namespace pawnfield {
namespace {

using testing::HasSubstr;
using testing::Not;

// Trivia C for three, whose phones and pages are on.
class Room : public GamePlayer {
 public:
  explicit Room(const std::string& setup = "Trivia C, 3 players, 3x3, Full Board, user advances") : GamePlayer(setup) {
    show().frmMain.mnuFilePages.Click();
    if (!network.Listens) show().frmPages.btnSwitch.Click();
  }
  ~Room() { Exit(); }

  void Steps(const std::string& words) { Do(words); }
  void Wait(int ms) { fixture().sim.clock.Advance(ms); }
  // A phone with that way each way joins and takes the seat; half a minute brings its clock in step.
  std::uint64_t Seat(int player, int way = 1) {
    const std::uint64_t phone =
        network.Connect("hello phone " + pages().Pin, {.Address = "192.168.1." + std::to_string(20 + player),
                                                       .WayThere = way,
                                                       .WayBack = way,
                                                       .Stands = 1000000 * player});
    Wait(way + 1);
    network.Say(phone, "seat " + std::to_string(player));
    Wait(4000);
    return phone;
  }
  std::string TokenOf(int player) { return pages().Seats[player].Token; }
  const std::string& Heard(std::uint64_t phone) { return network.Pages.at(phone).Last(); }
  PageState& pages() { return *show().pages; }
  // The console's RING-IN ORDER.
  std::string Order() {
    std::string all;
    for (const RingInRow& row : RingInRows(show())) all += row.Number + " " + row.Name + " " + row.When + "; ";
    for (std::size_t at; (at = all.find('\xB1')) != std::string::npos;) all.replace(at, 1, "+-");
    return all;
  }
  int Turn() { return IsPhase(show(), PhaseKind::QuestionOpen) ? 0 : Phase(show()).Player; }

  SimNetwork& network = fixture().sim.network;

 private:
  void Exit() { pages().On = false; }
};

TEST(Pages, NothingListensUntilTheOperatorSwitchesThemOn) {
  ShowFixture fixture;
  fixture.Start();
  SimNetwork& network = fixture.sim.network;
  PagesForm& form = fixture.show().frmPages;
  EXPECT_FALSE(network.Listens);
  fixture.form().mnuFilePages.Click();
  EXPECT_TRUE(form.Visible);
  EXPECT_FALSE(network.Listens);
  EXPECT_EQ(form.cboAddress.Text(), "192.168.1.5");
  form.btnSwitch.Click();
  EXPECT_TRUE(network.Listens);
  EXPECT_EQ(form.lblPhonesAddress.Caption.Get(), "http://192.168.1.5:8473/");
  EXPECT_EQ(form.lblHostAddress.Caption.Get(), "http://192.168.1.5:8473/host");
  EXPECT_EQ(form.lblPin.Caption->size(), 4U);
  EXPECT_EQ(form.lblHostPin.Caption->size(), 6U);
  const std::string pin = form.lblPin.Caption;
  form.btnSwitch.Click();
  EXPECT_FALSE(network.Listens);
  EXPECT_EQ(form.lblPin.Caption.Get(), "");
  // Another evening has other PINs; a port that another program took meanwhile is told by the address.
  network.Taken = {8473};
  form.btnSwitch.Click();
  EXPECT_NE(form.lblPin.Caption.Get(), pin);
  EXPECT_EQ(form.lblPhonesAddress.Caption.Get(), "http://192.168.1.5:40000/");
  form.btnSwitch.Click();
  network.Taken = {8473, 40000, 0};
  form.btnSwitch.Click();
  EXPECT_FALSE(network.Listens);
  EXPECT_EQ(form.lblPagesStatus.Caption.Get(), "Phones and pages can't be switched on: Address already in use");
}

// A start on the settings of the one before, and how that one ended.
struct Evening {
  const char* what;
  bool keepsOn, exits, broughtBack, listens, knowsSeats;
};

TEST(Pages, AStartFindsThemAsTheOperatorLeftThem) {
  const Evening evenings[] = {{"off again after an exit", false, true, false, false, false},
                              {"kept on", true, true, false, true, true},
                              {"killed, and begun anew", false, false, false, false, true},
                              {"killed, and the show brought back", false, false, true, true, true}};
  for (const Evening& evening : evenings) {
    SCOPED_TRACE(evening.what);
    std::vector<std::pair<std::string, std::string>> kept;
    std::string pin, token;
    {
      Room room;
      if (evening.keepsOn) room.show().frmPages.chkKeepOn.Click();
      room.Seat(2);
      pin = room.pages().Pin;
      token = room.TokenOf(2);
      if (evening.exits) room.fixture().Exit();
      EXPECT_EQ(room.network.Listens, !evening.exits);
      kept = room.fixture().sim.settings.Writes;
    }
    ShowFixture next;
    for (const auto& [key, value] : kept) next.sim.settings.Preset("Pawnfield", "Pages", key, value);
    next.Start();
    if (evening.broughtBack) BringPagesBack(next.show());
    SimNetwork& network = next.sim.network;
    EXPECT_EQ(network.Listens, evening.listens);
    EXPECT_EQ(next.show().pages->Seats[2].Token == token, evening.knowsSeats);
    if (!network.Listens) continue;
    EXPECT_EQ(network.Place.Port, 8473);
    const std::uint64_t phone = network.Connect("hello phone " + pin + " " + token);
    next.sim.clock.Advance(10);
    EXPECT_THAT(network.Pages.at(phone).Last(), HasSubstr("\"t\":\"phone\",\"n\":2"));
    next.show().pages->On = false;
  }
}

TEST(Pages, AWrongPinIsRefusedAndFiveInAMinuteAreHeldOff) {
  Room room;
  const std::string right = "hello phone " + room.pages().Pin;
  const std::string wrong = room.pages().Pin == "0000" ? "hello phone 0001" : "hello phone 0000";
  const auto says = [&](const std::string& words, const std::string& address) {
    const std::uint64_t page = room.network.Connect(words, {.Address = address});
    room.Wait(5);
    return room.Heard(page);
  };
  EXPECT_THAT(says(right, "192.168.1.30"), HasSubstr("\"t\":\"seats\""));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(says(wrong, "192.168.1.31"), R"({"t":"no","why":"pin"})");
  EXPECT_EQ(room.form().lblStatusBar.Caption.Get(), "Wrong PINs from 192.168.1.31: refused for a minute.");
  EXPECT_EQ(says(right, "192.168.1.31"), R"({"t":"no","why":"wait"})");
  EXPECT_EQ(says("hello host " + room.pages().HostPin, "192.168.1.31"), R"({"t":"no","why":"wait"})");
  EXPECT_THAT(says(right, "192.168.1.30"), HasSubstr("\"t\":\"seats\""));
  room.Wait(60001);
  EXPECT_THAT(says(right, "192.168.1.31"), HasSubstr("\"t\":\"seats\""));
  // Four in a minute, and again four in another, are slips of the hand.
  for (int i = 0; i < 8; ++i) {
    if (i == 4) room.Wait(60001);
    EXPECT_EQ(says(wrong, "192.168.1.32"), R"({"t":"no","why":"pin"})");
  }
  EXPECT_THAT(says(right, "192.168.1.32"), HasSubstr("\"t\":\"seats\""));
}

TEST(Pages, ManyAddressesThatGuessEndNobodysRefusal) {
  Room room;
  const auto says = [&](const std::string& pin, const std::string& address) {
    const std::uint64_t page = room.network.Connect("hello phone " + pin, {.Address = address});
    room.Wait(2);
    return room.Heard(page);
  };
  const std::string right = room.pages().Pin, wrong = right == "0000" ? "0001" : "0000";
  for (int i = 0; i < 5; ++i) says(wrong, "10.0.0.1");
  for (int i = 0; i < 600; ++i) says(wrong, "10.1." + std::to_string(i / 200) + "." + std::to_string(i % 200 + 1));
  EXPECT_EQ(says(right, "10.0.0.1"), R"({"t":"no","why":"wait"})");
  EXPECT_LE(room.pages().Guesses.size(), 256U);
}

TEST(Pages, WhoDoesNotBeginWithAHelloIsCutOff) {
  Room room;
  for (const char* words : {"press 1", "seat 1", "pong 1 1 1", "GET / HTTP/1.1", "hello phone"}) {
    const std::uint64_t page = room.network.Connect(words);
    room.Wait(5);
    EXPECT_FALSE(room.network.Pages.at(page).Connected) << words;
  }
  // A page that only reads rings in nobody.
  for (const std::string& words : {std::string("hello scores"), "hello host " + room.pages().HostPin}) {
    const std::uint64_t page = room.network.Connect(words);
    room.Wait(5);
    room.network.Say(page, "seat 1");
    room.network.Press(page);
    room.Wait(100);
    EXPECT_EQ(room.TokenOf(1), "") << words;
    EXPECT_EQ(room.Turn(), 0) << words;
  }
}

TEST(Pages, ASeatIsHeldByItsTokenUntilTheOperatorEmptiesIt) {
  Room room;
  const Chip& chip = room.form().chpPhones;
  EXPECT_EQ(chip.Caption.Get(), "PHONES 0");
  const std::uint64_t anna = room.Seat(1);
  EXPECT_EQ(chip.Caption.Get(), "PHONES 1");
  const std::string token = room.TokenOf(1);
  EXPECT_EQ(token.size(), 32U);
  const std::string hello = "hello phone " + room.pages().Pin;
  // Another one sees it taken, and asking for it all the same, or with a token made up, gets nothing.
  const std::uint64_t other = room.network.Connect(hello + " " + std::string(32, 'a'));
  room.Wait(5);
  EXPECT_THAT(room.Heard(other),
              HasSubstr(R"({"n":1,"name":"PLAYER 1","free":false},{"n":2,"name":"PLAYER 2","free":true})"));
  room.network.Say(other, "seat 1");
  room.Wait(5);
  EXPECT_EQ(room.TokenOf(1), token);
  // The phone loses its network, and finds its seat by the token, also while its old connection hangs.
  room.network.Lose(anna);
  room.Wait(5);
  EXPECT_EQ(room.pages().Seats[1].Page, 0U);
  const std::uint64_t again = room.network.Connect(hello + " " + token);
  room.Wait(5);
  EXPECT_EQ(room.pages().Seats[1].Page, again);
  const std::uint64_t third = room.network.Connect(hello + " " + token);
  room.Wait(5);
  EXPECT_EQ(room.Heard(again), R"({"t":"no","why":"elsewhere"})");
  EXPECT_EQ(room.pages().Seats[1].Page, third);
  // The name changes at the console, and the phone follows.
  room.form().lblPlayer1[0].Caption = "ZO\xCB";
  room.form().btnStopSounds.Click();
  EXPECT_THAT(room.Heard(third), HasSubstr(R"("name":"ZO\u00cb")"));
  room.show().frmPages.btnEmptySeat[0].Click();
  room.Wait(5);
  EXPECT_THAT(room.Heard(third), HasSubstr(R"("t":"seats")"));
  room.network.Say(other, "seat 1");
  room.Wait(5);
  EXPECT_EQ(room.pages().Seats[1].Page, other);
  // Who gives his own back leaves it to the next; a locked one is nobody's.
  room.network.Say(other, "leave");
  room.Wait(5);
  room.show().frmPages.btnLockSeat[0].Click();
  room.network.Say(third, "seat 1");
  room.Wait(5);
  EXPECT_EQ(room.TokenOf(1), "");
}

TEST(Pages, APressIsTakenWhereEveryOtherIs) {
  struct Gate {
    const char* what;
    const char* steps;
    int turn;
  };
  const Gate gates[] = {{"a question is open", "", 2},
                        {"another holds the question", "player 1 rings in", 1},
                        {"the room's screen is covered", "hide", 0},
                        {"no question is up", "skip", 0},
                        {"the turn is taken and given back", "player 1 rings in, incorrect", 2}};
  for (const auto& [what, steps, turn] : gates) {
    SCOPED_TRACE(what);
    Room room;
    const std::uint64_t ben = room.Seat(2);
    if (*steps != '\0') room.Steps(steps);
    room.network.Press(ben);
    room.Wait(100);
    EXPECT_EQ(room.Turn(), turn);
  }
  Room room;
  const std::uint64_t ben = room.Seat(2);
  room.show().frmPages.btnLockSeat[1].Click();
  room.network.Press(ben);
  room.Wait(300);
  EXPECT_EQ(room.Turn(), 0) << "a locked seat";
  EXPECT_THAT(room.Heard(ben), HasSubstr(R"("state":"locked")"));
  room.show().frmPages.btnLockSeat[1].Click();
  room.fixture().sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::No, [&] {
    room.network.Press(ben);
    room.Wait(300);
  });
  room.form().mnuFileExit.Click();
  EXPECT_EQ(room.Turn(), 0) << "a message box stands before the console";
  room.network.Press(ben);
  room.Wait(100);
  EXPECT_EQ(room.Turn(), 2);
}

TEST(Pages, ThreePhonesPlayAWholeGame) {
  Room room;
  const std::uint64_t phones[] = {0, room.Seat(1, 2), room.Seat(2, 5), room.Seat(3, 8)};
  const auto press = [&](int player) {
    room.network.Press(phones[player]);
    room.Wait(30);
  };
  EXPECT_THAT(room.Heard(phones[1]), HasSubstr(R"("state":"ready","question":1)"));
  const char* const squares[] = {"A1", "B1", "C1", "A2", "B2", "C2", "A3", "B3", "C3"};
  for (int i = 0; i < 9; ++i) {
    const int player = i % 3 + 1, wrong = player % 3 + 1;
    // One is wrong, and the question is open to all again.
    press(wrong);
    EXPECT_THAT(room.Heard(phones[wrong]), HasSubstr(R"("state":"floor")"));
    EXPECT_THAT(room.Heard(phones[player]), HasSubstr(R"("state":"other")"));
    room.Steps("incorrect");
    press(player);
    EXPECT_EQ(room.Turn(), player);
    room.Steps("correct");
    EXPECT_THAT(room.Heard(phones[player]), HasSubstr(R"("state":"claim")"));
    // The connection of one is gone and back amid the game.
    if (i == 4) {
      room.network.Lose(phones[3]);
      room.Wait(100);
    }
    room.Steps(std::string("claim ") + squares[i]);
    if (i == 4) {
      const_cast<std::uint64_t&>(phones[3]) =
          room.network.Connect("hello phone " + room.pages().Pin + " " + room.TokenOf(3));
      room.Wait(4000);
    }
    if (i < 8) room.Steps("continue");
  }
  EXPECT_EQ(Phase(room.show()).Kind, PhaseKind::Winner);
  for (int player = 1; player <= kPlayers; ++player) {
    EXPECT_THAT(room.Heard(phones[player]), HasSubstr(R"("state":"over")"));
  }
}

// Two phones on different ways, in ms; who pressed first and by how much; and who wins by each weighing.
struct Race {
  const char* what;
  int wayOne, wayTwo, firstPlayer, apart;
  int byTime, byArrival;
};

TEST(Pages, TheFirstWhoPressedWinsAndTheOtherLearnsByHowMuch) {
  const Race races[] = {{"equal ways", 5, 5, 1, 10, 1, 1},
                        {"the first has the longer way", 40, 5, 1, 20, 1, 2},
                        {"the first has the shorter way", 5, 40, 1, 20, 1, 1},
                        {"the longest way that is waited for", 60, 2, 1, 30, 1, 2},
                        {"beyond it nobody waits", 90, 2, 1, 20, 2, 2}};
  for (const Race& race : races) {
    for (const bool byTime : {true, false}) {
      SCOPED_TRACE(std::string(race.what) + (byTime ? ", by time pressed" : ", by arrival"));
      Room room;
      room.show().frmPages.optWeighing[byTime ? 0 : 1].Click();
      const std::uint64_t phones[] = {0, room.Seat(1, race.wayOne), room.Seat(2, race.wayTwo)};
      room.network.Press(phones[1]);
      room.Wait(race.apart);
      room.network.Press(phones[2]);
      room.Wait(200);
      const int winner = byTime ? race.byTime : race.byArrival;
      EXPECT_EQ(room.Turn(), winner);
      if (!byTime || winner != 1) continue;
      EXPECT_THAT(room.Heard(phones[2]),
                  HasSubstr("\"floor\":1,\"floorName\":\"PLAYER 1\",\"ms\":" + std::to_string(race.apart)));
    }
  }
}

TEST(Pages, NobodyWaitsForLongerThanHeMust) {
  const auto decidedAfter = [](Room& room, std::uint64_t phone) {
    room.network.Press(phone);
    int ms = 0;
    while (room.Turn() == 0 && ms < 200) {
      room.Wait(1);
      ++ms;
    }
    return ms;
  };
  {
    Room alone;
    EXPECT_LE(decidedAfter(alone, alone.Seat(1, 20)), 20) << "a phone alone waits for nobody";
  }
  {
    Room quiet;
    const std::uint64_t anna = quiet.Seat(1, 1);
    quiet.Seat(2, 2);
    EXPECT_LE(decidedAfter(quiet, anna), 3) << "a quiet network";
  }
  {
    Room poor;
    const std::uint64_t anna = poor.Seat(1, 2);
    poor.Seat(2, 300);
    EXPECT_LE(decidedAfter(poor, anna), 62) << "at most 60 ms";
  }
  {
    Room gone;
    const std::uint64_t anna = gone.Seat(1, 2);
    gone.network.Lose(gone.Seat(2, 50));
    gone.Wait(10);
    EXPECT_LE(decidedAfter(gone, anna), 3) << "who isn't there is not waited for";
  }
}

TEST(Pages, AClockIsAskedFiveTimesASecondFromTheFirstQuestionOn) {
  Room room;
  room.Seat(1);
  const int before = room.pages().LastPing;
  room.Wait(1000);
  EXPECT_NEAR(room.pages().LastPing - before, 5, 1);
}

TEST(Pages, AWiredPressNeverWaitsAndIsFinal) {
  Room room;
  const std::uint64_t anna = room.Seat(1, 1);
  const std::uint64_t ben = room.Seat(2, 50);
  room.network.Press(ben);
  room.Wait(10);
  room.network.Press(anna);
  room.Wait(5);
  EXPECT_EQ(room.Turn(), 0) << "the phones are being weighed";
  room.Steps("player 3 rings in");
  EXPECT_EQ(room.Turn(), 3);
  room.Wait(200);
  EXPECT_EQ(room.Turn(), 3);
  EXPECT_THAT(room.Heard(anna), HasSubstr(R"("state":"other")"));
  EXPECT_EQ(
      room.Order(),
      "1 PLAYER 3 first; 2 PLAYER 2 -15 ms (+-58), too close to call; 3 PLAYER 1 -5 ms (+-9), too close to call; ");
}

// One order, whatever the ways, on the console, the phones and the host's page. A remote's report waits here for the
// poll, and is as exact as that.
TEST(Pages, RemotesPadsAndPhonesStandInOneOrder) {
  Room room("Trivia C, 3 players, 3x3, Full Board, user advances, remotes");
  const std::uint64_t ben = room.Seat(2, 20);
  const std::uint64_t host = room.network.Connect("hello host " + room.pages().HostPin, {.Address = "192.168.1.40"});
  room.Steps("remote 1");
  room.Wait(70);
  room.network.Press(ben);
  room.Wait(50);
  room.Steps("remote 3");
  room.Wait(50);
  EXPECT_EQ(room.Turn(), 1);
  EXPECT_EQ(room.Order(), "1 PLAYER 1 first; 2 PLAYER 2 +71 ms (+-52); 3 PLAYER 3 +150 ms (+-64); ");
  EXPECT_THAT(room.Heard(ben), HasSubstr(R"("floor":1,"floorName":"PLAYER 1","ms":71,"error":52,"close":false)"));
  EXPECT_THAT(room.Heard(host), HasSubstr(R"("n":2,"name":"PLAYER 2","ms":71,"error":52,"close":false)"));
  EXPECT_THAT(room.Heard(host), HasSubstr(R"("n":3,"name":"PLAYER 3","ms":150,"error":64,"close":false)"));
  // The question goes to somebody else by hand: who was later than whom is known, and no margin to the new one.
  room.Steps("player 3 rings in");
  EXPECT_THAT(room.Heard(ben), HasSubstr(R"("floor":3,"floorName":"PLAYER 3"})"));
}

// The hall's network is back, and all phones join in the same moment. Who answers too often is cut off as a flood.
TEST(Pages, AHallThatJoinsAtOnceHasNoSeatedPhoneAskedMoreOften) {
  Room room;
  const std::uint64_t ben = room.Seat(2);
  const int before = room.network.Pages.at(ben).Pings;
  for (int i = 0; i < 57; ++i) {
    room.network.Connect("hello phone " + room.pages().Pin, {.Address = "192.168.1." + std::to_string(100 + i)});
  }
  room.Wait(1000);
  const int asked = room.network.Pages.at(ben).Pings - before;
  EXPECT_GE(asked, 1);
  EXPECT_LE(asked, 6);
  for (const auto& [number, page] : room.network.Pages) EXPECT_GE(page.Pings, 1) << number;
}

// No more than 60 ms of a way count, and what a press loses by that is said with its margin.
TEST(Pages, AMarginOfASlowPhoneSaysWhatItsWayMayHaveCostIt) {
  for (const auto& [way, order] : {std::pair{50, "1 PLAYER 1 first; 2 PLAYER 2 +71 ms (+-82), too close to call; "},
                                   std::pair{80, "1 PLAYER 1 first; 2 PLAYER 2 +91 ms (+-132), too close to call; "}}) {
    Room room("Trivia C, 3 players, 3x3, Full Board, user advances, remotes");
    const std::uint64_t ben = room.Seat(2, way);
    room.Steps("remote 1");
    room.Wait(70);
    room.network.Press(ben);
    room.Wait(100);
    EXPECT_EQ(room.Order(), order);
  }
}

// By arrival the order is that of the arrivals, on the console too.
TEST(Pages, TheConsoleListsThemAsTheyAreWeighed) {
  for (const bool byTime : {true, false}) {
    Room room;
    room.show().frmPages.optWeighing[byTime ? 0 : 1].Click();
    const std::uint64_t anna = room.Seat(1, 40), ben = room.Seat(2, 5);
    room.network.Press(anna);
    room.Wait(20);
    room.network.Press(ben);
    room.Wait(200);
    EXPECT_EQ(room.Order(), byTime ? "1 PLAYER 1 first; 2 PLAYER 2 +20 ms (+-45), too close to call; "
                                   : "1 PLAYER 2 first; 2 PLAYER 1 +15 ms; ");
  }
}

TEST(Pages, WhoLiesAboutHisClockGainsHisWayAndNoMore) {
  Room room;
  const std::uint64_t honest = room.Seat(1, 10);
  const std::uint64_t liar = room.Seat(2, 10);
  room.network.Press(honest);
  room.Wait(15);
  room.network.Press(liar, 5000);
  room.Wait(200);
  EXPECT_EQ(room.Turn(), 1);
  EXPECT_THAT(room.Heard(liar), HasSubstr(R"("ms":15)"));
}

TEST(Pages, AHeldButtonCountsFromTheQuestionOnAndBouncesCountOnce) {
  Room room;
  const std::uint64_t anna = room.Seat(1, 20), ben = room.Seat(2, 20);
  room.Steps("skip");
  // Pressed 15 ms before the question came, and 1 ms after it.
  room.network.Press(anna);
  room.Wait(15);
  room.Steps("continue");
  room.Wait(1);
  room.network.Press(ben);
  room.Wait(2);
  for (int i = 0; i < 5; ++i) room.network.Press(ben);
  room.Wait(200);
  EXPECT_EQ(room.Turn(), 1);
  EXPECT_EQ(RingInRows(room.show()).size(), 2U);
  EXPECT_THAT(room.Heard(ben), HasSubstr(R"("ms":1,)"));
}

TEST(Pages, TheAnswerGoesToTheHostAlone) {
  Room room;
  room.show().frmPages.btnSwitch.Click();
  room.show().frmPages.chkControl.Click();
  room.show().frmPages.btnSwitch.Click();
  const std::uint64_t anna = room.Seat(1);
  const std::uint64_t choosing = room.network.Connect("hello phone " + room.pages().Pin);
  const std::uint64_t scores = room.network.Connect("hello scores");
  const std::uint64_t events = room.network.Connect("hello events " + room.pages().ControlToken);
  const std::uint64_t host = room.network.Connect("hello host " + room.pages().HostPin, {.Address = "192.168.1.40"});
  room.Wait(5);
  EXPECT_THAT(room.Heard(host),
              HasSubstr(R"("question":1,"of":30,"text":"Question 1?","answer":"The answer","next":"Question 2?")"));
  room.network.Press(anna);
  room.Wait(50);
  EXPECT_THAT(room.Heard(host), HasSubstr(R"("holder":1,"floor":"PLAYER 1 answers")"));
  room.Steps("correct, claim A1, continue");
  EXPECT_THAT(room.Heard(scores), HasSubstr(R"({"n":1,"name":"PLAYER 1","score":"50","turn":false})"));
  for (const std::uint64_t page : {anna, choosing, scores, events}) {
    EXPECT_GE(room.network.Pages.at(page).Heard.size(), 1U);
    for (const std::string& text : room.network.Pages.at(page).Heard) {
      EXPECT_THAT(text, Not(HasSubstr("answer\":")));
      EXPECT_THAT(text, Not(HasSubstr("The answer")));
      EXPECT_THAT(text, Not(HasSubstr("Question 1?")));
    }
  }
}

struct Asked {
  const char* steps;
  const char* request;
  const char* answer;
};

TEST(Control, RunsTheConsolesOwnControlsAndSaysWhyNot) {
  Room room("Trivia C, 3 players, 3x3, Full Board, user advances");
  room.show().frmPages.btnSwitch.Click();
  room.show().frmPages.chkControl.Click();
  room.show().frmPages.btnSwitch.Click();
  const std::string token = room.pages().ControlToken;
  const Asked cases[] = {{"", "correct", "409 Nobody has to be judged now."},
                         {"", "continue", "409 Continue is not offered now."},
                         {"", "claim?square=A1", "409 No square may be taken now."},
                         {"", "ringin?player=4", "400 There is no such player in this game."},
                         {"", "ringin", "400 ringin needs player=..."},
                         {"", "ringin?square=A1", "400 ringin needs player=..."},
                         {"", "correct?player=1", "400 Nothing stands behind correct."},
                         {"", "restart", "404 There is no control of that name."},
                         {"phase open", "reset?x", "400 Nothing stands behind reset."},
                         {"", "", "404 There is no control of that name."},
                         {"phase open", "ringin?player=2", "200 Done."},
                         {"turn 2", "ringin?player=1", "409 No question is open to all."},
                         {"turn 2", "incorrect", "200 Done."},
                         {"turn nobody", "ringin 3", "200 Done."},
                         {"turn 3", "correct", "200 Done."},
                         {"turn 3", "claim?square=D1", "400 There is no square D1."},
                         {"turn 3", "claim?square=11", "400 There is no square 11."},
                         {"turn 3", "claim?square=c2", "200 Done."},
                         {"wait 5 s, board 000/003/000, scores 0/0/50", "undo", "200 Done."},
                         {"scores 0/0/0, board 000/000/000", "claim?square=B1", "200 Done."},
                         {"wait 5 s, board 030/000/000", "continue", "200 Done."},
                         {"question 2", "hide", "200 Done."},
                         {"picStandby=up", "hide", "409 Hide is not offered now."},
                         {"", "show", "200 Done."},
                         {"picStandby=-", "skip", "200 Done."},
                         {"phase pause", "media?key=1", "400 A key is one letter, as F."},
                         {"", "media?key=q", "409 Nothing lies on that key."}};
  for (const auto& [steps, request, answer] : cases) {
    if (*steps != '\0') room.Steps(steps);
    EXPECT_EQ(room.network.Ask(request, token), answer) << request;
  }
  EXPECT_EQ(room.network.Ask("continue", std::string(32, '0')), "401 The token is wrong.");
  room.Steps("phase pause");
  room.fixture().sim.dialogs.ExpectMessage("Are you sure you want to exit?", BoxAnswer::No, [&] {
    EXPECT_EQ(room.network.Ask("continue", token), "409 The console waits for its operator.");
  });
  room.form().mnuFileExit.Click();
}

// What would wipe a game goes through the gate of whatever is no hand: the console asks, and "no" is the safe answer.
TEST(Control, ResetAndEndGameAreAskedForAtTheConsole) {
  for (const std::string request : {"reset", "endgame"}) {
    SCOPED_TRACE(request);
    Room room;
    room.show().frmPages.btnSwitch.Click();
    room.show().frmPages.chkControl.Click();
    room.show().frmPages.btnSwitch.Click();
    const std::string token = room.pages().ControlToken;
    const bool reset = request == "reset";
    const std::string question =
        reset ? "Reset the game? Its squares and scores are lost." : "End the game and name the winner?";
    room.Steps("player 1 rings in, correct, claim A1");
    for (const BoxAnswer answer : {BoxAnswer::No, BoxAnswer::Yes}) {
      room.fixture().sim.dialogs.ExpectMessage(question, answer, [&] {
        EXPECT_EQ(room.network.Ask(request, token), "409 The console waits for its operator.");
      });
      EXPECT_EQ(room.network.Ask(request, token), "202 The console asks its operator.");
      room.Steps("scores 50/0/0, board 100/000/000");
      room.Wait(10);
      if (answer == BoxAnswer::No) room.Steps("scores 50/0/0, board 100/000/000");
    }
    EXPECT_EQ(room.show().state.GameInProgress, false);
    EXPECT_EQ(room.network.Ask("endgame", token), "409 End Game is not offered now.");
  }
}

TEST(Control, DevicesHearNumbersAndStates) {
  Room room("Trivia C, 3 players, 3x3, Full Board, user advances");
  room.show().frmPages.btnSwitch.Click();
  room.show().frmPages.chkControl.Click();
  room.show().frmPages.btnSwitch.Click();
  const std::uint64_t events = room.network.Connect("hello events " + room.pages().ControlToken);
  room.Wait(5);
  room.network.Osc.clear();
  room.Steps("player 2 rings in, incorrect, player 1 rings in, correct, claim B1, continue, end game");
  const std::vector<std::string> heard{"/pawnfield/ringin 2",      "/pawnfield/verdict 2 0", "/pawnfield/ringin 1",
                                       "/pawnfield/verdict 1 1",   "/pawnfield/claim 1 2 1", "/pawnfield/score 1 50",
                                       "/pawnfield/question 2 30", "/pawnfield/gameover"};
  EXPECT_EQ(room.network.Osc, heard);
  EXPECT_THAT(room.network.Pages.at(events).Heard, testing::Contains(R"({"t":"verdict","player":2,"correct":0})"));
}

}  // namespace
}  // namespace pawnfield
