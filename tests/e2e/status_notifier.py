"""A notification area as KDE has it: it shows icons over the session bus. Run as a program it is
there until it is ended, and says which program has an icon, a line each."""

from gi.repository import Gio, GLib

from accessibility import PATIENCE_MS, connect

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
ITEM_PATH = "/StatusNotifierItem"
INTERFACE = f"""<node><interface name="{WATCHER}">
<method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
<method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
<property name="RegisteredStatusNotifierItems" type="as" access="read"/>
<property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
<property name="ProtocolVersion" type="i" access="read"/>
</interface></node>"""
PROPERTIES = {
    "RegisteredStatusNotifierItems": GLib.Variant("as", []),
    "IsStatusNotifierHostRegistered": GLib.Variant("b", True),
    "ProtocolVersion": GLib.Variant("i", 0),
}


class Icon:
    """A program's icon, which the bus knows by the name of its owner."""

    def __init__(self, address, owner):
        self._connection = connect(address)
        self._owner = owner

    def _call(self, interface, method, arguments):
        return self._connection.call_sync(
            self._owner, ITEM_PATH, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
            PATIENCE_MS, None).unpack()

    def get(self, name):
        arguments = GLib.Variant("(ss)", (ITEM, name))
        return self._call("org.freedesktop.DBus.Properties", "Get", arguments)[0]

    def click(self):
        self._call(ITEM, "Activate", GLib.Variant("(ii)", (0, 0)))

    def is_there(self):
        try:
            return bool(self.get("Id"))
        except GLib.Error:
            return False


def main():
    def called(_connection, _sender, _path, _interface, method, arguments, invocation):
        if method == "RegisterStatusNotifierItem":
            print(arguments.unpack()[0], flush=True)
        invocation.return_value(None)

    session = Gio.bus_get_sync(Gio.BusType.SESSION, None)
    session.register_object("/StatusNotifierWatcher",
                            Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0], called,
                            lambda *about: PROPERTIES[about[4]], None)
    Gio.bus_own_name_on_connection(session, WATCHER, Gio.BusNameOwnerFlags.NONE,
                                   lambda *_: print("ready", flush=True), None)
    GLib.MainLoop().run()


if __name__ == "__main__":
    main()
