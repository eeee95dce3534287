#pragma once
// A file's bytes mapped into memory, read only, for as long as the object
// lives: a long list file is walked where the system keeps it, with no copy
// and no memory of the program's own filled first.
#include <windows.h>

#include <cstddef>
#include <string_view>

#include "handles.h"
#include "platform/system.h"

namespace qs::win {

class MappedFile final : public FileBytes {
public:
    // Maps the first `size` bytes of an open file, size above 0; throws
    // SystemCallFailed.
    MappedFile(HANDLE file, std::size_t size);
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;
    ~MappedFile() override;

    std::string_view View() const override { return {view_, size_}; }

private:
    KernelHandle mapping_;
    const char* view_ = nullptr;
    std::size_t size_ = 0;
};

}  // namespace qs::win
