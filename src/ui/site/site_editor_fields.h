#pragma once

#include "program/site_draft.h"
#include "ui/site/site_editor_layout.h"

/// What a site is in the controls of the site editor.
namespace tarnwick {

/// Fills the list of intervals.
void offerIntervals(const SiteEditorControls& controls);

/// Shows `site`. An interval that the list does not offer, and a method that has no button, leave nothing selected.
void fillFields(const SiteEditorControls& controls, const SiteDraft& site);

/// What the controls say; `stored` has what they cannot.
SiteDraft fieldsOf(const SiteEditorControls& controls, const SiteDraft& stored);

}  // namespace tarnwick
