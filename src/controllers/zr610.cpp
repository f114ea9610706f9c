#include "controllers/zr610.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <utility>

#include "controllers/pad_map.h"
#include "controllers/press_trial.h"
#include "controllers/ring_in.h"
#include "engine/judging.h"
#include "engine/question_cycle.h"
#include "forms/main_form.h"
#include "forms/press_forms.h"
#include "platform/attach.h"
#include "platform/errors.h"
#include "platform/text.h"
#include "presentation/both_screens.h"
#include "record/ring_in_order.h"
#include "show/phase.h"
#include "show/show.h"

namespace pawnfield {

namespace {

constexpr const char* kAdapterProduct = "7523";
constexpr const char* kInitialized = "ZR-610 System initialized";
constexpr const char* kUnplugged =
    "The ZR-610 System was unplugged. Plug it in again and choose Reconnect in the ZR-610 System menu.";
constexpr int kPadFrame = 253;
constexpr int kKeyFrame = 180;
constexpr int kHeldFramesPollMs = 15;

// The byte at a place of the frame, counted from 1.
int FrameByte(const std::string& frame, std::size_t place) {
  if (place > frame.size()) throw RuntimeError(kErrorInvalidArgument, "Invalid procedure call or argument");
  return static_cast<unsigned char>(frame[place - 1]);
}

// High byte first, of as many of its three bytes as the frame holds.
std::int32_t PadIdentity(const std::string& frame) {
  std::int32_t id = 0;
  for (std::size_t place = 6; place <= 8 && place <= frame.size(); ++place) id = id << 8 | FrameByte(frame, place);
  return id;
}

void ShowMessage(Show& show, const std::string& text) {
  show.platform.dialogs.MessageBox(text, kAppTitle, BoxKind::Exclamation);
}

void PressPad(Show& show, std::int32_t id) {
  if (IsFormVisible(show, show.frmMapMF.Name())) {
    MapID(show, id);
    return;
  }
  const int slot = LookupPad(show.presses.MFMap, id);
  const Press press = PressOf(show, slot, PressWay::Pad, show.platform.serial.ArrivedUs());
  if (TakesForTrial(show, press, id)) return;
  if (slot == 0) {
    ShowMessage(show, "An unmapped controller has been detected. Please remap your controllers before proceeding.");
    return;
  }
  if (slot >= 4) {
    ShowMessage(show,
                "This game only uses 3 player controls. A controller outside of this range has been used and will be "
                "ignored.");
    return;
  }
  AddPress(show, press);
  if (MayRingIn(show) && !RefuseWhoDoesNotPlay(show, slot)) {
    // The operator may give the question to another player by hand; a pad that comes second may not.
    const Button& button = show.frmMain.btnSelectPlayer[static_cast<std::size_t>(slot - 1)];
    if (button.Visible && button.Enabled) btnSelectPlayer_Click(show, slot - 1);
  }
}

// The host unit's keys: 2 and 5 judge incorrect, 3 and 6 correct, and 2 goes on when there is nothing to judge.
void PressHostKey(Show& show, int key) {
  MainForm& form = show.frmMain;
  const bool incorrect = key == 2 || key == 5;
  if (incorrect && QuestionIsUp(show)) {
    HandleIncorrect(show);
  } else if (key == 2 && form.btnContinue.Visible && form.btnContinue.Enabled) {
    btnContinue_Click(show);
  } else if ((key == 3 || key == 6) && QuestionIsUp(show)) {
    HandleCorrect(show);
  }
}

// A broken frame is reported once; a line that carries one carries many.
void ProcessGuarded(Show& show, const std::string& frame) {
  try {
    ProcessZR610Frame(show, frame);
  } catch (const RuntimeError& error) {
    if (error.Number() == kErrorInvalidArgument && std::exchange(show.presses.BrokenFrameReported, true)) return;
    ReportError(show.platform.dialogs, error, show.frmMain.Name(), "mscZR610_OnComm");
  }
}

// Has an unfinished frame looked at again when it is to be dropped.
void WatchHead(Show& show) {
  const auto due = show.presses.RxBuffer.GivenUpAtMs();
  if (due)
    show.presses.LateFrame->SetInterval(
        static_cast<int>(std::max<std::int64_t>(*due - show.platform.clock.NowMs(), 1)));
  show.presses.LateFrame->SetEnabled(due.has_value());
}

void TakeFrames(Show& show) {
  SerialPort& port = show.platform.serial;
  FrameSplitter& buffer = show.presses.RxBuffer;
  do {
    buffer.Add(port.Input());
    while (const auto frame = buffer.Next(show.platform.clock.NowMs())) ProcessGuarded(show, *frame);
  } while (port.InBufferCount() > 0);
  WatchHead(show);
}

// What waits of a line that is closed has nothing to do with the line that is opened next.
void CloseLine(Show& show) {
  show.platform.serial.Close();
  show.presses.RxBuffer.Clear();
  show.presses.LateFrame->SetEnabled(false);
}

// The adapter is gone, and its port would report that without end.
void LoseLine(Show& show) {
  if (!show.platform.serial.PortOpen()) return;
  CloseLine(show);
  show.frmMain.lblStatusBar.Caption = kUnplugged;
}

void HoldOrTakeFrames(Show& show) {
  if (show.platform.dialogs.Modal() != ModalKind::Box) {
    TakeFrames(show);
  } else if (!show.presses.HeldFrames->Enabled()) {
    show.presses.HeldFrames->SetEnabled(true);
  }
}

// Takes up the frames that a message box held back.
void HeldFrames_Timer(Show& show) {
  if (show.platform.dialogs.Modal() == ModalKind::Box) return;
  show.presses.HeldFrames->SetEnabled(false);
  TakeFrames(show);
}

// The rest of a frame that waits can lie behind a message box.
void LateFrame_Timer(Show& show) {
  show.presses.LateFrame->SetEnabled(false);
  HoldOrTakeFrames(show);
}

}  // namespace

int PortNumber(const std::string& caption) {
  std::size_t first = caption.size();
  if (caption.ends_with(')')) {
    first = caption.size() - std::min<std::size_t>(caption.size(), 2);
  } else {
    while (first > 0 && std::isdigit(static_cast<unsigned char>(caption[first - 1]))) --first;
  }
  const double number = LeadingNumber(caption.substr(first));
  constexpr double kLargest = 32767;
  return number >= 0 && number <= kLargest ? static_cast<int>(number) : 0;
}

bool IsZR610Adapter(const SerialDevice& device) {
  return device.DeviceID.find(kAdapterProduct) != std::string::npos && !device.Description.empty();
}

int FindZR610Port(const SerialPort& port) {
  int found = -1;
  for (const SerialDevice& device : port.Enumerate()) {
    if (IsZR610Adapter(device)) found = PortNumber(device.Caption);
  }
  return found;
}

void LoadZR610(Show& show) {
  PressState& presses = show.presses;
  presses.CommPortNumber = FindZR610Port(show.platform.serial);
  presses.ZR610Present = presses.CommPortNumber > -1;
  if (!presses.ZR610Present) return;
  OpenZR610Port(show);
  LoadMF(show);
}

void OpenZR610Port(Show& show) { show.platform.serial.Open(show.presses.CommPortNumber, SerialSettings{}); }

void mscZR610_OnComm(Show& show, SerialEvent event) {
  if (event == SerialEvent::Lost) {
    LoseLine(show);
  } else {
    HoldOrTakeFrames(show);
  }
}

void ProcessZR610Frame(Show& show, const std::string& frame) {
  switch (FrameByte(frame, 5)) {
    case kPadFrame:
      PressPad(show, PadIdentity(frame));
      break;
    case kKeyFrame:
      PressHostKey(show, FrameByte(frame, 6));
      break;
    default:
      break;
  }
}

void mnuReconnectMF_Click(Show& show) {
  SerialPort& port = show.platform.serial;
  CloseLine(show);
  show.presses.CommPortNumber = FindZR610Port(port);
  if (show.presses.CommPortNumber < 0) {
    ShowMessage(show, "Unable to find a ZR-610 device. Please check connections and retry.");
    return;
  }
  OpenZR610Port(show);
  if (show.frmMain.lblStatusBar.Caption == kUnplugged) show.frmMain.lblStatusBar.Caption = kInitialized;
}

void mTestK7Controllers_Click(Show& show) {
  show.presses.CommPortNumber = FindZR610Port(show.platform.serial);
  if (show.presses.CommPortNumber >= 0) {
    const BoxAnswer answer =
        show.platform.dialogs.Ask({"A ZR-610 system has been detected. Would you like to begin using this instead?",
                                   BoxKind::YesNoCancel, BoxAnswer::Cancel, "Use It", "Open the Tester", "Cancel"},
                                  kAppTitle);
    if (answer == BoxAnswer::Yes) LoadMF(show);
    if (answer != BoxAnswer::No) return;
  }
  const std::string path = show.AppPath("\\ZR640Tester.exe");
  if (show.platform.files.CanOpen(path)) {
    show.platform.processes.Start(path);
  } else {
    ShowMessage(show, "For some reason the file: \r\n" + path + "\r\ncannot be found.");
  }
}

void AttachPressHandlers(Show& show) {
  MainForm& form = show.frmMain;
  OnClick(show, form.mnuMapMF, mnuMapMF_Click);
  OnClick(show, form.mnuReconnectMF, mnuReconnectMF_Click);
  OnClick(show, form.mTestK7Controllers, mTestK7Controllers_Click);
  OnClick(show, show.frmMapMF.cmdOK, cmdOK_Click);
  OnClick(show, show.frmMapMF.cmdCancel, cmdCancel_Click);
  const auto guard = [&show](const std::function<void()>& handler, const std::string&, const std::string&) {
    show.frmMain.Dispatch(handler, "mscZR610_OnComm");
  };
  const auto timer = [&show, &guard](void (*handler)(Show&)) {
    auto made = std::make_unique<SelfTimer>(
        show.platform.clock, [&show, handler] { handler(show); }, guard);
    made->SetEnabled(false);
    return made;
  };
  show.presses.HeldFrames = timer(HeldFrames_Timer);
  show.presses.LateFrame = timer(LateFrame_Timer);
  show.presses.HeldFrames->SetInterval(kHeldFramesPollMs);
  show.platform.serial.OnComm = [&show](SerialEvent event) {
    show.frmMain.Dispatch([&show, event] { mscZR610_OnComm(show, event); }, "mscZR610_OnComm");
  };
}

}  // namespace pawnfield
