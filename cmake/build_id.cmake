# Writes which commit is being built into a header; "+" stands for changes on top of it. A package is
# built without a repository and says it by STORE_BUILD_ID.
if(NOT STORE_BUILD_ID)
  execute_process(COMMAND git -C ${SOURCE} rev-parse --short=10 HEAD
                  OUTPUT_VARIABLE STORE_BUILD_ID OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
  execute_process(COMMAND git -C ${SOURCE} diff --quiet HEAD RESULT_VARIABLE changed ERROR_QUIET)
  if(STORE_BUILD_ID AND changed)
    string(APPEND STORE_BUILD_ID "+")
  endif()
endif()
file(CONFIGURE OUTPUT ${HEADER} CONTENT "inline constexpr const char* kBuildId = \"${STORE_BUILD_ID}\";\n")
