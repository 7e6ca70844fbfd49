// SPDX-License-Identifier: MIT
#include "simulator/scene.h"

#include <opencv2/imgproc.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace simulator {
namespace {

/// How far a layer may be shifted.
constexpr int margin = 18;

/// Pixels over which the lens blurs an edge.
constexpr double lensBlur = 2.4;
/// About what a good uncooled sensor shows from frame to frame, and what stays in its columns, °C.
constexpr float frameNoise = 0.04F;
constexpr float columnNoise = 0.02F;
constexpr int noiseSize = 1 << 17;

/// A plume of warm (or falling cold) air with its foot at (x, y): `rise` is negative upwards.
void addPlume(Field& field, double x, double y, double rise, double spread, double amplitude,
              double seconds)
{
    const int steps = int(std::abs(rise));
    const int direction = rise < 0 ? -1 : 1;
    for (int step = 0; step < steps; ++step) {
        const int row = int(std::lround(y)) + direction * step;
        if (row < 0 || row >= fieldRows)
            continue;
        const double height = double(step);
        const double width = spread + 0.10 * height;
        const double middle = x + 0.04 * height * std::sin(0.055 * height - 2.3 * seconds) +
                              0.03 * height * std::sin(0.021 * height - 1.1 * seconds + 1);
        const double warmth = amplitude * std::min(1.0, height / 6) * (1 - height / steps) *
                              (0.8 + 0.2 * std::sin(0.11 * height - 3.7 * seconds));
        const int first = std::max(0, int(middle - 2.5 * width));
        const int last = std::min(fieldColumns - 1, int(middle + 2.5 * width));
        for (int column = first; column <= last; ++column) {
            const double off = (column - middle) / width;
            field[fieldIndex(column, row)] += float(warmth * std::exp(-off * off));
        }
    }
}

} // namespace

void Scene::Layer::paint(const Shape& distance, const Shape& own, const Shape& share)
{
    if (canvas.empty())
        canvas = cv::Mat3f(fieldRows + 2 * margin, fieldColumns + 2 * margin, {1, 0, 0});
    for (int row = 0; row < canvas.rows; ++row) {
        for (int column = 0; column < canvas.cols; ++column) {
            const double x = column - margin;
            const double y = row - margin;
            const double cover = std::clamp(0.5 - distance(x, y) / lensBlur, 0.0, 1.0);
            if (cover <= 0)
                continue;
            const double part = std::clamp(share(x, y), 0.0, 1.0);
            const cv::Vec3d painted(0, (1 - part) * own(x, y), part);
            canvas(row, column) = (1 - cover) * cv::Vec3d(canvas(row, column)) + cover * painted;
        }
    }
}

void Scene::Layer::compose(Field& field, double dx, double dy, float hotSpot) const
{
    cv::Mat3f moved;
    const cv::Point2d middle((fieldColumns - 1) / 2.0 + margin - dx,
                             (fieldRows - 1) / 2.0 + margin - dy);
    cv::getRectSubPix(canvas, {fieldColumns, fieldRows}, middle, moved);
    std::transform(field.begin(), field.end(), moved.begin(), field.begin(),
                   [hotSpot](float behind, const cv::Vec3f& layer) {
                       return behind * layer[0] + layer[1] + hotSpot * layer[2];
                   });
}

struct Scene::Row
{
    const char* title;
    double usualHotSpot;
    void (Scene::*build)();
};

const Scene::Row& Scene::rowOf(SceneKind kind)
{
    static constexpr std::array<Row, 4> rows{
        {{"Warm cable joint in a switchboard", 68, &Scene::buildCableJoint},
         {"Draughty window over a radiator", 46, &Scene::buildWindow},
         {"Person", 36.4, &Scene::buildPerson},
         {"Motor with a worn bearing", 84, &Scene::buildMotor}}};
    return rows.at(std::size_t(kind));
}

Scene::Scene(SceneKind kind, unsigned seed) : m_kind(kind)
{
    (this->*rowOf(kind).build)();
    buildNoise(seed);
}

double Scene::usualHotSpot() const
{
    return rowOf(m_kind).usualHotSpot;
}

QString Scene::title(SceneKind kind)
{
    return QString::fromLatin1(rowOf(kind).title);
}

void Scene::buildNoise(unsigned seed)
{
    // Not std::normal_distribution: its values differ from one standard library to the next.
    std::mt19937 random(seed);
    m_noise.resize(noiseSize);
    for (float& value : m_noise) {
        double sum = 0;
        for (int i = 0; i < 4; ++i)
            sum += double(random()) / 4294967296.0 - 0.5;
        value = float(sum * std::sqrt(3.0));
    }
}

void Scene::addMovingAir(Field& field, double seconds, double hotSpot, double dx, double dy) const
{
    switch (m_kind) {
    case SceneKind::CableJoint:
        addPlume(field, 120 + dx, 160 + dy, -120, 7, 0.035 * (hotSpot - 24), seconds);
        break;
    case SceneKind::Window:
        addPlume(field, 62 + dx, 212 + dy, 100, 6, -3.5, 0.6 * seconds);
        addPlume(field, 122 + dx, 247 + dy, -150, 26, 0.05 * (hotSpot - 20), 0.7 * seconds);
        break;
    case SceneKind::Person:
        // Breath: warm for a moment, then drawn in.
        addPlume(field, 116 + dx, 132 + dy, 40, 5, 1.1 * std::sin(1.5 * seconds), seconds);
        break;
    case SceneKind::Motor:
        addPlume(field, 118 + dx, 84 + dy, -84, 20, 0.02 * (hotSpot - 23), seconds);
        // The fan behind its cover: cool blades passing the slots.
        for (int y = 126; y < 226; ++y) {
            for (int x = 24; x < 44; ++x)
                field[fieldIndex(x, y)] +=
                    float((0.02 * (hotSpot - 23)) * std::sin(0.25 * y - 11 * seconds));
        }
        break;
    }
}

Field Scene::field(double seconds, double hotSpot) const
{
    const double swayX = 1.3 * std::sin(0.61 * seconds) + 0.6 * std::sin(1.73 * seconds + 1);
    const double swayY = 1.0 * std::sin(0.47 * seconds + 2) + 0.5 * std::sin(1.39 * seconds);
    double moveX = swayX;
    double moveY = swayY;
    if (m_kind == SceneKind::Person) {
        moveX += 10 * std::sin(0.42 * seconds) + 2 * std::sin(1.1 * seconds);
        moveY += 1.2 * std::sin(1.5 * seconds);
    } else if (m_kind == SceneKind::Motor) {
        moveX += 0.25 * std::sin(23 * seconds);
        moveY += 0.35 * std::sin(29 * seconds);
    }

    Field field(std::size_t(fieldSize), 0.0F);
    m_background.compose(field, swayX, swayY, float(hotSpot));
    if (!m_subject.canvas.empty())
        m_subject.compose(field, moveX, moveY, float(hotSpot));
    addMovingAir(field, seconds, hotSpot, moveX, moveY);

    const auto frame = quint64(std::llround(seconds * 1000));
    const quint64 mixed = (frame + 1) * 0x9E3779B97F4A7C15ULL;
    const float* noise = m_noise.data() + (mixed >> 32) % quint64(noiseSize - fieldSize);
    for (int row = 0; row < fieldRows; ++row) {
        for (int column = 0; column < fieldColumns; ++column) {
            const std::size_t at = fieldIndex(column, row);
            field[at] += frameNoise * noise[at] + columnNoise * m_noise[std::size_t(column)];
        }
    }
    return field;
}

} // namespace simulator
