#include "platform/observer.h"

#include <algorithm>

namespace pawnfield {

Observer::~Observer() {
  for (ObserverList* list : lists_) list->Forget(*this);
}

ObserverList::~ObserverList() {
  for (Observer* observer : observers_) {
    if (observer != nullptr) std::erase(observer->lists_, this);
  }
}

void ObserverList::Add(Observer& observer) {
  if (std::find(observers_.begin(), observers_.end(), &observer) != observers_.end()) return;
  observers_.push_back(&observer);
  observer.lists_.push_back(this);
}

void ObserverList::Remove(Observer& observer) {
  std::erase(observer.lists_, this);
  Forget(observer);
}

void ObserverList::Forget(const Observer& observer) {
  std::replace(observers_.begin(), observers_.end(), const_cast<Observer*>(&observer), static_cast<Observer*>(nullptr));
  if (announcing_ == 0) DropForgotten();
}

void ObserverList::DropForgotten() { std::erase(observers_, static_cast<Observer*>(nullptr)); }

void ObserverList::AnnounceToEach(Control& control, PropertyId id) {
  // An observer may throw; the count goes back all the same.
  struct Counted {
    explicit Counted(ObserverList& observers) : list(observers) { ++list.announcing_; }
    ~Counted() {
      if (--list.announcing_ == 0) list.DropForgotten();
    }
    ObserverList& list;
  } counted(*this);
  const std::size_t count = observers_.size();
  for (std::size_t i = 0; i < count; ++i) {
    if (observers_[i] != nullptr) observers_[i]->Changed(control, id);
  }
}

}  // namespace pawnfield
