# Included by Qt's own build after its project(): options added here come after the -O3 that Qt
# gives its largest libraries. Less optimising builds a third faster and is not to be noticed here.
add_compile_options(-O1)
