# For the picture in docs/: only the rooms, and only what they name.
# tools/draw_rooms.sh draws it.
set(GRAPHVIZ_GRAPH_NAME "rooms")
set(GRAPHVIZ_EXECUTABLES FALSE)
set(GRAPHVIZ_EXTERNAL_LIBS FALSE)
set(GRAPHVIZ_INTERFACE_LIBS FALSE)
set(GRAPHVIZ_GENERATE_PER_TARGET FALSE)
set(GRAPHVIZ_GENERATE_DEPENDERS FALSE)
set(GRAPHVIZ_IGNORE_TARGETS ".*_resources_[0-9]+")
