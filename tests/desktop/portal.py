"""A desktop portal of our own on the session bus, which says whether the desktop is dark."""

from gi.repository import Gio, GLib

NAME = "org.freedesktop.portal.Desktop"
PATH = "/org/freedesktop/portal/desktop"
APPEARANCE = "org.freedesktop.appearance"
DARK, LIGHT = 1, 2

INTERFACE = """
<node>
  <interface name="org.freedesktop.portal.Settings">
    <method name="Read">
      <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="v" direction="out"/>
    </method>
    <signal name="SettingChanged"><arg type="s"/><arg type="s"/><arg type="v"/></signal>
  </interface>
</node>
"""


class Portal:
    """Answers while the main context runs, as it does in wait_for()."""

    def __init__(self, scheme):
        self.scheme = scheme
        self.bus = Gio.bus_get_sync(Gio.BusType.SESSION)
        interface = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
        self.object = self.bus.register_object(PATH, interface, self._called, None, None)
        self.name = Gio.bus_own_name_on_connection(
            self.bus, NAME, Gio.BusNameOwnerFlags.REPLACE, None, None
        )

    def close(self):
        Gio.bus_unown_name(self.name)
        self.bus.unregister_object(self.object)

    def _called(self, _bus, _sender, _path, _interface, _method, arguments, call):
        if tuple(arguments) == (APPEARANCE, "color-scheme"):
            # The portal wraps what it reads twice.
            inner = GLib.Variant("v", GLib.Variant("u", self.scheme))
            call.return_value(GLib.Variant("(v)", (inner,)))
        else:
            call.return_dbus_error("org.freedesktop.portal.Error.NotFound", "not set")

    def change(self, scheme):
        self.scheme = scheme
        value = GLib.Variant("u", scheme)
        arguments = GLib.Variant("(ssv)", (APPEARANCE, "color-scheme", value))
        interface = "org.freedesktop.portal.Settings"
        self.bus.emit_signal(None, PATH, interface, "SettingChanged", arguments)
