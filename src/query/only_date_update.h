// The dialog that asks from when on updated records are to be exported.
#pragma once

#include <QDialog>
#include <string>

#include "platform/host.h"

namespace zamo {

class OnlyDateUpdate final : public QDialog {
 public:
  explicit OnlyDateUpdate(const Host& host, QWidget* parent = nullptr);
  OnlyDateUpdate(const OnlyDateUpdate&) = delete;
  OnlyDateUpdate& operator=(const OnlyDateUpdate&) = delete;
  ~OnlyDateUpdate() override;

  // The condition on d_updated that OK made; empty after Cancel, and when nothing is to be filtered.
  const std::string& filter() const { return filter_; }

 private:
  std::string filter_;
};

}  // namespace zamo
