// Which window shows which form. The dialogs and the displays find windows here; the windows enter themselves.
#pragma once

#include <QWidget>
#include <map>

#include "platform/controls.h"

namespace pawnfield {

class PictureCache;

class FormWindows {
 public:
  explicit FormWindows(PictureCache& pictures) : pictures_(pictures) {}
  // What every window's pictures come from.
  PictureCache& Pictures() const { return pictures_; }
  void Add(const Form& form, QWidget& window) { windows_[&form] = &window; }
  void Remove(const Form& form) { windows_.erase(&form); }
  QWidget* Find(const Form& form) const {
    const auto found = windows_.find(&form);
    return found == windows_.end() ? nullptr : found->second;
  }

 private:
  PictureCache& pictures_;
  std::map<const Form*, QWidget*> windows_;
};

}  // namespace pawnfield
