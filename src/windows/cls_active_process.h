#pragma once
// The list of running processes, as a walk of the system's process list
// leaves it: position 0 stays empty and the first process is at position 1.
// Each field of a process record is read by position; a position outside
// the list is the subscript failure of an array.
#include <cstdint>
#include <string>
#include <vector>

#include "platform/system.h"

namespace qs {

class clsActiveProcess {
public:
    explicit clsActiveProcess(PointerProcesses& system) : system_(system) {}

    std::wstring szExeFile(std::int32_t position) const { return At(position).szExeFile; }
    std::uint32_t dwFlags(std::int32_t position) const { return At(position).dwFlags; }
    std::int32_t pcPriClassBase(std::int32_t position) const { return At(position).pcPriClassBase; }
    std::uint32_t th32ParentProcessID(std::int32_t position) const { return At(position).th32ParentProcessID; }
    std::uint32_t cntThreads(std::int32_t position) const { return At(position).cntThreads; }
    std::uint32_t th32ModuleID(std::int32_t position) const { return At(position).th32ModuleID; }
    std::uint64_t th32DefaultHeapID(std::int32_t position) const { return At(position).th32DefaultHeapID; }
    std::uint32_t th32ProcessID(std::int32_t position) const { return At(position).th32ProcessID; }
    std::uint32_t cntUsage(std::int32_t position) const { return At(position).cntUsage; }
    std::uint32_t dwSize(std::int32_t position) const { return At(position).dwSize; }

    // Walks the process list afresh and returns how many processes it holds.
    std::int32_t GetActiveProcess();

private:
    const ProcessEntry& At(std::int32_t position) const;

    PointerProcesses& system_;
    std::vector<ProcessEntry> processes_;
};

}  // namespace qs
