// SPDX-License-Identifier: MIT
#pragma once

#include <vector>
#include <QGridLayout>

#include "store/fields.h"
#include "ui/site/site_editor_layout.h"

/// What a site is in the controls of the site editor.
namespace tarnwick {

/// Says which control shows which field. One of `fields` that has no control of its own gets the usual one, at the end
/// of `lines`.
void bindFields(SiteEditorControls& controls, const std::vector<SiteField>& fields, QGridLayout& lines);

/// Shows `site`. An interval that the list does not offer, and a method that has no button, leave nothing selected.
void showSite(const SiteEditorControls& controls, const std::vector<SiteField>& fields, const SiteDraft& site);

/// What the controls say; `stored` has what they cannot.
SiteDraft shownSite(const SiteEditorControls& controls, const std::vector<SiteField>& fields, const SiteDraft& stored);

}  // namespace tarnwick
