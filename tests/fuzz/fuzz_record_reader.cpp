// Any bytes read as a record file give values or one of the reader's three
// answers (past the end, text in a number, a number too large), and every
// read consumes input, so a file is always read to its end.
#include <cstddef>
#include <cstdint>

#include "data/file_channel.h"
#include "memory_system.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    // The first byte chooses the kind of each read in turn.
    const std::uint8_t kinds = data[0];
    const std::wstring text = qs::fuzz::FromBytes(data + 1, size - 1);
    qs::RecordReader reader(text);
    std::size_t reads = 0;
    for (;;) {
        qs::fuzz::Require(reads <= text.size() + 1);
        const int kind = (kinds >> (2 * (reads % 4))) & 3;
        ++reads;
        try {
            if (kind == 0) {
                const std::wstring value = reader.ReadString();
                qs::fuzz::Require(value.size() <= text.size());
            } else if (kind == 1) {
                reader.ReadInt16();
            } else if (kind == 2) {
                reader.ReadInt32();
            } else {
                (void)reader.AtEnd();
                reader.ReadString();
            }
        } catch (const qs::InputPastEnd&) {
            break;
        } catch (const qs::TypeMismatch&) {
        } catch (const qs::Overflow&) {
        }
    }
    qs::fuzz::Require(reader.AtEnd());
    return 0;
}
