// The user's own datums, in a profile's section "Custom Datums".
#include "datum/datum_text.h"
#include "datum/method_table.h"
#include "host/fpenv.h"
#include "host/profile.h"
#include "host/text.h"

#include <zrproj/userdatum.h>

#include <algorithm>
#include <exception>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ZrProj {
namespace {

constexpr std::string_view section = "Custom Datums";
constexpr std::size_t longestName = 255;

std::mutex profileMutex;

/// The file name that the host set; empty for the default one. The mutex guards it.
std::string& chosenProfile() {
    static std::string name;
    return name;
}

/// The profile's file name; empty where neither the host nor the system names one.
std::string profileName() {
    std::scoped_lock const lock(profileMutex);
    return chosenProfile().empty() ? defaultProfileName() : chosenProfile();
}

/// Whether a conversion could use the record as a user-defined end.
bool isUsable(DATUM2WGS84 const& record) {
    if (!datumMethodIs(record.Method, &DatumMethodRow::isOwn))
        return false;
    DATUMXFORM request = {};
    request.SourceParams = record;
    request.DestinationParams.Method = DatumMethodNone;
    return DatCheckParams(&request, nullptr, false) == 0;
}

bool isName(std::string_view name) {
    auto const isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    return !name.empty() && name.size() <= longestName && std::ranges::none_of(name, isControl);
}

struct UserDatum {
    std::string name;
    std::string key; // in the profile
    DATUM2WGS84 record;
};

std::string lowerCase(std::string name) {
    std::ranges::transform(name, name.begin(), asciiLower);
    return name;
}

/// The entries that are datums, the first one of each name.
std::vector<UserDatum> userDatums() {
    std::string const profile = profileName();
    auto const entries = profile.empty() ? std::nullopt : readProfile(profile, section);
    std::vector<UserDatum> datums;
    std::unordered_set<std::string> seen;
    if (!entries)
        return datums;
    for (ProfileEntry const& entry : *entries) {
        std::string const name = nameOfKey(entry.key);
        auto const record = readDatumText(entry.value);
        if (isName(name) && record && isUsable(*record) && seen.insert(lowerCase(name)).second)
            datums.push_back({name, entry.key, *record});
    }
    return datums;
}

std::optional<UserDatum> findUserDatum(std::string_view name) {
    auto const datums = userDatums();
    auto const found =
        std::ranges::find_if(datums, [&](UserDatum const& datum) { return equalIgnoringCase(datum.name, name); });
    return found == datums.end() ? std::nullopt : std::optional(*found);
}

/// Runs what may run out of memory, which is a failure like others, and what reads numbers.
template <class Work> auto guarded(Work const& work) noexcept -> decltype(work()) {
    try {
        return withDefaultFloatingPoint(work);
    } catch (std::exception const&) {
        return {};
    }
}

} // namespace

bool NDatSetProfile(char const* fileName) {
    if (fileName && !*fileName)
        return false;
    return guarded([&] {
        std::scoped_lock const lock(profileMutex);
        chosenProfile() = fileName ? fileName : "";
        return true;
    });
}

int NDatNumDatums() {
    return guarded([] { return static_cast<int>(userDatums().size()); });
}

bool NDatGetDatumName(int index, char* name, int nameSize) {
    return name && index >= 0 && guarded([&] {
               auto const datums = userDatums();
               auto const i = static_cast<std::size_t>(index);
               if (i >= datums.size() || nameSize <= static_cast<int>(datums[i].name.size()))
                   return false;
               copyText(name, datums[i].name);
               return true;
           });
}

bool NDatGetDatumParams(char const* name, DATUM2WGS84* params) {
    return name && params && guarded([&] {
               auto const datum = findUserDatum(name);
               if (datum)
                   *params = datum->record;
               return datum.has_value();
           });
}

bool NDatGetDatumMethod(char const* name, DatumMethod* method) {
    DATUM2WGS84 record = {};
    if (!method || !NDatGetDatumParams(name, &record))
        return false;
    *method = record.Method;
    return true;
}

bool NDatSetDatum(char const* name, DATUM2WGS84 const* params) {
    return name && params && isName(name) && isUsable(*params) && guarded([&] {
               std::string const profile = profileName();
               auto const same = findUserDatum(name);
               std::string const value = datumText(*params);
               return !profile.empty() && writeProfile(profile, section, same ? same->key : keyOfName(name), value);
           });
}

bool NDatDeleteDatum(char const* name) {
    return name && guarded([&] {
               std::string const profile = profileName();
               auto const datum = findUserDatum(name);
               return datum && writeProfile(profile, section, datum->key, std::nullopt);
           });
}

} // namespace ZrProj
