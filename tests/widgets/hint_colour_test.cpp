#include "widgets/hint_colour.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "support/contrast.h"
#include "support/dark_palette.h"
#include "support/widgets_application.h"

namespace zamo::test {
namespace {

void expectReadable(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base);
  const QColor hint = palette.color(QPalette::PlaceholderText);
  EXPECT_EQ(hint.alpha(), 255);
  EXPECT_GE(contrast(hint, ground), kReadable);
  // And yet no text.
  EXPECT_LT(contrast(hint, ground), 0.7 * contrast(palette.color(QPalette::Text), ground));
}

TEST(HintColour, can_be_read_on_light_and_dark_desktops_and_after_a_change) {
  const Application application;
  keepHintsReadable();
  QLineEdit field;
  field.show();
  expectReadable(field.palette());
  {
    const DarkDesktop dark;
    expectReadable(field.palette());
    const QLineEdit another;
    expectReadable(another.palette());
  }
  EXPECT_GT(luminance(field.palette().color(QPalette::Base)), 0.9);
  expectReadable(field.palette());
}

TEST(HintColour, leaves_the_other_colours_to_the_desktop) {
  const Application application;
  keepHintsReadable();
  const DarkDesktop dark;
  for (const auto role : {QPalette::Window, QPalette::WindowText, QPalette::Base, QPalette::Text})
    EXPECT_EQ(QApplication::palette().color(role), darkPalette().color(role)) << role;
}

}  // namespace
}  // namespace zamo::test
