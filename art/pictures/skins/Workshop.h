// The workshop that builds every window of a skin out of its craft: it knows where everything
// stands, the craft how it is made.
#pragma once

#include <vector>

#include "skins/Craft.h"

namespace quendrel::art {

class Workshop : public Look, public WindowLook {
public:
    /// `craft` must outlive the workshop.
    explicit Workshop(const Craft& craft);

    Shape Outline() const override { return OutlineOf(Window::Main); }
    void PaintWindow(Canvas& canvas) const override;
    void PaintPegHole(Canvas& canvas, Point cell) const override;
    void PaintMarkHole(Canvas& canvas, Point cell) const override;
    void PaintNumber(Canvas& canvas, Point cell, int row, bool lit) const override;
    void PaintPeg(Canvas& canvas, Point cell, int color) const override;
    void PaintMark(Canvas& canvas, Point cell, int mark) const override;
    void PaintCover(Canvas& canvas, Point cell, double open) const override;
    Shape PegMask(Point cell) const override;
    Shape MarkMask(Point cell) const override;
    void PaintButton(Canvas& canvas, const Button& button, ButtonState state) const override;

    Shape AboutOutline() const override { return OutlineOf(Window::About); }
    void PaintAbout(Canvas& canvas) const override;
    Shape HighOutline() const override { return OutlineOf(Window::High); }
    void PaintHigh(Canvas& canvas) const override;
    void PaintModeSign(Canvas& canvas, Rect place, int mode) const override;
    Shape ConfigOutline() const override { return OutlineOf(Window::Config); }
    void PaintConfig(Canvas& canvas) const override;
    void PaintSwitch(Canvas& canvas, const Button& button, SwitchState state) const override;
    void PaintPushButton(Canvas& canvas, const Button& button, ButtonState state) const override;

private:
    Shape OutlineOf(Window window) const;
    void PaintBody(Canvas& canvas, Window window) const;

    const Craft& craft_;
    std::vector<Shape> outlines_;  ///< by window
};

}  // namespace quendrel::art
