"""The windows as the X server and the window manager know them."""

from Xlib import X, Xatom, display, error


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

    def are_managed(self):
        return self._property(self._root, "_NET_SUPPORTING_WM_CHECK") is not None

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

    def close(self):
        self._display.close()
