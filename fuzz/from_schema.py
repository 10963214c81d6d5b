#!/usr/bin/env python3
"""Writes what the fuzz targets take from the description of the format.

    from_schema.py dictionary OUTPUT    words for libFuzzer: tags, attributes, values, and XML's own
    from_schema.py validators OUTPUT    every lexical validator as C++ rows, with the rule it stands for
"""

import sys
from pathlib import Path

sys.dont_write_bytecode = True
sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "schema"))
import model  # noqa: E402

XML_WORDS = [
    "<?xml version=\"1.0\"", " encoding=\"", "UTF-8", "UTF-16", "ISO-8859-1", "US-ASCII", "ISO-10646-UCS-2",
    "<!DOCTYPE x [", "]>", "<!ENTITY ", "<!ENTITY % ", "SYSTEM", "PUBLIC", "<![CDATA[", "]]>", "<!--", "-->", "--->",
    "<?p ", "?>", "&lt;", "&gt;", "&amp;", "&apos;", "&quot;", "&#", "&#x", "&#10;", "&#37;", "&a;", "&a", "%a;", "%a",
    "xmlns", "xmlns:p=\"u\"", "p:", "xsi:type", "=\"", "='", "\"/>", "'/>", "\">", "</", "/>",
    "\x00", "\xef\xbb\xbf", "\xff\xfe", "\xfe\xff", "\xc2\x85", "\xe2\x80\xa8", "\xed\xa0\x80", "\r\n", "\n=====\n",
    "2024-02-09T02:03:05", "12:13:14", "+05:30", "-0001-", "P1Y2M3DT4H5M6.7S", "NaN", "INF", "-INF", "1e-5", "-0.0",
    "4294967294", "4294967295", "-2147483647", "-2147483648", "2147483647", "0.0", "90.0", "180.0", "TSK1", "PFD-1",
    "TSK00001", "LINKLIST.XML", "ABCDEFGH.XML",
]  # fmt: skip


def quoted(word):
    """A word as libFuzzer reads it: bytes beyond plain ones in hexadecimal."""
    escape = b'"\\'
    plain = (chr(byte) if 0x20 <= byte < 0x7F and byte not in escape else f"\\x{byte:02X}" for byte in word.encode("latin-1"))
    return '"' + "".join(plain) + '"\n'


def dictionary(schema):
    words = list(XML_WORDS)
    for element in schema.elements.values():
        words += [f"<{element.tag}", f"</{element.tag}>"]
        words += [f' {value.xml}="' for value in element.attributes]
        for value in element.values:
            words += value.rule.one_of or []
    return "".join(quoted(word) for word in dict.fromkeys(words))


def text(word):
    return "nullptr" if word is None else f'R"({word})"'


def validators(schema):
    forms = {"integer": "lmx::is_valid_integer", "boolean": "lmx::is_valid_bool", "hex": "lmx::c_binary::is_valid_hex",
             "date_time": "lmx::c_datetime::is_valid", "decimal": "lmx::c_decimal::is_valid",
             "real": "lmx::is_valid_float"}  # fmt: skip
    rows = []
    for number, value in enumerate(schema.lexical, 1):
        rule = value.rule
        form = "&" + forms[rule.form] if rule.form else "nullptr"
        longest = "any_length" if rule.max_length is None else rule.max_length
        rows.append(f"{{&LexicalValidator{number}, {form}, {rule.min_length or 0}, {longest}, {text(rule.pattern)}, "
                    f"{text(rule.minimum)}, {text(rule.maximum)}}},\n")
    return "".join(rows)


def main():
    what, output = sys.argv[1:]
    Path(output).write_text({"dictionary": dictionary, "validators": validators}[what](model.load()))


if __name__ == "__main__":
    main()
