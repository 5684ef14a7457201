#!/usr/bin/env python3
"""Changes the pure rules of the library one place at a time and counts the tests that notice.

Each change ("mutant") is built and tested in a copy of the tree below build/mutants, so that the
tree itself is never touched. The tests are those of the rule alone, as CMakeLists.txt beside this
script puts them together: what only the test of a widget would notice counts as unnoticed. A mutant
is killed when a test fails, breaks off or does not end, and survives when all pass; one that does
not compile does not count. Fails when fewer than 95 % of all are killed, or when a survivor is not listed,
with its reason, in survivors.txt.
"""

import argparse
import collections
import concurrent.futures
import itertools
import json
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
PROJECT = HERE.parent.parent
WORK = PROJECT / "build" / "mutants"
LEAST_KILLED = 0.95
SLOW_TEST = 0.02  # seconds, and more
SECONDS_FOR_TESTS = {"quick": 2, "slow": 20}  # without any change they need a tenth
MEMORY_FOR_TESTS = 1 << 29

Mutant = collections.namedtuple("Mutant", "source line column before after")

# Formatted code has blanks around the operators of two operands, and none around the brackets of
# templates, references and arrows.
OPERATORS = {
    " < ": [" <= ", " >= "],
    " <= ": [" < ", " > "],
    " > ": [" >= ", " <= "],
    " >= ": [" > ", " < "],
    " == ": [" != "],
    " != ": [" == "],
    " && ": [" || "],
    " || ": [" && "],
    " + ": [" - "],
    " - ": [" + "],
    " * ": [" / "],
    " / ": [" * "],
    " += ": [" -= ", " = "],
    " -= ": [" += "],
    "++": ["--"],
    "--": ["++"],
    "std::min": ["std::max"],
    "std::max": ["std::min"],
    "::min()": ["::max()"],
    "::max()": ["::min()"],
    "std::tolower": ["std::toupper"],
    "std::toupper": ["std::tolower"],
    ".rfind(": [".find("],
    ".find(": [".rfind("],
    "true": ["false"],
    "false": ["true"],
}
OPERATOR = re.compile("|".join(
    (r"\b%s\b" if text.isalpha() else r"%s(?!_)" if text.startswith("std::") else "%s")
    % re.escape(text) for text in sorted(OPERATORS, key=len, reverse=True)))
NUMBER = re.compile(r"(?<![\w.])(\d+\.\d+(?:e[-+]?\d+)?|\d+(?:e[-+]?\d+)|\d+)(LL|f)?(?![\w.])")
NOT = re.compile(r"!(?=[\w(])")
MINUS = re.compile(r"(?<=[(,=?:] |.[(\[])-(?=[\w(])|(?<=return )-(?=[\w(])")
CHOICE = re.compile(r"(?:\breturn|=) (?P<all>[^=?;{}]+(?:[=!<>]=[^=?;{}]+)*) \? ")
CONDITION = re.compile(r"\b(?:if|while) \((?P<all>.*)\)(?: \{)?$")
STATEMENT = re.compile(
    r"^\s+(?:else )?(?P<statement>(?:[\w.:\[\]*]|->|\(\))+(?: [-+*/]?= .+|\(.*\)[^=]*)?;)$")


def without_texts(line):
    """The line with its comment cut off and its texts blanked, at the same columns."""
    line = re.sub(r'"(?:[^"\\]|\\.)*"|\'(?:[^\'\\]|\\.)*\'',
                  lambda text: "@" * len(text.group()), line)
    return re.sub(r"//.*$", "", line)


def replaced(line, begin, end, text):
    return line[:begin] + text + line[end:]


def changes_of_numbers(match):
    digits, suffix = match.group(1), match.group(2) or ""
    if not digits.isdigit():
        return ["(%s%s * 2 + 1)" % (digits, suffix)]
    number = int(digits)
    return [str(other) + suffix for other in (number + 1, number - 1) if other >= 0]


def balanced(text):
    return text.count("(") == text.count(")")


def is_last_of_function(lines, index):
    return index + 1 < len(lines) and lines[index + 1].startswith("}")


def mutated_lines(lines, index):
    """Pairs (column, changed line) for one line."""
    line, code = lines[index], without_texts(lines[index])
    for match in OPERATOR.finditer(code):
        for text in OPERATORS[match.group()]:
            yield match.start(), replaced(line, *match.span(), text)
    for match in NUMBER.finditer(code):
        for text in changes_of_numbers(match):
            yield match.start(), replaced(line, *match.span(), text)
    for pattern in (NOT, MINUS):
        for match in pattern.finditer(code):
            yield match.start(), replaced(line, *match.span(), "")
    choice = CHOICE.search(code)
    if choice and balanced(choice.group("all")):
        begin, end = choice.span("all")
        yield begin, replaced(line, begin, end, "!(%s)" % line[begin:end])
    condition = CONDITION.search(code)
    if condition and balanced(condition.group("all")):
        begin, end = condition.span("all")
        for always in ("true || ", "false && "):
            yield begin, replaced(line, begin, end, "%s(%s)" % (always, line[begin:end]))
    statement = STATEMENT.match(code)
    if statement and balanced(code):
        yield statement.start("statement"), replaced(line, *statement.span("statement"), ";")
    elif re.match(r"^\s+return\b.*;$", code) and not is_last_of_function(lines, index):
        begin = len(code) - len(code.lstrip())
        yield begin, replaced(line, begin, len(code), ";")


def is_code(line):
    return line.strip() and not re.match(r"\s*(//|#|using |namespace |static_assert|template)", line)


def lines_left_out(source, lines):
    """The indices of the lines of the functions that left-out.json names for the source."""
    names = json.loads((HERE / "left-out.json").read_text()).get(source, {}).get("functions", [])
    for name in names:
        begin = next(index for index, line in enumerate(lines)
                     if re.match(r"[^\s/].*\b%s\(" % re.escape(name), line))
        yield from range(begin, lines.index("}", begin))


def mutants_of(source):
    lines = (PROJECT / source).read_text().splitlines()
    left_out = set(lines_left_out(source, lines))
    for index, line in enumerate(lines):
        if is_code(line) and index not in left_out:
            for column, changed in mutated_lines(lines, index):
                yield Mutant(source, index, column, line, changed)


def explained_survivors():
    """What survivors.txt lists: (source, line before, line after) -> reason."""
    explained, source, before, after = {}, None, None, None
    for line in (HERE / "survivors.txt").read_text().splitlines():
        if line.startswith("#") or not line.strip():
            continue
        if line.startswith("- "):
            before = line[2:].strip()
        elif line.startswith("+ "):
            after = line[2:].strip()
        elif line.startswith("  "):
            explained[(source, before, after)] = line.strip()
        else:
            source = line.strip()
    return explained


def identity(mutant):
    return mutant.source, mutant.before.strip(), mutant.after.strip()


# A line that is a unit of its own can hold all its mutants, and the environment chooses one.
CHOSEN = "RUQGUI_MUTANT"
CHOOSER = ('#include <cstdlib>\n'
           'static const char* const chosenMutant = std::getenv("%s");\n'
           'static const int mutantNumber = chosenMutant ? std::atoi(chosenMutant) : 0;\n' % CHOSEN)
HEAD = re.compile(r"^(\s*(?:\} )?(?:else )?(?:if|while) \()(.*)(\)(?: \{)?)$")
LOOP = re.compile(r"^(\s*for \([^;]*; )([^;]*)(; )([^;]*)(\)(?: \{)?)$")
VARIABLE = re.compile(r"^(\s+(?:const |static |constexpr )*(?!return\b|throw\b)[\w:]+(?:<[^=;]*>)?"
                      r"(?: const)?[ *&]+(?:const )?\w+ = )([^{].*)(;)$")
DECLARATION = re.compile(r"^\s+(?:const |static |constexpr )*(?!return\b|throw\b)[\w:]+(?:<[^=;]*>)?"
                         r"(?: const)?[ *&]+(?:const )?\w+(?: = .*|\(.*\)|\{.*\})?;$")
WHOLE_STATEMENT = re.compile(r"^\s+[\w*(+-].*;$|^\s+;$")
BEFORE_STATEMENT = re.compile(r"(?:[;{}):]|\belse)$")


def plain(line):
    """The line without its comment."""
    return line[:len(without_texts(line))].rstrip()


def chosen_expression(parts, original, kind):
    text = kind % original
    for number, part in parts:
        text = "mutantNumber == %d ? %s : (%s)" % (number, kind % part, text)
    return text


def by_pattern(pattern, original, numbered, kinds):
    """One line for all, where they differ in the groups of the pattern that kinds names."""
    given = pattern.match(original)
    matches = [(number, pattern.match(after)) for number, after in numbered]
    if not given or not all(match for _, match in matches):
        return None
    groups = list(given.groups())
    for index, group in enumerate(groups):
        parts = [(number, match.group(index + 1)) for number, match in matches
                 if match.group(index + 1) != group]
        if parts and index not in kinds:
            return None
        if parts:
            groups[index] = chosen_expression(parts, group, kinds[index])
    return "".join(groups)


def as_statement(original, numbered, before):
    texts = [original] + [after for _, after in numbered]
    if DECLARATION.match(original) or not BEFORE_STATEMENT.search(before):
        return None
    if not all(WHOLE_STATEMENT.match(text) and balanced(text) for text in texts):
        return None
    chain = "".join("if (mutantNumber == %d) { %s } else " % (number, after.strip())
                    for number, after in numbered)
    return "{ %s{ %s } }" % (chain, original.strip())


def combined_line(original, numbered, before):
    """One line in which mutantNumber chooses among the numbered ones; none if it is no unit."""
    original = plain(original)
    numbered = [(number, plain(after)) for number, after in numbered]
    return (by_pattern(HEAD, original, numbered, {1: "bool(%s)"})
            or by_pattern(LOOP, original, numbered, {1: "bool(%s)", 3: "(void)(%s)"})
            or by_pattern(VARIABLE, original, numbered, {1: "(%s)"})
            or as_statement(original, numbered, before))


class Combination:
    """A source that holds many mutants. Lines that do not compile so are given up."""

    def __init__(self, lines, mutants):
        self._lines = lines
        self._mutants = mutants
        self._combined = {}
        self.numbers = {}
        for index in sorted({mutant.line for mutant in mutants}):
            self._combine(index)

    def _combine(self, index):
        numbered = {mutant: number for number, mutant in enumerate(self._mutants, 1)
                    if mutant.line == index}
        before = next((plain(line) for line in reversed(self._lines[:index]) if plain(line)), "")
        line = combined_line(self._lines[index],
                             [(number, mutant.after) for mutant, number in numbered.items()], before)
        if line:
            self._combined[index] = line
            self.numbers.update(numbered)

    def text(self):
        lines = [self._combined.get(index, line) for index, line in enumerate(self._lines)]
        first = next(index for index, line in enumerate(lines)
                     if not line.startswith(("#ifndef", "#define")))
        lines.insert(first, CHOOSER + "#line %d" % (first + 1))
        return "\n".join(lines) + "\n"

    def give_up(self, indices):
        """Whether one of them was combined."""
        found = [index for index in indices if self._combined.pop(index, None)]
        self.numbers = {mutant: number for mutant, number in self.numbers.items()
                        if mutant.line not in found}
        return bool(found)


class Copy:
    """A copy of the tree with a build of its own."""

    def __init__(self, rules, jobs):
        self.tree = WORK
        self.build = self.tree / "build" / "rules"
        self.rules = rules
        self.jobs = jobs
        self._update()
        self._configure()
        self.slow = {program: self._slow_tests_of(program) for program in set(rules.values())}

    def _update(self):
        files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others",
                                "--exclude-standard"], cwd=PROJECT, check=True,
                               stdout=subprocess.PIPE).stdout.decode().split("\0")
        for name in filter(None, files):
            origin, target = PROJECT / name, self.tree / name
            if not origin.is_file():
                continue
            if target.exists() and target.read_bytes() == origin.read_bytes():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(origin, target)

    def _configure(self):
        subprocess.run(["cmake", "-G", "Ninja", "-S", self.tree / "tests" / "mutants", "-B",
                        self.build, "-DCMAKE_CXX_FLAGS=-O0 -w"], check=True,
                       stdout=subprocess.DEVNULL)
        failed, log = self._build(*set(self.rules.values()))
        if failed:
            sys.exit("the rules do not build without any change:\n" + log)

    def _build(self, *programs):
        ninja = subprocess.run(["ninja", "-C", self.build, "-j", str(self.jobs), *programs],
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        return ninja.returncode != 0, ninja.stdout.decode(errors="replace")

    def _slow_tests_of(self, program):
        """They come last: most mutants do not live so long."""
        times = self.build / (program + ".json")
        if not self._passes(program, "slow", 0, "--gtest_output=json:%s" % times):
            sys.exit("%s fails without any change" % (self.build / program))
        suites = json.loads(times.read_text())["testsuites"]
        return ":".join("%s.%s" % (suite["name"], test["name"])
                        for suite in suites for test in suite["testsuite"]
                        if float(test["time"].rstrip("s")) > SLOW_TEST)

    def _passes(self, program, kind, number, option):
        environment = dict(os.environ, LC_ALL="C", **{CHOSEN: str(number)})
        # Of the processor, whatever else runs. Endless loops often take memory without end as well.
        limits = ["--cpu=%d" % SECONDS_FOR_TESTS[kind], "--as=%d" % MEMORY_FOR_TESTS, "--core=0"]
        return subprocess.run(["prlimit", *limits, self.build / program, "--gtest_fail_fast",
                               "--gtest_brief=1", option], env=environment,
                              stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0

    def _survives(self, program, number):
        slow = self.slow[program]
        return (self._passes(program, "quick", number, "--gtest_filter=-" + slow) and
                (not slow or self._passes(program, "slow", number, "--gtest_filter=" + slow)))

    def verdicts(self, source, mutants):
        """Pairs (mutant, verdict) for all mutants of one source."""
        path = self.tree / source
        original = path.read_text()
        try:
            together = yield from self._together(path, original.splitlines(), mutants)
            for mutant in mutants:
                if mutant not in together:
                    yield mutant, self._alone(path, original.splitlines(), mutant)
        finally:
            path.write_text(original)

    def _together(self, path, lines, mutants):
        program = self.rules[mutants[0].source]
        combination = Combination(lines, mutants)
        failed = True
        while failed and combination.numbers:
            path.write_text(combination.text())
            failed, log = self._build(program)
            wrong = {int(number) - 1 for number in
                     re.findall(r"%s:(\d+):\d+: error" % re.escape(path.name), log)}
            if failed and not combination.give_up(wrong):
                return {}
        if not combination.numbers or not self._survives(program, 0):
            return {}
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            yield from pool.map(
                lambda pair: (pair[0], "survived" if self._survives(program, pair[1]) else "killed"),
                combination.numbers.items())
        return combination.numbers

    def _alone(self, path, lines, mutant):
        program = self.rules[mutant.source]
        path.write_text("\n".join(lines[:mutant.line] + [mutant.after] + lines[mutant.line + 1:])
                        + "\n")
        failed, _ = self._build(program)
        if failed:
            return "invalid"
        return "survived" if self._survives(program, 0) else "killed"


def run_all(mutants, copy):
    for source, group in itertools.groupby(mutants, key=lambda mutant: mutant.source):
        for mutant, verdict in copy.verdicts(source, list(group)):
            if verdict == "survived":
                print("survived: %s:%d\n- %s\n+ %s" % (mutant.source, mutant.line + 1,
                                                       mutant.before.strip(),
                                                       mutant.after.strip()), flush=True)
            yield mutant, verdict


def report(results, all_mutants, whole):
    explained = explained_survivors()
    counts = collections.Counter(verdict for _, verdict in results)
    survivors = [mutant for mutant, verdict in results if verdict == "survived"]
    unexplained = [mutant for mutant in survivors if identity(mutant) not in explained]
    valid = counts["killed"] + counts["survived"]
    rate = counts["killed"] / valid if valid else 0.0
    print("%d mutants: %d killed, %d survived (%d of them without a reason in survivors.txt), "
          "%d did not compile; %.1f %% killed" % (len(results), counts["killed"],
                                                  counts["survived"], len(unexplained),
                                                  counts["invalid"], 100 * rate))
    known = {identity(mutant) for mutant in (survivors if whole else all_mutants)}
    of_sources = {mutant.source for mutant in all_mutants}
    stale = [entry for entry in explained if entry[0] in of_sources and entry not in known]
    for source, before, after in stale:
        print("survivors.txt lists what does not survive: %s\n- %s\n+ %s" % (source, before, after))
    # The rate of a few says little.
    return not unexplained and not stale and (rate >= LEAST_KILLED or not whole)


def arguments_of_program():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, help="only so many mutants, chosen by the seed")
    parser.add_argument("--seed", type=int, default=random.randrange(1000000))
    parser.add_argument("--list", action="store_true", help="print the mutants, test none")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("source", nargs="*", help="only of these sources, as rules.json names them")
    return parser.parse_args()


def chosen_rules(sources):
    rules = json.loads((HERE / "rules.json").read_text())
    unknown = set(sources) - set(rules)
    if unknown:
        sys.exit("rules.json does not name " + ", ".join(sorted(unknown)))
    return {source: rules[source] for source in sources or rules}


def main():
    arguments = arguments_of_program()
    rules = chosen_rules(arguments.source)
    all_mutants = mutants = [mutant for source in rules for mutant in mutants_of(source)]
    if arguments.list:
        for mutant in mutants:
            print("%s:%d\n- %s\n+ %s" % (mutant.source, mutant.line + 1, mutant.before.strip(),
                                         mutant.after.strip()))
    print("seed %d, %d mutants in %d sources" % (arguments.seed, len(mutants), len(rules)),
          flush=True)
    if arguments.list:
        return
    whole = not arguments.sample or arguments.sample >= len(mutants)
    if not whole:
        sample = random.Random(arguments.seed).sample(range(len(mutants)), arguments.sample)
        mutants = [mutants[index] for index in sorted(sample)]
    results = list(run_all(mutants, Copy(rules, arguments.jobs)))
    if not report(results, all_mutants, whole):
        sys.exit(1)


main()
