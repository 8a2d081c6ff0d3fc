"""A window in front, as a launcher's: each key pressed there gives an activation token, said on the standard output."""

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gio, Gtk  # noqa: E402

QUILLET = Gio.AppInfo.create_from_commandline("quillet", None, Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION)


def donner_un_jeton(fenetre, _touche):
    print(fenetre.get_display().get_app_launch_context().get_startup_notify_id(QUILLET, []), flush=True)


fenetre = Gtk.Window(title="Lanceur")
fenetre.connect("key-press-event", donner_un_jeton)
fenetre.show_all()
Gtk.main()
