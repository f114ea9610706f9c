// The part of Markdown that the manual is written in, as HTML: headings, paragraphs, lists, numbered lists, tables,
// pictures, links, bold and code.
#pragma once

#include <string>

namespace pawnfield {

// The text of the first heading, empty when there is none.
std::string TitleOf(const std::string& markdown);
// Links to other texts (".md") and to the licence lead to their pages.
std::string HtmlOf(const std::string& markdown);
std::string EscapeHtml(const std::string& text);

}  // namespace pawnfield
