#include "cli/geojson/reader.h"

#include "cli/geojson/builders.h"
#include "cli/text/text.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <utility>

namespace ZrProj::Command {
namespace {

using Json = nlohmann::json;

constexpr int deepest = 200; // nesting, of lists and objects

/// An object that is not at its end yet.
struct OpenObject {
    enum class Role { Root, Features, Geometry, Geometries } role;
    enum class List { None, Geometries, Features } list = List::None; // what it is in
    GeoObject object = {};
    std::string key = {};
};

/// Puts one object together from the events of the parser.
class Builder : public nlohmann::json_sax<Json> {
public:
    Builder(ByteSource const& source, GeoJsonSink& sink) : m_source(source), m_sink(sink) {}

    /// What ended the reading.
    std::string const& failure() const { return m_failure; }

    bool null() override { return scalar("null", Scalar::Null); }
    bool boolean(bool value) override { return scalar(value ? "true" : "false", Scalar::Other); }
    bool number_integer(std::int64_t value) override { return integer(value); }
    bool number_unsigned(std::uint64_t value) override { return integer(value); }
    bool number_float(double value, std::string const& text) override { return number(value, text); }
    bool string(std::string& value) override;
    bool binary(Json::binary_t&) override { return false; } // not of text
    bool start_object(std::size_t) override;
    bool key(std::string& name) override;
    bool end_object() override;
    bool start_array(std::size_t) override;
    bool end_array() override;
    bool parse_error(std::size_t, std::string const&, Json::exception const& error) override;

private:
    enum class Mode { Members, Copy, Coordinates };
    enum class Scalar { Null, Other };

    OpenObject& top() { return m_open.back(); }

    bool fail(std::string const& reason);
    void fault(std::string const& reason);
    std::string location() const;
    template <class Integer> bool integer(Integer value);
    bool number(double value, std::string const& text);
    bool scalar(std::string_view text, Scalar kind);
    bool deeper();
    void beginCopy(bool isWanted);
    void endCopy(bool isWhole);
    void refuse(char const* expected);
    bool isMember(std::string_view name) const;
    bool startMember();
    void openObject();
    bool openFeatures();
    void tell(char const* reason);
    void closeCoordinates();
    bool finish(OpenObject done);
    bool finishRoot(OpenObject done);

    ByteSource const& m_source;
    GeoJsonSink& m_sink;
    std::string m_failure, m_fault;
    std::vector<OpenObject> m_open;
    Mode m_mode = Mode::Members;
    int m_nesting = 0;
    bool m_collection = false; // features are handed out one by one

    JsonCopy m_copy;
    CoordinatesBuilder m_coordinates;
    int m_level = 0; // of lists and objects in coordinates
};

std::string Builder::location() const {
    return " (line " + std::to_string(m_source.line()) + ", byte " + std::to_string(m_source.position()) + ')';
}

bool Builder::fail(std::string const& reason) {
    m_failure = reason + location();
    return false;
}

/// Something wrong with the present feature; the first thing is told.
void Builder::fault(std::string const& reason) {
    if (m_fault.empty())
        m_fault = reason + location();
}

bool Builder::deeper() {
    return ++m_nesting <= deepest || fail("nested deeper than " + std::to_string(deepest) + " levels");
}

// Members that are no geometry go along as they are.

void Builder::beginCopy(bool isWanted) {
    std::string const& name = top().key;
    m_mode = Mode::Copy;
    m_copy.begin(top().object.members, name, isWanted && name != "bbox" && name != "crs");
}

/// Goes back to the members where the value copied is whole. In a list of features it was none.
void Builder::endCopy(bool isWhole) {
    if (!isWhole)
        return;
    m_mode = Mode::Members;
    if (top().list == OpenObject::List::Features)
        m_sink.feature({}, std::exchange(m_fault, ""));
}

/// Passes over a value that is none of what its name calls for.
void Builder::refuse(char const* expected) {
    OpenObject const& open = top();
    fault(inQuotes(open.key) + (open.list == OpenObject::List::None ? " is no " : " holds what is no ") + expected);
    beginCopy(false);
}

/// What the value under the present name has to be where it is wrong; else null, the value being copied from here on.
char const* expectedUnder(std::string const& key) {
    if (key == "coordinates" || key == "geometries" || key == "features")
        return "list";
    return key == "geometry" ? "object" : key == "type" ? "string" : nullptr;
}

/// Whether the next value is the member of that name of an object.
bool Builder::isMember(std::string_view name) const {
    return !m_open.empty() && m_open.back().list == OpenObject::List::None && m_open.back().key == name;
}

/// The beginning of a value that is no part of the geometry, or a wrong one. False at the end of all.
bool Builder::startMember() {
    if (m_open.empty())
        return fail("the text is no object of GeoJSON");
    char const* const expected = top().list == OpenObject::List::None ? expectedUnder(top().key) : "object";
    if (expected)
        refuse(expected);
    else
        beginCopy(true);
    return true;
}

template <class Integer> bool Builder::integer(Integer value) {
    return number(static_cast<double>(value), std::to_string(value));
}

bool Builder::number(double value, std::string const& text) {
    if (m_mode != Mode::Coordinates)
        return scalar(text, Scalar::Other);
    tell(m_coordinates.number(value, text));
    return true;
}

bool Builder::scalar(std::string_view text, Scalar kind) {
    if (m_mode == Mode::Coordinates) {
        fault((text.starts_with('"') ? inQuotes(text.substr(1, text.size() - 2)) : std::string(text)) +
              " stands in coordinates");
        return true;
    }
    if (m_mode == Mode::Members) {
        if (kind == Scalar::Null && isMember("geometry")) {
            top().object.geometry.emplace();
            return true;
        }
        if (!startMember())
            return false;
    }
    endCopy(m_copy.scalar(text));
    return true;
}

bool Builder::string(std::string& value) {
    if (m_mode == Mode::Members && isMember("type")) {
        top().object.type = value;
        return true;
    }
    std::string text;
    appendJsonString(text, value);
    return scalar(text, Scalar::Other);
}

bool Builder::key(std::string& name) {
    if (m_mode == Mode::Members) {
        top().key = name;
    } else if (m_mode == Mode::Copy) {
        m_copy.key(name);
    }
    return true;
}

// Objects and lists.

void Builder::openObject() {
    using Role = OpenObject::Role;
    Role role = Role::Root;
    if (!m_open.empty() && top().list != OpenObject::List::None)
        role = top().list == OpenObject::List::Features ? Role::Features : Role::Geometries;
    else if (!m_open.empty())
        role = Role::Geometry;
    m_open.push_back({role});
}

bool Builder::start_object(std::size_t) {
    if (!deeper())
        return false;
    if (m_mode == Mode::Coordinates) {
        fault("an object stands in coordinates");
        ++m_level;
        return true;
    }
    if (m_mode == Mode::Members) {
        if (m_open.empty() || top().list != OpenObject::List::None || isMember("geometry")) {
            openObject();
            return true;
        }
        if (!startMember())
            return false;
    }
    m_copy.open('{');
    return true;
}

bool Builder::end_object() {
    --m_nesting;
    if (m_mode == Mode::Copy) {
        endCopy(m_copy.close('}'));
        return true;
    }
    if (m_mode == Mode::Coordinates) {
        --m_level;
        return true;
    }
    OpenObject done = std::move(top());
    m_open.pop_back();
    return finish(std::move(done)) && m_sink.goesOn();
}

bool Builder::openFeatures() {
    std::string const& type = top().object.type;
    if (m_collection || (!type.empty() && type != "FeatureCollection"))
        return fail(m_collection ? "a second list of features" : "features in what is no FeatureCollection");
    top().list = OpenObject::List::Features;
    m_collection = true;
    m_sink.openCollection(std::exchange(top().object.members, ""));
    return true;
}

bool Builder::start_array(std::size_t) {
    if (!deeper())
        return false;
    if (m_mode == Mode::Members) {
        if (isMember("features") && top().role == OpenObject::Role::Root)
            return openFeatures();
        if (isMember("geometries")) {
            top().list = OpenObject::List::Geometries;
            top().object.geometries.emplace();
            return true;
        }
        if (isMember("coordinates")) {
            m_mode = Mode::Coordinates;
            m_level = 0;
            m_coordinates = CoordinatesBuilder();
        } else if (!startMember()) {
            return false;
        }
    }
    if (m_mode == Mode::Coordinates) {
        ++m_level;
        tell(m_coordinates.open());
    } else {
        m_copy.open('[');
    }
    return true;
}

bool Builder::end_array() {
    --m_nesting;
    if (m_mode == Mode::Copy)
        endCopy(m_copy.close(']'));
    else if (m_mode == Mode::Coordinates)
        closeCoordinates();
    else
        top().list = OpenObject::List::None;
    return true;
}

bool Builder::finish(OpenObject done) {
    using Role = OpenObject::Role;
    GeoObject& object = done.object;
    if (done.role == Role::Root)
        return finishRoot(std::move(done));
    std::string reason = object.fault();
    if (reason.empty() && object.isFeature() != (done.role == Role::Features))
        reason = object.isFeature() ? "a geometry is a Feature" : "a feature is a " + object.type;
    if (!reason.empty())
        fault(reason);
    if (done.role == Role::Features)
        m_sink.feature(std::move(object), std::exchange(m_fault, ""));
    else if (done.role == Role::Geometries)
        top().object.geometries->push_back(std::move(object));
    else
        top().object.geometry.emplace().push_back(std::move(object));
    return true;
}

bool Builder::finishRoot(OpenObject done) {
    bool const named = done.object.type == "FeatureCollection";
    if (named != m_collection)
        return fail(named ? R"(the FeatureCollection has no "features")" : "features in what is no FeatureCollection");
    if (m_collection) {
        m_sink.closeCollection(done.object.members);
        return true;
    }
    if (std::string const reason = done.object.fault(); !reason.empty())
        fault(reason);
    m_sink.feature(std::move(done.object), std::exchange(m_fault, ""));
    return true;
}

void Builder::tell(char const* reason) {
    if (reason)
        fault(reason);
}

void Builder::closeCoordinates() {
    tell(m_coordinates.close());
    if (--m_level > 0)
        return;
    top().object.coordinates = m_coordinates.take();
    m_mode = Mode::Members;
}

// Texts that are no JSON.

/// What the parser says, without its own ways to name itself and the place.
std::string plainWords(std::string_view words) {
    for (std::string_view const prefix : {"] ", "column ", ": ", "syntax error while parsing "})
        if (auto const at = words.find(prefix); at != std::string_view::npos)
            words.remove_prefix(at + prefix.size());
    constexpr std::size_t longest = 160;
    return std::string(words.substr(0, longest)) + (words.size() > longest ? "..." : "");
}

bool Builder::parse_error(std::size_t, std::string const&, Json::exception const& error) {
    return fail("no JSON: " + plainWords(error.what()));
}

constexpr bool isBetweenTexts(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\x1E'; // the last one separates by RFC 8142
}

} // namespace

std::string readGeoJson(ByteSource& source, GeoJsonSink& sink) {
    for (;;) {
        while (source.hasByte() && isBetweenTexts(source.peek()))
            source.skip();
        if (!source.hasByte() || !sink.goesOn())
            return "";
        Builder builder(source, sink);
        bool const whole = Json::sax_parse(ByteIterator(source), ByteIterator(), &builder, Json::input_format_t::json,
                                           false); // there may be more behind it
        if (!whole)
            return builder.failure();
    }
}

} // namespace ZrProj::Command
