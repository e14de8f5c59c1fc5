# Warnings and sanitizers that hold for every target of the project.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# g++ 12 sees overlapping copies in std::string where there are none (GCC bug 105651).
add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(ZG_WERROR)
  add_compile_options(-Werror)
endif()
if(ZG_SANITIZE)
  add_compile_options(-fsanitize=${ZG_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${ZG_SANITIZE})
endif()
add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
