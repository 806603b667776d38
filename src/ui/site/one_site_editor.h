// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "program/program.h"
#include "ui/controls/site_editing.h"

namespace tarnwick {

/// Opens the one site editor of `program` above `parent`; made when it is first needed.
SiteEditing siteEditorOf(Program& program, QWidget& parent);

}  // namespace tarnwick
