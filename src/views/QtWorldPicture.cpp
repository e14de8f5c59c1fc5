#include "views/QtWorldPicture.h"

#include <QCheckBox>
#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygonF>

namespace zg {
namespace {

constexpr int MinutesOfCircle = 360 * 60;
constexpr int NetStep = 30;      // degrees between meridians and between parallels
constexpr int OutlineStep = 20;  // minutes: more than the usual size can show
constexpr double TintOfTicked = 0.22;

// Which half of the world a quadrant is in: 1 for east and south, as coordinates run.
constexpr std::array<QPoint, 4> Places = {QPoint(1, 0), QPoint(1, 1), QPoint(0, 1), QPoint(0, 0)};

QColor WithAlpha(QColor color, double alpha) {
  color.setAlphaF(static_cast<float>(alpha));
  return color;
}

}  // namespace

WorldPicture::WorldPicture(const std::array<QCheckBox*, 4>& boxes, QWidget* parent)
    : QWidget(parent), boxes_(boxes) {
  for (QCheckBox* box : boxes_) box->setParent(this);
  for (std::size_t i = 1; i < boxes_.size(); ++i) setTabOrder(boxes_[i - 1], boxes_[i]);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void WorldPicture::LoadOutline(const std::string& applicationPath) {
  outline_ = ReadWorldOutline(applicationPath, OutlineStep);
  lines_ = {};
  update();
}

// --- Places ----------------------------------------------------------------------------------

QRectF WorldPicture::World() const {
  const double width = qMin<double>(this->width(), 2.0 * height());
  QRectF world(0, 0, width, width / 2);
  world.moveCenter(QRectF(rect()).center());
  return world;
}

QRectF WorldPicture::Quadrant(std::size_t index) const {
  const QRectF world = World();
  const QSizeF size = world.size() / 2;
  const QPoint place = Places[index];
  return {world.topLeft() + QPointF(place.x() * size.width(), place.y() * size.height()), size};
}

// What a box stands on, so that its caption can be read over the coasts.
QRectF WorldPicture::Plate(const QCheckBox& box) const {
  const double margin = fontMetrics().height() / 2.0;
  return QRectF(box.geometry()).adjusted(-margin, -margin / 2, margin, margin / 2);
}

void WorldPicture::PlaceBoxes() {
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    QRect place(QPoint(), boxes_[i]->sizeHint());
    place.moveCenter(Quadrant(i).center().toPoint());
    boxes_[i]->setGeometry(place);
  }
  update();
}

QSize WorldPicture::sizeHint() const {
  const int width = qMax(fontMetrics().height() * 50, minimumSizeHint().width());
  return {width, width / 2};
}

QSize WorldPicture::minimumSizeHint() const {
  int width = 0;
  for (const QCheckBox* box : boxes_) width = qMax(width, box->sizeHint().width());
  // Two boxes beside each other, with room for their plates.
  width = 2 * (width + 2 * fontMetrics().height());
  return {width, width / 2};
}

// --- Events ----------------------------------------------------------------------------------

bool WorldPicture::event(QEvent* event) {
  // A caption has changed.
  if (event->type() == QEvent::LayoutRequest) {
    PlaceBoxes();
    updateGeometry();
  }
  return QWidget::event(event);
}

void WorldPicture::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) lines_ = {};
  QWidget::changeEvent(event);
}

void WorldPicture::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  lines_ = {};
  PlaceBoxes();
}

void WorldPicture::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    if (!Quadrant(i).contains(event->position())) continue;
    boxes_[i]->setFocus(Qt::MouseFocusReason);
    boxes_[i]->click();
    return;
  }
}

// --- Drawing ---------------------------------------------------------------------------------

void WorldPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QPalette& colors = palette();
  for (std::size_t i = 0; i < boxes_.size(); ++i) {
    painter.fillRect(Quadrant(i), colors.base());
    if (boxes_[i]->isChecked()) {
      painter.fillRect(Quadrant(i), WithAlpha(colors.color(QPalette::Highlight), TintOfTicked));
    }
  }
  painter.drawPixmap(0, 0, Lines());

  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colors.color(QPalette::Mid), 0));
  painter.setBrush(WithAlpha(colors.color(QPalette::Window), 0.9));
  const double radius = fontMetrics().height() / 4.0;
  for (const QCheckBox* box : boxes_) painter.drawRoundedRect(Plate(*box), radius, radius);
}

// The lines are many and change with the size only; what changes with a click lies below them.
const QPixmap& WorldPicture::Lines() {
  const double ratio = devicePixelRatioF();
  if (lines_.isNull() || lines_.devicePixelRatio() != ratio) {
    lines_ = QPixmap((QSizeF(size()) * ratio).toSize());
    lines_.setDevicePixelRatio(ratio);
    lines_.fill(Qt::transparent);
    QPainter painter(&lines_);
    DrawLines(painter);
  }
  return lines_;
}

void WorldPicture::DrawLines(QPainter& painter) const {
  const QRectF world = World();
  const QColor ink = palette().color(QPalette::Text);
  const double perDegree = world.width() / 360;

  painter.setPen(QPen(WithAlpha(ink, 0.12), 0));
  for (int degree = NetStep; degree < 360; degree += NetStep) {
    const double x = world.left() + degree * perDegree;
    painter.drawLine(QPointF(x, world.top()), QPointF(x, world.bottom()));
  }
  for (int degree = NetStep; degree < 180; degree += NetStep) {
    const double y = world.top() + degree * perDegree;
    painter.drawLine(QPointF(world.left(), y), QPointF(world.right(), y));
  }

  painter.setClipRect(world.adjusted(0, 0, -1, -1));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(WithAlpha(ink, 0.5), 0));
  QPolygonF shape;
  for (const OutlineLine& line : outline_) {
    shape.clear();
    for (const OutlinePoint& point : line) {
      shape << world.center() + QPointF(point.Long, -point.Lat) * (world.width() / MinutesOfCircle);
    }
    painter.drawPolyline(shape);
  }

  // Equator and Greenwich part the quadrants.
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.setPen(QPen(WithAlpha(ink, 0.6), 2));
  painter.drawLine(QPointF(world.left(), world.center().y()),
                   QPointF(world.right(), world.center().y()));
  painter.drawLine(QPointF(world.center().x(), world.top()),
                   QPointF(world.center().x(), world.bottom()));
  painter.setClipping(false);
  painter.setPen(QPen(palette().color(QPalette::Mid), 0));
  painter.drawRect(world.adjusted(0, 0, -1, -1));
}

}  // namespace zg
