# Every source folder is a library of its own that sees only itself and the folders below it.
# Each target compiles against an include root of its own in the build tree, which holds links
# to exactly the folders it may see, so an include against the layer order does not compile.
# scripts/check_layers.py states the same order for headers, which a compiler only sees through
# their includers.

# stayhold_layer(TARGET FOLDER dir [BELOW target...] [EXCLUDE file...] [NATIVE_ONLY file...])
# Sources: dir/*.cpp; `*_win32.cpp` only in the Windows build, NATIVE_ONLY files only natively.
function(stayhold_layer target)
  cmake_parse_arguments(LAYER "" "FOLDER" "BELOW;EXCLUDE;NATIVE_ONLY" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/${LAYER_FOLDER}/*.cpp)
  foreach(file ${LAYER_EXCLUDE})
    list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${file})
  endforeach()
  if(WIN32)
    foreach(file ${LAYER_NATIVE_ONLY})
      list(REMOVE_ITEM sources ${CMAKE_SOURCE_DIR}/${file})
    endforeach()
  else()
    list(FILTER sources EXCLUDE REGEX "_win32\\.cpp$")
  endif()

  set(visible ${LAYER_FOLDER})
  foreach(below ${LAYER_BELOW})
    get_target_property(below_visible ${below} STAYHOLD_VISIBLE_FOLDERS)
    list(APPEND visible ${below_visible})
  endforeach()
  list(REMOVE_DUPLICATES visible)

  # A folder of Windows code only has nothing to build natively but still stands in the order.
  if(sources)
    add_library(${target} STATIC ${sources})
    stayhold_include_root(${target} PRIVATE ${visible})
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  set_target_properties(${target} PROPERTIES STAYHOLD_VISIBLE_FOLDERS "${visible}")
  target_link_libraries(${target} ${scope} ${LAYER_BELOW})
  if(WIN32)
    target_link_libraries(${target} ${scope} stayhold_system_libraries)
  endif()
endfunction()

# stayhold_include_root(TARGET SCOPE folder...): TARGET compiles against a folder of links to
# exactly these source folders.
function(stayhold_include_root target scope)
  set(root ${CMAKE_BINARY_DIR}/include_roots/${target})
  file(REMOVE_RECURSE ${root})
  foreach(folder ${ARGN})
    get_filename_component(parent ${root}/${folder} DIRECTORY)
    file(MAKE_DIRECTORY ${parent})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/${folder} ${root}/${folder} SYMBOLIC)
  endforeach()
  target_include_directories(${target} ${scope} ${root})
endfunction()
