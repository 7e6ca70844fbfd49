// SPDX-License-Identifier: MIT
// What the scenes are made of.
#include "simulator/scene.h"

#include <algorithm>
#include <cmath>

namespace simulator {
namespace {

// The signed distance from the edge of a shape, as a function of a point.

auto ellipse(double cx, double cy, double rx, double ry)
{
    return [=](double x, double y) {
        return (std::hypot((x - cx) / rx, (y - cy) / ry) - 1) * std::min(rx, ry);
    };
}

auto circle(double cx, double cy, double radius)
{
    return ellipse(cx, cy, radius, radius);
}

auto box(double left, double top, double right, double bottom, double corner = 0)
{
    return [=](double x, double y) {
        const double dx = std::abs(x - (left + right) / 2) - (right - left) / 2 + corner;
        const double dy = std::abs(y - (top + bottom) / 2) - (bottom - top) / 2 + corner;
        return std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) -
               corner;
    };
}

/// A rod with round ends.
auto rod(double ax, double ay, double bx, double by, double radius)
{
    return [=](double x, double y) {
        const double length = std::hypot(bx - ax, by - ay);
        const double along =
            std::clamp(((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / (length * length), 0.0, 1.0);
        return std::hypot(x - ax - along * (bx - ax), y - ay - along * (by - ay)) - radius;
    };
}

auto constant(double value)
{
    return [value](double, double) {
        return value;
    };
}

const auto everywhere = constant(-1000); // well inside

/// Warmth at a distance from the hot spot: full on a small plateau, then falling by a factor e
/// every `reach` pixels.
double fading(double distance, double reach)
{
    return std::exp(-std::max(0.0, distance - 3) / reach);
}

} // namespace

void Scene::buildCableJoint()
{
    constexpr double jointX = 120;
    constexpr double jointY = 182;
    const auto plateNear = [](double x, double y) {
        return 0.10 * fading(std::hypot(x - jointX, y - jointY), 24);
    };
    m_background.paint(
        everywhere, [](double, double y) { return 24.5 - y / 140; }, plateNear);
    m_background.paint(box(-40, 74, 280, 88), constant(25.2), constant(0.01));
    for (const double x : {70.0, 120.0, 170.0}) {
        m_background.paint(box(x - 23, 36, x + 23, 124, 3), constant(25.5), [](double, double y) {
            return 0.03 + 0.05 * std::clamp((y - 36) / 88, 0.0, 1.0);
        });
        m_background.paint(box(x - 7, 62, x + 7, 92, 3), constant(24.5), constant(0.02));
        m_background.paint(circle(x, 113, 5.5), constant(26.0),
                           constant(x == jointX ? 0.22 : 0.12));
    }
    struct Cable
    {
        double topX;
        double footX;
        double load;
    };
    for (const Cable cable : {Cable{70, 58, 0.12}, Cable{120, 120, 0.17}, Cable{170, 186, 0.10}}) {
        const bool isHot = cable.topX == jointX;
        m_background.paint(
            rod(cable.topX, 122, cable.footX, 380, 9), constant(26.0),
            [cable, isHot](double x, double y) {
                const double middle = cable.topX + (cable.footX - cable.topX) * (y - 122) / 258;
                const double round = std::clamp(1 - std::abs(x - middle) / 40, 0.0, 1.0);
                const double conducted = isHot ? 0.62 * fading(std::abs(y - jointY), 46) : 0.0;
                return (cable.load + conducted) * round;
            });
    }
    m_background.paint(box(jointX - 14, jointY - 21, jointX + 14, jointY + 21, 4), constant(26.0),
                       [](double x, double y) {
                           return std::max(0.55, fading(std::hypot(x - jointX, y - jointY), 22));
                       });
    for (const double side : {-19.0, 19.0})
        m_background.paint(box(jointX - 16, jointY + side - 4, jointX + 16, jointY + side + 4, 2),
                           constant(26.0), constant(0.50));
}

void Scene::buildWindow()
{
    const auto cold = [](double x, double y) {
        // The leak in the lower left corner, and the cold it leaves on wall and frame.
        return 7.0 * std::exp(-std::hypot(x - 64, y - 204) / 16);
    };
    m_background.paint(
        everywhere,
        [cold](double x, double y) {
            const double corner = 2.2 * std::exp(-std::max(0.0, 238 - x) / 14);
            return 20.8 - y / 220 - corner - cold(x, y);
        },
        [](double x, double y) {
            return 0.16 * std::exp(-std::max(0.0, box(66, 246, 176, 306)(x, y)) / 14);
        });
    m_background.paint(
        box(54, 40, 186, 214), [cold](double x, double y) { return 16.8 - cold(x, y); },
        constant(0));
    for (const double left : {63.0, 124.0})
        m_background.paint(
            box(left, 50, left + 53, 205),
            [cold](double x, double y) { return 13.6 - (y - 50) / 75 - 0.8 * cold(x, y); },
            constant(0));
    m_background.paint(
        box(44, 213, 196, 222, 2), [cold](double x, double y) { return 17.6 - cold(x, y); },
        constant(0.02));
    m_background.paint(box(66, 250, 176, 304, 3), constant(20.0), [](double x, double y) {
        const double rib = 0.5 + 0.5 * std::cos((x - 66) * 2 * M_PI / 11);
        return 0.62 + 0.20 * rib - 0.20 * (y - 250) / 54;
    });
    m_background.paint(rod(66, 253, 190, 253, 5), constant(20.0),
                       [](double x, double) { return std::min(1.0, 0.90 + 0.2 * (x - 66) / 124); });
    m_background.paint(rod(190, 253, 190, 380, 4), constant(20.0), constant(0.94));
    m_background.paint(circle(190, 253, 8), constant(20.0), constant(1));
}

void Scene::buildPerson()
{
    m_background.paint(
        everywhere, [](double, double y) { return 22.6 - y / 260; }, constant(0));
    m_background.paint(box(172, 34, 300, 400), constant(21.2), constant(0));
    m_background.paint(box(180, 42, 300, 400), constant(21.9), constant(0));
    m_background.paint(circle(189, 196, 4), constant(20.4), constant(0));

    const auto skin = constant(24.0);
    // Clothes: warmer where they lie close, cooler in the folds.
    const auto clothes = [](double x, double y) {
        return 0.42 + 0.05 * std::sin(x / 13 + y / 31) + 0.04 * std::sin(y / 17 - x / 29) +
               0.10 * std::exp(-std::abs(x - 116) / 30);
    };
    m_subject.paint(ellipse(116, 290, 76, 104), skin, clothes);
    m_subject.paint(rod(62, 236, 40, 380, 26), skin, clothes);
    m_subject.paint(rod(170, 236, 192, 380, 26), skin, clothes);
    m_subject.paint(rod(116, 140, 116, 188, 19), skin, [](double x, double) {
        return 0.84 + 0.08 * std::exp(-std::abs(x - 116) / 12);
    });
    m_subject.paint(ellipse(116, 194, 30, 13), skin, clothes);
    m_subject.paint(ellipse(116, 96, 40, 52), skin, constant(0.50));
    for (const double side : {-1.0, 1.0})
        m_subject.paint(ellipse(116 + side * 39, 106, 5, 11), skin, constant(0.66));
    m_subject.paint(ellipse(116, 106, 34, 44), skin, [](double x, double y) {
        const double cheeks = 0.05 * std::exp(-std::abs(std::abs(x - 116) - 18) / 9);
        const double forehead = 0.07 * std::exp(-std::hypot((x - 116) / 26, (y - 80) / 13));
        return 0.82 + forehead - cheeks;
    });
    m_subject.paint(ellipse(116, 118, 6, 9), skin, constant(0.70));
    m_subject.paint(ellipse(116, 134, 11, 3.5), skin, constant(0.90));
    for (const double side : {-1.0, 1.0}) {
        m_subject.paint(ellipse(116 + side * 14, 100, 8, 5), skin, constant(0.87));
        m_subject.paint(circle(116 + side * 6, 102, 4), skin, [side](double x, double y) {
            return fading(std::hypot(x - 116 - side * 6, y - 102), 5);
        });
    }
}

void Scene::buildMotor()
{
    constexpr double bearingX = 184;
    constexpr double bearingY = 176;
    m_background.paint(
        everywhere,
        [](double, double y) { return 22.8 - std::clamp((y - 262) / 10, 0.0, 1.0) * 2.1; },
        [](double x, double y) {
            return 0.05 * std::exp(-std::max(0.0, box(50, 246, 190, 262)(x, y)) / 16);
        });

    const auto steel = constant(24.0);
    const auto toBearing = [](double x, double y) {
        return std::hypot(x - bearingX, y - bearingY);
    };
    m_subject.paint(box(186, 167, 280, 185), steel,
                    [](double x, double) { return 0.12 + 0.5 * fading(x - bearingX, 14); });
    m_subject.paint(box(214, 150, 232, 202, 4), steel, constant(0.15));
    for (const double left : {66.0, 142.0})
        m_subject.paint(box(left, 232, left + 26, 262, 2), steel, constant(0.20));
    m_subject.paint(box(46, 112, 182, 240, 10), steel, [toBearing](double x, double y) {
        const double round = std::sqrt(std::max(0.0, 1 - std::pow((y - 176) / 70, 2)));
        const double fins = 0.035 * std::cos((y - 176) * 2 * M_PI / 9);
        const double windings = 0.30 + 0.10 * std::exp(-std::abs(x - 120) / 40);
        return windings * (0.45 + 0.55 * round) + fins + 0.38 * fading(toBearing(x, y), 26);
    });
    m_subject.paint(box(90, 84, 144, 118, 4), steel, constant(0.24));
    m_subject.paint(box(20, 118, 48, 234, 8), steel, constant(0.09));
    m_subject.paint(box(176, 136, 192, 216, 5), steel, [toBearing](double x, double y) {
        return std::max(0.38, fading(toBearing(x, y), 15));
    });
}

} // namespace simulator
