#!/usr/bin/env python3
"""Fails when a shared library exports a name that its public headers do not declare.

The public names are read from the headers: every class, struct and function declared
WLCCW_EXPORT, qualified by the namespaces and classes around it (a friend by the namespace around
its class; a declaration inside extern "C" by its plain name). Nothing in a namespace named
"detail" is public, whatever it carries. An exported, defined dynamic symbol of the library is
accepted when it belongs to one of those names:

  - a function or variable whose qualified name is a public function (any overload);
  - a member of a public class, or of a class nested in one (constructors, static data included);
  - the typeinfo, typeinfo name, vtable or VTT of a public class or of a class nested in one;
  - a thunk to, a guard variable of or a static local of something accepted;
  - a plain (C) name declared inside extern "C" or given with --allow.

Everything else is printed, one line each (demangled, then mangled), and the exit code is 1.

Usage: check_exports.py --library LIB --headers DIR [--only HEADER]... [--exclude HEADER]...
                        [--allow NAME]... [--nm NM]
HEADER paths are relative to DIR.
"""

import argparse
import pathlib
import re
import subprocess
import sys

# Names the linker defines in every shared object; no header declares them.
LINKER_NAMES = {"_init", "_fini", "_edata", "_end", "__bss_start"}

TOKEN = re.compile(
    r"@externc@"
    r"|namespace\s+(?P<ns>[A-Za-z_][A-Za-z_0-9:]*)\s*\{"
    r"|(?:class|struct)\s+WLCCW_EXPORT\s+(?P<cls>[A-Za-z_][A-Za-z_0-9]*)"
    r"|(?P<friend>friend\s+)?WLCCW_EXPORT(?P<decl>[^;{}()]*)\("
    r"|[{};]"
)
DECLARED_NAME = re.compile(r"(operator\s*[^\sA-Za-z_0-9(][^\s(]*|[A-Za-z_][A-Za-z_0-9]*)\s*$")


def strip_source(text):
    """The header without comments, preprocessor lines and the contents of literals."""
    text = re.sub(r"/\*.*?\*/", " ", text, flags=re.S)
    text = re.sub(r"//[^\n]*", "", text)
    text = re.sub(r"^[ \t]*#[^\n]*", "", text, flags=re.M)
    text = re.sub(r'extern\s*"C"\s*\{', " @externc@ ", text)
    text = re.sub(r'"(?:[^"\\\n]|\\.)*"', '""', text)
    text = re.sub(r"'(?:[^'\\\n]|\\.)*'", "''", text)
    return text


def read_header(path, classes, functions, c_functions):
    """Adds what the header declares WLCCW_EXPORT to the three sets."""
    # One (kind, qualified prefix) per open scope; kinds: ns, class, c, opaque.
    stack = [("ns", "")]
    pending = None
    for match in TOKEN.finditer(strip_source(path.read_text(encoding="utf-8"))):
        token = match.group(0)
        kind, scope = stack[-1]
        if token == "@externc@":
            stack.append(("c", scope))
        elif match.group("ns"):
            name = match.group("ns")
            internal = kind == "opaque" or "detail" in name.split("::")
            stack.append(("opaque" if internal else "ns", scope + name + "::"))
        elif match.group("cls"):
            pending = None if kind == "opaque" else scope + match.group("cls")
            if pending:
                classes.add(pending)
        elif token == "{":
            stack.append(("class", pending + "::") if pending else ("opaque", scope))
            pending = None
        elif token == "}":
            if len(stack) == 1:
                raise SystemExit(f"{path}: unbalanced braces")
            stack.pop()
        elif token == ";":
            pending = None
        elif match.group("decl") is not None:
            if kind == "opaque":
                continue
            found = DECLARED_NAME.search(match.group("decl"))
            if not found:
                continue
            name = re.sub(r"\s+", "", found.group(1))
            if match.group("friend"):
                # A friend is a name of the innermost enclosing namespace.
                index = len(stack) - 1
                while index > 0 and stack[index][0] == "class":
                    index -= 1
                scope = stack[index][1]
            if kind == "c":
                c_functions.add(name)
            else:
                functions.add(scope + name)
    if len(stack) != 1:
        raise SystemExit(f"{path}: unbalanced braces")


def split_top(text, separator):
    """Splits text at separator where it is outside <>, () and []."""
    parts, depth, start, i = [], 0, 0, 0
    while i < len(text):
        c = text[i]
        if text.startswith("operator", i):
            # Operator names hold brackets that open nothing: skip to the parameter list.
            m = re.match(r"operator\s*(<=>|<<=|>>=|<<|>>|<=|>=|->\*|->|<|>|\(\)|\[\]|[^\s(]*)", text[i:])
            i += m.end()
            continue
        if c in "<([":
            depth += 1
        elif c in ">)]":
            depth -= 1
        elif depth == 0 and text.startswith(separator, i):
            parts.append(text[start:i])
            i += len(separator)
            start = i
            continue
        i += 1
    parts.append(text[start:])
    return parts


def function_name(signature):
    """The qualified name of a demangled function or variable, without return type, template
    arguments, ABI tags or parameters: "std::string tools::split_str[abi:cxx11](...)" ->
    ["tools", "split_str"]."""
    text = re.sub(r"\[abi:[^\]]*\]", "", signature).strip()
    # Drop the parameter list and what follows it (cv- and ref-qualifiers).
    stripped = re.sub(r"(\s*(const|volatile|&&|&))*$", "", text)
    if stripped.endswith(")"):
        depth = 0
        for i in range(len(stripped) - 1, -1, -1):
            if stripped[i] == ")":
                depth += 1
            elif stripped[i] == "(":
                depth -= 1
                if depth == 0:
                    head = stripped[:i]
                    if not re.search(r"operator\s*$", head):
                        text = head
                        break
    # The return type of a template function goes before a top-level space.
    words = split_top(text.strip(), " ")
    if len(words) > 1 and words[-2].endswith("operator"):
        words = words[:-2] + [words[-2] + " " + words[-1]]
    components = split_top(words[-1], "::")
    result = []
    for component in components:
        if not component.startswith("operator"):
            component = re.sub(r"<.*>$", "", component)
        result.append(component)
    return result


SPECIAL = re.compile(
    r"^(typeinfo name for |typeinfo for |vtable for |VTT for |construction vtable for .*-in-"
    r"|non-virtual thunk to |virtual thunk to |covariant return thunk to |guard variable for "
    r"|reference temporary #\d+ for |transaction clone for )"
)


def is_public(demangled, mangled, names):
    classes, functions, c_names = names
    if demangled == mangled and not mangled.startswith("_Z"):
        return mangled in c_names
    text = demangled
    while True:
        special = SPECIAL.match(text)
        if not special:
            break
        text = text[special.end():]
    # A static local ("f(...)::x") belongs to its function.
    components = function_name(text)
    for i, component in enumerate(components):
        if "(" in component:
            components = components[:i] + function_name(component)[-1:]
            break
    qualified = "::".join(components)
    if qualified in functions or qualified in classes:
        return True
    return any("::".join(components[:n]) in classes for n in range(1, len(components)))


def exported_symbols(nm, library):
    """(mangled, demangled) of every defined dynamic symbol, in symbol table order."""

    def names(*extra):
        out = subprocess.run([nm, "-D", "--defined-only", "--no-sort", *extra, library],
                             check=True, capture_output=True, text=True).stdout
        return [line.split(" ", 2)[2] for line in out.splitlines() if line.count(" ") >= 2]

    mangled, demangled = names(), names("-C")
    if len(mangled) != len(demangled):
        raise SystemExit("nm listed the symbols differently with and without demangling")
    return list(zip(mangled, demangled))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--headers", required=True, type=pathlib.Path)
    parser.add_argument("--only", action="append", default=[])
    parser.add_argument("--exclude", action="append", default=[])
    parser.add_argument("--allow", action="append", default=[])
    parser.add_argument("--nm", default="nm")
    args = parser.parse_args()

    headers = [args.headers / h for h in args.only] or sorted(args.headers.rglob("*.hpp"))
    excluded = {(args.headers / h).resolve() for h in args.exclude}
    classes, functions, c_names = set(), set(), set(args.allow)
    for header in headers:
        if header.resolve() not in excluded:
            read_header(header, classes, functions, c_names)
    if not classes and not functions and not c_names:
        raise SystemExit(f"no WLCCW_EXPORT declaration found under {args.headers}")

    symbols = exported_symbols(args.nm, args.library)
    offenders = [(m, d) for m, d in symbols
                 if m not in LINKER_NAMES and not is_public(d, m, (classes, functions, c_names))]
    name = pathlib.Path(args.library).name
    for mangled, demangled in offenders:
        print(f"{name}: exports a name its public headers do not declare: {demangled}  [{mangled}]")
    print(f"{name}: {len(symbols)} exported symbols, {len(offenders)} not public "
          f"({len(classes)} public classes, {len(functions) + len(c_names)} public functions)")
    return 1 if offenders else 0


if __name__ == "__main__":
    sys.exit(main())
