// A picture of the world, cut into four quadrants with a check box on each: its coasts, as far as
// the vector files of the base map are there, and a net of meridians and parallels. A quadrant is
// coloured while its box is ticked; a click anywhere on it is a click on the box.
//
// Equal steps of latitude and longitude are equally long, Greenwich is in the middle. The picture
// keeps its shape whatever size it gets.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <array>
#include <string>
#include <vector>

#include "views/WorldOutline.h"

class QCheckBox;

namespace zg {

class WorldPicture : public QWidget {
  Q_OBJECT

 public:
  // The boxes of the quadrants north-east, south-east, south-west, north-west; they become
  // children.
  WorldPicture(const std::array<QCheckBox*, 4>& boxes, QWidget* parent);

  void LoadOutline(const std::string& applicationPath);
  bool HasOutline() const noexcept { return !outline_.empty(); }

  // Where the world is drawn within the widget.
  QRectF World() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QRectF Quadrant(std::size_t index) const;
  QRectF Plate(const QCheckBox& box) const;
  void PlaceBoxes();
  void DrawLines(QPainter& painter) const;
  const QPixmap& Lines();

  std::array<QCheckBox*, 4> boxes_;
  std::vector<OutlineLine> outline_;
  QPixmap lines_;  // coasts and net as drawn last; null if they have to be drawn anew
};

}  // namespace zg
