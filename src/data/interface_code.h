// What the players press, and so how presses come in: the interface code that SerialComm holds and its setting saves.
#pragma once

namespace pawnfield {

enum class InterfaceCode {
  // Pads whose lamps the program drives.
  LampPads = 0,
  FurtherLampPads = 2,
  // Nothing was found: mouse and keyboard alone.
  Manual = 6,
  // Keypads that type for the players; with 9 players and scores are published to the program behind them as well.
  Keypads = 8,
  PublishingKeypads = 9,
  Wireless = 10,
  // What the interface dialog makes of a setting that it doesn't know.
  OutOfRange = 99
};

constexpr bool DrivesLamps(InterfaceCode code) {
  return code == InterfaceCode::LampPads || code == InterfaceCode::FurtherLampPads;
}

constexpr bool AreKeypads(InterfaceCode code) {
  return code == InterfaceCode::Keypads || code == InterfaceCode::PublishingKeypads;
}

}  // namespace pawnfield
