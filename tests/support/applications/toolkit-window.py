"""A window of the toolkit that is named first: a menu bar, a plane to scroll and a text to edit.

Its title says how they stand: "x=0 y=0 cursor=7 menu=0 text=one two three".
"""

import sys

TEXT = "one two three"
CURSOR = 7
PLANE = 4000
SIZE = (600, 500)
PLANE_HEIGHT = 350


def title(x, y, cursor, menu, text):
    return f"x={round(x)} y={round(y)} cursor={cursor} menu={int(menu)} text={text}"


def gtk(version):
    import gi

    gi.require_version("Gtk", version)
    # The text view of the editors.
    gi.require_version("GtkSource", "4" if version == "3.0" else "5")
    from gi.repository import Gtk, GtkSource

    box = Gtk.Box(orientation=Gtk.Orientation.VERTICAL)
    plane = Gtk.DrawingArea()
    plane.set_size_request(PLANE, PLANE)
    scrolled = Gtk.ScrolledWindow()
    scrolled.set_size_request(-1, PLANE_HEIGHT)
    text = GtkSource.View()
    buffer = text.get_buffer()
    buffer.set_text(TEXT)
    buffer.place_cursor(buffer.get_iter_at_offset(CURSOR))
    if version == "3.0":
        scrolled.add(plane)
        box.add(scrolled)
        box.add(text)
    else:
        scrolled.set_child(plane)
        box.append(scrolled)
        box.append(text)

    def update(window):
        start, end = buffer.get_bounds()
        cursor = buffer.get_iter_at_mark(buffer.get_insert()).get_offset()
        window.set_title(
            title(
                scrolled.get_hadjustment().get_value(),
                scrolled.get_vadjustment().get_value(),
                cursor,
                False,
                buffer.get_text(start, end, True),
            )
        )

    # It sleeps while nothing changes, so that a test can wait until it does.
    def show(window):
        Gtk.Settings.get_default().set_property("gtk-cursor-blink", False)
        window.set_default_size(*SIZE)
        text.grab_focus()
        update(window)
        for adjustment in (scrolled.get_hadjustment(), scrolled.get_vadjustment()):
            adjustment.connect("value-changed", lambda _: update(window))
        buffer.connect("changed", lambda _: update(window))
        buffer.connect("notify::cursor-position", lambda *_: update(window))

    if version == "3.0":
        window = Gtk.Window()
        window.add(box)
        show(window)
        window.show_all()
        Gtk.main()
    else:

        def activate(application):
            window = Gtk.ApplicationWindow(application=application)
            window.set_child(box)
            show(window)
            window.present()

        application = Gtk.Application()
        application.connect("activate", activate)
        application.run()


def qt():
    from PyQt6.QtWidgets import (
        QApplication,
        QMainWindow,
        QPlainTextEdit,
        QScrollArea,
        QVBoxLayout,
        QWidget,
    )

    application = QApplication([])
    application.setCursorFlashTime(0)
    window = QMainWindow()
    window.menuBar().addMenu("&File").addAction("&Open")
    plane = QWidget()
    plane.setFixedSize(PLANE, PLANE)
    scrolled = QScrollArea()
    scrolled.setFixedHeight(PLANE_HEIGHT)
    scrolled.setWidget(plane)
    text = QPlainTextEdit(TEXT)
    cursor = text.textCursor()
    cursor.setPosition(CURSOR)
    text.setTextCursor(cursor)
    body = QWidget()
    layout = QVBoxLayout(body)
    layout.addWidget(scrolled)
    layout.addWidget(text)
    window.setCentralWidget(body)
    window.resize(*SIZE)
    text.setFocus()

    def update(*_):
        window.setWindowTitle(
            title(
                scrolled.horizontalScrollBar().value(),
                scrolled.verticalScrollBar().value(),
                text.textCursor().position(),
                window.menuBar().hasFocus(),
                text.toPlainText(),
            )
        )

    for bar in (scrolled.horizontalScrollBar(), scrolled.verticalScrollBar()):
        bar.valueChanged.connect(update)
    text.textChanged.connect(update)
    text.cursorPositionChanged.connect(update)
    application.focusChanged.connect(update)
    update()
    window.show()
    application.exec()


{"gtk3": lambda: gtk("3.0"), "gtk4": lambda: gtk("4.0"), "qt6": qt}[sys.argv[1]]()
