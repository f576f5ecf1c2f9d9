cmake_minimum_required(VERSION 3.25)

# Writes the source OUTPUT with the commit of the repository REPOSITORY; leaves it alone when it has
# that commit already.
execute_process(
    COMMAND git -C ${REPOSITORY} rev-parse --short=12 HEAD
    OUTPUT_VARIABLE commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
file(CONFIGURE OUTPUT ${OUTPUT} @ONLY CONTENT "namespace brindlex {
extern const char* const buildCommit;
const char* const buildCommit = \"@commit@\";
} // namespace brindlex
")
