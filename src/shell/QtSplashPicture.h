// The picture of the splash window: a globe in the night with isobars and wind barbs. It is drawn
// at whatever size and density the screen has. Its colours are its own, in light and dark desktops.
#pragma once

#include <QWidget>

namespace zg {

class SplashPicture : public QWidget {
  Q_OBJECT

 public:
  explicit SplashPicture(QWidget* parent = nullptr) : QWidget(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace zg
