#include "platform/linux/system/LinkerTables.h"

#include <bit>
#include <cstdint>
#include <link.h>
#include <sys/mman.h>
#include <unistd.h>

namespace brindlex {
namespace {

/// The tables stand at the begin of a file. What can neither be written nor run has no other
/// content than the file.
bool holdsTables(const ElfW(Phdr) & segment)
{
    return segment.p_type == PT_LOAD && segment.p_flags == PF_R && segment.p_offset == 0;
}

/// Whole pages only: the last one may belong to what stands behind.
void release(std::uintptr_t begin, std::size_t size)
{
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto wholePages = size / page * page;
    if (begin % page == 0 && wholePages > 0)
        ::madvise(std::bit_cast<void*>(begin), wholePages, MADV_DONTNEED);
}

int releaseTablesOf(dl_phdr_info* object, std::size_t, void*)
{
    for (int index = 0; index < object->dlpi_phnum; ++index) {
        const auto& segment = object->dlpi_phdr[index];
        if (holdsTables(segment))
            release(object->dlpi_addr + segment.p_vaddr, segment.p_filesz);
    }
    return 0;
}

} // namespace

void releaseLinkerTables() { ::dl_iterate_phdr(releaseTablesOf, nullptr); }

} // namespace brindlex
