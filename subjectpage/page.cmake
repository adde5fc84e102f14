# Files at the top of the module: page shell, views, trees, dialogs.

# Views and containers.
target_sources(subjectui PRIVATE
    tfbaseview.cpp tfbaseview.h
    tfchildfilters.cpp tfchildfilters.h
    tfverticalcontainer.cpp tfverticalcontainer.h
)
