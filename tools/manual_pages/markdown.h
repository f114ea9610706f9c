// The manual's Markdown, with its tables, as HTML.
#pragma once

#include <string>

namespace pawnfield {

// The text of the first heading, empty when there is none.
std::string TitleOf(const std::string& markdown);
// Links to other texts (".md") and to the licence lead to their pages; pictures are as wide as a page.
std::string HtmlOf(const std::string& markdown);
std::string EscapeHtml(const std::string& text);

}  // namespace pawnfield
