"""The description as a page for people: every element, attribute, type, limit and meaning."""

import model

TITLES = {
    "task_data": "Documents and their headers",
    "master_data": "Master data",
    "field_geometry": "Fields, geometry and guidance",
    "task": "Tasks",
    "device": "Devices",
    "question": "Questions and comments",
}
CHILDREN = {"any": "any number, in any order", "at_least_one": "at least one, in any order", "at_most_one": "at most one"}


def cell(text):
    return text.replace("|", "\\|")


def table(head, rows):
    return ["| " + " | ".join(head) + " |", "|" + "---|" * len(head)] + ["| " + " | ".join(row) + " |" for row in rows] + [""]


def limits(value):
    rule = value.rule
    words = rule.limits().replace(f"pattern {rule.pattern}", f"pattern `{rule.pattern}`") if rule.pattern else rule.limits()
    return cell(words)


def describe(element):
    anchor = f"### {element.tag}: {element.name}"
    lines = [anchor, "", element.doc, ""]
    if element.attributes:
        lines += table(["attribute", "field", "use", "type", "limits", "meaning"],
                       [[f"`{value.xml}`", f"`{value.field}`", value.use, value.type, limits(value), cell(value.doc)]
                        for value in element.attributes])
    if element.simple_children:
        lines += table(["child", "field", "use", "meaning"],
                       [[f"`{value.xml}`", f"`{value.field}`", value.use, cell(value.doc)] for value in element.simple_children])
    if element.text:
        lines += [f"Its text is the field `{element.text.field}`.", ""]
    if element.list_of:
        lines += [f"Children: `{element.list_of.tag}`, any number.", ""]
    if element.alternatives:
        names = ", ".join(f"`{row.element.tag}`" + (f" (at most {row.run_limit} in a run)" if row.run_limit else "")
                          for row in element.alternatives)
        lines += [f"Children: {names}; {CHILDREN[element.children]}.", ""]
    return lines


def files(schema):
    lines = ["<!-- Generated from schema. Edit the schema, then build the target `schema`. -->", "", "# The format, element by element", "",
             "What a document may hold and what the reader checks. Times are checked by their shape; a value that breaks a limit",
             "is refused with the code of that limit: form 35, length 20 and 19, pattern 22, range 37 and 36, list 38. A missing",
             "required attribute is 25, a repeated one 3. Unknown attributes and elements are skipped.", "",
             "`isoxml.xsd` says the same as an XML Schema. A schema validator and the reader differ in this alone:", ""]
    lines += table(["document", "reader", "schema validator"], [
        ["unknown attribute or element", "skips it", "refuses"],
        ["child out of place", "drops it and its later siblings", "refuses"],
        ["time that no calendar has", "reads it", "refuses"],
        ["negative zero where the least is 0.0", "refuses (37)", "accepts"],
    ])
    for group in model.GROUPS:
        elements = [element for element in schema.elements.values() if element.group == group]
        if elements:
            lines += [f"## {TITLES[group]}", ""]
        for element in elements:
            lines += describe(element)
    return {"docs/format.md": "\n".join(lines[:-1]) + "\n"}
