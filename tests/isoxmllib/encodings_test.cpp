// One document in every form that the reader knows gives the same tree; a declaration that does not fit the
// bytes is refused.

#include <gtest/gtest.h>

#include <string>

#include "support/document.h"

namespace {

enum class Width { Utf8, Latin1, Utf16Le, Utf16Be };

// `text` holds one code point in each element.
std::string encoded(std::u32string const& text, Width width) {
  std::string out;
  const auto put_unit = [&](char32_t unit) {
    const char low = static_cast<char>(unit & 0xFF);
    const char high = static_cast<char>(unit >> 8);
    if (width == Width::Utf16Le) {
      out += {low, high};
    } else {
      out += {high, low};
    }
  };
  for (const char32_t c : text) {
    char bytes[8];
    if (width == Width::Utf8) {
      out += lmx::unicode_char_to_utf8(static_cast<int>(c), bytes);
    } else if (width == Width::Latin1) {
      out += static_cast<char>(c);
    } else if (c < 0x10000) {
      put_unit(c);
    } else {
      put_unit(0xD800 + ((c - 0x10000) >> 10));
      put_unit(0xDC00 + ((c - 0x10000) & 0x3FF));
    }
  }
  return out;
}

std::u32string document(std::string const& encoding, std::u32string const& name) {
  const std::string declaration =
      encoding.empty() ? "" : "<?xml version=\"1.0\" encoding=\"" + encoding + "\"?>\r\n";
  std::u32string text(declaration.begin(), declaration.end());
  return text + U"<TSK A=\"TSK1\"\r\n G=\"1\" B=\"" + name + U"\"><P917_comment>" + name +
         U"</P917_comment></TSK>";
}

TEST(Encodings, GiveTheSameTree) {
  struct Form {
    char const *caption, *encoding, *mark;
    Width width;
    bool all_characters;
  };
  const Form forms[] = {
      {"UTF-8", "UTF-8", "", Width::Utf8, true},
      {"UTF-8, not declared", "", "", Width::Utf8, true},
      {"UTF-8 with a mark", "utf-8", "\xEF\xBB\xBF", Width::Utf8, true},
      {"UTF-16 little-endian", "UTF-16", "", Width::Utf16Le, true},
      {"UTF-16 little-endian with a mark", "UTF-16", "\xFF\xFE", Width::Utf16Le, true},
      {"UTF-16 big-endian", "UTF-16", "", Width::Utf16Be, true},
      {"UTF-16 big-endian with a mark, not declared", "", "\xFE\xFF", Width::Utf16Be, true},
      {"UCS-2 little-endian", "ISO-10646-UCS-2", "\xFF\xFE", Width::Utf16Le, false},
      {"UCS-2 big-endian", "ISO-10646-UCS-2", "", Width::Utf16Be, false},
      {"ISO-8859-1", "ISO-8859-1", "", Width::Latin1, false},
  };
  for (Form const& form : forms) {
    SCOPED_TRACE(form.caption);
    const std::u32string name =
        form.all_characters ? U"K\u00F6rner \u7530 \U0001F33E" : U"K\u00F6rner \u00E9";
    const std::string expected = encoded(name, Width::Utf8);
    Root root;
    const Reading reading =
        read_document(root, form.mark + encoded(document(form.encoding, name), form.width));
    ASSERT_EQ(0, reading.code);
    EXPECT_EQ(expected, root.GetTask().GetDesignator());
    EXPECT_EQ(expected, root.GetTask().GetInnerTask(0).GetP917Comment().GetP917Comment());
    EXPECT_EQ(*form.encoding == '\0' ? 2 : 3, reading.line) << "a line feed between attributes counts once";
  }
}

TEST(Encodings, ThatDoNotFitTheBytesAreRefused) {
  struct Case {
    char const *encoding, *mark;
    Width width;
    int code;
  };
  const Case cases[] = {
      {"UTF-8", "\xFF\xFE", Width::Utf16Le, lmx::ELMX_ENCODING_MISMATCH},
      {"ISO-8859-1", "\xFE\xFF", Width::Utf16Be, lmx::ELMX_ENCODING_MISMATCH},
      {"US-ASCII", "", Width::Utf16Le, lmx::ELMX_ENCODING_MISMATCH},
      {"UTF-16", "", Width::Utf8, lmx::ELMX_ENCODING_MISMATCH},
      {"ISO-10646-UCS-2", "", Width::Utf8, lmx::ELMX_ENCODING_MISMATCH},
      {"KOI8-R", "", Width::Utf8, lmx::ELMX_BAD_CHAR_ENCODING},
  };
  for (Case const& row : cases) {
    EXPECT_EQ(row.code, read_document(row.mark + encoded(document(row.encoding, U"x"), row.width)).code)
        << row.encoding;
  }
}

TEST(Encodings, PairsOfUtf16MustBeWhole) {
  const auto with_units = [](std::string const& units) {
    return encoded(U"<TSK A=\"TSK1\" G=\"1\" B=\"", Width::Utf16Le) + units +
           encoded(U"\"/>", Width::Utf16Le);
  };
  Root root;
  EXPECT_EQ(0, read_document(root, with_units(std::string("\x00\xDC", 2))).code) << "a low half alone passes";
  EXPECT_EQ("\xED\xB0\x80", root.GetTask().GetDesignator());
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING, read_document(with_units(std::string("\x00\xD8x\x00", 4))).code)
      << "a high half alone is fatal";
}

TEST(Encodings, AMarkNeedsAnAsciiCharacterBehindIt) {
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING,
            read_document("\xFF\xFE" + encoded(U"\u7530<TSK/>", Width::Utf16Le)).code);
  EXPECT_EQ(lmx::ELMX_BAD_CHAR_ENCODING,
            read_document("\xFE\xFF" + encoded(U"\u7530<TSK/>", Width::Utf16Be)).code);
}

TEST(Encodings, OtherLineEndsBecomeLineFeeds) {
  Root latin;
  EXPECT_EQ(0,
            read_document(latin,
                          "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><TSK A=\"TSK1\" G=\"1\" B=\"a\x85"
                          "b\"/>")
                .code);
  EXPECT_EQ("a\nb", latin.GetTask().GetDesignator());
  Root utf8;
  const Reading reading = read_document(utf8,
                                        "<TSK A=\"TSK1\" G=\"1\" B=\"a\xC2\x85"
                                        "b\xE2\x80\xA8"
                                        "c\"/>");
  EXPECT_EQ((Reading{0, 3, ""}), reading);
  EXPECT_EQ("a\nb\nc", utf8.GetTask().GetDesignator());
}

}  // namespace
