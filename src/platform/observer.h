// Who watches a control, and what is announced of it. A control has any number of observers; each is announced every
// change in the order in which they came. Either side may go away first.
#pragma once

#include <vector>

namespace pawnfield {

class Control;
class ObserverList;

// One for each thing of a control that changes.
enum class PropertyId {
  Caption,
  Visible,
  Enabled,
  Left,
  Top,
  Width,
  Height,
  ForeColor,
  BackColor,
  BackStyle,
  Font,
  Picture,
  List,
  ListIndex,
  Row,
  Col,
  Value,
  Text,
  ToolTipText,
  Interval,
  MouseIcon,
  WindowState,
  ZOrder,
  Focus,
  Selection,
  URL,
  UiMode,
  StretchToFit,
  Volume,
  PlayState
};

class Observer {
 public:
  Observer() = default;
  // Ends every observation.
  virtual ~Observer();
  Observer(const Observer&) = delete;
  Observer& operator=(const Observer&) = delete;

  virtual void Changed(Control& control, PropertyId id) = 0;

 private:
  friend class ObserverList;
  std::vector<ObserverList*> lists_;
};

// The observers of one control. One that comes during an announcement hears of the next change; one that goes hears
// nothing more. The control itself must outlive the announcement.
class ObserverList {
 public:
  ObserverList() = default;
  ~ObserverList();
  ObserverList(const ObserverList&) = delete;
  ObserverList& operator=(const ObserverList&) = delete;

  // One that observes already is kept once, and one that doesn't is left alone.
  void Add(Observer& observer);
  void Remove(Observer& observer);
  void Announce(Control& control, PropertyId id) {
    if (!observers_.empty()) AnnounceToEach(control, id);
  }

 private:
  friend class Observer;
  void AnnounceToEach(Control& control, PropertyId id);
  void Forget(const Observer& observer);
  void DropForgotten();

  // Null for one that went during an announcement.
  std::vector<Observer*> observers_;
  int announcing_ = 0;
};

}  // namespace pawnfield
