# The warnings that all of this project's own code is compiled with.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(JOURNAL_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
