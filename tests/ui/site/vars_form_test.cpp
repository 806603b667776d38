// SPDX-License-Identifier: MIT
#include "ui/site/vars_form.h"

#include <gtest/gtest.h>

#include <QPushButton>

namespace tarnwick {
namespace {

TEST(VarsForm, BearsTheProductNameAndHoldsAButton) {
  const VarsForm form("/no/such/folder");
  EXPECT_EQ(form.objectName().toStdString(), "vars");
  EXPECT_EQ(form.windowTitle().toStdString(), "Tarnwick");
  EXPECT_NE(form.findChild<QPushButton*>(QStringLiteral("Command1")), nullptr);
}

}  // namespace
}  // namespace tarnwick
