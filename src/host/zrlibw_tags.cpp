// The host's list of TIFF tags.
#include <zrproj/zrlibw.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>

namespace {

// Bytes of one value, by type: 0 where TIFF has no such type. 13 is an offset, 16 to 18 are BigTIFF's.
constexpr std::array<std::uint8_t, 19> valueSizes{0, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8, 4, 0, 0, 8, 8, 8};
constexpr std::uint64_t mostBytes = 256u << 20;

std::uint64_t valueSize(ZrBitmapTag const& tag) {
    return tag.Type < valueSizes.size() ? valueSizes[tag.Type] : 0;
}

std::shared_ptr<void const> copyOf(void const* data, std::size_t size) {
    if (size == 0)
        return nullptr;
    auto const copy = std::make_shared<std::max_align_t[]>((size - 1) / sizeof(std::max_align_t) + 1);
    std::memcpy(copy.get(), data, size);
    return {copy, copy.get()};
}

} // namespace

bool ZrBitmapTagList::Add(ZrBitmapTag const& tag) try {
    std::uint64_t const size = valueSize(tag) * tag.Count;
    if (valueSize(tag) == 0 || size > mostBytes || (size > 0 && !tag.pData))
        return false;
    std::shared_ptr<void const> const data = copyOf(tag.pData, static_cast<std::size_t>(size));
    m_held.push_back({{tag.Id, tag.Type, tag.Count, data.get()}, data});
    return true;
} catch (std::bad_alloc const&) {
    return false;
}

ZrBitmapTag const* ZrBitmapTagList::Find(std::uint16_t id) const {
    auto const found = std::ranges::find(m_held, id, [](Held const& held) { return held.tag.Id; });
    return found == m_held.end() ? nullptr : &found->tag;
}

int ZrBitmapTagList::Size() const {
    return static_cast<int>(m_held.size());
}

ZrBitmapTag const& ZrBitmapTagList::operator[](int index) const {
    return m_held[static_cast<std::size_t>(index)].tag;
}
