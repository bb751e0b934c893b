#include "datum/grid_shift.h"

#include "datum/nadcon_pair.h"
#include "datum/ntv2.h"
#include "host/mapped_file.h"
#include "levels/level.h"

#include <filesystem>
#include <map>
#include <mutex>
#include <system_error>
#include <utility>
#include <vector>

namespace ZrProj::datum {
namespace {

using Shared = std::shared_ptr<GridSet const>;
using Opened = std::variant<Shared, GridProblem>;

/// What tells one state of one file from another.
struct FileState {
    std::string path;
    std::uintmax_t size = 0;
    std::filesystem::file_time_type written{};

    explicit FileState(std::string const& name) {
        std::error_code error; // a file that cannot be looked at cannot be opened either
        path = std::filesystem::weakly_canonical(name, error).string();
        size = std::filesystem::file_size(name, error);
        written = std::filesystem::last_write_time(name, error);
    }
    auto operator<=>(FileState const&) const = default;
};

/// The files that a set is made of.
using Files = std::vector<FileState>;

/// The sets in use. Never destroyed: a thread may still open a grid while the process ends.
class InUse {
public:
    static InUse& instance() {
        static auto* const all = new InUse; // NOLINT
        return *all;
    }
    Shared find(Files const& files) {
        std::scoped_lock const lock(mutex_);
        auto const found = sets_.find(files);
        return found == sets_.end() ? nullptr : found->second.lock();
    }
    /// The one that is kept: another thread's, where it was first.
    Shared keep(Files const& files, Shared set) {
        std::scoped_lock const lock(mutex_);
        std::erase_if(sets_, [](auto const& entry) { return entry.second.expired(); });
        auto const [entry, isNew] = sets_.try_emplace(files, set);
        Shared const other = isNew ? nullptr : entry->second.lock();
        return other ? other : set;
    }

private:
    std::mutex mutex_;
    std::map<Files, std::weak_ptr<GridSet const>> sets_;
};

/// What is in use already, or what `load` makes of the files.
template <class Load> Opened shared(Files const& files, Load const& load) {
    if (auto set = InUse::instance().find(files))
        return set;
    auto loaded = load();
    if (auto* const set = std::get_if<Shared>(&loaded))
        return InUse::instance().keep(files, std::move(*set));
    return loaded;
}

/// A set with the file that it lies in.
struct MappedSet {
    MappedFile file;
    GridSet set;
};

Opened loadNtv2(std::string const& path) {
    auto mapped = std::make_shared<MappedSet>(MappedSet{MappedFile(path), {}});
    if (!mapped->file.isOpen())
        return GridProblem{path + " cannot be opened"};
    auto read = readNtv2(mapped->file.bytes());
    if (auto const* const problem = std::get_if<GridProblem>(&read))
        return GridProblem{path + ", " + problem->reason};
    mapped->set = std::get<GridSet>(std::move(read));
    return Shared(mapped, &mapped->set);
}

/// A set with the words that it lies in.
struct OwningSet {
    std::vector<std::uint64_t> words;
    GridSet set;
};

Opened loadNadcon(std::string const& lasPath, std::string const& losPath) {
    auto owning = std::make_shared<OwningSet>();
    auto read = readNadconPair(lasPath, losPath, owning->words);
    if (auto* const problem = std::get_if<GridProblem>(&read))
        return std::move(*problem);
    owning->set = std::get<GridSet>(std::move(read));
    return Shared(owning, &owning->set);
}

} // namespace

GridShift::GridShift(std::shared_ptr<GridSet const> set)
    : set_(std::move(set)), operations_(&levels::operationsInUse<GridOperations>()) {}

std::variant<GridShift, GridProblem> GridShift::openNtv2(std::string const& path) {
    auto opened = shared({FileState(path)}, [&] { return loadNtv2(path); });
    if (auto* const problem = std::get_if<GridProblem>(&opened))
        return std::move(*problem);
    return GridShift(std::get<Shared>(std::move(opened)));
}

std::variant<GridShift, GridProblem> GridShift::openNadcon(std::string const& lasPath, std::string const& losPath) {
    auto opened = shared({FileState(lasPath), FileState(losPath)}, [&] { return loadNadcon(lasPath, losPath); });
    if (auto* const problem = std::get_if<GridProblem>(&opened))
        return std::move(*problem);
    return GridShift(std::get<Shared>(std::move(opened)));
}

levels::Stage GridShift::forwardStage() const noexcept {
    return {operations_->forward, set_.get()};
}

levels::Stage GridShift::inverseStage() const noexcept {
    return {operations_->inverse, set_.get()};
}

namespace {

levels::Outcome run(levels::Convert* driver, levels::Stage const& stage, PROJPOINT* points, int count) noexcept {
    levels::Marking const marking{.keepsMarked = true};
    return driver(&stage, 1, levels::pointsOf(points, static_cast<std::size_t>(count)), marking);
}

} // namespace

levels::Outcome GridShift::forward(PROJPOINT* points, int count) const noexcept {
    return run(operations_->driver, forwardStage(), points, count);
}

levels::Outcome GridShift::inverse(PROJPOINT* points, int count) const noexcept {
    return run(operations_->driver, inverseStage(), points, count);
}

} // namespace ZrProj::datum
