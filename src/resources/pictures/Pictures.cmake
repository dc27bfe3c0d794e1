# The pictures: from Pictures.txt and the drawings beside it come generated/Pictures.h, which has the numbers for C++,
# and the bitmaps, masks and icons. Sets PICTURE_RC, the resource script that names them, and PICTURE_DEPENDS, what it
# is made of. The target picture-sheet draws all pictures on light and dark grounds into pictures.png.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
find_program(RSVG_CONVERT rsvg-convert REQUIRED)  # Debian: librsvg2-bin

set(picture_table ${CMAKE_CURRENT_LIST_DIR}/Pictures.txt)
set(picture_tool ${CMAKE_CURRENT_LIST_DIR}/render_pictures.py)
file(GLOB picture_drawings CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.svg)
set(picture_sources ${picture_table} ${picture_tool} ${picture_drawings})
set(picture_command ${CMAKE_COMMAND} -E env RSVG_CONVERT=${RSVG_CONVERT} ${Python3_EXECUTABLE} -B ${picture_tool})

# The header is made while configuring, so that every unit finds it whatever is built first.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${picture_table} ${picture_tool})
execute_process(COMMAND ${picture_command} header ${PROJECT_BINARY_DIR}/generated/Pictures.h
                COMMAND_ERROR_IS_FATAL ANY)

set(PICTURE_RC ${CMAKE_CURRENT_BINARY_DIR}/pictures/Pictures.rc)
set(PICTURE_DEPENDS ${picture_sources})
add_custom_command(OUTPUT ${PICTURE_RC}
  COMMAND ${picture_command} resources ${CMAKE_CURRENT_BINARY_DIR}/pictures
  DEPENDS ${picture_sources}
  COMMENT "Bitmaps, masks and icons" VERBATIM)

add_custom_target(picture-sheet
  COMMAND ${picture_command} sheet ${PROJECT_BINARY_DIR}/pictures.png
  DEPENDS ${picture_sources}
  COMMENT "Contact sheet of the pictures: ${PROJECT_BINARY_DIR}/pictures.png" VERBATIM)
