"""Tables that match a pattern without the regular-expression engine.

A pattern of the description becomes a deterministic automaton over printable ASCII: parsed, made into a
nondeterministic automaton (Thompson's construction), determinised by subsets and minimised by refining
partitions. Bytes outside printable ASCII lead nowhere: what they mean is left to the engine.
"""

PRINTABLE = range(0x20, 0x7F)


class Parser:
    """Recursive descent over the part of the XSD pattern syntax that the description uses."""

    def __init__(self, pattern):
        self.pattern, self.at = pattern, 0

    def peek(self):
        return self.pattern[self.at] if self.at < len(self.pattern) else None

    def take(self, expected=None):
        char = self.peek()
        if char is None or (expected is not None and char != expected):
            raise ValueError(f"pattern {self.pattern!r}: unexpected {char!r} at {self.at}")
        self.at += 1
        return char

    def alternation(self):
        branches = [self.sequence()]
        while self.peek() == "|":
            self.take()
            branches.append(self.sequence())
        return ("any_of", branches) if len(branches) > 1 else branches[0]

    def sequence(self):
        parts = []
        while self.peek() not in (None, "|", ")"):
            parts.append(self.quantified())
        return ("all_of", parts)

    def quantified(self):
        part = self.atom()
        char = self.peek()
        if char == "*":
            low, high = 0, None
        elif char == "+":
            low, high = 1, None
        elif char == "?":
            low, high = 0, 1
        elif char == "{":
            end = self.pattern.index("}", self.at)
            limits = self.pattern[self.at + 1:end].split(",")
            self.at = end
            low = int(limits[0])
            high = low if len(limits) == 1 else int(limits[1]) if limits[1] else None
        else:
            return part
        self.take()
        return ("repeat", part, low, high)

    def atom(self):
        char = self.take()
        if char == "(":
            part = self.alternation()
            self.take(")")
            return part
        if char == "[":
            return ("bytes", self.char_class())
        if char == ".":
            return ("bytes", frozenset(PRINTABLE))
        if char == "\\":
            char = self.take()
            if char.isalnum():
                raise ValueError(f"pattern {self.pattern!r}: escape \\{char} is not supported")
        elif char in "*+?{}])|^":
            raise ValueError(f"pattern {self.pattern!r}: unexpected {char!r}")
        return ("bytes", frozenset([ord(char)]))

    def char_class(self):
        members = set()
        while self.peek() != "]":
            low = self.take()
            if low in "^\\-[":
                raise ValueError(f"pattern {self.pattern!r}: {low!r} in a class is not supported")
            high = low
            if self.peek() == "-":
                self.take()
                high = self.take()
            members.update(range(ord(low), ord(high) + 1))
        self.take("]")
        return frozenset(members)


class Automaton:
    """States are numbers; `empty[s]` lists moves without input, `moves[s]` pairs of bytes and target."""

    def __init__(self):
        self.empty, self.moves = [], []

    def state(self):
        self.empty.append([])
        self.moves.append([])
        return len(self.empty) - 1

    def add(self, node, start):
        """Adds `node` from `start` on; returns the state in which it ends."""
        kind = node[0]
        if kind == "bytes":
            end = self.state()
            self.moves[start].append((node[1], end))
            return end
        if kind == "all_of":
            for part in node[1]:
                start = self.add(part, start)
            return start
        if kind == "any_of":
            end = self.state()
            for branch in node[1]:
                begin = self.state()
                self.empty[start].append(begin)
                self.empty[self.add(branch, begin)].append(end)
            return end
        _, part, low, high = node
        for _ in range(low):
            start = self.add(part, start)
        if high is None:
            again = self.state()
            self.empty[start].append(again)
            self.empty[self.add(part, again)].append(again)
            return again
        end = self.state()
        for _ in range(high - low):
            self.empty[start].append(end)
            start = self.add(part, start)
        self.empty[start].append(end)
        return end

    def closure(self, states):
        seen, pending = set(states), list(states)
        while pending:
            for target in self.empty[pending.pop()]:
                if target not in seen:
                    seen.add(target)
                    pending.append(target)
        return frozenset(seen)


class Matcher:
    """classes: 128 numbers; steps[state][class]: the next state. State 0 is the dead end, 1 the start;
    accepting[state] tells whether a text may end there."""

    def __init__(self, pattern):
        parser = Parser(pattern)
        automaton = Automaton()
        start = automaton.state()
        end = automaton.add(parser.alternation(), start)
        if parser.peek() is not None:
            parser.take("end of pattern")
        steps, accepting = determinise(automaton, start, end)
        steps, accepting = minimise(steps, accepting)
        columns = {}
        self.classes = [0] * 128
        columns[tuple(0 for _ in steps)] = 0
        for byte in PRINTABLE:
            column = tuple(row[byte] for row in steps)
            self.classes[byte] = columns.setdefault(column, len(columns))
        self.steps = [list(row) for row in zip(*columns)]
        self.accepting = accepting


def determinise(automaton, start, end):
    dead = frozenset()
    numbers = {dead: 0, automaton.closure([start]): 1}
    steps, pending = [{byte: 0 for byte in PRINTABLE}], [automaton.closure([start])]
    while pending:
        states = pending.pop(0)
        row = {}
        for byte in PRINTABLE:
            target = automaton.closure({to for state in states for members, to in automaton.moves[state] if byte in members})
            if target not in numbers:
                numbers[target] = len(numbers)
                pending.append(target)
            row[byte] = numbers[target]
        steps.append(row)
    return steps, [end in states for states in numbers]


def minimise(steps, accepting):
    """The same automaton with equal states merged; the dead end and the start keep their numbers."""
    part = [int(accepts) for accepts in accepting]
    while True:
        signatures = [(part[state],) + tuple(part[row[byte]] for byte in PRINTABLE) for state, row in enumerate(steps)]
        order = {}
        refined = [order.setdefault(signature, len(order)) for signature in signatures]
        if refined == part:
            break
        part = refined
    first = {}
    for state, number in enumerate(part):
        first.setdefault(number, state)
    rows = [{byte: part[target] for byte, target in steps[first[number]].items()} for number in range(len(first))]
    return rows, [accepting[first[number]] for number in range(len(first))]
