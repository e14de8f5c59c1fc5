#include "shell/QtSplashPicture.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <cmath>
#include <optional>

namespace zg {
namespace {

constexpr double Radians = 3.14159265358979323846 / 180;

// Degrees, north and east positive.
struct Place {
  double Lat;
  double Lon;
};

// The middle of the half of the globe that is seen.
constexpr Place Middle = {38, 4};

struct Wind {
  Place Where;
  double From;  // degrees from north
  int Knots;    // in fives
};

constexpr Wind Winds[] = {
    {{65, -32}, 60, 25}, {{66, 8}, 100, 15}, {{50, -38}, 320, 50}, {{44, -10}, 250, 35},
    {{57, 22}, 180, 10}, {{42, 18}, 20, 10}, {{36, -34}, 300, 20}, {{30, -12}, 40, 15},
    {{33, 30}, 320, 5},  {{22, 8}, 60, 10},  {{12, -24}, 50, 15},  {{48, 40}, 150, 15},
};

// Isobars as rings around a low and a high: radius in degrees of arc.
struct Ring {
  Place Centre;
  double Radius;
};

constexpr Ring Rings[] = {
    {{55, -18}, 5}, {{55, -18}, 9}, {{55, -18}, 13.5}, {{55, -18}, 19},
    {{33, 14}, 6},  {{33, 14}, 12}, {{33, 14}, 19},
};

class Globe {
 public:
  Globe(QPointF centre, double radius) : centre_(centre), radius_(radius) {}

  // Orthographic projection; nothing for a place on the far side.
  std::optional<QPointF> Project(Place place) const {
    const double lat = place.Lat * Radians;
    const double lon = (place.Lon - Middle.Lon) * Radians;
    const double middle = Middle.Lat * Radians;
    const double depth =
        std::sin(middle) * std::sin(lat) + std::cos(middle) * std::cos(lat) * std::cos(lon);
    if (depth < 0.02) return std::nullopt;
    const double x = std::cos(lat) * std::sin(lon);
    const double y =
        std::cos(middle) * std::sin(lat) - std::sin(middle) * std::cos(lat) * std::cos(lon);
    return centre_ + QPointF(x, -y) * radius_;
  }

  // The line through the places that `at` gives for 0, 1, ... steps, where it is seen.
  template <typename At>
  QPainterPath Line(int steps, At at) const {
    QPainterPath path;
    bool seen = false;
    for (int i = 0; i <= steps; ++i) {
      const std::optional<QPointF> point = Project(at(i));
      if (point && seen) path.lineTo(*point);
      if (point && !seen) path.moveTo(*point);
      seen = point.has_value();
    }
    return path;
  }

 private:
  QPointF centre_;
  double radius_;
};

// The place at a distance (degrees of arc) and bearing from another, on a great circle.
Place Destination(Place from, double distance, double bearing) {
  const double lat = from.Lat * Radians;
  const double arc = distance * Radians;
  const double to = std::asin(std::sin(lat) * std::cos(arc) +
                              std::cos(lat) * std::sin(arc) * std::cos(bearing * Radians));
  const double lon = std::atan2(std::sin(bearing * Radians) * std::sin(arc) * std::cos(lat),
                                std::cos(arc) - std::sin(lat) * std::sin(to));
  return {to / Radians, from.Lon + lon / Radians};
}

void DrawBall(QPainter& painter, QPointF centre, double radius) {
  QRadialGradient air(centre, radius * 1.18);
  air.setColorAt(0.84, QColor(140, 205, 240, 90));
  air.setColorAt(1, QColor(140, 205, 240, 0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(air);
  painter.drawEllipse(centre, radius * 1.18, radius * 1.18);

  QRadialGradient water(centre, radius, centre + QPointF(-0.45, -0.5) * radius);
  water.setColorAt(0, QColor(86, 160, 200));
  water.setColorAt(0.55, QColor(28, 92, 148));
  water.setColorAt(1, QColor(8, 34, 76));
  painter.setBrush(water);
  painter.drawEllipse(centre, radius, radius);
}

void DrawLines(QPainter& painter, const Globe& globe, double width) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(255, 255, 255, 48), width));
  for (int lon = -180; lon < 180; lon += 15) {
    painter.drawPath(globe.Line(160, [lon](int i) { return Place{i - 80.0, 1.0 * lon}; }));
  }
  for (int lat = -45; lat <= 75; lat += 15) {
    painter.drawPath(globe.Line(180, [lat](int i) { return Place{1.0 * lat, 2.0 * i}; }));
  }
  painter.setPen(QPen(QColor(255, 224, 150, 150), width * 1.3));
  for (const Ring& ring : Rings) {
    // Not quite round, as pressure is.
    painter.drawPath(globe.Line(120, [&ring](int i) {
      const double bearing = 3.0 * i;
      const double wave = 1 + 0.13 * std::cos((2 * bearing - 40) * Radians) +
                          0.05 * std::sin(3 * bearing * Radians);
      return Destination(ring.Centre, ring.Radius * wave, bearing);
    }));
  }
}

// A station with its barb: a pennant for 50 knots, a long stroke for 10, a short one for 5.
void DrawWind(QPainter& painter, QPointF station, double from, int knots, double length) {
  painter.save();
  painter.translate(station);
  painter.rotate(from);
  painter.setPen(QPen(Qt::white, length * 0.055, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::white);
  painter.drawEllipse(QPointF(0, 0), length * 0.085, length * 0.085);
  painter.drawLine(QPointF(0, 0), QPointF(0, -length));
  const double step = length * 0.17;
  double at = -length;
  for (; knots >= 50; knots -= 50, at += 1.6 * step) {
    painter.drawPolygon(QPolygonF({{0, at}, {length * 0.4, at}, {0, at + step}}));
  }
  for (; knots >= 10; knots -= 10, at += step) {
    painter.drawLine(QPointF(0, at), QPointF(length * 0.4, at - 0.6 * step));
  }
  // A short stroke alone stands a little away from the end.
  if (knots >= 5) {
    if (at == -length) at += step;
    painter.drawLine(QPointF(0, at), QPointF(length * 0.2, at - 0.3 * step));
  }
  painter.restore();
}

}  // namespace

void SplashPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient sky(0, 0, 0, height());
  sky.setColorAt(0, QColor(7, 16, 40));
  sky.setColorAt(1, QColor(20, 66, 108));
  painter.fillRect(rect(), sky);

  // The globe rises from the lower right corner, larger than the window.
  const double radius = height() * 0.86;
  const QPointF centre(width() - radius * 0.72, height() * 0.98);
  DrawBall(painter, centre, radius);
  const Globe globe(centre, radius);
  DrawLines(painter, globe, height() / 300.0);
  for (const Wind& wind : Winds) {
    const std::optional<QPointF> station = globe.Project(wind.Where);
    if (station) DrawWind(painter, *station, wind.From, wind.Knots, height() * 0.11);
  }
}

}  // namespace zg
