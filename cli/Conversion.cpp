#include "cli/Conversion.h"

namespace calvoro {

Conversion::Conversion(const ConvertOptions& options)
    : reader_(options.from, options.reading, options.text), writer_(options) {}

std::string Conversion::Convert(std::string_view text, OutputStream& output) const {
    const AutoResult answer = reader_.Read(text);
    if (answer.result.status != ParseStatus::Valid) return RefusalText(answer, text);
    const std::int32_t jdn = answer.result.jdn;
    if (!writer_.CanWrite(jdn)) return writer_.RefusalText(jdn);

    output.AppendWith(writer_.Room(), [&](char* to) { return writer_.Write(jdn, to); });
    return {};
}

std::size_t Conversion::ConvertLines(std::string_view block, OutputStream& output,
                                     std::uint64_t& lines) const {
    const std::size_t room = writer_.Room() + 1;
    if (room > OutputStream::kBlockSize) return 0;
    const char* at = block.data();
    const char* const end = at + block.size();
    std::size_t length = 0;
    do {
        // As many lines as fit what is free.
        char* const begin = output.Room(room);
        char* const last = begin + (output.Free() - room);
        char* to = begin;
        do {
            std::int32_t jdn = 0;
            length =
                static_cast<std::size_t>(end - at) < DayReader::kLineRoom ? 0 : reader_.ReadLine(at, jdn);
            if (length == 0 || !writer_.CanWrite(jdn)) {
                length = 0;
                break;
            }
            to = writer_.Write(jdn, to);
            *to++ = '\n';
            at += length;
            ++lines;
        } while (to <= last);
        output.Commit(static_cast<std::size_t>(to - begin));
    } while (length > 0);
    return static_cast<std::size_t>(at - block.data());
}

}  // namespace calvoro
