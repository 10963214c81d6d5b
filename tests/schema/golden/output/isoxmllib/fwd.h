// clang-format off
// Generated from schema. Edit the schema, then build the target `schema`.

// Names of all element classes, for headers that only point at them.
#pragma once

namespace lmx {
class c_xml_writer;
class xmlReader;
}

class Book;
class InnerShelf;
class Root;
class Shelf;
