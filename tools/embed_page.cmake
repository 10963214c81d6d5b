# Turns the map page into a C++ source: style and script go into the markup, and their hashes into its content
# security policy, so that nothing but these two may ever run in it.
# cmake -D DIRECTORY=<of the page> -D OUTPUT=<source> -P embed_page.cmake

# The hash of a text as such policies want it, in base 64. CMake has it in hexadecimal: three digits of that
# are two of these, and one digit is left over.
function(hash_for_policy text result)
  set(alphabet "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/")
  string(SHA256 hexadecimal "${text}")
  set(hash "")
  foreach(start RANGE 0 60 3)
    string(SUBSTRING "${hexadecimal}" ${start} 3 digits)
    math(EXPR first "0x${digits} >> 6")
    math(EXPR second "0x${digits} & 63")
    foreach(value ${first} ${second})
      string(SUBSTRING "${alphabet}" ${value} 1 character)
      string(APPEND hash "${character}")
    endforeach()
  endforeach()
  string(SUBSTRING "${hexadecimal}" 63 1 digit)
  math(EXPR value "0x${digit} << 2")
  string(SUBSTRING "${alphabet}" ${value} 1 character)
  set(${result} "sha256-${hash}${character}=" PARENT_SCOPE)
endfunction()

file(READ ${DIRECTORY}/map_page.html page)
foreach(part STYLE:css SCRIPT:js)
  string(REPLACE ":" ";" part ${part})
  list(GET part 0 name)
  list(GET part 1 suffix)
  file(READ ${DIRECTORY}/map_page.${suffix} text)
  hash_for_policy("${text}" hash)
  string(REPLACE "@${name}_HASH@" "${hash}" page "${page}")
  string(REPLACE "@${name}@" "${text}" page "${page}")
endforeach()
string(REPLACE "@DATA@" ")page\";\nchar const* const map_page_after_data = R\"page(" page "${page}")
file(WRITE ${OUTPUT} "// Made from map_page.html, map_page.css and map_page.js. Change those.\n"
  "#include \"tools/map_page.h\"\n\nchar const* const map_page_before_data = R\"page(${page})page\";\n")
