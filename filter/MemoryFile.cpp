// SPDX-License-Identifier: Apache-2.0
#include "filter/MemoryFile.h"

#include "filter/WriteAll.h"

#include <sys/mman.h>
#include <unistd.h>

namespace filter {

int memoryFile(std::string_view bytes)
{
    const int file = memfd_create("label-ppd", MFD_CLOEXEC);
    if (file < 0) {
        return -1;
    }
    if (!writeAll(file, bytes) || lseek(file, 0, SEEK_SET) != 0) {
        close(file);
        return -1;
    }
    return file;
}

} // namespace filter
