// The splash window: the built-in picture, shown while the program starts.
#pragma once

#include "ui/windows/SkinnedWindow.h"

namespace quendrel {

class frmSplash : public SkinnedWindow {
public:
    /// Its picture is cut away where it is yellow, which its mask says.
    explicit frmSplash(ViewScale& wanted);

protected:
    /// The splash cannot be dragged.
    void mousePressEvent(QMouseEvent* /*event*/) override {}
    void FollowDensity() override;

private:
    Picture picture_;
};

}  // namespace quendrel
