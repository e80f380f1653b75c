// Atelier's windows beside the main one.
#pragma once

#include "skins/Atelier.h"
#include "skins/WindowLook.h"

namespace quendrel::art::atelier {

class AtelierWindows : public WindowLook {
public:
    explicit AtelierWindows(const Atelier& atelier);

    Shape AboutOutline() const override;
    void PaintAbout(Canvas& canvas) const override;
    Shape HighOutline() const override;
    void PaintHigh(Canvas& canvas) const override;
    void PaintModeSign(Canvas& canvas, Rect place, int mode) const override;
    Shape ConfigOutline() const override;
    void PaintConfig(Canvas& canvas) const override;
    void PaintSwitch(Canvas& canvas, const Button& button, SwitchState state) const override;
    void PaintPushButton(Canvas& canvas, const Button& button, ButtonState state) const override;

private:
    void PaintAboutTexts(Canvas& canvas) const;
    void PaintConfigTexts(Canvas& canvas) const;

    const Atelier& atelier_;
    Font captions_;
    Font titles_;
};

}  // namespace quendrel::art::atelier
