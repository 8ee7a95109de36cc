// The forms as the operator has them: windows that show the notices of a working database, and a hand that
// types and clicks in them. Each window and each dialog runs its own modal loop, as in the program.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cstdint>
#include <deque>
#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "screens/contour_detail_frm.h"
#include "screens/err_msg_frm.h"
#include "screens/fill_range_frm.h"
#include "screens/notice_selection.h"
#include "screens_window/form_operator.h"
#include "support/widgets_application.h"

namespace zamo::test {

class RealForm : public NoticeSelection {
 protected:
  using FormStep = std::function<void(Operator&)>;
  using DialogStep = std::function<void(QDialog&)>;

  RealForm() {
    run.qryIsNotice = true;
    work.dialogs.showForm = [this](NoticeForm& form) { show(form); };
    work.dialogs.FillRangeFrm = [this](FillGrid grid, int hgtMax) {
      FillRangeFrm dialog(host, grid, hgtMax, QApplication::activeModalWidget());
      exec(dialog);
      return dialog.fill();
    };
    work.dialogs.ErrMsgFrm = [this](const std::string& caption, const std::string& text) {
      ErrMsgFrm dialog(caption, text, QApplication::activeModalWidget());
      exec(dialog);
    };
    work.dialogs.ContourDetailFrm = [this](const NtcRec& contour) {
      const auto noOutlines = [](const GzmpBox&) { return std::vector<GzmpLine>(); };
      ContourDetailFrm dialog(contour, noOutlines, "footer", QApplication::activeModalWidget());
      exec(dialog);
    };
  }

  // Each form that is shown for the entry takes the next of the steps. What a step leaves open is closed by
  // its frame; so is a form without a step.
  void open(std::int32_t idx) {
    openEntry(idx);
    EXPECT_TRUE(steps.empty()) << steps.size() << " forms were not shown";
    EXPECT_TRUE(dialogSteps.empty()) << dialogSteps.size() << " dialogs were not shown";
    EXPECT_EQ(windowsNow(), 0);
  }
  void open(std::int32_t idx, FormStep step) {
    steps.push_back(std::move(step));
    open(idx);
  }
  // Stores a notice and opens it.
  std::int32_t openNew(const NtcRec& ntc, FormStep step) {
    const std::int32_t key = add(ntc);
    run.qryIsNotice = ntc.t_notice_type != "GA1";
    open(run.NtcCount - 1, std::move(step));
    return key;
  }
  std::int32_t openNew(std::string_view kind, FormStep step) {
    return openNew(makeKind(kind), std::move(step));
  }

  NtcRec storedContour(std::int32_t key) {
    NtcRec ntc;
    resetNtc(ntc);
    EXPECT_TRUE(readContourNtcFromDB(host, key, ntc, *run.DbConn)) << key;
    return ntc;
  }

  // What was told since the last time, and nothing else.
  void expectTold(const std::vector<std::string>& boxes, const std::vector<std::string>& questions = {}) {
    expectBoxes(boxes);
    expectQuestions(questions);
    script.boxes.clear();
    script.questions.clear();
  }

  std::deque<FormStep> steps;
  std::deque<DialogStep> dialogSteps;
  std::vector<std::string> shown;  // the forms, by name
  int mostWindows = 0;             // forms that were there at a time

 private:
  static int windowsNow() {
    const QWidgetList all = QApplication::topLevelWidgets();
    return static_cast<int>(std::count_if(all.begin(), all.end(), [](const QWidget* widget) {
      return dynamic_cast<const NoticeWindow*>(widget) != nullptr;
    }));
  }

  template <typename Step>
  static Step takeNext(std::deque<Step>& from) {
    if (from.empty()) return {};
    Step next = std::move(from.front());
    from.pop_front();
    return next;
  }

  // A failure of the test must not pass through the toolkit's loop.
  template <typename Act>
  static void guard(QWidget& window, const Act& act) {
    try {
      activate(window);
      act();
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
    if (window.isVisible()) window.close();
  }

  void show(NoticeForm& form) {
    const FormStep step = takeNext(steps);
    QWidget* const below = QApplication::activeModalWidget();
    QTimer::singleShot(0, [&] {
      auto* const window = dynamic_cast<NoticeWindow*>(QApplication::activeModalWidget());
      ASSERT_NE(window, nullptr);
      shown.push_back(window->objectName().toStdString());
      mostWindows = std::max(mostWindows, windowsNow());
      guard(*window, [&] {
        Operator hand(*window, form);
        if (step) step(hand);
      });
    });
    showNoticeWindow(form, below);
    if (below != nullptr) activate(*below);
  }

  void exec(QDialog& dialog) {
    const DialogStep step = takeNext(dialogSteps);
    EXPECT_TRUE(step) << "an unexpected " << dialog.objectName().toStdString();
    QTimer::singleShot(0, &dialog, [&] {
      guard(dialog, [&] {
        if (step) step(dialog);
      });
    });
    dialog.exec();
    activate(*dialog.parentWidget());
  }

  Application application;
};

}  // namespace zamo::test
