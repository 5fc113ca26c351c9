"""The windows on a display, looked up without starting a program for each question."""

import ctypes

VIEWABLE = 2


class Attributes(ctypes.Structure):
    _fields_ = [("x", ctypes.c_int), ("y", ctypes.c_int), ("width", ctypes.c_int), ("height", ctypes.c_int),
                ("border_width", ctypes.c_int), ("depth", ctypes.c_int), ("visual", ctypes.c_void_p),
                ("root", ctypes.c_ulong), ("window_class", ctypes.c_int), ("bit_gravity", ctypes.c_int),
                ("win_gravity", ctypes.c_int), ("backing_store", ctypes.c_int),
                ("backing_planes", ctypes.c_ulong), ("backing_pixel", ctypes.c_ulong),
                ("save_under", ctypes.c_int), ("colormap", ctypes.c_ulong), ("map_installed", ctypes.c_int),
                ("map_state", ctypes.c_int), ("rest", ctypes.c_long * 16)]


class Screen:
    def __init__(self, display):
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        handler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
        self.unheard = handler(lambda *_: 0)  # a window may go while it is asked about
        self.x11.XSetErrorHandler(self.unheard)
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))
        assert self.display, "the display cannot be opened"
        self.root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.display))

    def windows(self):
        """The visible windows, from the lowest to the uppermost: (number, title, (x, y, width, height))."""
        root, parent, count = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_uint()
        children = ctypes.POINTER(ctypes.c_ulong)()
        self.x11.XQueryTree(self.display, self.root, ctypes.byref(root), ctypes.byref(parent),
                            ctypes.byref(children), ctypes.byref(count))
        found = []
        for number in children[:count.value]:
            seen = Attributes()
            window = ctypes.c_ulong(number)
            if not self.x11.XGetWindowAttributes(self.display, window, ctypes.byref(seen)):
                continue
            if seen.map_state != VIEWABLE or seen.width <= 1:
                continue
            found.append((number, self.title(window), (seen.x, seen.y, seen.width, seen.height)))
        if children:
            self.x11.XFree(children)
        return found

    def title(self, window):
        name = ctypes.c_char_p()
        if not self.x11.XFetchName(self.display, window, ctypes.byref(name)) or name.value is None:
            return ""
        title = name.value.decode("utf-8", "replace")
        self.x11.XFree(name)
        return title
