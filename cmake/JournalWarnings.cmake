# The warnings for all code of this project.
add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow)
if(JOURNAL_WARNINGS_AS_ERRORS)
  add_compile_options(-Werror)
endif()
