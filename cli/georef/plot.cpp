#include "cli/georef/plot.h"

#include "cli/text/output.h"
#include "cli/text/svg.h"
#include "cli/text/text.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace ZrProj::Command {
namespace {

constexpr double width = 900, margin = 70, caption = 60; // of the picture, in its own units
constexpr double farthest = 60;                          // what the longest arrow, or bend, is drawn as
constexpr int cells = 10, steps = 6;                     // of the grid, and between two of its knots
constexpr double barb = 7;                               // of an arrow's head

struct Box {
    GEOREFPOINT low{HUGE_VAL, HUGE_VAL}, high{-HUGE_VAL, -HUGE_VAL};

    void add(GEOREFPOINT const& p) {
        if (p.x == DBL_MAX)
            return;
        low = {std::min(low.x, p.x), std::min(low.y, p.y)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y)};
    }
    double longest() const { return std::max(high.x - low.x, high.y - low.y); }
};

/// 1, 2 or 5 times a power of ten, not above the number.
double roundDown(double value) {
    if (!(value > 0) || !std::isfinite(value))
        return 1;
    double const power = std::pow(10, std::floor(std::log10(value)));
    double const first = value / power;
    return power * (first >= 5 ? 5 : first >= 2 ? 2 : 1);
}

std::string shown(double value) {
    std::string text;
    appendFixed(text, value, 2);
    return text;
}

/// How many times larger something is drawn, as a person would say it.
std::string timesText(double times) {
    std::string text;
    appendFixed(text, times, times < 1 ? 6 : 0);
    return text;
}

/// What the plot is drawn against: an affine map, or the map itself where the controls determine none.
GeorefFit plainMap(GeorefMethod const& method, std::vector<ControlPoint> const& controls) {
    try {
        return {georefMethods()[1], controls};
    } catch (ControlsError const&) {
        return {method, controls};
    }
}

bool isFinite(GEOREFPOINT const& p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

class Plot {
public:
    Plot(GeorefMethod const& method, std::vector<ControlPoint> const& controls, Analysis const& analysis);
    std::string draw();

private:
    GEOREFPOINT onPaper(GEOREFPOINT const& target) const;
    GEOREFPOINT bent(GEOREFPOINT const& source);
    GEOREFPOINT knot(double i, double j) const;
    GEOREFPOINT offset(std::size_t i);
    void chooseScales();
    void line(bool across, int at);
    void grid();
    void arrow(GEOREFPOINT const& from, GEOREFPOINT const& to, char const* colour);
    void control(std::size_t i);
    void captions();
    void text(double x, double y, std::string const& words);

    GeorefMethod const& m_method;
    std::vector<ControlPoint> const& m_controls;
    Analysis const& m_analysis;
    GeorefFit m_map, m_affine; // the second: what bends are counted from
    Box m_source, m_target;
    double m_unit = 1;                        // a target unit on paper
    double m_arrowTimes = 1, m_bendTimes = 1; // larger than it is
    bool m_bent = false;
    std::string m_svg;
};

Plot::Plot(GeorefMethod const& method, std::vector<ControlPoint> const& controls, Analysis const& analysis)
    : m_method(method), m_controls(controls), m_analysis(analysis), m_map(method, controls),
      m_affine(plainMap(method, controls)) {
    for (auto const& c : controls) {
        m_source.add(c.source);
        m_target.add(c.target);
    }
    if (!(m_target.longest() > 0))
        throw ControlsError("the target points are all in one place: there is nothing to draw");
    for (int i = 0; i <= cells; ++i)
        for (int j = 0; j <= cells; ++j)
            m_target.add(m_affine(knot(i, j)));
    if (!std::isfinite(m_target.longest()))
        throw ControlsError("the target coordinates are too large to draw");
    m_unit = (width - 2 * margin) / m_target.longest();
    chooseScales();
}

GEOREFPOINT Plot::onPaper(GEOREFPOINT const& target) const {
    return {margin + (target.x - m_target.low.x) * m_unit, margin + (m_target.high.y - target.y) * m_unit};
}

/// A knot of the grid, which covers the controls' box in source coordinates.
GEOREFPOINT Plot::knot(double i, double j) const {
    return {m_source.low.x + (m_source.high.x - m_source.low.x) * i / cells,
            m_source.low.y + (m_source.high.y - m_source.low.y) * j / cells};
}

/// Where a source point is drawn.
GEOREFPOINT Plot::bent(GEOREFPOINT const& source) {
    GEOREFPOINT const plain = m_affine(source), real = m_map(source);
    return {plain.x + m_bendTimes * (real.x - plain.x), plain.y + m_bendTimes * (real.y - plain.y)};
}

/// What a control's arrow stands for: the residual, or, for an exact method, what the point is off when it is left out.
GEOREFPOINT Plot::offset(std::size_t i) {
    if (!isExact(m_method))
        return m_analysis.residuals[i].offset;
    if (!m_analysis.residuals[i].left)
        return {0, 0};
    auto others = m_controls;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
    GEOREFPOINT const there = GeorefFit(m_method, others)(m_controls[i].source);
    return {there.x - m_controls[i].target.x, there.y - m_controls[i].target.y};
}

void Plot::chooseScales() {
    double arrow = 0, bend = 0;
    for (std::size_t i = 0; i < m_controls.size(); ++i)
        arrow = std::max(arrow,
                         isExact(m_method) ? m_analysis.residuals[i].left.value_or(0) : m_analysis.residuals[i].length);
    for (int i = 0; i <= cells; ++i)
        for (int j = 0; j <= cells; ++j) {
            GEOREFPOINT const plain = m_affine(knot(i, j)), real = m_map(knot(i, j));
            bend = std::max(bend, std::hypot(real.x - plain.x, real.y - plain.y));
        }
    double const rounding = 1e-9 * m_target.longest();
    m_arrowTimes = arrow > rounding ? roundDown(farthest / (arrow * m_unit)) : 1;
    m_bent = bend > rounding;
    m_bendTimes = m_bent ? std::max(roundDown(farthest / (bend * m_unit)), 1.0) : 1;
}

void Plot::line(bool across, int at) {
    m_svg += "<polyline points=\"";
    for (int step = 0; step <= cells * steps; ++step) {
        double const along = static_cast<double>(step) / steps;
        GEOREFPOINT const p = onPaper(bent(across ? knot(along, at) : knot(at, along)));
        if (isFinite(p))
            m_svg += shown(p.x) + ',' + shown(p.y) + ' ';
    }
    m_svg += "\"/>\n";
}

void Plot::grid() {
    m_svg += "<g fill=\"none\" stroke=\"#9ab\" stroke-width=\"1\">\n";
    for (int at = 0; at <= cells; ++at) {
        line(true, at);
        line(false, at);
    }
    m_svg += "</g>\n";
}

void Plot::arrow(GEOREFPOINT const& from, GEOREFPOINT const& to, char const* colour) {
    double const dx = to.x - from.x, dy = to.y - from.y, length = std::hypot(dx, dy);
    if (!(length > 1 && std::isfinite(length)))
        return;
    double const head = std::min(barb, length / 2) / length;
    auto const end = [&](double side) {
        return shown(to.x - head * (dx + side * dy)) + ' ' + shown(to.y - head * (dy - side * dx));
    };
    m_svg += "<path fill=\"none\" stroke-width=\"2\" stroke=\"" + std::string(colour) + "\" d=\"M" + shown(from.x) +
             ' ' + shown(from.y) + " L" + shown(to.x) + ' ' + shown(to.y) + " M" + end(0.5) + " L" + shown(to.x) + ' ' +
             shown(to.y) + " L" + end(-0.5) + "\"/>\n";
}

void Plot::text(double x, double y, std::string const& words) {
    m_svg += "<text x=\"" + shown(x) + "\" y=\"" + shown(y) + "\">" + xmlText(words) + "</text>\n";
}

void Plot::control(std::size_t i) {
    auto const& outliers = m_analysis.outliers;
    bool const out = std::find(outliers.begin(), outliers.end(), i) != outliers.end();
    char const* const colour = out ? "#c00" : "#036";
    ControlPoint const& point = m_controls[i];
    GEOREFPOINT const at = onPaper(point.target), away = offset(i);
    double const times = m_unit * m_arrowTimes;
    m_svg += "<circle r=\"4\" fill=\"" + std::string(colour) + "\" cx=\"" + shown(at.x) + "\" cy=\"" + shown(at.y) +
             "\"/>\n";
    arrow(at, {at.x + times * away.x, at.y - times * away.y}, colour);
    text(at.x + 7, at.y - 7, point.name.empty() ? std::to_string(point.line) : point.name);
}

void Plot::captions() {
    double const below = 2 * margin + (m_target.high.y - m_target.low.y) * m_unit;
    text(margin, below,
         std::string(RefMethodName(m_method.method)) + ": arrows " + timesText(m_arrowTimes) + " times as long as " +
             (isExact(m_method) ? "the point is off when it is left out" : "the residuals"));
    std::string const grid =
        m_bent ? "grid: its bends against the affine map drawn " + timesText(m_bendTimes) + " times as large"
               : "grid: straight, as the map leaves it";
    text(margin, below + 18, grid + (m_analysis.outliers.empty() ? "" : "; red: stands out"));
}

std::string Plot::draw() {
    std::string const size =
        shown(width) + ' ' + shown(2 * margin + (m_target.high.y - m_target.low.y) * m_unit + caption);
    m_svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " + size +
            "\" font-family=\"sans-serif\" font-size=\"13\">\n<rect width=\"100%\" height=\"100%\" fill=\"white\"/>\n";
    grid();
    for (std::size_t i = 0; i < m_controls.size(); ++i)
        control(i);
    captions();
    return m_svg + "</svg>\n";
}

} // namespace

std::string georefPlot(GeorefMethod const& method, std::vector<ControlPoint> const& controls,
                       Analysis const& analysis) {
    return Plot(method, controls, analysis).draw();
}

} // namespace ZrProj::Command
