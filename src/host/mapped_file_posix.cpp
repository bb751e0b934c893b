// Files in memory on POSIX systems.
#if !defined(_WIN32)

#include "mapped_file.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ZrProj {

MappedFile::MappedFile(std::string const& name) noexcept {
    int const descriptor = open(name.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    struct stat info = {};
    open_ = fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode);
    auto const size = static_cast<std::size_t>(info.st_size);
    if (open_ && size > 0) { // nothing cannot be mapped
        void* const start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor, 0);
        open_ = start != MAP_FAILED;
        if (open_)
            bytes_ = {static_cast<std::byte const*>(start), size};
    }
    close(descriptor); // the mapping stays
}

MappedFile::~MappedFile() {
    if (!bytes_.empty())
        munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

} // namespace ZrProj

#endif
