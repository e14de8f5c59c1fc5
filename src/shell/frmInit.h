// The splash window: shows what is starting, then loads the list of countries and goes.
//
// It closes after ten seconds, at a click anywhere, or at a key. Whichever comes first, the country
// list is loaded on the way out, with the window still there and saying so.
#pragma once

#include "shell/QtForm.h"

class QLabel;
class QTimer;

namespace zg {

class frmCountryFilter;

class frmInit : public Form {
  Q_OBJECT

 public:
  // The window whose list of countries is filled must outlive this one. Logs that the program
  // starts, and the country filter in force.
  frmInit(Application& app, frmCountryFilter& countryFilter, QWidget* parent = nullptr);

  void SetCaptions() override;

  // The way out, for Esc and for a window manager too. Returns when the countries are loaded; while
  // it loads them further clicks do nothing.
  void reject() override;

 protected:
  // Its size is its own: none is remembered. The timers run as long as it is on the screen.
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildBody();
  QTimer* AddTimer(const char* name, int milliseconds, void (frmInit::*tick)());
  void LogStart();
  void BlinkGraphics();  // TimerGraph
  void BlinkAction();    // tmrInit
  void LeaveAtLast();    // tmrAuto

  frmCountryFilter& countryFilter_;
  QLabel* lblGraphics_ = nullptr;
  QLabel* lblAction_ = nullptr;
  QLabel* lblHint_ = nullptr;
  QLabel* lblVersion_ = nullptr;
  QTimer* timerGraph_ = nullptr;
  QTimer* tmrInit_ = nullptr;
  QTimer* tmrAuto_ = nullptr;
  bool loading_ = false;  // the countries are being loaded
};

}  // namespace zg
