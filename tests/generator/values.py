"""Texts for attributes: good ones, and bad ones with the code that each must be refused with."""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "schema"))
import model  # noqa: E402,F401

# The library's codes, by name.
BAD_FORM, TOO_SHORT, TOO_LONG = "ELMX_VALUE_BAD_FORMAT", "ELMX_LENGTH_TOO_SHORT", "ELMX_LENGTH_TOO_LONG"
NO_PATTERN, NOT_LISTED = "ELMX_NO_PATTERN_MATCHED", "ELMX_VALUE_NOT_ENUMERATED"
ABOVE, BELOW = "ELMX_VALUE_EXCEEDS_MAX", "ELMX_VALUE_EXCEEDS_MIN"

WORDS = ["North", "Long Meadow", "Mill Hill", "Kr\u00f6tenbruch", "spring barley", "Oak & Ash", "5 < 6", "a \"quoted\" name",
         "\u7530", "first cut"]
PATTERNED = {
    "attached_file": lambda rng: f"FILE{rng.randrange(10**4):04d}.BIN",
    "external_file": lambda rng: rng.choice(["CTR", "FRM", "PFD", "TSK"]) + f"{rng.randrange(10**5):05d}",
    "point_file": lambda rng: f"PNT{rng.randrange(10**5):05d}",
    "object_id_ref": lambda rng: rng.choice(["PFD", "TSK-", "CTR"]) + str(rng.randrange(1, 10**6)),
    "uuid": lambda rng: "-".join("%0*x" % (n, rng.randrange(16**n)) for n in (8, 4, 4, 4, 12)),
    "reply_type": lambda rng: rng.choice(["boolean", "string", "datetime", "integer", "decimal", "list"]),
    "structure_label": lambda rng: "".join("%02X" % rng.randrange(255) for _ in range(rng.randrange(7, 40))),
    "structure_label.upper_first": lambda rng: "".join("%02x" % rng.randrange(255) for _ in range(7)),
    "localization_label": lambda rng: "FF" + "".join("%02X" % rng.randrange(255) for _ in range(6)),
}
# A text that passes every other test of its rule and breaks the pattern alone.
UNPATTERNED = {
    "attached_file": "FILE0001.bin",
    "external_file": "XYZ00001",
    "point_file": "PNT0000A",
    "object_id_ref": "XYZ1",
    "uuid": "9204368-5072d-4caa-b3a8-c1e9d23bdb311",
    "reply_type": "Boolean",
    "structure_label": "FF010203040506",
    "structure_label.upper_first": "0102030405FF06",
    "localization_label": "01020304050607",
}


def family(value):
    return value.rule.name.partition(" ")[0]


def argument(value):
    return value.rule.name.partition(" ")[2]


def fraction(low, high, rng):
    return f"{rng.uniform(float(low), float(high)):.8f}"


def good(value, rng):
    """A text that the rule accepts."""
    rule, kind = value.rule, family(value)
    if kind in PATTERNED:
        return PATTERNED[kind](rng)
    if kind == "id":
        return argument(value) + rng.choice(["", "-"]) + str(rng.randrange(1, 10**6))
    if kind == "file":
        return argument(value) + f"{rng.randrange(10**5):05d}"
    if rule.one_of:
        return rng.choice(rule.one_of)
    if rule.minimum is not None:
        return str(rng.choice([int(rule.minimum), int(rule.maximum), rng.randint(int(rule.minimum), int(rule.maximum))]))
    if rule.low is not None:
        return rng.choice([rule.low, rule.high, fraction(rule.low, rule.high, rng)])
    if rule.form == "boolean":
        return rng.choice(["true", "false", "1", "0"])
    if rule.form == "date_time":
        return (f"20{rng.randrange(10, 30)}-{rng.randrange(1, 13):02d}-{rng.randrange(1, 29):02d}"
                f"T{rng.randrange(24):02d}:{rng.randrange(60):02d}:{rng.randrange(60):02d}"
                + rng.choice(["", "Z", "+02:00", ".250"]))
    if rule.min_bytes is not None:
        return "".join("%02X" % rng.randrange(256) for _ in range(rule.min_bytes))
    text = rng.choice(WORDS)
    return text[:rule.max_length] if rule.max_length else text


def edges(value):
    """The texts at the very limits of the rule, all of them good."""
    rule = value.rule
    if rule.one_of:
        return list(rule.one_of) + [f" {rule.one_of[0]} ", f"\t{rule.one_of[-1]}  "]
    if rule.minimum is not None:
        return [rule.minimum, rule.maximum, "+" + rule.maximum, "000" + rule.maximum, f" {rule.maximum} "]
    if rule.low is not None:
        return [rule.low, rule.high, rule.high + "000"]
    if rule.max_length is not None and not rule.pattern:
        return ["", "T" * rule.max_length, "\u7530" * rule.max_length]
    if rule.name.startswith("id "):
        return [argument(value) + "1", argument(value) + "-1234567890", argument(value) + "12345678901"]
    return []


BAD_FORMS = {
    "integer": ["12a", "", "+", "1.0"],
    "boolean": ["yes", "TRUE", ""],
    "hex": ["0G", "ABC"],
    "date_time": ["yesterday", "2024-01-01", ""],
    "decimal": ["1e5", "", "."],
    "real": ["1,5", "", "+INF"],
}


def step(text, up):
    """A decimal text just outside a limit."""
    digits = len(text.partition(".")[2])
    return f"{float(text) + (1 if up else -1) * 10.0 ** -digits:.{digits}f}"


def bad(value):
    """Every way to break the rule: (what, text, code)."""
    rule, kind = value.rule, family(value)
    rows = [("form", text, BAD_FORM) for text in BAD_FORMS.get(rule.form, [])]
    if rule.min_length is not None:
        rows.append(("too short", "T" * (rule.min_length - 1), TOO_SHORT))
    if rule.max_length is not None:
        rows.append(("too long", "T" * (rule.max_length + 1), TOO_LONG))
    if kind == "id":
        rows.append(("pattern", argument(value) + "-", NO_PATTERN))
    if kind == "file":
        rows.append(("pattern", "GRX00001", NO_PATTERN))
    if kind in UNPATTERNED:
        rows.append(("pattern", UNPATTERNED[kind], NO_PATTERN))
    if rule.minimum is not None:
        rows += [("below", str(int(rule.minimum) - 1), BELOW), ("above", str(int(rule.maximum) + 1), ABOVE)]
    if rule.low is not None:
        rows += [("below", step(rule.low, False), BELOW), ("above", step(rule.high, True), ABOVE)]
    if rule.min_bytes is not None:
        head = "FF" if kind == "localization_label" else "01"
        rows.append(("too many bytes", head + "01" * rule.max_bytes, TOO_LONG))
        if not kind.startswith("structure_label"):  # there the pattern counts the first bytes
            rows.append(("too few bytes", head + "01" * (rule.min_bytes - 2), TOO_SHORT))
    if rule.one_of:
        rows += [("not listed", "x", NOT_LISTED), ("empty", "", NOT_LISTED)]
    return rows
