// What screen readers find in the windows: the roles, names, states and actions of our controls.
#pragma once

namespace quendrel {

/// Lets the toolkit ask us about our windows and controls. To be called before the first of them is
/// made; again it does nothing.
void TeachAccessibility();

}  // namespace quendrel
