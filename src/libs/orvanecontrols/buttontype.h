#ifndef BUTTONTYPE_H
#define BUTTONTYPE_H

/// What a ToolButtonEx is. Hosts pass the raw values.
enum ButtonType : int {
    LeftToRightType = 0, ///< A picture at the left, a text and a smaller text at the right.
    TopToBottomType = 1, ///< One text above another.
    CabinetType = 2, ///< A cabinet in a row of a port: shows its count and can be dragged out.
    CabinetModelType = 3, ///< A cabinet model to choose; its tool tip names it.
    AddCabinetType = 4, ///< The button that adds cabinets.
    ActivatedType = 5, ///< A command in its accented look.
    NoActivatedType = 6, ///< A command in its grey look.
    DefaultType = 7, ///< A plain tool button.
};

#endif // BUTTONTYPE_H
