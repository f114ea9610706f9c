#include "media/media_kinds.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/text.h"

namespace pawnfield {

namespace {

// How dialogs offer a kind: not at all, among all media, or by a title of its own as well.
constexpr const char* kHidden = nullptr;
constexpr const char* kUntitled = "";

struct MediaType {
  std::string_view Ending;
  Medium Kind;
  // Types of one title stand together.
  const char* Title;
  bool IsTrack = false;
};

constexpr MediaType kMediaTypes[] = {
    {".wav", Medium::Sound, "WAV Files", true}, {".mp3", Medium::Sound, "MP3 Files", true},
    {".wma", Medium::Sound, "WMA Files"},       {".bmp", Medium::Picture, "BMP Files"},
    {".jpg", Medium::Picture, "JPG Files"},     {".avi", Medium::Video, "AVI Files"},
    {".mpg", Medium::Video, "MPEG Files"},      {".mpeg", Medium::Video, "MPEG Files"},
    {".mov", Medium::Video, kUntitled},         {".mp4", Medium::Video, "MPEG-4 Files"},
    {".3gp", Medium::Video, kUntitled},         {".wmv", Medium::Video, kHidden},
};

// Null for an ending that is no medium's.
const MediaType* TypeOf(const std::string& path) {
  const std::string name = Trim(path);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string::npos) return nullptr;
  const std::string ending = ToLower(name.substr(dot));
  const auto* type = std::find_if(std::begin(kMediaTypes), std::end(kMediaTypes),
                                  [&](const MediaType& one) { return one.Ending == ending; });
  return type == std::end(kMediaTypes) ? nullptr : type;
}

template <typename Wanted>
std::string Patterns(const std::string& separator, Wanted wanted) {
  std::string patterns;
  for (const MediaType& type : kMediaTypes) {
    if (type.Title != kHidden && wanted(type)) {
      patterns += (patterns.empty() ? "*" : separator + "*") + std::string(type.Ending);
    }
  }
  return patterns;
}

// "BMP Files (*.bmp)|*.bmp|" for each title of the kind.
std::string TitledFilters(Medium kind) {
  std::string filters;
  std::string_view last;
  for (const MediaType& type : kMediaTypes) {
    if (type.Kind != kind || type.Title == kHidden || type.Title == last || *type.Title == '\0') continue;
    last = type.Title;
    const std::string patterns =
        Patterns(";", [&](const MediaType& one) { return std::string_view(one.Title) == last; });
    filters.append(last).append(" (").append(patterns).append(")|").append(patterns).append("|");
  }
  return filters;
}

}  // namespace

Medium MediaKind(const std::string& path) {
  const MediaType* type = TypeOf(path);
  return type == nullptr ? Medium::None : type->Kind;
}

bool IsMusicTrack(const std::string& path) {
  const MediaType* type = TypeOf(path);
  return type != nullptr && type->IsTrack;
}

std::string MediaFilter(const std::string& title, Medium kind, const std::string& separator) {
  return title + "|" + Patterns(separator, [&](const MediaType& type) { return type.Kind == kind; });
}

std::string AllMediaFilter() {
  return "All Media Types|" + Patterns(";", [](const MediaType&) { return true; }) + "|" +
         TitledFilters(Medium::Picture) + TitledFilters(Medium::Video) + TitledFilters(Medium::Sound) +
         "All Files (*.*)|*.*|";
}

}  // namespace pawnfield
