# One interface target carries the language standard, the warnings and the Qt defines.
add_library(padral_flags INTERFACE)
target_compile_features(padral_flags INTERFACE cxx_std_20)
target_compile_definitions(padral_flags INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_STRICT_ITERATORS
  QT_NO_URL_CAST_FROM_STRING QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(padral_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  -Wnon-virtual-dtor -Woverloaded-virtual)
if(PADRAL_WERROR)
  target_compile_options(padral_flags INTERFACE -Werror)
endif()
if(PADRAL_SANITIZE)
  target_compile_options(padral_flags INTERFACE -fsanitize=address,undefined
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(padral_flags INTERFACE -fsanitize=address,undefined)
endif()
