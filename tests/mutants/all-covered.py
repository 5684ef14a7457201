"""Reads what llvm-cov exports. Fails when a rule of rules.json is not in it, or not wholly covered."""

import json
import pathlib
import sys

RULES = json.loads((pathlib.Path(__file__).resolve().parent / "rules.json").read_text())

covered = {file["filename"]: file["summary"] for file in json.load(sys.stdin)["data"][0]["files"]}
missing = [rule for rule in RULES if not any(name.endswith("/" + rule) for name in covered)]
partly = [name for name, summary in covered.items()
          if any(summary[kind]["covered"] != summary[kind]["count"]
                 for kind in ("lines", "branches"))]
for name in missing:
    print(name + " is not measured")
for name in partly:
    print(name + " is not wholly covered")
sys.exit(bool(missing or partly))
