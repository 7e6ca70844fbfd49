// SPDX-License-Identifier: MIT
#pragma once

#include "live/live_frame.h"

#include <QString>

#include <opencv2/core.hpp>

#include <functional>
#include <vector>

namespace simulator {

/// Temperatures in °C of what the imager looks at, row after row: 320 rows of 240.
using Field = std::vector<float>;

constexpr int fieldColumns = live::frameColumns;
constexpr int fieldRows = live::frameRows;
constexpr int fieldSize = fieldColumns * fieldRows;

/// Where column x of row y stands in a field.
constexpr std::size_t fieldIndex(int x, int y)
{
    return std::size_t(y) * fieldColumns + std::size_t(x);
}

enum class SceneKind
{
    CableJoint,
    Window,
    Person,
    Motor
};

/// Something to look at: an arrangement of things with temperatures, seen by a hand-held imager
/// that sways a little and whose sensor is a little noisy.
///
/// Everything warm draws its warmth from one hot spot: its temperature is given with each picture,
/// and the other things share in it by what conduction, convection or blood flow leaves of it. So
/// the hot spot is the hottest place of the picture while it is warmer than the surroundings.
///
/// Two scenes of the same kind and seed give the same field for the same time and temperature.
class Scene
{
public:
    explicit Scene(SceneKind kind, unsigned seed = 1);

    SceneKind kind() const { return m_kind; }
    /// The temperature this hot spot usually has, °C.
    double usualHotSpot() const;
    /// What it shows, in English.
    static QString title(SceneKind kind);

    /// The field after `seconds`, with the hot spot at `hotSpot` °C.
    Field field(double seconds, double hotSpot) const;

private:
    /// A thing, or all that stands still, on a canvas larger than the picture, so that it can be
    /// shifted. Three numbers for each pixel: what it lets through from behind, its own temperature
    /// and its share in the hot spot, weighted so that
    /// picture = behind × clear + own + hotSpot × share.
    struct Layer
    {
        using Shape = std::function<double(double x, double y)>;
        /// Paints a shape over what is there. `distance` is the signed distance from its edge in
        /// pixels, negative inside; `own` in °C and `share` 0 … 1 belong to a point of the picture.
        void paint(const Shape& distance, const Shape& own, const Shape& share);
        /// The layer moved by (dx, dy) pixels, over `field`.
        void compose(Field& field, double dx, double dy, float hotSpot) const;

        cv::Mat3f canvas; ///< empty before something is painted
    };

    void buildCableJoint();
    void buildWindow();
    void buildPerson();
    void buildMotor();
    void buildNoise(unsigned seed);

    struct Row;
    static const Row& rowOf(SceneKind kind);
    void addMovingAir(Field& field, double seconds, double hotSpot, double dx, double dy) const;

    SceneKind m_kind;
    Layer m_background;
    Layer m_subject; ///< moves by itself; empty where nothing does
    std::vector<float> m_noise;
};

} // namespace simulator
