# SPDX-FileCopyrightText: The Tressel developers
# SPDX-License-Identifier: MIT

# What `cmake --install` puts where. Installed, the files that the programs read are below share/tressel.
include(GNUInstallDirs)

foreach(program tressel tressel-cli)
  if(TARGET ${program})
    install(TARGETS ${program} RUNTIME)
  endif()
endforeach()

install(TARGETS tressel-jet RUNTIME DESTINATION ${CMAKE_INSTALL_LIBEXECDIR}/tressel)

foreach(file IN LISTS TRESSEL_PROGRAM_FILES)
  get_filename_component(folder ${file} DIRECTORY)
  install(FILES assets/${file} DESTINATION ${CMAKE_INSTALL_DATADIR}/tressel/${folder})
endforeach()
install(FILES LICENSE README.md DESTINATION ${CMAKE_INSTALL_DOCDIR})

if(BUILD_GUI)
  install(FILES packaging/tressel.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
  install(FILES assets/icons/tressel.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
endif()
