# The wizard's options and their sections.
set(uv_wzd_sources
    wzdoptions.cpp
    wzdoptionsSections.cpp)
set(uv_wzd_headers
    wzdoptions.h)
