# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# In the build tree the folder of the executables is the program folder: what the programs read there is
# copied beside them. What changes in assets/ is copied anew with the next build.
file(GLOB TRESSEL_LANGUAGES RELATIVE ${PROJECT_SOURCE_DIR}/assets CONFIGURE_DEPENDS
  ${PROJECT_SOURCE_DIR}/assets/Lang/*)
set(TRESSEL_PROGRAM_FILES TIPOFDAY.TXT click.wav data.mdb ${TRESSEL_LANGUAGES})

set(copies "")
foreach(file IN LISTS TRESSEL_PROGRAM_FILES)
  set(copy ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${file})
  add_custom_command(OUTPUT ${copy}
    COMMAND ${CMAKE_COMMAND} -E copy ${PROJECT_SOURCE_DIR}/assets/${file} ${copy}
    DEPENDS ${PROJECT_SOURCE_DIR}/assets/${file}
    COMMENT "Copying ${file} beside the programs")
  get_filename_component(folder ${copy} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  list(APPEND copies ${copy})
endforeach()
add_custom_target(program-folder ALL DEPENDS ${copies})

# What is given to people, without tests and measurements.
add_custom_target(programs DEPENDS program-folder)
foreach(program tressel tressel-cli tressel-jet tressel-picture)
  if(TARGET ${program})
    add_dependencies(programs ${program})
  endif()
endforeach()
