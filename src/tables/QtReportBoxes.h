// The controls that report windows are made of: boxes for the texts of a record, and the box that
// lists the records of a store.
#pragma once

#include <QAbstractListModel>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>

#include "shell/Application.h"
#include "tables/ReportFields.h"

namespace zg {

// A line of text to be read and selected. It is grey and out of the way of the Tab key while there
// is nothing in it; a text that does not fit shows as a tool tip.
class ReportBox : public QLineEdit {
  Q_OBJECT

 public:
  // `width` in characters: room for so many is asked for; a box for long texts does with less.
  ReportBox(int width, QWidget* parent);

  void ShowText(const QString& text);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return SizeOf(width_); }

 protected:
  bool event(QEvent* event) override;
  QSize SizeOf(int width) const;

 private:
  int width_;
};

// One character of the symbol font, large.
class ReportSymbol : public ReportBox {
  Q_OBJECT

 public:
  explicit ReportSymbol(QWidget* parent);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void SetSymbolFont();
};

// A text of some lines.
class ReportLines : public QPlainTextEdit {
  Q_OBJECT

 public:
  // `width` in characters.
  ReportLines(int width, int lines, QWidget* parent);

  void ShowText(const QString& text);

  QSize minimumSizeHint() const override;
  QSize sizeHint() const override { return minimumSizeHint(); }

 private:
  int width_;
  int lines_;
};

// A page that scrolls where the window is too small for it.
class ReportPage : public QScrollArea {
  Q_OBJECT

 public:
  ReportPage(QWidget* page, QWidget* parent);

  QSize sizeHint() const override;
};

// The records of a store by their names, each made when it is asked for.
class RecordList : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { SearchRole = Qt::UserRole };  // what a record is found by

  RecordList(const Application& app, const ReportTable& table, QObject* parent);

  // The store has other records.
  void Reload();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const Application& app_;
  const ReportTable& table_;
  int count_ = 0;
};

// The box with all records of a store. What is typed into it finds records by any part of their
// names, identifiers and countries.
class RecordBox : public QComboBox {
  Q_OBJECT

 public:
  // `width` in characters.
  RecordBox(const Application& app, const ReportTable& table, int width, QWidget* parent);

  // The store has other records: none is selected.
  void Reload() { records_->Reload(); }

  // True if the keyboard goes to it.
  bool HasFocus() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void ChooseFound();
  void ShowSelected();

  RecordList* records_;
};

}  // namespace zg
