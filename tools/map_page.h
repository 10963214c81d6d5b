// The page that the command `map` writes, in two parts with the set's data between them. Its source is made
// by embed_page.cmake.
#pragma once

extern char const* const map_page_before_data;
/// Begins with the end tag of the element that holds the data, as JSON.
extern char const* const map_page_after_data;
