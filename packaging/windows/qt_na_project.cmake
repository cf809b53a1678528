# Included by Qt's own build after its project(): options added here come after the -O3 that Qt
# gives its largest libraries. Less optimising builds a third faster and is not to be noticed here.
add_compile_options(-O1)
# Some of Qt's messages name their source file: not by its place on the machine that builds.
add_compile_options(-ffile-prefix-map=${CMAKE_SOURCE_DIR}=qt6-base
  -ffile-prefix-map=${CMAKE_BINARY_DIR}=qt6-base)
