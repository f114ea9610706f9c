#!/usr/bin/python3
"""Holds the pages to what phones of 2019 know: JavaScript by a parser of ES2019, styles by a parser of CSS, and no
request to anywhere. What is newer must have something older before it. Each rule is shown first to find what it is there
for. Usage: FOLDER, of the pages' files. Ends with 77 where a parser is missing."""
import json
import pathlib
import re
import shutil
import subprocess
import sys

try:
    import tinycss2
except ImportError:
    sys.exit(77)

# Of the language's library, what came after 2019; syntax is the parser's own.
LATER_NAMES = set("""at replaceAll allSettled any matchAll hasOwn structuredClone findLast findLastIndex queueMicrotask
globalThis WeakRef AggregateError toSorted toReversed toSpliced with groupBy withResolvers BigInt randomUUID""".split())
# What would make markup of a text, or a program of it.
MARKUP_NAMES = {"innerHTML", "outerHTML", "insertAdjacentHTML", "write", "writeln", "eval", "Function", "srcdoc"}

KNOWN_PROPERTIES = set("""align-items animation background border border-color border-radius bottom box-shadow box-sizing
color display flex flex-direction font font-family font-size font-variant-numeric font-weight height justify-content left
letter-spacing line-height margin margin-bottom margin-left margin-right margin-top max-width min-height min-width opacity
outline outline-offset overflow overflow-wrap padding padding-bottom padding-left padding-top position right text-align
text-overflow top touch-action transform transition unicode-bidi user-select white-space width""".split())
# A browser that doesn't know these leaves them out, and nothing is missed.
HARMLESS_PROPERTIES = {"overscroll-behavior"}
KNOWN_FUNCTIONS = {"var", "env", "rgba", "translateY", "scale"}
KNOWN_PSEUDOS = {"root", "focus", "empty"}
# Newer, and good where something older stands before them.
LATER_FUNCTIONS = {"min", "max", "clamp"}
LATER_VALUES = {"anywhere"}
LATER_PSEUDOS = {"focus-visible"}
KNOWN_FEATURES = {"orientation", "max-width", "max-height", "prefers-reduced-motion"}


def walk(node):
    if isinstance(node, dict):
        yield node
        for value in node.values():
            yield from walk(value)
    elif isinstance(node, list):
        for value in node:
            yield from walk(value)


def faults_of_script(text):
    parsed = subprocess.run(["acorn", "--ecma2019", "-"], input=text, capture_output=True, text=True, check=False)
    if parsed.returncode != 0:
        return ["no ES2019: " + (parsed.stderr.strip() or parsed.stdout.strip()).split("\n")[0]]
    tree = list(walk(json.loads(parsed.stdout)))
    members = [node["property"] for node in tree if node.get("type") == "MemberExpression"]
    called = [node["callee"] for node in tree if node.get("type") in ("CallExpression", "NewExpression")]
    names = {node["name"] for node in members + called if node.get("type") == "Identifier"}
    return ["newer than ES2019: " + name for name in sorted(names & LATER_NAMES)] + \
           ["makes markup of a text: " + name for name in sorted(names & MARKUP_NAMES)]


def functions_in(tokens):
    for token in tokens:
        if token.type == "function":
            yield token.name
            yield from functions_in(token.arguments)


def is_later(declaration):
    idents = {token.value for token in declaration.value if token.type == "ident"}
    return bool(idents & LATER_VALUES or set(functions_in(declaration.value)) & LATER_FUNCTIONS)


def faults_of_declarations(content):
    known = set()
    for item in tinycss2.parse_declaration_list(content, skip_comments=True, skip_whitespace=True):
        if item.type != "declaration":
            yield "no declaration: " + tinycss2.serialize([item])
            continue
        name = item.name
        if name.startswith("--"):
            continue
        if not name.startswith("-webkit-") and name not in KNOWN_PROPERTIES | HARMLESS_PROPERTIES:
            yield "property newer than 2019: " + name
        for function in set(functions_in(item.value)) - KNOWN_FUNCTIONS - LATER_FUNCTIONS:
            yield "function newer than 2019: " + function
        if not is_later(item):
            known.add(name)
        elif name not in known and name.rsplit("-", 1)[0] not in known:
            yield "nothing older stands before: " + name + ":" + tinycss2.serialize(item.value)


def faults_of_rules(rules):
    for rule in rules:
        if rule.type == "error":
            yield "no CSS: " + rule.message
        elif rule.type == "at-rule" and rule.at_keyword == "media":
            for feature in re.findall(r"\(([a-z-]+)", tinycss2.serialize(rule.prelude)):
                if feature not in KNOWN_FEATURES:
                    yield "media feature newer than 2019: " + feature
            yield from faults_of_rules(tinycss2.parse_rule_list(rule.content, skip_comments=True, skip_whitespace=True))
        elif rule.type == "at-rule" and rule.at_keyword == "keyframes":
            yield from faults_of_rules(tinycss2.parse_rule_list(rule.content, skip_comments=True, skip_whitespace=True))
        elif rule.type == "at-rule":
            yield "at-rule newer than 2019: @" + rule.at_keyword
        else:
            selector = tinycss2.serialize(rule.prelude)
            pseudos = set(re.findall(r":([a-z-]+)", selector))
            for pseudo in pseudos - KNOWN_PSEUDOS - LATER_PSEUDOS:
                yield "selector newer than 2019: :" + pseudo
            # A browser that doesn't know one selector of a list drops the list's whole rule.
            if pseudos & LATER_PSEUDOS and "," in selector:
                yield "a list with a newer selector: " + selector.strip()
            yield from faults_of_declarations(rule.content)


def faults_of_style(text):
    return list(faults_of_rules(tinycss2.parse_stylesheet(text, skip_comments=True, skip_whitespace=True)))


def faults_of_addresses(text):
    return ["an address of elsewhere: " + found for found in re.findall(r"(?:https?:)?//[a-z0-9][^\s'\"]*", text)]


def faults_of_page(text):
    faults = ["runs or styles in the page itself: " + found for found in
              re.findall(r"<style|<script>|\son[a-z]+=|\sstyle=", text)]
    return faults + ["takes what isn't served: " + found for found in
                     re.findall(r"(?:src|href)=\"(?!/(?:link|phone|host|scores)\.js\"|/pages\.css\")[^\"]*", text)]


CHECKS = {".js": [faults_of_script, faults_of_addresses], ".css": [faults_of_style, faults_of_addresses],
          ".html": [faults_of_page, faults_of_addresses]}

WRONG = [(".js", "const a = b?.c;"), (".js", "a ??= 1;"), (".js", "list.at(-1);"), (".js", "box.innerHTML = name;"),
         (".js", "fetch('https://example.org/x');"), (".css", "p { inset: 0; }"), (".css", "p { width: clamp(1px, 2vw, 3px); }"),
         (".css", "p:is(.a) { color: red; }"), (".css", "a, b:focus-visible { color: red; }"), (".css", "@layer x { p { color: red; } }"),
         (".css", "p { overflow-wrap: anywhere; }"), (".css", "@media (hover: hover) { p { color: red; } }"),
         (".css", "p { background: url(//example.org/x.png); }"), (".html", "<b onclick=\"x()\">"),
         (".html", "<script>1</script>"), (".html", "<img src=\"/other.png\">")]


def main():
    if not shutil.which("acorn"):
        sys.exit(77)
    failed = False
    for kind, text in WRONG:
        if not any(check(text) for check in CHECKS[kind]):
            print("passed over: " + text)
            failed = True
    files = sorted(path for path in pathlib.Path(sys.argv[1]).iterdir() if path.suffix in CHECKS)
    for path in files:
        for check in CHECKS[path.suffix]:
            for fault in check(path.read_text(encoding="ascii")):
                print(path.name + ": " + fault)
                failed = True
    if len(files) < 8:
        print("the pages' files are missing")
        failed = True
    sys.exit(1 if failed else 0)


main()
