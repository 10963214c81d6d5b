#!/usr/bin/env python3
"""Gives every nameless simple type of a schema a name: name_types.py IN.xsd OUT.xsd

The schema says the same afterwards. gSOAP's tools check the limits of named types only.
"""

import sys
from xml.etree import ElementTree

XS = "{http://www.w3.org/2001/XMLSchema}"


def main():
    ElementTree.register_namespace("xs", XS[1:-1])
    document = ElementTree.parse(sys.argv[1])
    schema = document.getroot()
    names = {}
    for user in [*schema.iter(XS + "attribute"), *schema.iter(XS + "element")]:
        nameless = user.find(XS + "simpleType")
        if nameless is None:
            continue
        text = ElementTree.tostring(nameless).strip()
        if text not in names:
            names[text] = f"Type{len(names) + 1}"
            named = ElementTree.fromstring(text)
            named.set("name", names[text])
            schema.append(named)
        user.remove(nameless)
        user.set("type", names[text])
    document.write(sys.argv[2], encoding="UTF-8", xml_declaration=True)


if __name__ == "__main__":
    sys.exit(main())
