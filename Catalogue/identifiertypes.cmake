# The kinds of objects that a database holds.
set(uv_identifier_sources
    UVDBIdentifierTypes.cpp
)
set(uv_identifier_headers
    UVDBIdentifierTypes.h
)
