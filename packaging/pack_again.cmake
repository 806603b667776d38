# Run by cpack behind each package: packs it again, in an order and with times and owners that depend on nothing but its
# content. So two builds of one state of the sources are equal to the byte. SOURCE_DATE_EPOCH names another time than the
# day of the release (https://reproducible-builds.org/specs/source-date-epoch/).
set(time ${CPACK_TARNWICK_TIME})
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  set(time $ENV{SOURCE_DATE_EPOCH})
endif()

# run(COMMAND...): a failure ends the packing.
function(run)
  execute_process(COMMAND ${ARGV} WORKING_DIRECTORY "${content}" COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

foreach(package IN LISTS CPACK_PACKAGE_FILES)
  set(content "${package}.content")
  file(REMOVE_RECURSE "${content}")
  file(MAKE_DIRECTORY "${content}")
  if(package MATCHES "\\.deb$")
    run(dpkg-deb --raw-extract "${package}" all)
    run(sh -c "cd all && find usr -type f -print0 | LC_ALL=C sort -z | xargs -0 md5sum >DEBIAN/md5sums")
    run(find all -type d -exec chmod 0755 {} +)
    run(chmod -R go-w all)
    run(find all -exec touch --no-dereference --date=@${time} {} +)
    run(env SOURCE_DATE_EPOCH=${time} dpkg-deb --root-owner-group -Zxz --build all "${package}")
  elseif(package MATCHES "\\.tar\\.gz$")
    run(tar -xpf "${package}")
    run(find . -type d -exec chmod 0755 {} +)
    file(GLOB names RELATIVE "${content}" "${content}/*")
    run(tar --sort=name --format=gnu --owner=0 --group=0 --numeric-owner --mode=go-w --mtime=@${time}
        -cf "${package}.tar" ${names})
    execute_process(COMMAND gzip -9nc "${package}.tar" OUTPUT_FILE "${package}" COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE "${package}.tar")
  endif()
  file(REMOVE_RECURSE "${content}")
endforeach()
