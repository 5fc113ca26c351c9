# Writes the source of BuiltInProgramTexts() from calvoro.dat, byte for byte.
#
#   cmake -DINPUT=calvoro.dat -DOUTPUT=BuiltInProgramTexts.cpp -P EmbedProgramTexts.cmake

file(READ "${INPUT}" bytes HEX)
string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" bytes "${bytes}")
string(REGEX REPLACE "(\\\\x0a)" "\\1\"\n    \"" bytes "${bytes}")

file(WRITE "${OUTPUT}" "// Written by EmbedProgramTexts.cmake from calvoro.dat.
#include \"text/BuiltInProgramTexts.h\"

namespace calvoro {

std::string_view BuiltInProgramTexts() {
    static constexpr char kBytes[] =
    \"${bytes}\";
    return std::string_view(kBytes, sizeof(kBytes) - 1);
}

}  // namespace calvoro
")
