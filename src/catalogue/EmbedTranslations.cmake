# Writes the translations into a source: one function for those of the program, and one for those
# that the system lays over them.
#
#     cmake -DSTRINGS=<folder> -DSYSTEM=<folder> -DOUTPUT=<source> -P EmbedTranslations.cmake
function(append_texts function folder)
    set(source "${source}std::string_view ${function}([[maybe_unused]] std::string_view language)\n{\n")
    file(GLOB files ${folder}/*.json)
    foreach(file ${files})
        get_filename_component(language ${file} NAME_WE)
        file(READ ${file} text)
        string(APPEND source
            "    if (language == \"${language}\")\n        return R\"brindlex(${text})brindlex\";\n")
    endforeach()
    set(source "${source}    return {};\n}\n\n" PARENT_SCOPE)
endfunction()

set(source "#include \"catalogue/EmbeddedTranslations.h\"\n\nnamespace brindlex {\n\n")
append_texts(embeddedTranslation ${STRINGS})
append_texts(embeddedSystemWordings ${SYSTEM})
string(APPEND source "} // namespace brindlex\n")
file(WRITE ${OUTPUT} "${source}")
