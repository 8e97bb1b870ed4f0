# Where things are installed: the programs look for what belongs to them in their own folder, so that all of it stands in
# one, and on systems with a common folder for programs links lead there.

if(WIN32)
  set(BRINDOCK_FOLDER .)
else()
  include(GNUInstallDirs)
  set(BRINDOCK_FOLDER lib/brindock)
endif()

# install_program(target): a program of the suite, with a link where programs are looked for.
function(install_program target)
  set_target_properties(${target} PROPERTIES KEEPS_SYMBOLS ON)
  install(TARGETS ${target} RUNTIME DESTINATION ${BRINDOCK_FOLDER})
  if(NOT WIN32)
    install(CODE "
      file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}\")
      file(CREATE_LINK ../${BRINDOCK_FOLDER}/${target}
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_BINDIR}/${target}\" SYMBOLIC)")
  endif()
endfunction()
