"""The description as an XML Schema, for editors and other validators.

It says what a document of the format is. The reader is more tolerant: it skips what it does not know, takes
children in any place that a class admits, and checks dates by their shape alone.
"""

from xml.sax.saxutils import escape, quoteattr

BASES = {
    "string": "xs:string",
    "uint8": "xs:integer",
    "uint16": "xs:integer",
    "uint32": "xs:integer",
    "int32": "xs:integer",
    "bool": "xs:boolean",
    "double": "xs:double",
    "date_time": "xs:dateTime",
    "binary": "xs:hexBinary",
    "decimal": "xs:decimal",
}


def facets(value):
    rule = value.rule
    rows = []
    if value.type == "string":
        rows.append(("whiteSpace", rule.white_space))
    for text in rule.one_of or []:
        rows.append(("enumeration", text))
    minimum, maximum = (rule.min_bytes, rule.max_bytes) if value.type == "binary" else (rule.min_length, rule.max_length)
    rows += [("minLength", minimum), ("maxLength", maximum)]
    rows += [("minInclusive", rule.minimum if rule.minimum is not None else rule.low),
             ("maxInclusive", rule.maximum if rule.maximum is not None else rule.high)]
    rows.append(("pattern", rule.pattern))
    return [(name, setting) for name, setting in rows if setting is not None]


def simple_type(value, indent):
    lines = [f"{indent}<xs:simpleType>", f'{indent}  <xs:restriction base="{BASES[value.type]}">']
    lines += [f"{indent}    <xs:{name} value={quoteattr(str(setting))}/>" for name, setting in facets(value)]
    return lines + [f"{indent}  </xs:restriction>", f"{indent}</xs:simpleType>"]


def annotation(text, indent):
    return [f"{indent}<xs:annotation><xs:documentation>{escape(text)}</xs:documentation></xs:annotation>"]


def attribute(value):
    use = ' use="required"' if value.use == "required" else ""
    return ([f"      <xs:attribute name={quoteattr(value.xml)}{use}>"] + annotation(value.doc, "        ")
            + simple_type(value, "        ") + ["      </xs:attribute>"])


def children(element):
    if element.list_of:
        return ["      <xs:sequence>", f'        <xs:element ref="{element.list_of.tag}" minOccurs="0" maxOccurs="unbounded"/>',
                "      </xs:sequence>"]
    if element.simple_children:
        lines = ["      <xs:sequence>"]
        for child in element.simple_children:
            low = "1" if child.use == "required" else "0"
            high = "unbounded" if child.use == "repeated" else "1"
            lines += ([f'        <xs:element name="{child.xml}" minOccurs="{low}" maxOccurs="{high}">']
                      + annotation(child.doc, "          ") + simple_type(child, "          ") + ["        </xs:element>"])
        return lines + ["      </xs:sequence>"]
    if not element.alternatives:
        return []
    low = "1" if element.children == "at_least_one" else "0"
    high = "1" if element.children == "at_most_one" else "unbounded"
    lines = [f'      <xs:choice minOccurs="{low}" maxOccurs="{high}">']
    for row in element.alternatives:
        bound = row.run_limit if element.children == "at_most_one" and row.held == "run" else None
        occurs = f' minOccurs="1" maxOccurs="{bound or "unbounded"}"' if high == "1" and row.held == "run" else ""
        lines.append(f'        <xs:element ref="{row.element.tag}"{occurs}/>')
    return lines + ["      </xs:choice>"]


def declare(element):
    lines = [f'  <xs:element name="{element.tag}">'] + annotation(element.doc, "    ")
    if element.text:
        return lines + simple_type(element.text, "    ") + ["  </xs:element>"]
    lines.append("    <xs:complexType>")
    lines += children(element)
    for value in element.attributes:
        lines += attribute(value)
    return lines + ["    </xs:complexType>", "  </xs:element>"]


def files(schema):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<!-- Generated from schema. Edit the schema, then build the target `schema`. -->",
             '<xs:schema xmlns:xs="http://www.w3.org/2001/XMLSchema" elementFormDefault="qualified">']
    for row in schema.root:
        lines += declare(row.element)
    return {"schema/isoxml.xsd": "\n".join(lines + ["</xs:schema>"]) + "\n"}
