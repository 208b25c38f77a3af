#!/usr/bin/env python3
"""Compiles the C++ snippets of the README, so that the tour stays true to the headers.

Every ```cpp block of the README becomes the body of a function of its own, which receives the
names the tour uses without declaring them (`reply`, the text of an AP's NETCONF reply, and `text`,
a message's IPC text). The translation unit includes <wlccw/wlccw.hpp> and the standard headers
the snippets use, and is compiled with -fsyntax-only and warnings as errors, except the warnings
for unused variables (a snippet shows a result without using it).

Usage: check_snippets.py --readme README.md --compiler CXX -I DIR [-I DIR]...
"""

import argparse
import pathlib
import re
import subprocess
import sys
import tempfile

PRELUDE = """#include <wlccw/wlccw.hpp>

#include <cstdint>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
"""


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--readme", required=True)
    parser.add_argument("--compiler", required=True)
    parser.add_argument("-I", dest="includes", action="append", default=[])
    args = parser.parse_args()

    text = pathlib.Path(args.readme).read_text(encoding="utf-8")
    blocks = re.findall(r"^```cpp\n(.*?)^```", text, flags=re.S | re.M)
    if not blocks:
        print(f"{args.readme}: no ```cpp block", file=sys.stderr)
        return 1

    unit = [PRELUDE]
    for number, block in enumerate(blocks, start=1):
        unit.append(f"[[maybe_unused]] void readme_snippet_{number}(std::string const& reply,"
                    f" std::string const& text) {{\n  (void)reply;\n  (void)text;\n{{\n{block}}}\n}}\n")
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", delete=False) as source:
        source.write("\n".join(unit))
        path = source.name
    command = [args.compiler, "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", "-Werror",
               "-Wno-unused-variable", "-Wno-unused-but-set-variable"]
    command += [f"-I{d}" for d in args.includes] + [path]
    result = subprocess.run(command, capture_output=True, text=True)
    if result.returncode != 0:
        sys.stderr.write(result.stdout + result.stderr)
        print(f"{len(blocks)} README snippet(s) in {path}: they do not compile", file=sys.stderr)
        return 1
    pathlib.Path(path).unlink()
    print(f"{len(blocks)} README snippet(s) compile")
    return 0


if __name__ == "__main__":
    sys.exit(main())
