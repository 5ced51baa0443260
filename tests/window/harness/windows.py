"""The windows as the X server and the window manager know them."""

from Xlib import X, Xatom, display, error
from Xlib.protocol import event


class Windows:
    def __init__(self, display_name):
        self._display = display.Display(display_name)
        self._root = self._display.screen().root

    def _atom(self, name):
        return self._display.intern_atom(name)

    def _property(self, window, name, kind=X.AnyPropertyType):
        try:
            found = window.get_full_property(self._atom(name), kind)
        except error.XError:
            return None  # the window is gone
        return None if found is None else found.value

    def ids(self):
        """The ordinary windows, oldest first; dialogs are among them."""
        return list(self._property(self._root, "_NET_CLIENT_LIST", Xatom.WINDOW) or [])

    def active(self):
        """The window that keys go to, or None."""
        found = self._property(self._root, "_NET_ACTIVE_WINDOW", Xatom.WINDOW)
        return found[0] if found is not None and len(found) and found[0] else None

    def title(self, window_id):
        window = self._display.create_resource_object("window", window_id)
        title = self._property(window, "_NET_WM_NAME")
        return "" if title is None else bytes(title).decode("utf-8", "replace")

    def process(self, window_id):
        window = self._display.create_resource_object("window", window_id)
        found = self._property(window, "_NET_WM_PID")
        return None if found is None or not len(found) else found[0]

    def place(self, window_id):
        """Left, top, width and height on the screen, without the frame; None when gone."""
        try:
            window = self._display.create_resource_object("window", window_id)
            size = window.get_geometry()
            corner = window.translate_coords(self._root, 0, 0)
        except error.XError:
            return None
        return -corner.x, -corner.y, size.width, size.height

    def frame(self, window_id):
        """The widths of the window manager's frame: left, right, top, bottom."""
        window = self._display.create_resource_object("window", window_id)
        found = self._property(window, "_NET_FRAME_EXTENTS")
        return (0, 0, 0, 0) if found is None else tuple(found)

    def states(self, window_id):
        """What the window manager has made of it: {"MAXIMIZED_VERT", "MODAL", ...}."""
        window = self._display.create_resource_object("window", window_id)
        found = self._property(window, "_NET_WM_STATE", Xatom.ATOM)
        names = [self._display.get_atom_name(atom) for atom in (found or [])]
        return {name.removeprefix("_NET_WM_STATE_") for name in names}

    def owner(self, window_id):
        """The window that a dialog belongs to, or None."""
        window = self._display.create_resource_object("window", window_id)
        found = self._property(window, "WM_TRANSIENT_FOR", Xatom.WINDOW)
        return None if found is None or not len(found) else found[0]

    def change_state(self, window_id, name, add=True):
        """Asks the window manager for a state: "FULLSCREEN", "MAXIMIZED_HORZ", ..."""
        self._ask(window_id, "_NET_WM_STATE", [int(add), self._atom(f"_NET_WM_STATE_{name}"), 0, 1])

    def activate(self, window_id):
        """Asks for the keyboard as a taskbar does."""
        self._ask(window_id, "_NET_ACTIVE_WINDOW", [2, X.CurrentTime, 0])

    def _ask(self, window_id, message, words):
        window = self._display.create_resource_object("window", window_id)
        data = (32, words + [0] * (5 - len(words)))
        request = event.ClientMessage(
            window=window, client_type=self._atom(message), data=data
        )
        mask = X.SubstructureRedirectMask | X.SubstructureNotifyMask
        self._root.send_event(request, event_mask=mask)
        self._display.sync()

    def color(self, window_id, x, y):
        """Red, green and blue of a pixel of a window that nothing stands over."""
        window = self._display.create_resource_object("window", window_id)
        pixel = window.get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF).data
        return pixel[2], pixel[1], pixel[0]

    def close(self):
        self._display.close()
