#include "desktop/windows/house_palette.h"

#include <QColor>

namespace pawnfield {

namespace {

struct RoleColor {
  QPalette::ColorRole Role;
  const char* Name;
};

constexpr RoleColor kColors[] = {
    {QPalette::Window, "#0E1320"},        {QPalette::WindowText, "#E6EAF2"},  {QPalette::Base, "#0B0F1A"},
    {QPalette::AlternateBase, "#0E1422"}, {QPalette::Text, "#E6EAF2"},        {QPalette::PlaceholderText, "#8592AD"},
    {QPalette::Button, "#22304F"},        {QPalette::ButtonText, "#E6EAF2"},  {QPalette::BrightText, "#FFFFFF"},
    {QPalette::Highlight, "#F2B84B"},     {QPalette::ToolTipBase, "#171F33"}, {QPalette::HighlightedText, "#1B1403"},
    {QPalette::ToolTipText, "#E6EAF2"},   {QPalette::Link, "#7FB2FF"},        {QPalette::LinkVisited, "#B79CFF"},
    {QPalette::Light, "#33405E"},         {QPalette::Midlight, "#25304A"},    {QPalette::Mid, "#1E2740"},
    {QPalette::Dark, "#131A2B"},          {QPalette::Shadow, "#05070D"}};
constexpr RoleColor kGreyed[] = {
    {QPalette::WindowText, "#5A6784"}, {QPalette::Text, "#5A6784"}, {QPalette::ButtonText, "#5A6784"}};

}  // namespace

QPalette HousePalette() {
  QPalette palette;
  for (const auto& [role, name] : kColors) palette.setColor(role, QColor(name));
  for (const auto& [role, name] : kGreyed) palette.setColor(QPalette::Disabled, role, QColor(name));
  return palette;
}

}  // namespace pawnfield
