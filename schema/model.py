"""Loads the description and derives every number from it.

The description names things; it never numbers them. Events, validators, enumeration codes and the numbers of
alternatives all follow from the order of rows, so a missing, swapped or misspelt row shifts a number, and the
test that pins the numbers fails.
"""

import re
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

HERE = Path(__file__).resolve().parent
GROUPS = ["task_data", "master_data", "field_geometry", "task", "device", "question"]
FIRST_EVENT = 14

TYPES = {
    "string": "std::string",
    "uint8": "unsigned char",
    "uint16": "unsigned short",
    "uint32": "unsigned int",
    "int32": "int",
    "bool": "bool",
    "double": "double",
    "date_time": "lmx::c_datetime",
    "binary": "lmx::c_binary",
    "decimal": "velmo::lmx::high_precision_c_decimal",
}
USES = ("required", "optional")
HELD = ("one", "run")
CHILDREN = ("any", "at_least_one", "at_most_one")
FORMS = ("integer", "boolean", "hex", "date_time", "decimal", "real")
FACETS = {"type", "white_space", "form", "min_length", "max_length", "pattern", "minimum", "maximum",
          "min_bytes", "max_bytes", "low", "high", "one_of", "named"}


class DescriptionError(Exception):
    """A mistake in the description, told by element and row."""


@dataclass
class Rule:
    """One rule with its argument filled in. Facets that a rule does not have are None."""

    name: str
    facets: dict

    def __getattr__(self, facet):
        if facet not in FACETS:
            raise AttributeError(facet)
        return self.facets.get(facet)

    @property
    def white_space(self):
        return self.facets.get("white_space", "collapse")

    def limits(self):
        """What the rule asks, in words for documentation."""
        words = []
        if self.one_of:
            words.append("one of " + ", ".join(f'"{text}"' for text in self.one_of))
        if self.minimum is not None:
            words.append(f"{self.minimum} to {self.maximum}")
        if self.low is not None:
            words.append(f"{self.low} to {self.high}")
        if self.min_bytes is not None:
            size = self.min_bytes if self.min_bytes == self.max_bytes else f"{self.min_bytes} to {self.max_bytes}"
            words.append(f"{size} bytes, written as hexadecimal")
        if self.max_length is not None:
            if self.min_length is None:
                words.append(f"at most {self.max_length} characters")
            elif self.min_length == self.max_length:
                words.append(f"{self.max_length} characters")
            else:
                words.append(f"{self.min_length} to {self.max_length} characters")
        if self.pattern:
            words.append(f"pattern {self.pattern}")
        return ", ".join(words)


@dataclass
class Value:
    """An attribute, a simple child or the text of an element: one typed value."""

    xml: str | None
    field: str
    use: str
    type: str
    rule: Rule
    doc: str
    own_event: bool = False
    rare: bool = False
    event: int = 0
    lexical: int = 0
    value: int = 0

    @property
    def member(self):
        """The C++ expression that reads the field."""
        return f"m_rare.get().m_{self.field}" if self.rare else f"m_{self.field}"

    @property
    def own_member(self):
        """The C++ expression that may change the field."""
        return f"m_rare.get_or_create().m_{self.field}" if self.rare else f"m_{self.field}"

    @property
    def cpp_type(self):
        return TYPES[self.type]

    @property
    def spec_key(self):
        return (self.type, self.lexical, self.value, self.rule.white_space)

    @property
    def spec(self):
        """The C++ name of the value spec."""
        words = re.sub(r"[^A-Za-z0-9]+", "_", self.rule.name.replace("-", "minus_").replace("..", "_to_"))
        number = f"_{self.lexical}" if self.rule.pattern else ""
        typed = "" if self.rule.type else f"_{self.type}"
        return f"spec_{words}{typed}{number}"


@dataclass
class Alternative:
    name: str
    element: "Element"
    held: str
    run_limit: int | None
    chosen: int
    event: int = 0


@dataclass(eq=False)
class Element:
    name: str
    tag: str
    doc: str
    group: str
    collect: str | None
    usual_alternative: str
    attributes: list = field(default_factory=list)
    simple_children: list = field(default_factory=list)
    text: Value | None = None
    list_of: "Element | None" = None
    children: str | None = None
    alternatives: list = field(default_factory=list)

    @property
    def values(self):
        return self.attributes + self.simple_children + ([self.text] if self.text else [])

    @property
    def required(self):
        return [value for value in self.values if value.use == "required"]


@dataclass
class Schema:
    elements: dict
    root: list
    events: dict  # ("attribute" or "element", name) -> number
    lexical: list  # representative values; index + 1 is the validator's number
    values: list
    enums: list  # texts; index + 1 is the code
    visited: list  # elements in the order in which they were given events


def fail(where, message):
    raise DescriptionError(f"{where}: {message}")


def expand_list(argument):
    """"0..8 16 17" -> ["0", ..., "8", "16", "17"]"""
    texts = []
    for word in argument.split():
        span = re.fullmatch(r"(\d+)\.\.(\d+)", word)
        texts += [str(n) for n in range(int(span[1]), int(span[2]) + 1)] if span else [word]
    return texts


def fill(where, facets, argument):
    """Puts the argument of a rule into the placeholders of its family."""
    uses_argument = any(isinstance(facet, str) and re.search(r"\{[*01]\}", facet) for facet in facets.values())
    if uses_argument != (argument is not None):
        fail(where, "the rule needs an argument" if uses_argument else "the rule takes no argument")
    if argument is None:
        return dict(facets)
    words = argument.split("..") if any("{1}" in str(facet) for facet in facets.values()) else [argument]
    filled = {}
    for name, facet in facets.items():
        if facet == "{*}":
            facet = expand_list(argument)
        elif isinstance(facet, str):
            if "{1}" in facet and len(words) != 2:
                fail(where, f'"{argument}" is no span "a..b"')
            facet = facet.replace("{0}", words[0]).replace("{1}", words[-1])
        filled[name] = facet
    return filled


def make_rule(families, where, name, value_type):
    family, _, argument = name.partition(" ")
    if family not in families:
        fail(where, f'unknown rule "{name}"')
    rule = Rule(name, fill(where, families[family], argument or None))
    if rule.type is not None and rule.type != value_type:
        fail(where, f'rule "{name}" is for type "{rule.type}", not "{value_type}"')
    for facet in ("min_length", "max_length", "min_bytes", "max_bytes"):
        if rule.facets.get(facet) is not None:
            rule.facets[facet] = int(rule.facets[facet])
    return rule


def load_families(path):
    families = tomllib.loads(path.read_text())["families"]
    for family, facets in families.items():
        for facet, setting in facets.items():
            if facet not in FACETS:
                fail(f"rules.toml {family}", f'unknown facet "{facet}"')
            if facet == "form" and setting not in FORMS:
                fail(f"rules.toml {family}", f'unknown form "{setting}"')
    return families


def one_of(where, what, word, words):
    if word not in words:
        fail(where, f'{what} "{word}" is none of {", ".join(words)}')
    return word


def make_value(families, element, row, has_xml_name=True):
    where = f"{element} {row[0] if row else '?'}"
    options = row.pop() if row and isinstance(row[-1], dict) else {}
    if len(row) != 6:
        fail(where, f"{len(row)} columns instead of 6")
    xml, name, use, value_type, rule, doc = row
    if value_type not in TYPES:
        fail(where, f'unknown type "{value_type}"')
    for option in options:
        one_of(where, "option", option, ("own_event",))
    rare = use == "rare"
    return Value(xml if has_xml_name else None, name, "optional" if rare else use, value_type,
                 make_rule(families, where, rule, value_type), doc, options.get("own_event", False), rare)


KEYS = {"tag", "doc", "alternative", "collect", "attributes", "list_of", "simple_children", "text", "children",
        "alternatives"}


def load_element(families, group, name, row):
    for key in row:
        one_of(name, "key", key, sorted(KEYS))
    for key in ("tag", "doc"):
        if key not in row:
            fail(name, f'"{key}" is missing')
    element = Element(name, row["tag"], row["doc"], group, row.get("collect"), row.get("alternative", name))
    for attribute in row.get("attributes", []):
        element.attributes.append(make_value(families, name, attribute))
        one_of(f"{name} {attribute[0]}", "use", element.attributes[-1].use, USES)  # "rare" is optional by now
    for xml, child, use, rule, doc in row.get("simple_children", []):
        one_of(f"{name} {xml}", "use", use, USES + ("repeated",))
        element.simple_children.append(make_value(families, name, [xml, child, use, "string", rule, doc]))
    if "text" in row:
        text_field, rule, doc = row["text"]
        element.text = make_value(families, name, [name, text_field, "required", "string", rule, doc], False)
    names = [value.field for value in element.values]
    for repeated in {field_name for field_name in names if names.count(field_name) > 1}:
        fail(name, f'field "{repeated}" stands twice')
    xmls = [value.xml for value in element.attributes]
    for repeated in {xml for xml in xmls if xmls.count(xml) > 1}:
        fail(name, f'attribute "{repeated}" stands twice')
    return element


def link_children(elements, element, row):
    if "list_of" in row:
        if row["list_of"] not in elements:
            fail(element.name, f'unknown class "{row["list_of"]}"')
        element.list_of = elements[row["list_of"]]
    if ("children" in row) != ("alternatives" in row):
        fail(element.name, '"children" and "alternatives" go together')
    if "children" not in row:
        return
    element.children = one_of(element.name, "children", row["children"], CHILDREN)
    for chosen, (name, class_name, held, *options) in enumerate(row["alternatives"]):
        where = f"{element.name} alternative {name}"
        if class_name not in elements:
            fail(where, f'unknown class "{class_name}"')
        one_of(where, "held", held, HELD)
        limit = options[0].get("run_limit") if options else None
        element.alternatives.append(Alternative(name, elements[class_name], held, limit, chosen))


def derive_events(schema):
    """First use, depth first from the alternatives of Root: an element, its attributes, its simple children,
    then its alternatives. Attributes count by field, elements by the alternative's name."""

    def number(kind, name):
        return schema.events.setdefault((kind, name), FIRST_EVENT + len(schema.events))

    def visit(element, alternative):
        event = number("element", alternative)
        if element in schema.visited:
            return event
        schema.visited.append(element)
        for value in element.attributes:
            name = f"{element.name}_{value.field}" if value.own_event else value.field
            value.event = number("attribute", name)
        for value in element.simple_children:
            value.event = number("element", value.field)
        if element.list_of:
            visit(element.list_of, element.list_of.usual_alternative)
        for row in element.alternatives:
            row.event = visit(row.element, row.name)
        return event

    for row in schema.root:
        row.event = visit(row.element, row.element.usual_alternative)


def derive_enums(schema):
    """Codes of the enumerated texts, by first use in the order in which elements were given events."""
    for element in schema.visited:
        for value in element.attributes:
            for text in value.rule.one_of or []:
                if text not in schema.enums:
                    schema.enums.append(text)


def derive_validators(schema):
    """Validators by first use in the order of Root. A pattern is always part of a type of its own; other
    rules are shared by whoever has the same limits."""

    def number(table, keys, key, value):
        if key not in keys:
            table.append(value)
            keys[key] = len(table)
        return keys[key]

    lexical_keys, value_keys = {}, {}
    for row in schema.root:
        for value in row.element.values:
            rule = value.rule
            fresh = object() if rule.pattern else None
            lexical_key = (rule.form, rule.min_length, rule.max_length, fresh, rule.minimum, rule.maximum, rule.named)
            value.lexical = number(schema.lexical, lexical_keys, lexical_key, value)
            value_key = (value.type, rule.min_bytes, rule.max_bytes, rule.low, rule.high, tuple(rule.one_of or []),
                         rule.named)
            value.value = number(schema.values, value_keys, value_key, value)


def load(folder=HERE):
    families = load_families(folder / "rules.toml")
    elements, rows = {}, {}
    for group in (group for group in GROUPS if (folder / f"{group}.toml").exists()):
        for name, row in tomllib.loads((folder / f"{group}.toml").read_text()).items():
            if name in elements:
                fail(name, "defined twice")
            elements[name] = load_element(families, group, name, row)
            rows[name] = row
    for name, element in elements.items():
        link_children(elements, element, rows[name])
    names = tomllib.loads((folder / "root.toml").read_text())["alternatives"]
    for name in names:
        if name not in elements:
            fail("root.toml", f'unknown class "{name}"')
    for name in elements:
        if names.count(name) != 1:
            fail("root.toml", f'"{name}" stands {names.count(name)} times')
    root = [Alternative(name, elements[name], "one", None, chosen) for chosen, name in enumerate(names)]
    schema = Schema(elements, root, {}, [], [], [], [])
    derive_events(schema)
    derive_enums(schema)
    derive_validators(schema)
    return schema
