// Two small forms: one for a long text, and the one that tells what program this is.
#pragma once

#include <QDialog>
#include <string_view>

namespace zamo {

// Shows a text that may be long, under a caption of the caller's.
class ErrMsgFrm final : public QDialog {
 public:
  ErrMsgFrm(std::string_view caption, std::string_view text, QWidget* parent = nullptr);
};

class AboutFrm final : public QDialog {
 public:
  explicit AboutFrm(std::string_view version, QWidget* parent = nullptr);
};

}  // namespace zamo
