#!/usr/bin/env python3
"""Prints the messages of a compiled gettext file as the source of a resource bundle, by their ids."""

import re
import subprocess
import sys

messages = subprocess.run(["msgunfmt", "--no-wrap", sys.argv[1]], capture_output=True, check=True)
print("de {")
for number, text in re.findall(r'msgctxt "(\d+)"\nmsgid .*\nmsgstr (".*")', messages.stdout.decode()):
    print(f"  {number} {{ {text} }}")
print("}")
