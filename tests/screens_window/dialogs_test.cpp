#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include "screens/contour_detail_frm.h"
#include "screens/err_msg_frm.h"
#include "screens/fill_range_frm.h"
#include "support/scripted_host.h"
#include "support/valid_notices.h"
#include "support/widgets_application.h"
#include "widgets/qt_text.h"

namespace zamo {
namespace {

template <typename Widget>
Widget& controlOf(const QWidget& form, const char* name) {
  auto* const found = form.findChild<Widget*>(name);
  if (found == nullptr) throw std::logic_error(std::string("no control ") + name);
  return *found;
}

std::string plain(QString text) {
  return text.remove('&').toStdString();
}

class FillRange : public testing::Test {
 protected:
  void open(FillGrid grid, int hgtMax = 300) {
    form = std::make_unique<FillRangeFrm>(host, grid, hgtMax);
    form->show();
    (void)QTest::qWaitForWindowActive(form.get());
    field("TxtFrom").setFocus();
  }
  QLineEdit& field(const char* name) { return controlOf<QLineEdit>(*form, name); }
  QPushButton& button(const char* name) { return controlOf<QPushButton>(*form, name); }
  std::string label(const char* name) { return plain(controlOf<QLabel>(*form, name).text()); }

  // Types the value as a user does and leaves the field. Gives whether it could be left.
  bool type(const char* name, const char* text) {
    field(name).setFocus();
    field(name).selectAll();
    QTest::keyClicks(&field(name), text);
    QTest::keyClick(&field(name), Qt::Key_Tab);
    return !field(name).hasFocus();
  }
  void expectBox(const std::string& text, const std::string& title) {
    ASSERT_EQ(script.boxes.size(), 1U);
    EXPECT_EQ(script.boxes[0].text, text);
    EXPECT_EQ(script.boxes[0].title, title);
    EXPECT_EQ(script.boxes[0].icon, BoxIcon::exclamation);
    script.boxes.clear();
  }

  test::Application application;
  test::Script script;
  Host host = test::makeScriptedHost(script);
  std::unique_ptr<FillRangeFrm> form;
};

const std::string kAzm = "The azm must be between [0, 350] at 10\272 intervals";
const std::string kFillRange = "Prevalidation Error - Fill Range";

TEST_F(FillRange, the_captions_are_those_of_the_grid) {
  open(FillGrid::effectiveHeight);
  EXPECT_EQ(form->objectName(), "FillRangeFrm");
  EXPECT_EQ(form->windowTitle().toStdString(), "Fill in Effective Antenna Height for a Range of azimuths");
  EXPECT_EQ(label("LblValue"), "eff_hgt");
  EXPECT_EQ(label("LblFrom"), "From");
  EXPECT_EQ(label("LblTo"), "To");
  EXPECT_EQ(label("LblAzm"), "Azimuth");
  EXPECT_EQ(plain(button("Button_OK").text()), "OK");
  EXPECT_EQ(plain(button("Button_Cancel").text()), "Cancel");
  open(FillGrid::attenuation);
  EXPECT_EQ(form->windowTitle().toStdString(), "Fill in e.r.p Attenuation for a Range of azimuths");
  EXPECT_EQ(label("LblValue"), "attn");
}

TEST_F(FillRange, OK_is_enabled_when_all_three_are_filled) {
  open(FillGrid::attenuation);
  EXPECT_FALSE(button("Button_OK").isEnabled());
  field("TxtFrom").setText("0");
  field("TxtTo").setText("350");
  EXPECT_FALSE(button("Button_OK").isEnabled());
  field("TxtValue").setText("3");
  EXPECT_TRUE(button("Button_OK").isEnabled());
  field("TxtTo").clear();
  EXPECT_FALSE(button("Button_OK").isEnabled());
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, OK_hands_back_range_and_value) {
  open(FillGrid::attenuation);
  EXPECT_TRUE(type("TxtFrom", "0"));
  EXPECT_TRUE(type("TxtTo", "350"));
  EXPECT_TRUE(type("TxtValue", "40.0"));
  QTest::mouseClick(&button("Button_OK"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->fill().from, 0);
  EXPECT_EQ(form->fill().to, 350);
  EXPECT_EQ(form->fill().value, "40.0");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, Cancel_hands_back_no_azimuth_whatever_stands_there) {
  open(FillGrid::attenuation);
  QTest::keyClicks(&field("TxtFrom"), "15");
  QTest::mouseClick(&button("Button_Cancel"), Qt::LeftButton);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->fill().from, 9999);
  EXPECT_EQ(form->fill().to, 9999);
  EXPECT_EQ(form->fill().value, "");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, azimuths_are_multiples_of_ten_up_to_350) {
  open(FillGrid::attenuation);
  for (const char* name : {"TxtFrom", "TxtTo"}) {
    for (const char* wrong : {"15", "360", "-10", "10.0", "x", "1,0"}) {
      EXPECT_FALSE(type(name, wrong)) << wrong;
      expectBox(kAzm, kFillRange);
    }
    EXPECT_TRUE(type(name, "350"));
    EXPECT_TRUE(type(name, "0"));
  }
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, a_range_that_ends_before_it_begins_is_refused) {
  open(FillGrid::attenuation);
  EXPECT_TRUE(type("TxtFrom", "350"));
  EXPECT_FALSE(type("TxtTo", "0"));
  expectBox("Invalid range, azm:FROM is greater than azm:TO", kFillRange);
  EXPECT_TRUE(type("TxtTo", "350"));
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, typing_brings_no_box_before_the_field_is_left) {
  open(FillGrid::attenuation);
  QTest::keyClicks(&field("TxtFrom"), "350");
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, heights_are_whole_and_not_above_the_greatest) {
  open(FillGrid::effectiveHeight, 300);
  for (const char* wrong : {"301", "-3001", "2.5", "x"}) {
    EXPECT_FALSE(type("TxtValue", wrong)) << wrong;
    expectBox("Value must be an integer between [-3000, 3000] and less than the t_eff_hgtmax (9EB)",
              "Prevalidation Error - Eff. ant. height");
  }
  EXPECT_TRUE(type("TxtValue", "300"));
  EXPECT_TRUE(type("TxtValue", "-3000"));
  EXPECT_TRUE(script.boxes.empty());
}

TEST_F(FillRange, without_a_greatest_height_no_positive_one_passes) {
  open(FillGrid::effectiveHeight, 0);
  EXPECT_FALSE(type("TxtValue", "1"));
  script.boxes.clear();
  EXPECT_TRUE(type("TxtValue", "0"));
  EXPECT_TRUE(type("TxtValue", "-1"));
}

TEST_F(FillRange, attenuations_end_at_40) {
  open(FillGrid::attenuation);
  for (const char* wrong : {"40.1", "-0.1", "x"}) {
    EXPECT_FALSE(type("TxtValue", wrong)) << wrong;
    expectBox(" : Value should be a numerical between [0.0 , 40.0]", "Prevalidation Error - Attenuation ");
  }
  EXPECT_TRUE(type("TxtValue", "40.0"));
  EXPECT_TRUE(type("TxtValue", "0"));
}

TEST_F(FillRange, OK_checks_what_was_never_left) {
  open(FillGrid::attenuation);
  field("TxtFrom").setText("15");
  field("TxtTo").setText("20");
  field("TxtValue").setText("3");
  field("TxtValue").setFocus();
  script.boxes.clear();
  button("Button_OK").click();
  expectBox(kAzm, kFillRange);
  EXPECT_TRUE(form->isVisible());
}

TEST(ErrMsgForm, shows_its_text_and_closes) {
  const test::Application application;
  ErrMsgFrm form("Notice Error(s)", "FATAL ERROR : \r\n : <HEAD> & more\r\n");
  form.show();
  EXPECT_EQ(form.objectName(), "ErrMsgFrm");
  EXPECT_EQ(form.windowTitle(), "Notice Error(s)");
  const auto& text = controlOf<QPlainTextEdit>(form, "ErrorMsgTxt");
  EXPECT_EQ(text.toPlainText(), "FATAL ERROR : \n : <HEAD> & more\n");
  EXPECT_TRUE(text.isReadOnly());
  auto& close = controlOf<QPushButton>(form, "Button_Close");
  EXPECT_EQ(plain(close.text()), "Close");
  close.click();
  EXPECT_FALSE(form.isVisible());
}

TEST(AboutForm, tells_the_version_and_closes) {
  const test::Application application;
  AboutFrm form(" KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009");
  form.show();
  EXPECT_EQ(form.objectName(), "AboutFrm");
  EXPECT_TRUE(controlOf<QPlainTextEdit>(form, "TxtAbout")
                  .toPlainText()
                  .startsWith(" KV19 Zamo HDLK Digital Version 2.08 / 08.04.2009\n"));
  auto& ok = controlOf<QPushButton>(form, "ButtonOK");
  EXPECT_EQ(plain(ok.text()), "OK");
  ok.click();
  EXPECT_FALSE(form.isVisible());
}

PointRec pointAt(const char* longitude, const char* latitude) {
  return {true, longitude, latitude};
}

TEST(ContourDetail, coordinates_become_signed_degrees) {
  EXPECT_EQ(chartPoint(pointAt("+0023000", "+471500")), QPointF(2.5, 47.25));
  EXPECT_EQ(chartPoint(pointAt("-0023000", "-471500")), QPointF(-2.5, -47.25));
  EXPECT_NEAR(chartPoint(pointAt("+0000036", "+000036")).x(), 0.01, 1e-6);
}

class ContourForm : public testing::Test {
 protected:
  ContourForm() {
    contour = makeGa1();
    contour.digital.contour.t_contour_id = "42";
    contour.digital.contour.t_nb_test_pts = "3";
    contour.digital.contour.points = {pointAt("+0020000", "+470000"), pointAt("+0030000", "+470000"),
                                      pointAt("+0030000", "+480000")};
    form = std::make_unique<ContourDetailFrm>(
        contour,
        [this](const GzmpBox& box) {
          asked.push_back(box);
          return std::vector<GzmpLine>{{{46.5F, 1.5F}, {48.5F, 3.5F}}};
        },
        "drawn by a test");
    form->resize(900, 560);
    form->show();
    (void)QTest::qWaitForWindowExposed(form.get());
  }
  ContourChart& chart() { return dynamic_cast<ContourChart&>(controlOf<QWidget>(*form, "MSChart_Contour")); }

  test::Application application;
  NtcRec contour;
  std::vector<GzmpBox> asked;
  std::unique_ptr<ContourDetailFrm> form;
};

TEST_F(ContourForm, tells_number_count_administration_and_points) {
  EXPECT_EQ(form->objectName(), "ContourDetailFrm");
  EXPECT_EQ(controlOf<QLineEdit>(*form, "Txt_LMZ04_contour_id").text(), "42");
  EXPECT_EQ(controlOf<QLineEdit>(*form, "Txt_LMZ04_nb_test_pts").text(), "3");
  EXPECT_EQ(controlOf<QLineEdit>(*form, "TxtAdm").text(), "F");
  EXPECT_EQ(controlOf<QLineEdit>(*form, "TxtCtry").text(), "F");
  const auto& list = controlOf<QListWidget>(*form, "ListBox_LMZ04_Coordinates");
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(list.item(0)->text(), "0020000E 470000N");
  EXPECT_EQ(list.item(2)->text(), "0030000E 480000N");
  EXPECT_EQ(controlOf<QLabel>(*form, "Lbl_PrinterFooter").text(), "drawn by a test");
  auto& close = controlOf<QPushButton>(*form, "Button_Close");
  EXPECT_EQ(plain(close.text()), "Close");
  close.click();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(ContourForm, number_and_count_need_the_contour_itself) {
  contour.digital.contour.present = false;
  const ContourDetailFrm bare(
      contour, [](const GzmpBox&) { return std::vector<GzmpLine>(); }, "");
  EXPECT_EQ(controlOf<QLineEdit>(bare, "Txt_LMZ04_contour_id").text(), "");
  EXPECT_EQ(controlOf<QLineEdit>(bare, "Txt_LMZ04_nb_test_pts").text(), "");
}

TEST_F(ContourForm, the_chart_has_the_points_in_their_order_under_its_title) {
  EXPECT_EQ(chart().title(), "Contour ID : 42");
  EXPECT_EQ(chart().points(), (QPolygonF{{2, 47}, {3, 47}, {3, 48}}));
  ASSERT_FALSE(asked.empty());
  EXPECT_LT(asked[0].west, 2);
  EXPECT_GT(asked[0].east, 3);
  EXPECT_LT(asked[0].south, 47);
  EXPECT_GT(asked[0].north, 48);
}

TEST_F(ContourForm, a_kilometre_is_as_long_on_both_axes) {
  const QPointF origin = chart().placeOf({2.5, 47.5});
  const double up = origin.y() - chart().placeOf({2.5, 48.5}).y();
  const double right = chart().placeOf({3.5, 47.5}).x() - origin.x();
  EXPECT_GT(up, 0);
  EXPECT_NEAR(right / up, std::cos(47.5 * 3.14159265 / 180), 0.01);
}

TEST_F(ContourForm, the_contour_is_drawn_closed_over_the_outlines) {
  const QImage image = chart().grab().toImage();
  const double ratio = image.devicePixelRatio();
  const auto colourAt = [&](const QPointF& point) {
    return image.pixelColor((chart().placeOf(point) * ratio).toPoint());
  };
  const QColor line = chart().palette().color(QPalette::Highlight);
  const auto isLine = [&](const QPointF& point) {
    const QColor colour = colourAt(point);
    return std::abs(colour.red() - line.red()) + std::abs(colour.green() - line.green()) +
               std::abs(colour.blue() - line.blue()) <
           90;
  };
  EXPECT_TRUE(isLine({2.5, 47}));
  EXPECT_TRUE(isLine({3, 47.5}));
  EXPECT_TRUE(isLine({2.5, 47.5})) << "the last point joins the first";
  EXPECT_FALSE(isLine({2.2, 47.7}));
  EXPECT_NE(colourAt({1.9, 46.9}), colourAt({2.1, 47.75})) << "the outline of a country";
}

TEST(ContourDetail, a_contour_without_points_is_shown_empty) {
  const test::Application application;
  NtcRec ntc = makeGa1();
  ntc.digital.contour.points.clear();
  ContourDetailFrm form(
      ntc, [](const GzmpBox&) { return std::vector<GzmpLine>(); }, "");
  form.show();
  EXPECT_EQ(controlOf<QListWidget>(form, "ListBox_LMZ04_Coordinates").count(), 0);
  EXPECT_FALSE(form.grab().isNull());
}

}  // namespace
}  // namespace zamo
