# Writes a source file that holds the bytes of the catalogues.
#
# Run as a script with OUTPUT, the source file, and CATALOGUES, the files in the order in which languages are listed.

set(arrays "")
set(rows "")
foreach(file IN LISTS CATALOGUES)
    get_filename_component(name ${file} NAME)
    get_filename_component(language ${file} NAME_WE)
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
    # Lines of a moderate length: some editors and compilers dislike very long ones.
    string(REGEX REPLACE "(('\\\\x..',)('\\\\x..',)('\\\\x..',)('\\\\x..',)('\\\\x..',)('\\\\x..',)('\\\\x..',)('\\\\x..',))"
           "\\1\n    " bytes "${bytes}")
    string(APPEND arrays "constexpr char k_${language}[] = {\n    ${bytes}};\n\n")
    string(APPEND rows
           "    {\"${language}\", \"${name}\", std::string_view(k_${language}, sizeof(k_${language}))},\n")
endforeach()

file(WRITE ${OUTPUT} "// Made from the catalogues; changes here are lost.
#include \"reference_host/resources/BuiltInCatalogues.h\"

namespace ReferenceHost
{

namespace
{

${arrays}constexpr BuiltInCatalogue kCatalogues[] = {
${rows}};

} // namespace

std::span<const BuiltInCatalogue> GetBuiltInCatalogues() noexcept
{
    return kCatalogues;
}

} // namespace ReferenceHost
")
