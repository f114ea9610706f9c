#include "markdown.h"

#include <cmark-gfm-core-extensions.h>
#include <cmark-gfm.h>

#include <cstdlib>
#include <memory>

namespace pawnfield {

namespace {

constexpr int kPictureWidth = 760;

template <auto Free>
struct Freed {
  template <typename T>
  void operator()(T* object) const {
    Free(object);
  }
};
using Parser = std::unique_ptr<cmark_parser, Freed<cmark_parser_free>>;
using Node = std::unique_ptr<cmark_node, Freed<cmark_node_free>>;
using Iterator = std::unique_ptr<cmark_iter, Freed<cmark_iter_free>>;
using Text = std::unique_ptr<char, Freed<std::free>>;

Parser TableParser() {
  cmark_gfm_core_extensions_ensure_registered();
  Parser parser(cmark_parser_new(CMARK_OPT_DEFAULT));
  cmark_parser_attach_syntax_extension(parser.get(), cmark_find_syntax_extension("table"));
  return parser;
}

Node Parse(cmark_parser& parser, const std::string& markdown) {
  cmark_parser_feed(&parser, markdown.data(), markdown.size());
  return Node(cmark_parser_finish(&parser));
}

// Calls with each node once, in the order of the text. The call may put another in its place.
template <typename Visit>
void EachNode(cmark_node& root, Visit&& visit) {
  const Iterator nodes(cmark_iter_new(&root));
  for (cmark_event_type event = cmark_iter_next(nodes.get()); event != CMARK_EVENT_DONE;
       event = cmark_iter_next(nodes.get())) {
    // On the way out of a node its children have been seen.
    if (event == CMARK_EVENT_EXIT) visit(cmark_iter_get_node(nodes.get()));
  }
}

std::string PlainText(cmark_node& node) {
  const Iterator nodes(cmark_iter_new(&node));
  std::string text;
  while (cmark_iter_next(nodes.get()) != CMARK_EVENT_DONE) {
    const char* literal = cmark_node_get_literal(cmark_iter_get_node(nodes.get()));
    if (literal != nullptr) text += literal;
  }
  return text;
}

std::string PageOf(const std::string& target) {
  if (target == "../../LICENSE") return "licence.html";
  const std::size_t text = target.find(".md");
  if (text == std::string::npos || target.starts_with("http")) return target;
  return target.substr(0, text) + ".html" + target.substr(text + 3);
}

void PlacePicture(cmark_node* picture) {
  const std::string html = std::string("<img src=\"") + cmark_node_get_url(picture) + "\" alt=\"" +
                           EscapeHtml(PlainText(*picture)) + "\" width=\"" + std::to_string(kPictureWidth) + "\">";
  cmark_node* widened = cmark_node_new(CMARK_NODE_CUSTOM_INLINE);
  cmark_node_set_on_enter(widened, html.c_str());
  cmark_node_replace(picture, widened);
  cmark_node_free(picture);
}

}  // namespace

std::string EscapeHtml(const std::string& text) {
  std::string html;
  for (const char c : text) {
    if (c == '&') {
      html += "&amp;";
    } else if (c == '<') {
      html += "&lt;";
    } else if (c == '>') {
      html += "&gt;";
    } else if (c == '"') {
      html += "&quot;";
    } else {
      html += c;
    }
  }
  return html;
}

std::string TitleOf(const std::string& markdown) {
  const Parser parser = TableParser();
  const Node root = Parse(*parser, markdown);
  cmark_node* first = cmark_node_first_child(root.get());
  while (first != nullptr && cmark_node_get_type(first) != CMARK_NODE_HEADING) first = cmark_node_next(first);
  return first == nullptr ? "" : PlainText(*first);
}

std::string HtmlOf(const std::string& markdown) {
  const Parser parser = TableParser();
  const Node root = Parse(*parser, markdown);
  EachNode(*root, [](cmark_node* node) {
    if (cmark_node_get_type(node) == CMARK_NODE_LINK) {
      cmark_node_set_url(node, PageOf(cmark_node_get_url(node)).c_str());
    }
    if (cmark_node_get_type(node) == CMARK_NODE_IMAGE) PlacePicture(node);
  });
  const Text html(cmark_render_html(root.get(), CMARK_OPT_DEFAULT, cmark_parser_get_syntax_extensions(parser.get())));
  return html.get();
}

}  // namespace pawnfield
