# Copies the settings into the application directory: cmake -DSOURCE=<data> -DTARGET=<folder> -P ...
#
# "zephyrgram.ini" belongs to whoever runs the program there. It is written if it is missing, or if
# nobody has changed it since the last copy (then it still equals the "zephyrgram.def" beside it).
set(settings ${TARGET}/zephyrgram.ini)
set(defaults ${TARGET}/zephyrgram.def)
set(pristine TRUE)
if(EXISTS ${settings})
  set(pristine FALSE)
  if(EXISTS ${defaults})
    file(SHA256 ${settings} in_force)
    file(SHA256 ${defaults} as_shipped)
    string(COMPARE EQUAL ${in_force} ${as_shipped} pristine)
  endif()
endif()
if(pristine)
  configure_file(${SOURCE}/zephyrgram.ini ${settings} COPYONLY)
  # It will hold passwords.
  file(CHMOD ${settings} PERMISSIONS OWNER_READ OWNER_WRITE)
endif()
configure_file(${SOURCE}/zephyrgram.def ${defaults} COPYONLY)
file(TOUCH ${settings} ${defaults})
