# Writes a C++ source that holds every resource file as a string literal,
# so that kalhost and the tests need no resource directory at run time.
# Called as: cmake -DRESOURCE_DIR=... -DOUTPUT=... -P EmbedResources.cmake
file(GLOB_RECURSE files RELATIVE "${RESOURCE_DIR}" "${RESOURCE_DIR}/*.json")
list(SORT files)
set(body "// Generated from the resources directory; do not edit.\n#include <cstddef>\n\nnamespace kalhost {\n\n")
string(APPEND body "struct EmbeddedResource {\n    const char* name;\n    const char* text;\n};\n\n")
string(APPEND body "extern const EmbeddedResource kEmbeddedResources[] = {\n")
foreach(f IN LISTS files)
    file(READ "${RESOURCE_DIR}/${f}" content)
    string(APPEND body "    {\"resources/${f}\", R\"KALRES(${content})KALRES\"},\n")
endforeach()
list(LENGTH files count)
string(APPEND body "};\nextern const std::size_t kEmbeddedResourceCount = ${count};\n\n} // namespace kalhost\n")
file(WRITE "${OUTPUT}.tmp" "${body}")
file(COPY_FILE "${OUTPUT}.tmp" "${OUTPUT}" ONLY_IF_DIFFERENT)
file(REMOVE "${OUTPUT}.tmp")
