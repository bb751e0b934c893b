// The whole register in every form of text beside PROJ, which has the same register: each form as PROJ writes it, and
// as the library does. Both read it; 49 places over the area of use must agree within 0.1 mm there and back, and the
// text must mean what the code means.
//
//     zrproj-register-sweep [--every N] [--form NAME]
//
// takes each N-th system and one form only. Fails where something is at fault that explanations.h does not explain. The
// whole of it takes some minutes.
#include "explanations.h"
#include "reading.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace ZrProj::peer;

namespace {

constexpr double tolerance = 1e-4;       // metres on the ground
constexpr double figureTolerance = 1e-3; // metres; axes that are no farther off are the register's

struct Form {
    char const* name;
    zrproj_format format;
    int year = 2019; // of well-known text of the second generation
};
constexpr Form forms[] = {
    {"code", ZRPROJ_CODE},        {"WKT1", ZRPROJ_WKT1},
    {"ESRI", ZRPROJ_WKT_ESRI},    {"WKT2:2015", ZRPROJ_WKT2, 2015},
    {"WKT2:2019", ZRPROJ_WKT2},   {"PROJJSON", ZRPROJ_PROJJSON},
    {"PROJ", ZRPROJ_PROJ_STRING},
};

/// A system of the register, by its code.
struct Subject {
    explicit Subject(int itsNumber)
        : number(itsNumber), code("EPSG:" + std::to_string(number)), ours(code), theirs(code),
          places(ours ? from(theirs.meridian(), placesOf(ours.system())) : Places()) {}

    int number;
    std::string code;
    Ours ours;
    Theirs theirs;
    Places places;
};

// In the order of Outcome.
constexpr char const* outcomeNames[] = {"agrees",  "PROJ's way back", "alone",        "refused",  "not read by PROJ",
                                        "a datum", "another place",   "our way back", "not shown"};

/// What became of a text, and by how many metres it is off.
struct Finding {
    Outcome outcome = Outcome::agrees;
    double metres = 0;
    std::string why;
};

double distance(Figure a, Figure b) {
    return std::max(std::fabs(a.semiMajor - b.semiMajor), std::fabs(a.semiMinor - b.semiMinor));
}

double metresBetween(double meridian, double other) {
    return std::fabs(std::remainder(meridian - other, 360)) * 111195;
}

/// The figure and the prime meridian, which the library tells in a text alone.
Finding compareDatums(Ours const& ours, Theirs const& theirs) {
    double const figure = distance(ours.figure(), theirs.figure());
    double const meridian = metresBetween(Theirs(ours.text(ZRPROJ_WKT2)).meridian(), theirs.meridian());
    bool const same = figure <= figureTolerance && meridian <= tolerance;
    return {same ? Outcome::agrees : Outcome::datum, std::max(figure, meridian), ""};
}

/// Where PROJ has no map, against the library's by the code.
Finding compareAlone(Subject const& subject, Ours const& ours) {
    auto const far = distancesBetween(ours, subject.ours, subject.places, ours.metresAUnit());
    double const metres = std::max(far.forward, far.inverse);
    return {metres <= tolerance ? Outcome::alone : Outcome::forward, metres, "by the code"};
}

Finding compareMaps(Subject const& subject, Ours const& ours, Theirs const& theirs) {
    auto const far = distancesBetween(ours, theirs, subject.places, ours.metresAUnit());
    if (far.compared == 0 || !(far.forward <= tolerance))
        return {Outcome::forward, far.forward, ""};
    if (far.onlySecond != 0)
        return {Outcome::notShown, 0, ""};
    if (!(far.firstTrip <= tolerance))
        return {Outcome::ourReturn, far.firstTrip, ""};
    bool const bothReturn = far.inverse <= tolerance;
    return {bothReturn ? Outcome::agrees : Outcome::theirReturn, bothReturn ? far.forward : far.inverse, ""};
}

/// A text as both read it.
Finding compare(Subject const& subject, Ours const& ours, Theirs const& theirs) {
    if (!ours)
        return {Outcome::refused, 0, ours.why()};
    if (!theirs)
        return {Outcome::unread, 0, ""};
    if (ours.isProjected() != theirs.isProjected())
        return {Outcome::forward, NAN, "a projection or none"};
    Finding const datums = compareDatums(ours, theirs);
    if (datums.outcome != Outcome::agrees || !ours.isProjected())
        return datums;
    return theirs.converts() ? compareMaps(subject, ours, theirs) : compareAlone(subject, ours);
}

/// How PROJ finds that a text says what the code says.
enum class Likeness { equivalent, byNumbers, other };

Likeness likenessOf(Subject const& subject, Theirs const& theirs) {
    if (!theirs)
        return Likeness::other;
    if (theirs.isSameAs(subject.theirs))
        return Likeness::equivalent;
    if (distance(theirs.figure(), subject.theirs.figure()) > figureTolerance ||
        metresBetween(theirs.meridian(), subject.theirs.meridian()) > tolerance ||
        theirs.isProjected() != subject.theirs.isProjected() || theirs.converts() != subject.theirs.converts())
        return Likeness::other;
    if (!theirs.converts())
        return theirs.isProjected() ? Likeness::other : Likeness::byNumbers;
    auto const far = distancesBetween(theirs, subject.theirs, subject.places, subject.ours.metresAUnit());
    return far.forward <= tolerance ? Likeness::byNumbers : Likeness::other;
}

Explanation const* explanationOf(Outcome outcome, Subject const& subject, Form const& form) {
    for (Explanation const& each : explanations)
        if (each.outcome == outcome && (each.method.empty() || each.method == subject.theirs.method()) &&
            (each.code == 0 || each.code == subject.number) && (each.form.empty() || each.form == form.name))
            return &each;
    return nullptr;
}

/// Systems of which there is the same to say.
struct Group {
    int count = 0; // of their texts
    double metres = 0;
    std::vector<std::string> first; // a few of them
};
using Groups = std::map<std::string, Group>;
constexpr std::size_t shown = 10;

void add(Groups& groups, std::string const& what, Subject const& subject, double metres) {
    Group& group = groups[what];
    ++group.count;
    group.metres = std::fmax(group.metres, metres);
    bool const another = group.first.empty() || group.first.back() != subject.code;
    if (another && group.first.size() < shown)
        group.first.push_back(subject.code);
}

void print(char const* title, Groups const& groups) {
    if (!groups.empty())
        std::printf("\n%s\n", title);
    for (auto const& [what, group] : groups) {
        std::printf("  %-5d %-9.3g %s:", group.count, group.metres, what.c_str());
        for (auto const& each : group.first)
            std::printf(" %s", each.c_str());
        std::puts(group.first.size() == shown ? " ..." : "");
    }
}

/// What one form came to in one direction.
struct Tally {
    int written = 0, agreed = 0, theirReturn = 0, alone = 0, explained = 0, atFault = 0;
    int ownCode = 0, otherCode = 0, noCode = 0;
    int equivalent = 0, byNumbers = 0, other = 0;
};

enum class Writer { proj, library };

class Sweep {
public:
    void take(Subject const& subject, Form const& form, Writer writer, std::string const& text) {
        Tally& tally = tallies_[{writer, form.name}];
        std::string const title = std::string(writer == Writer::proj ? "PROJ's " : "our ") + form.name + ", ";
        if (text.empty())
            return add(unsaid_, title + subject.theirs.method(), subject, 0);
        ++tally.written;
        Ours const ours(text);
        Theirs const theirs(text);
        judge(tally, title, subject, form, compare(subject, ours, theirs));
        countCode(tally, title, subject, ours);
        countLikeness(tally, title, subject, theirs);
    }

    bool print() const {
        std::puts("                written   agree  PROJ's way  no map   explained  fault   code: own  other  none"
                  "   PROJ: same  by numbers  other");
        std::puts("                                 back is off of PROJ's");
        for (auto const& [key, t] : tallies_)
            std::printf("%-5s %-9s %7d %7d %11d %7d %11d %6d %11d %6d %5d %12d %11d %6d\n",
                        key.first == Writer::proj ? "PROJ" : "ours", key.second.c_str(), t.written, t.agreed,
                        t.theirReturn, t.alone, t.explained, t.atFault, t.ownCode, t.otherCode, t.noCode, t.equivalent,
                        t.byNumbers, t.other);
        ::print("Not said by a form (systems, by method):", unsaid_);
        ::print("PROJ's way back is off, metres:", theirReturns_);
        ::print("Explained, greatest metres:", explained_);
        ::print("Another code, or none:", codes_);
        ::print("To PROJ not what its code says:", unlike_);
        ::print("AT FAULT, greatest metres:", faults_);
        return faults_.empty();
    }

private:
    void judge(Tally& tally, std::string const& title, Subject const& subject, Form const& form,
               Finding const& finding) {
        std::string const& method = subject.theirs.method();
        switch (finding.outcome) {
        case Outcome::agrees:
            ++tally.agreed;
            return;
        case Outcome::alone:
            ++tally.alone;
            return;
        case Outcome::theirReturn:
            ++tally.theirReturn;
            return add(theirReturns_, method, subject, finding.metres);
        default:
            break;
        }
        if (auto const* known = explanationOf(finding.outcome, subject, form)) {
            ++tally.explained;
            return add(explained_, method + ", " + std::string(known->why), subject, finding.metres);
        }
        ++tally.atFault;
        add(faults_, title + method + ": " + outcomeNames[std::size_t(finding.outcome)] + ' ' + finding.why, subject,
            finding.metres);
    }

    void countCode(Tally& tally, std::string const& title, Subject const& subject, Ours const& ours) {
        std::string const code = ours ? ours.text(ZRPROJ_CODE) : "";
        ++(code.empty() ? tally.noCode : code == subject.code ? tally.ownCode : tally.otherCode);
        bool const namesDatum = title.find(" PROJ, ") == std::string::npos;
        if (code != subject.code && namesDatum)
            add(codes_, title + (code.empty() ? "none" : "another"), subject, 0);
    }

    void countLikeness(Tally& tally, std::string const& title, Subject const& subject, Theirs const& theirs) {
        switch (likenessOf(subject, theirs)) {
        case Likeness::equivalent:
            ++tally.equivalent;
            return;
        case Likeness::byNumbers:
            ++tally.byNumbers;
            return;
        case Likeness::other:
            ++tally.other;
            add(unlike_, title + subject.theirs.method(), subject, 0);
        }
    }

    std::map<std::pair<Writer, std::string>, Tally> tallies_;
    Groups unsaid_, theirReturns_, explained_, codes_, unlike_, faults_;
};

void sweep(Sweep& sweep, int code, std::string_view only) {
    Subject const subject(code);
    for (Form const& form : forms) {
        if (!only.empty() && only != form.name)
            continue;
        bool const byCode = form.format == ZRPROJ_CODE;
        sweep.take(subject, form, Writer::proj, byCode ? subject.code : subject.theirs.text(form.format, form.year));
        if (!byCode && form.year == 2019 && subject.ours)
            sweep.take(subject, form, Writer::library, subject.ours.text(form.format));
    }
}

} // namespace

int main(int argc, char** argv) {
    std::size_t every = 1;
    std::string_view form;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::string_view(argv[i]) == "--every")
            every = std::strtoul(argv[i + 1], nullptr, 10);
        else
            form = argv[i + 1];
    }
    Sweep all;
    int code = 0;
    for (std::size_t n = 0; every != 0 && zrproj_register_entry(n, &code, nullptr, nullptr) == ZRPROJ_OK; n += every)
        sweep(all, code, form);
    return all.print() ? 0 : 1;
}
