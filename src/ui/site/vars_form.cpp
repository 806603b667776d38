// SPDX-License-Identifier: MIT
#include "ui/site/vars_form.h"

#include <QLabel>
#include <QVBoxLayout>

#include "platform/prompts.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/picture_button.h"
#include "ui/controls/program_file.h"

namespace tarnwick {

VarsForm::VarsForm(const std::string& programFolder, QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("vars"));
  auto* picture = named(new QLabel(this), "Picture1", QString::fromLatin1(kProductName));
  picture->setPixmap(loadPicture(programFile(programFolder, QStringLiteral("/images/logosmall.bmp"))));
  auto* all = new QVBoxLayout(this);
  all->addWidget(picture, 0, Qt::AlignCenter);
  all->addWidget(addButton(*this, "Command1", tr("Command1")));
  Form_Load();
}

void VarsForm::Form_Load() { setWindowTitle(QString::fromLatin1(kProductName)); }

}  // namespace tarnwick
