# What every target of this project is compiled with.

if(CMAKE_SYSTEM_PROCESSOR MATCHES "i[3-6]86|x86|amd64" AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Plain IEEE doubles: coordinates must come out equal, bit for bit, on 32 and 64 bits.
  add_compile_options(-msse2 -mfpmath=sse)
endif()

# A fused multiply-add would change the last bit of a coordinate from one machine to the next.
add_compile_options(-ffp-contract=off)

# The library binds its own functions to itself when it is linked (see the dynamic list), so the compiler may
# inline them, which it otherwise leaves in case a host replaces one.
add_compile_options(-fno-semantic-interposition)

if(ISOXML_SANITIZE)
  add_compile_options(-fsanitize=${ISOXML_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ISOXML_SANITIZE})
endif()

function(isoxml_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
endfunction()
