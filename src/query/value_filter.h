// One frame of the query form in which values are picked from those that the database holds.
#pragma once

#include <string>
#include <vector>

#include "query/selection.h"

class QGroupBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace zamo {

struct ValueFilterNames {
  const char* frame;
  const char* frameCaption;
  const char* source;
  const char* sourceCaption;
  const char* dataList;
  const char* selectList;
  const char* add;
  const char* addCaption;
  const char* del;
  const char* addAll;
  const char* clear;
};

class ValueFilter {
 public:
  explicit ValueFilter(const ValueFilterNames& names);
  ValueFilter(const ValueFilter&) = delete;
  ValueFilter& operator=(const ValueFilter&) = delete;

  QGroupBox* frame() const { return frame_; }

  // Makes these the values to pick from. What was chosen stays, and so does a pick that is still there.
  void show(const std::vector<std::string>& values);

  ListChoice choice() const;

 private:
  void placeControls();
  void connectControls();
  void pick();
  void add();
  void addAll();
  void choose();
  void del();
  void clear();

  QGroupBox* frame_;
  QLabel* source_;  // shown nowhere
  QListWidget* dataList_;
  QListWidget* selectList_;
  QPushButton* add_;
  QPushButton* del_;
  QPushButton* addAll_;
  QPushButton* clear_;
  bool allAdded_ = false;
};

}  // namespace zamo
