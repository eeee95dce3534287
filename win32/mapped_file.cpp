#include "mapped_file.h"

#include "system_error.h"

namespace qs::win {

MappedFile::MappedFile(HANDLE file, std::size_t size) : size_(size) {
    mapping_.Reset(::CreateFileMappingW(file, nullptr, PAGE_READONLY, 0, 0, nullptr));
    if (!mapping_) ThrowLastError("CreateFileMappingW");
    view_ = static_cast<const char*>(::MapViewOfFile(mapping_.Get(), FILE_MAP_READ, 0, 0, size));
    if (view_ == nullptr) ThrowLastError("MapViewOfFile");
}

MappedFile::~MappedFile() { ::UnmapViewOfFile(view_); }

}  // namespace qs::win
