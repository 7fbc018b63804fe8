# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# The one place for compiler flags: every target of ours links tressel-flags.
option(TRESSEL_WERROR "Treat warnings as errors" ON)

add_library(tressel-flags INTERFACE)
target_compile_options(tressel-flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough
  -Wold-style-cast -Wcast-align -Wextra-semi -Wsuggest-override
  $<$<BOOL:${TRESSEL_WERROR}>:-Werror>)
target_compile_definitions(tressel-flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

option(TRESSEL_SANITIZE "Build with the address and undefined behaviour sanitizers" OFF)
if(TRESSEL_SANITIZE)
  target_compile_options(tressel-flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tressel-flags INTERFACE -fsanitize=address,undefined)
endif()
