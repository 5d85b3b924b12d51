#ifndef ITEMTYPE_H
#define ITEMTYPE_H

/// How a port of a sender is connected, which chooses the pictures of its button. Any other value
/// is kept as it is; the button then keeps the look that it has.
enum ItemType : int {
    PortItem = 0, ///< A network port.
    CoaxialItem = 1, ///< A coaxial connection.
};

#endif // ITEMTYPE_H
