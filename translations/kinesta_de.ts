<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>core</name>
    <message>
        <source>This desktop shows no status icons. Start Kinesta again to come back to this window.</source>
        <translation>Diese Arbeitsumgebung zeigt keine Statussymbole. Um zu diesem Fenster zurückzukehren, Kinesta noch einmal starten.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Choose the application again.</source>
        <translation>Die Anwendung erneut auswählen.</translation>
    </message>
    <message>
        <source>Choose the file or folder again.</source>
        <translation>Die Datei oder den Ordner erneut auswählen.</translation>
    </message>
    <message>
        <source>%1 is no address of a web page, and no other is opened.</source>
        <translation>%1 ist keine Adresse einer Webseite; andere werden nicht geöffnet.</translation>
    </message>
    <message>
        <source>Write the whole address, with http:// or https:// before it.</source>
        <translation>Die ganze Adresse angeben, mit http:// oder https:// davor.</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Starting gesture recognition…</source>
        <translation>Gestenerkennung wird gestartet …</translation>
    </message>
    <message>
        <source>Gesture recognition is off</source>
        <translation>Gestenerkennung ist aus</translation>
    </message>
    <message>
        <source>Trackpad listening</source>
        <translation>Touchpad wird gelesen</translation>
    </message>
    <message>
        <source>Trackpad stopped</source>
        <translation>Touchpad angehalten</translation>
    </message>
    <message>
        <source>Gestures enabled</source>
        <translation>Gesten eingeschaltet</translation>
    </message>
    <message>
        <source>Launch at Login (Approval Required)</source>
        <translation>Bei Anmeldung starten (Zustimmung nötig)</translation>
    </message>
    <message>
        <source>Launch at Login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
    <message>
        <source>Hide Kinesta</source>
        <translation>Kinesta ausblenden</translation>
    </message>
    <message>
        <source>Show Kinesta</source>
        <translation>Kinesta anzeigen</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Kinesta, gestures enabled</source>
        <translation>Kinesta, Gesten eingeschaltet</translation>
    </message>
    <message>
        <source>Kinesta, gestures disabled</source>
        <translation>Kinesta, Gesten ausgeschaltet</translation>
    </message>
    <message>
        <source>With this keyboard layout no shortcut can press this key. Press another one.</source>
        <translation>Mit dieser Tastaturbelegung kann keine Tastenkombination diese Taste drücken. Eine andere drücken.</translation>
    </message>
    <message>
        <source>The login item starts a program that is no longer there. Switch it on again.</source>
        <translation>Der Eintrag für die Anmeldung startet ein Programm, das es nicht mehr gibt. Den Start bei der Anmeldung erneut einschalten.</translation>
    </message>
    <message>
        <source>The stored rules cannot be read: %1. They are kept; correct them, or import others.</source>
        <translation>Die gespeicherten Regeln sind nicht lesbar: %1. Sie bleiben erhalten; sie lassen sich berichtigen oder durch einen Import ersetzen.</translation>
    </message>
    <message>
        <source>The update feed is not configured in this build.</source>
        <translation>In dieser Version ist keine Quelle für Updates eingerichtet.</translation>
    </message>
    <message>
        <source>Update signing is not configured in this development build.</source>
        <translation>In dieser Entwicklungsversion ist die Signaturprüfung für Updates nicht eingerichtet.</translation>
    </message>
    <message>
        <source>Run this once in a terminal. It opens the touchpad, and nothing else, to the person who uses this computer.</source>
        <translation>Dies einmal in einem Terminal ausführen. Es gibt das Touchpad, und sonst nichts, für alle frei, die an diesem Computer sitzen.</translation>
    </message>
    <message>
        <source>Rule “%1”</source>
        <translation>Regel „%1“</translation>
    </message>
    <message>
        <source>Touchpad</source>
        <translation>Touchpad</translation>
    </message>
    <message>
        <source>%1 at %2. Kinesta also reads it while this desktop has it switched off.</source>
        <translation>%1 unter %2. Kinesta liest es auch, während diese Arbeitsumgebung es ausgeschaltet hat.</translation>
    </message>
    <message>
        <source>%1 at %2.</source>
        <translation>%1 unter %2.</translation>
    </message>
    <message>
        <source>Gesture recognition</source>
        <translation>Gestenerkennung</translation>
    </message>
    <message>
        <source>It is switched off in the settings.</source>
        <translation>Sie ist in den Einstellungen ausgeschaltet.</translation>
    </message>
    <message>
        <source>To switch it on %1</source>
        <translation>Zum Einschalten: %1</translation>
    </message>
    <message>
        <source>Force Click</source>
        <translation>Kräftiger Klick</translation>
    </message>
    <message>
        <source>Not known while no touchpad can be read.</source>
        <translation>Nicht bekannt, solange kein Touchpad gelesen werden kann.</translation>
    </message>
    <message>
        <source>The touchpad reports pressure.</source>
        <translation>Das Touchpad meldet den Druck.</translation>
    </message>
    <message>
        <source>Impossible: the touchpad cannot tell pressure.</source>
        <translation>Nicht möglich: Das Touchpad misst keinen Druck.</translation>
    </message>
    <message>
        <source>Bind those rules to a physical click of any pressure.</source>
        <translation>Diese Regeln an einen physischen Klick mit beliebigem Druck binden.</translation>
    </message>
    <message>
        <source>The touchpad reports at most %1 fingers at once.</source>
        <translation>Das Touchpad meldet höchstens %1 Finger zugleich.</translation>
    </message>
    <message>
        <source>Choose a gesture with fewer fingers.</source>
        <translation>Eine Geste mit weniger Fingern auswählen.</translation>
    </message>
    <message>
        <source>Shell commands</source>
        <translation>Shell-Befehle</translation>
    </message>
    <message>
        <source>Switched on.</source>
        <translation>Eingeschaltet.</translation>
    </message>
    <message>
        <source>Switched off, as they are at first.</source>
        <translation>Ausgeschaltet, wie anfangs immer.</translation>
    </message>
    <message>
        <source>If you trust every rule that runs one: %1</source>
        <translation>Wenn jede Regel mit einem Befehl vertrauenswürdig ist: %1</translation>
    </message>
    <message>
        <source>Your keyboard layout has no letter %1 where the shortcut would press it: as from the keyboard itself, programs do not take it.</source>
        <translation>Die Tastaturbelegung hat dort, wo die Tastenkombination ihn drücken würde, keinen Buchstaben %1: Wie von der Tastatur selbst nehmen Programme ihn nicht an.</translation>
    </message>
    <message>
        <source>Add a layout with Latin letters, such as us, to those that you switch between.</source>
        <translation>Eine Belegung mit lateinischen Buchstaben hinzufügen, etwa us.</translation>
    </message>
    <message>
        <source>Only the application has a window, and it does not run.</source>
        <translation>Nur die Anwendung hat ein Fenster, und sie läuft nicht.</translation>
    </message>
    <message>
        <source>Start Kinesta without a subcommand.</source>
        <translation>Kinesta ohne Unterbefehl starten.</translation>
    </message>
    <message>
        <source>No action</source>
        <translation>Keine Aktion</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <translation>Tastenkombination</translation>
    </message>
    <message>
        <source>Middle click</source>
        <translation>Mittelklick</translation>
    </message>
    <message>
        <source>Close window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>File or folder</source>
        <translation>Datei oder Ordner</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Show or hide Kinesta</source>
        <translation>Kinesta ein- oder ausblenden</translation>
    </message>
    <message>
        <source>All rules disabled</source>
        <translation>Alle Regeln ausgeschaltet</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Volume up</source>
        <translation>Lauter</translation>
    </message>
    <message>
        <source>Volume down</source>
        <translation>Leiser</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Action cue</source>
        <translation>Einblendung</translation>
    </message>
    <message>
        <source>set &quot;%1&quot; to %2 in %3.</source>
        <translation>„%1“ in %3 auf %2 setzen.</translation>
    </message>
    <message>
        <source>its name</source>
        <translation>seinen Namen</translation>
    </message>
    <message>
        <source>%1 starts %2, which is not there.</source>
        <translation>%1 startet %2, das nicht vorhanden ist.</translation>
    </message>
    <message>
        <source>Install that program, or choose another application.</source>
        <translation>Dieses Programm installieren oder eine andere Anwendung auswählen.</translation>
    </message>
    <message>
        <source>%1 is not a program that you may start.</source>
        <translation>%1 ist kein Programm, das gestartet werden darf.</translation>
    </message>
    <message>
        <source>Choose a program or a desktop file (*.desktop).</source>
        <translation>Ein Programm oder eine Desktop-Datei (*.desktop) auswählen.</translation>
    </message>
    <message>
        <source>Connect one; recognition starts by itself.</source>
        <translation>Eines anschließen; die Erkennung beginnt von selbst.</translation>
    </message>
    <message>
        <source>Choose one of those that kinesta devices shows: %1</source>
        <translation>Eines von denen auswählen, die kinesta devices zeigt: %1</translation>
    </message>
    <message>
        <source>The trackpad recording %1 cannot be opened: %2.</source>
        <translation>Die Touchpad-Aufzeichnung %1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>The trackpad recording cannot be read: %1.</source>
        <translation>Die Touchpad-Aufzeichnung kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The trackpad recording %1 has ended.</source>
        <translation>Die Touchpad-Aufzeichnung %1 ist zu Ende.</translation>
    </message>
    <message>
        <source>The shortcut tiles windows, and that was not possible.</source>
        <translation>Die Tastenkombination ordnet Fenster an, und das war nicht möglich.</translation>
    </message>
    <message>
        <source>See: kinesta doctor</source>
        <translation>Siehe: kinesta doctor</translation>
    </message>
    <message>
        <source>Choose another shortcut.</source>
        <translation>Eine andere Tastenkombination auswählen.</translation>
    </message>
    <message>
        <source>Choose another key.</source>
        <translation>Eine andere Taste auswählen.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Forward Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Super</source>
        <translation>Super</translation>
    </message>
    <message>
        <source>AltGr and Hyper cannot be part of a shortcut.</source>
        <translation>AltGr und Hyper können nicht Teil einer Tastenkombination sein.</translation>
    </message>
    <message>
        <source>While ⌘ stands for Ctrl, Super counts only together with Ctrl. Settings can change what ⌘ stands for.</source>
        <translation>Solange ⌘ für Strg steht, zählt Super nur zusammen mit Strg. Wofür ⌘ steht, lässt sich in den Einstellungen ändern.</translation>
    </message>
    <message>
        <source>Keys that lock others cannot be part of a shortcut. Press another key.</source>
        <translation>Feststelltasten können nicht Teil einer Tastenkombination sein. Eine andere Taste drücken.</translation>
    </message>
    <message>
        <source>A shortcut cannot hold this key. Press another one.</source>
        <translation>Diese Taste kann nicht Teil einer Tastenkombination sein. Eine andere drücken.</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>The key with code %1 is not on this keyboard. Choose another key.</source>
        <translation>Die Taste mit dem Code %1 gibt es auf dieser Tastatur nicht. Eine andere Taste auswählen.</translation>
    </message>
    <message>
        <source>The volume keys are not on this keyboard layout; choose one that has them.</source>
        <translation>Diese Tastaturbelegung hat keine Lautstärketasten; eine auswählen, die sie hat.</translation>
    </message>
    <message>
        <source>The start at login cannot be changed: %1</source>
        <translation>Der Start bei der Anmeldung kann nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>This desktop has no settings for what starts at login. To allow it, delete %1 and switch it on again.</source>
        <translation>Diese Arbeitsumgebung hat keine Einstellungen für Programme, die bei der Anmeldung starten. Um den Start zu erlauben, %1 löschen und ihn erneut einschalten.</translation>
    </message>
    <message>
        <source>%1 cannot be read; choose the application again.</source>
        <translation>%1 ist nicht lesbar; die Anwendung erneut auswählen.</translation>
    </message>
    <message>
        <source>%1 does not say how to start an application; choose another file.</source>
        <translation>In %1 steht nicht, wie eine Anwendung gestartet wird; eine andere Datei auswählen.</translation>
    </message>
    <message>
        <source>%1 could not be started: %2.</source>
        <translation>%1 konnte nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>Nothing here opens addresses; install xdg-utils.</source>
        <translation>Hier öffnet nichts Adressen; xdg-utils installieren.</translation>
    </message>
    <message>
        <source>%1 could not be opened: it is missing, or nothing here opens files; install xdg-utils.</source>
        <translation>%1 konnte nicht geöffnet werden: Entweder fehlt es, oder hier öffnet nichts Dateien; dann xdg-utils installieren.</translation>
    </message>
    <message>
        <source>Kinesta may not send keys and clicks</source>
        <translation>Kinesta darf keine Tasten und Klicks senden</translation>
    </message>
    <message>
        <source>Start Kinesta from within your desktop session.</source>
        <translation>Kinesta innerhalb der Desktop-Sitzung starten.</translation>
    </message>
    <message>
        <source>Choose your desktop&apos;s session “on Xorg” or “X11” at the login screen if you need this for every window.</source>
        <translation>Wenn dies für jedes Fenster nötig ist, am Anmeldebildschirm die Sitzung „auf Xorg“ oder „X11“ auswählen.</translation>
    </message>
    <message>
        <source>Sending keys and clicks</source>
        <translation>Tasten und Klicks senden</translation>
    </message>
    <message>
        <source>They go out through a virtual keyboard of the kernel&apos;s. Modifier keys that you hold yourself meanwhile count as part of a shortcut, so let go of them first.</source>
        <translation>Sie gehen über eine virtuelle Tastatur des Kernels hinaus. Sondertasten, die dabei selbst gehalten werden, zählen als Teil der Tastenkombination; sie also vorher loslassen.</translation>
    </message>
    <message>
        <source>Here they would go out through a virtual keyboard of the kernel&apos;s, but /dev/uinput is missing or may not be opened.</source>
        <translation>Hier würden sie über eine virtuelle Tastatur des Kernels hinausgehen, aber /dev/uinput fehlt oder darf nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Run once in a terminal:</source>
        <translation>Einmal in einem Terminal ausführen:</translation>
    </message>
    <message>
        <source>The settings ask for the X server, and none answers.</source>
        <translation>Die Einstellungen verlangen den X-Server, und keiner antwortet.</translation>
    </message>
    <message>
        <source>Or remove the setting %1.</source>
        <translation>Oder die Einstellung %1 entfernen.</translation>
    </message>
    <message>
        <source>The settings ask for the X server, and it was started without the extension XTEST.</source>
        <translation>Die Einstellungen verlangen den X-Server, und er wurde ohne die Erweiterung XTEST gestartet.</translation>
    </message>
    <message>
        <source>Remove the setting %1.</source>
        <translation>Die Einstellung %1 entfernen.</translation>
    </message>
    <message>
        <source>The settings ask for the X server: in a Wayland session only programs that use XWayland get them.</source>
        <translation>Die Einstellungen verlangen den X-Server: In einer Wayland-Sitzung erreichen sie nur Programme, die XWayland verwenden.</translation>
    </message>
    <message>
        <source>Remove the setting %1 to reach all programs.</source>
        <translation>Die Einstellung %1 entfernen, um alle Programme zu erreichen.</translation>
    </message>
    <message>
        <source>They go out through the X server.</source>
        <translation>Sie gehen über den X-Server hinaus.</translation>
    </message>
    <message>
        <source>Following the keyboard layout</source>
        <translation>Der Tastaturbelegung folgen</translation>
    </message>
    <message>
        <source>Shortcuts follow the layout in force.</source>
        <translation>Tastenkombinationen folgen der aktuellen Belegung.</translation>
    </message>
    <message>
        <source>Without an X server the layout in force cannot be known: shortcuts follow the one that the system is set up with.</source>
        <translation>Ohne X-Server ist die aktuelle Belegung nicht bekannt: Tastenkombinationen folgen der, mit der das System eingerichtet ist.</translation>
    </message>
    <message>
        <source>Switch XWayland on in your desktop if you use more than one layout.</source>
        <translation>Wenn mehr als eine Belegung verwendet wird, XWayland in der Arbeitsumgebung einschalten.</translation>
    </message>
    <message>
        <source>Closing and tiling windows</source>
        <translation>Fenster schließen und anordnen</translation>
    </message>
    <message>
        <source>Start a window manager that follows the desktop standard (EWMH).</source>
        <translation>Eine Fensterverwaltung starten, die dem Desktop-Standard (EWMH) folgt.</translation>
    </message>
    <message>
        <source>Wayland hides windows from other programs: only those that use XWayland can be reached. For them: %1</source>
        <translation>Wayland verbirgt Fenster vor anderen Programmen: Nur solche, die XWayland verwenden, sind erreichbar. Für sie gilt: %1</translation>
    </message>
    <message>
        <source>Wayland hides windows from other programs.</source>
        <translation>Wayland verbirgt Fenster vor anderen Programmen.</translation>
    </message>
    <message>
        <source>There is no desktop session here: neither DISPLAY nor WAYLAND_DISPLAY leads to one.</source>
        <translation>Hier gibt es keine Desktop-Sitzung: Weder DISPLAY noch WAYLAND_DISPLAY führt zu einer.</translation>
    </message>
    <message>
        <source>No window manager that takes such requests runs.</source>
        <translation>Es läuft keine Fensterverwaltung, die solche Bitten annimmt.</translation>
    </message>
    <message>
        <source>The window manager “%1” takes no such requests, or does not answer.</source>
        <translation>Die Fensterverwaltung „%1“ nimmt solche Bitten nicht an oder antwortet nicht.</translation>
    </message>
    <message>
        <source>The window manager takes no such requests, or does not answer.</source>
        <translation>Die Fensterverwaltung nimmt solche Bitten nicht an oder antwortet nicht.</translation>
    </message>
    <message>
        <source>The window manager “%1” closes windows for other programs and does not move them.</source>
        <translation>Die Fensterverwaltung „%1“ schließt Fenster für andere Programme und verschiebt sie nicht.</translation>
    </message>
    <message>
        <source>The window manager closes windows for other programs and does not move them.</source>
        <translation>Die Fensterverwaltung schließt Fenster für andere Programme und verschiebt sie nicht.</translation>
    </message>
    <message>
        <source>The window manager “%1” moves windows for other programs and does not close them.</source>
        <translation>Die Fensterverwaltung „%1“ verschiebt Fenster für andere Programme und schließt sie nicht.</translation>
    </message>
    <message>
        <source>The window manager moves windows for other programs and does not close them.</source>
        <translation>Die Fensterverwaltung verschiebt Fenster für andere Programme und schließt sie nicht.</translation>
    </message>
    <message>
        <source>The window manager “%1” takes such requests; a window that Kinesta tiles leaves its layout for that and floats.</source>
        <translation>Die Fensterverwaltung „%1“ nimmt solche Bitten an; ein Fenster, das Kinesta anordnet, verlässt dafür ihre Aufteilung und schwebt.</translation>
    </message>
    <message>
        <source>The window manager takes such requests; a window that Kinesta tiles leaves its layout for that and floats.</source>
        <translation>Die Fensterverwaltung nimmt solche Bitten an; ein Fenster, das Kinesta anordnet, verlässt dafür ihre Aufteilung und schwebt.</translation>
    </message>
    <message>
        <source>The window manager “%1” takes such requests.</source>
        <translation>Die Fensterverwaltung „%1“ nimmt solche Bitten an.</translation>
    </message>
    <message>
        <source>The window manager takes such requests.</source>
        <translation>Die Fensterverwaltung nimmt solche Bitten an.</translation>
    </message>
    <message>
        <source>Opening addresses and files</source>
        <translation>Adressen und Dateien öffnen</translation>
    </message>
    <message>
        <source>There is no desktop session here in which they could be opened.</source>
        <translation>Hier gibt es keine Desktop-Sitzung, in der sie geöffnet werden könnten.</translation>
    </message>
    <message>
        <source>They are handed to xdg-open, which looks for a program for each kind; whether it has one is not known here.</source>
        <translation>Sie gehen an xdg-open, das für jede Art ein Programm sucht; ob es eines hat, ist hier nicht bekannt.</translation>
    </message>
    <message>
        <source>They are handed to the desktop&apos;s portal, which answers.</source>
        <translation>Sie gehen an das Portal der Arbeitsumgebung, das antwortet.</translation>
    </message>
    <message>
        <source>There is no xdg-open, and the desktop&apos;s portal does not answer or cannot open things.</source>
        <translation>xdg-open fehlt, und das Portal der Arbeitsumgebung antwortet nicht oder kann nichts öffnen.</translation>
    </message>
    <message>
        <source>There is neither xdg-open nor a desktop portal.</source>
        <translation>Es gibt weder xdg-open noch ein Portal der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Install xdg-utils:</source>
        <translation>xdg-utils installieren:</translation>
    </message>
    <message>
        <source>Showing notifications</source>
        <translation>Mitteilungen zeigen</translation>
    </message>
    <message>
        <source>There is no session bus, so Kinesta cannot tell you when it may not do something.</source>
        <translation>Es gibt keinen Sitzungsbus; Kinesta kann also nicht mitteilen, wenn es etwas nicht darf.</translation>
    </message>
    <message>
        <source>No program shows notifications here, so Kinesta cannot tell you when it may not do something.</source>
        <translation>Kein Programm zeigt hier Mitteilungen; Kinesta kann also nicht mitteilen, wenn es etwas nicht darf.</translation>
    </message>
    <message>
        <source>Install one:</source>
        <translation>Eines installieren:</translation>
    </message>
    <message>
        <source>The program for notifications cannot be started or does not answer, so Kinesta cannot tell you when it may not do something.</source>
        <translation>Das Programm für Mitteilungen lässt sich nicht starten oder antwortet nicht; Kinesta kann also nicht mitteilen, wenn es etwas nicht darf.</translation>
    </message>
    <message>
        <source>If you did, log out and in again.</source>
        <translation>Läuft es dort schon, einmal ab- und wieder anmelden.</translation>
    </message>
    <message>
        <source>The program that shows them runs and answers.</source>
        <translation>Das Programm, das sie zeigt, läuft und antwortet.</translation>
    </message>
    <message>
        <source>Showing the cue of an action</source>
        <translation>Einblendung einer Aktion zeigen</translation>
    </message>
    <message>
        <source>The application draws it above all windows.</source>
        <translation>Die Anwendung zeichnet sie über alle Fenster.</translation>
    </message>
    <message>
        <source>The application draws it above all windows, through XWayland.</source>
        <translation>Die Anwendung zeichnet sie durch XWayland über alle Fenster.</translation>
    </message>
    <message>
        <source>Wayland lets no program place a window, so it comes as a notification.</source>
        <translation>Unter Wayland darf kein Programm ein Fenster platzieren; sie kommt daher als Mitteilung.</translation>
    </message>
    <message>
        <source>Wayland lets no program place a window, and nothing shows notifications.</source>
        <translation>Unter Wayland darf kein Programm ein Fenster platzieren, und nichts zeigt Mitteilungen.</translation>
    </message>
    <message>
        <source>Switch XWayland on in your desktop.</source>
        <translation>XWayland in der Arbeitsumgebung einschalten.</translation>
    </message>
    <message>
        <source>There is no desktop session here to show it in.</source>
        <translation>Hier gibt es keine Desktop-Sitzung, in der sie zu sehen wäre.</translation>
    </message>
    <message>
        <source>Keys cannot be posted, for no X server answers; see: kinesta doctor</source>
        <translation>Tasten können nicht gesendet werden, denn kein X-Server antwortet; siehe: kinesta doctor</translation>
    </message>
    <message>
        <source>Changed settings could not be stored and last only until Kinesta quits: %1</source>
        <translation>Geänderte Einstellungen konnten nicht gespeichert werden und gelten nur, bis Kinesta beendet wird: %1</translation>
    </message>
    <message>
        <source>%1, and it cannot be set aside: %2</source>
        <translation>%1, und sie lässt sich nicht beiseitelegen: %2</translation>
    </message>
    <message>
        <source>The stored settings could not be read, so the standard ones are in use: %1</source>
        <translation>Die gespeicherten Einstellungen waren nicht lesbar; daher gelten die Standardeinstellungen: %1</translation>
    </message>
    <message>
        <source>The settings were changed elsewhere but could not be read: %1</source>
        <translation>Die Einstellungen wurden anderswo geändert, waren aber nicht lesbar: %1</translation>
    </message>
    <message>
        <source>The settings file is damaged and was set aside; repair it and put it back, or make the settings again: %1, now %2</source>
        <translation>Die Einstellungsdatei ist beschädigt und wurde beiseitegelegt; sie reparieren und zurücklegen oder die Einstellungen neu vornehmen: %1, jetzt %2</translation>
    </message>
    <message>
        <source>The key that ⌘ means in shortcuts and presets.</source>
        <translation>Die Taste, die ⌘ in Tastenkombinationen und Vorgaben bedeutet.</translation>
    </message>
    <message>
        <source>⌘ stands for</source>
        <translation>⌘ steht für</translation>
    </message>
    <message>
        <source>Keys go out through</source>
        <translation>Tasten gehen hinaus über</translation>
    </message>
    <message>
        <source>What suits the session</source>
        <translation>Was zur Sitzung passt</translation>
    </message>
    <message>
        <source>The X server in an X11 session, a virtual keyboard in all others.</source>
        <translation>In einer X11-Sitzung der X-Server, in allen anderen eine virtuelle Tastatur.</translation>
    </message>
    <message>
        <source>The X server</source>
        <translation>Den X-Server</translation>
    </message>
    <message>
        <source>In a Wayland session, only programs that use XWayland receive the keys.</source>
        <translation>In einer Wayland-Sitzung erhalten nur Programme, die XWayland verwenden, die Tasten.</translation>
    </message>
    <message>
        <source>A virtual keyboard</source>
        <translation>Eine virtuelle Tastatur</translation>
    </message>
    <message>
        <source>Reaches every program. Modifier keys that you hold yourself count as part of a shortcut.</source>
        <translation>Erreicht jedes Programm. Selbst gehaltene Sondertasten zählen als Teil der Tastenkombination.</translation>
    </message>
    <message>
        <source>; to allow it, run: %1</source>
        <translation>; um es zu erlauben, ausführen: %1</translation>
    </message>
    <message>
        <source>The trackpad &quot;%1&quot; (%2) may not be read</source>
        <translation>Das Touchpad „%1“ (%2) darf nicht gelesen werden</translation>
    </message>
    <message>
        <source>The trackpad &quot;%1&quot; (%2) cannot be read: %3.</source>
        <translation>Das Touchpad „%1“ (%2) kann nicht gelesen werden: %3.</translation>
    </message>
    <message>
        <source>No built-in trackpad was found.</source>
        <translation>Es wurde kein eingebautes Touchpad gefunden.</translation>
    </message>
    <message>
        <source>There is no trackpad at %1.</source>
        <translation>Unter %1 gibt es kein Touchpad.</translation>
    </message>
    <message>
        <source>No trackpad named &quot;%1&quot; was found.</source>
        <translation>Es wurde kein Touchpad mit dem Namen „%1“ gefunden.</translation>
    </message>
    <message>
        <source>The trackpad is switched off in the desktop&apos;s settings.</source>
        <translation>Das Touchpad ist in den Einstellungen der Arbeitsumgebung ausgeschaltet.</translation>
    </message>
    <message>
        <source>The trackpad is switched off in the desktop&apos;s settings while an external mouse is connected.</source>
        <translation>Das Touchpad ist laut den Einstellungen der Arbeitsumgebung ausgeschaltet, solange eine externe Maus angeschlossen ist.</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2.</source>
        <translation>%1 kann nicht gestartet werden: %2.</translation>
    </message>
    <message>
        <source>%1 did not answer in time. Try again later.</source>
        <translation>%1 hat nicht rechtzeitig geantwortet. Später erneut versuchen.</translation>
    </message>
    <message>
        <source>%1 doctor gave no report. Run it in a terminal to see why.</source>
        <translation>%1 doctor hat keinen Bericht geliefert. In einem Terminal ausgeführt, zeigt es den Grund.</translation>
    </message>
    <message>
        <source>No session bus answers: kinesta ctl and a second start of Kinesta cannot reach this one.</source>
        <translation>Kein Sitzungsbus antwortet: kinesta ctl und ein zweiter Start von Kinesta erreichen dieses hier nicht.</translation>
    </message>
    <message>
        <source>The session bus refuses the name com.orvane.kinesta, so kinesta ctl cannot reach this Kinesta: %1</source>
        <translation>Der Sitzungsbus verweigert den Namen com.orvane.kinesta; kinesta ctl erreicht dieses Kinesta daher nicht: %1</translation>
    </message>
    <message>
        <source>The session bus has ended: kinesta ctl and a second start of Kinesta cannot reach this one.</source>
        <translation>Der Sitzungsbus ist beendet: kinesta ctl und ein zweiter Start von Kinesta erreichen dieses hier nicht.</translation>
    </message>
    <message>
        <source>the server does not answer</source>
        <translation>Der Server antwortet nicht</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>Es dauert zu lange</translation>
    </message>
    <message>
        <source>it is longer than it may be</source>
        <translation>Die Daten sind länger als erlaubt</translation>
    </message>
    <message>
        <source>The update feed cannot be read: %1.</source>
        <translation>Die Update-Quelle kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The update cannot be stored in %1: %2.</source>
        <translation>Das Update kann nicht in %1 gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>The update cannot be downloaded: %1.</source>
        <translation>Das Update kann nicht geladen werden: %1.</translation>
    </message>
    <message>
        <source>The update cannot be stored: %1.</source>
        <translation>Das Update kann nicht gespeichert werden: %1.</translation>
    </message>
    <message>
        <source>The update is incomplete. Nothing was kept.</source>
        <translation>Das Update ist unvollständig. Nichts wurde behalten.</translation>
    </message>
    <message>
        <source>The update is not signed by the makers of Kinesta. Nothing was kept.</source>
        <translation>Das Update ist nicht vom Hersteller von Kinesta signiert. Nichts wurde behalten.</translation>
    </message>
    <message>
        <source>The update cannot be stored as %1: %2.</source>
        <translation>Das Update kann nicht als %1 gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>it declares entities or a document type</source>
        <translation>Sie deklariert Entitäten oder einen Dokumenttyp</translation>
    </message>
    <message>
        <source>it is not an update feed</source>
        <translation>Es ist keine Update-Quelle</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Detected %1</source>
        <translation>Erkannt: %1</translation>
    </message>
    <message>
        <source>Choose an action…</source>
        <translation>Aktion auswählen …</translation>
    </message>
    <message>
        <source>Middle mouse click</source>
        <translation>Mittlerer Mausklick</translation>
    </message>
    <message>
        <source>Open URL</source>
        <translation>Adresse öffnen</translation>
    </message>
    <message>
        <source>Open file or folder</source>
        <translation>Datei oder Ordner öffnen</translation>
    </message>
    <message>
        <source>Launch application</source>
        <translation>Anwendung starten</translation>
    </message>
    <message>
        <source>Run shell command</source>
        <translation>Shell-Befehl ausführen</translation>
    </message>
    <message>
        <source>Toggle configuration window</source>
        <translation>Einstellungsfenster ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Disable all rules</source>
        <translation>Alle Regeln ausschalten</translation>
    </message>
    <message>
        <source>Adjust system volume</source>
        <translation>Lautstärke ändern</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste and Match Style</source>
        <translation>Einfügen und Stil anpassen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Close Window</source>
        <translation>Fenster schließen</translation>
    </message>
    <message>
        <source>Close All Windows</source>
        <translation>Alle Fenster schließen</translation>
    </message>
    <message>
        <source>Minimize Window</source>
        <translation>Fenster minimieren</translation>
    </message>
    <message>
        <source>Minimize All Windows</source>
        <translation>Alle Fenster minimieren</translation>
    </message>
    <message>
        <source>Hide App</source>
        <translation>App ausblenden</translation>
    </message>
    <message>
        <source>Hide Other Apps</source>
        <translation>Andere Apps ausblenden</translation>
    </message>
    <message>
        <source>Quit App</source>
        <translation>App beenden</translation>
    </message>
    <message>
        <source>App Settings</source>
        <translation>App-Einstellungen</translation>
    </message>
    <message>
        <source>Toggle Full Screen</source>
        <translation>Vollbild ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Switch App</source>
        <translation>App wechseln</translation>
    </message>
    <message>
        <source>Next App Window</source>
        <translation>Nächstes Fenster der App</translation>
    </message>
    <message>
        <source>Fill Desktop</source>
        <translation>Schreibtisch füllen</translation>
    </message>
    <message>
        <source>Center Window</source>
        <translation>Fenster zentrieren</translation>
    </message>
    <message>
        <source>Tile Left Half</source>
        <translation>Linke Hälfte</translation>
    </message>
    <message>
        <source>Tile Right Half</source>
        <translation>Rechte Hälfte</translation>
    </message>
    <message>
        <source>Tile Top Half</source>
        <translation>Obere Hälfte</translation>
    </message>
    <message>
        <source>Tile Bottom Half</source>
        <translation>Untere Hälfte</translation>
    </message>
    <message>
        <source>Return to Previous Size</source>
        <translation>Zurück zur vorherigen Größe</translation>
    </message>
    <message>
        <source>Arrange Left &amp; Right</source>
        <translation>Links &amp; rechts anordnen</translation>
    </message>
    <message>
        <source>Arrange Right &amp; Left</source>
        <translation>Rechts &amp; links anordnen</translation>
    </message>
    <message>
        <source>Arrange Top &amp; Bottom</source>
        <translation>Oben &amp; unten anordnen</translation>
    </message>
    <message>
        <source>Arrange Bottom &amp; Top</source>
        <translation>Unten &amp; oben anordnen</translation>
    </message>
    <message>
        <source>Left &amp; Two Quarters</source>
        <translation>Links &amp; zwei Viertel</translation>
    </message>
    <message>
        <source>Right &amp; Two Quarters</source>
        <translation>Rechts &amp; zwei Viertel</translation>
    </message>
    <message>
        <source>Top &amp; Two Quarters</source>
        <translation>Oben &amp; zwei Viertel</translation>
    </message>
    <message>
        <source>Bottom &amp; Two Quarters</source>
        <translation>Unten &amp; zwei Viertel</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Spotlight</translation>
    </message>
    <message>
        <source>Character Viewer</source>
        <translation>Zeichenübersicht</translation>
    </message>
    <message>
        <source>Character Viewer (Fn/Globe)</source>
        <translation>Zeichenübersicht (Fn/Globus)</translation>
    </message>
    <message>
        <source>Quick Note</source>
        <translation>Schnellnotiz</translation>
    </message>
    <message>
        <source>Show Desktop</source>
        <translation>Schreibtisch einblenden</translation>
    </message>
    <message>
        <source>Show or Hide Dock</source>
        <translation>Dock ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Kontrollzentrum</translation>
    </message>
    <message>
        <source>Notification Center</source>
        <translation>Mitteilungszentrale</translation>
    </message>
    <message>
        <source>Start or Stop Dictation</source>
        <translation>Diktat starten oder beenden</translation>
    </message>
    <message>
        <source>Apps or Launchpad</source>
        <translation>Apps oder Launchpad</translation>
    </message>
    <message>
        <source>Lock Screen</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>Force Quit</source>
        <translation>Sofort beenden</translation>
    </message>
    <message>
        <source>Screenshot Screen</source>
        <translation>Bildschirmfoto: ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Screenshot Selection</source>
        <translation>Bildschirmfoto: Auswahl</translation>
    </message>
    <message>
        <source>Screenshot Controls</source>
        <translation>Bildschirmfoto: Steuerung</translation>
    </message>
    <message>
        <source>Mission Control</source>
        <translation>Mission Control</translation>
    </message>
    <message>
        <source>App Expo</source>
        <translation>App-Exposé</translation>
    </message>
    <message>
        <source>Quick Look</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>Eject Selected Volume</source>
        <translation>Ausgewähltes Volume auswerfen</translation>
    </message>
    <message>
        <source>Go to Folder</source>
        <translation>Gehe zum Ordner</translation>
    </message>
    <message>
        <source>Open Home Folder</source>
        <translation>Benutzerordner öffnen</translation>
    </message>
    <message>
        <source>Open Downloads</source>
        <translation>Downloads öffnen</translation>
    </message>
    <message>
        <source>Open Documents</source>
        <translation>Dokumente öffnen</translation>
    </message>
    <message>
        <source>Open Recents</source>
        <translation>Zuletzt benutzt öffnen</translation>
    </message>
    <message>
        <source>Open iCloud Drive</source>
        <translation>iCloud Drive öffnen</translation>
    </message>
    <message>
        <source>Open AirDrop</source>
        <translation>AirDrop öffnen</translation>
    </message>
    <message>
        <source>Open Utilities</source>
        <translation>Dienstprogramme öffnen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Get Info</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>New Tab</source>
        <translation>Neuer Tab</translation>
    </message>
    <message>
        <source>Reopen Closed Tab</source>
        <translation>Geschlossenen Tab wieder öffnen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Focus Address Bar</source>
        <translation>Zur Adressleiste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Nächster Tab</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Vorheriger Tab</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Windows &amp; Apps</source>
        <translation>Fenster &amp; Apps</translation>
    </message>
    <message>
        <source>Window Tiling</source>
        <translation>Fenster anordnen</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>Finder</source>
        <translation>Finder</translation>
    </message>
    <message>
        <source>Web &amp; Tabs</source>
        <translation>Web &amp; Tabs</translation>
    </message>
    <message>
        <source>Not configured</source>
        <translation>Nicht eingerichtet</translation>
    </message>
    <message>
        <source>Disable every rule</source>
        <translation>Alle Regeln ausschalten</translation>
    </message>
    <message>
        <source>Slide up/down to adjust volume</source>
        <translation>Lautstärke durch Wischen ändern</translation>
    </message>
    <message>
        <source>%1-finger single tap</source>
        <translation>Einfaches %1-Finger-Tippen</translation>
    </message>
    <message>
        <source>%1-finger double tap</source>
        <translation>%1-Finger-Doppeltippen</translation>
    </message>
    <message>
        <source>%1-finger triple tap</source>
        <translation>%1-Finger-Dreifachtippen</translation>
    </message>
    <message>
        <source>%1-finger single physical click (any pressure)</source>
        <translation>Einfacher physischer %1-Finger-Klick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>%1-finger single soft click (stage 1)</source>
        <translation>Einfacher sanfter %1-Finger-Klick (Stufe 1)</translation>
    </message>
    <message>
        <source>%1-finger single force click (stage 2)</source>
        <translation>Einfacher kräftiger %1-Finger-Klick (Stufe 2)</translation>
    </message>
    <message>
        <source>%1-finger double physical click (any pressure)</source>
        <translation>Physischer %1-Finger-Doppelklick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>%1-finger double soft click (stage 1)</source>
        <translation>Sanfter %1-Finger-Doppelklick (Stufe 1)</translation>
    </message>
    <message>
        <source>%1-finger double force click (stage 2)</source>
        <translation>Kräftiger %1-Finger-Doppelklick (Stufe 2)</translation>
    </message>
    <message>
        <source>%1-finger triple physical click (any pressure)</source>
        <translation>Physischer %1-Finger-Dreifachklick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>%1-finger triple soft click (stage 1)</source>
        <translation>Sanfter %1-Finger-Dreifachklick (Stufe 1)</translation>
    </message>
    <message>
        <source>%1-finger triple force click (stage 2)</source>
        <translation>Kräftiger %1-Finger-Dreifachklick (Stufe 2)</translation>
    </message>
    <message>
        <source>single tip-tap left</source>
        <translation>Einfaches Tipp-Tapp links</translation>
    </message>
    <message>
        <source>double tip-tap left</source>
        <translation>Doppeltes Tipp-Tapp links</translation>
    </message>
    <message>
        <source>triple tip-tap left</source>
        <translation>Dreifaches Tipp-Tapp links</translation>
    </message>
    <message>
        <source>single tip-tap right</source>
        <translation>Einfaches Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>double tip-tap right</source>
        <translation>Doppeltes Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>triple tip-tap right</source>
        <translation>Dreifaches Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>%1-finger vertical edge slide</source>
        <translation>Senkrechtes %1-Finger-Randwischen</translation>
    </message>
    <message>
        <source>corner hold and draw</source>
        <translation>Ecke halten und zeichnen</translation>
    </message>
    <message>
        <source>%1-finger left edge slide up</source>
        <translation>%1-Finger-Randwischen links nach oben</translation>
    </message>
    <message>
        <source>%1-finger right edge slide up</source>
        <translation>%1-Finger-Randwischen rechts nach oben</translation>
    </message>
    <message>
        <source>%1-finger both edge slide up</source>
        <translation>%1-Finger-Randwischen beidseitig nach oben</translation>
    </message>
    <message>
        <source>%1-finger left edge slide down</source>
        <translation>%1-Finger-Randwischen links nach unten</translation>
    </message>
    <message>
        <source>%1-finger right edge slide down</source>
        <translation>%1-Finger-Randwischen rechts nach unten</translation>
    </message>
    <message>
        <source>%1-finger both edge slide down</source>
        <translation>%1-Finger-Randwischen beidseitig nach unten</translation>
    </message>
    <message>
        <source>%1, left edge</source>
        <translation>%1, linker Rand</translation>
    </message>
    <message>
        <source>%1, right edge</source>
        <translation>%1, rechter Rand</translation>
    </message>
    <message>
        <source>%1, both edges</source>
        <translation>%1, beide Ränder</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>oben links</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>unten links</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <source>line up</source>
        <translation>Linie nach oben</translation>
    </message>
    <message>
        <source>line down</source>
        <translation>Linie nach unten</translation>
    </message>
    <message>
        <source>line left</source>
        <translation>Linie nach links</translation>
    </message>
    <message>
        <source>line right</source>
        <translation>Linie nach rechts</translation>
    </message>
    <message>
        <source>l — down, then right</source>
        <translation>L – abwärts, dann nach rechts</translation>
    </message>
    <message>
        <source>v — left to right</source>
        <translation>V – von links nach rechts</translation>
    </message>
    <message>
        <source>zigzag — left to right</source>
        <translation>Zickzack – von links nach rechts</translation>
    </message>
    <message>
        <source>clockwise circle</source>
        <translation>Kreis im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>counterclockwise circle</source>
        <translation>Kreis gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2, %1</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no rule is bound to it</source>
        <translation>keine Regel verwendet sie</translation>
    </message>
    <message>
        <source>the rule “%1” has no complete action</source>
        <translation>die Regel „%1“ hat keine vollständige Aktion</translation>
    </message>
    <message>
        <source>a rule for it has no complete action</source>
        <translation>eine Regel dafür hat keine vollständige Aktion</translation>
    </message>
    <message>
        <source>the rule “%1” has an action that a slide cannot run: it can only adjust the volume</source>
        <translation>die Regel „%1“ hat eine Aktion, die ein Wischen nicht ausführen kann: Es kann nur die Lautstärke ändern</translation>
    </message>
    <message>
        <source>a rule for it has an action that a slide cannot run: it can only adjust the volume</source>
        <translation>eine Regel dafür hat eine Aktion, die ein Wischen nicht ausführen kann: Es kann nur die Lautstärke ändern</translation>
    </message>
    <message>
        <source>the rule “%1” runs a shell command, and those are switched off</source>
        <translation>die Regel „%1“ führt einen Shell-Befehl aus, und diese sind ausgeschaltet</translation>
    </message>
    <message>
        <source>a rule for it runs a shell command, and those are switched off</source>
        <translation>eine Regel dafür führt einen Shell-Befehl aus, und diese sind ausgeschaltet</translation>
    </message>
    <message>
        <source>the rule “%1” is off</source>
        <translation>die Regel „%1“ ist aus</translation>
    </message>
    <message>
        <source>a rule for it is off</source>
        <translation>eine Regel dafür ist aus</translation>
    </message>
    <message>
        <source>Choose a gesture…</source>
        <translation>Geste auswählen …</translation>
    </message>
    <message>
        <source>Single tap</source>
        <translation>Einfaches Tippen</translation>
    </message>
    <message>
        <source>Double tap</source>
        <translation>Doppeltippen</translation>
    </message>
    <message>
        <source>Triple tap</source>
        <translation>Dreifachtippen</translation>
    </message>
    <message>
        <source>Single physical click (any pressure)</source>
        <translation>Einfacher physischer Klick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>Single soft click (stage 1)</source>
        <translation>Einfacher sanfter Klick (Stufe 1)</translation>
    </message>
    <message>
        <source>Single Force Click (stage 2)</source>
        <translation>Einfacher kräftiger Klick (Stufe 2)</translation>
    </message>
    <message>
        <source>Double physical click (any pressure)</source>
        <translation>Physischer Doppelklick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>Double soft click (stage 1)</source>
        <translation>Sanfter Doppelklick (Stufe 1)</translation>
    </message>
    <message>
        <source>Double Force Click (stage 2)</source>
        <translation>Kräftiger Doppelklick (Stufe 2)</translation>
    </message>
    <message>
        <source>Triple physical click (any pressure)</source>
        <translation>Physischer Dreifachklick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>Triple soft click (stage 1)</source>
        <translation>Sanfter Dreifachklick (Stufe 1)</translation>
    </message>
    <message>
        <source>Triple Force Click (stage 2)</source>
        <translation>Kräftiger Dreifachklick (Stufe 2)</translation>
    </message>
    <message>
        <source>Single tip-tap left</source>
        <translation>Einfaches Tipp-Tapp links</translation>
    </message>
    <message>
        <source>Double tip-tap left</source>
        <translation>Doppeltes Tipp-Tapp links</translation>
    </message>
    <message>
        <source>Triple tip-tap left</source>
        <translation>Dreifaches Tipp-Tapp links</translation>
    </message>
    <message>
        <source>Single tip-tap right</source>
        <translation>Einfaches Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>Double tip-tap right</source>
        <translation>Doppeltes Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>Triple tip-tap right</source>
        <translation>Dreifaches Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>Vertical edge slide</source>
        <translation>Senkrechtes Randwischen</translation>
    </message>
    <message>
        <source>Corner hold and draw</source>
        <translation>Ecke halten und zeichnen</translation>
    </message>
    <message>
        <source>Soft click (stage 1)</source>
        <translation>Sanfter Klick (Stufe 1)</translation>
    </message>
    <message>
        <source>Force Click (stage 2)</source>
        <translation>Kräftiger Klick (Stufe 2)</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Both</source>
        <translation>Beide</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Line up</source>
        <translation>Linie nach oben</translation>
    </message>
    <message>
        <source>Line down</source>
        <translation>Linie nach unten</translation>
    </message>
    <message>
        <source>Line left</source>
        <translation>Linie nach links</translation>
    </message>
    <message>
        <source>Line right</source>
        <translation>Linie nach rechts</translation>
    </message>
    <message>
        <source>L — down, then right</source>
        <translation>L – abwärts, dann nach rechts</translation>
    </message>
    <message>
        <source>V — left to right</source>
        <translation>V – von links nach rechts</translation>
    </message>
    <message>
        <source>Zigzag — left to right</source>
        <translation>Zickzack – von links nach rechts</translation>
    </message>
    <message>
        <source>Clockwise circle</source>
        <translation>Kreis im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Counterclockwise circle</source>
        <translation>Kreis gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Choose a type…</source>
        <translation>Art auswählen …</translation>
    </message>
    <message>
        <source>Tap</source>
        <translation>Tippen</translation>
    </message>
    <message>
        <source>Physical click (any pressure)</source>
        <translation>Physischer Klick (beliebiger Druck)</translation>
    </message>
    <message>
        <source>Tip-tap left</source>
        <translation>Tipp-Tapp links</translation>
    </message>
    <message>
        <source>Tip-tap right</source>
        <translation>Tipp-Tapp rechts</translation>
    </message>
    <message>
        <source>Corner hold and draw (prototype)</source>
        <translation>Ecke halten und zeichnen (Prototyp)</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abwärts</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Aufwärts</translation>
    </message>
    <message>
        <source>Key %1</source>
        <translation>Taste %1</translation>
    </message>
    <message>
        <source>May also trigger macOS gestures</source>
        <translation>Kann auch macOS-Gesten auslösen</translation>
    </message>
    <message>
        <source>The drawing finger creates two-finger movement. macOS may scroll or zoom the app beneath the pointer while Kinesta records the pattern.</source>
        <translation>Der zeichnende Finger erzeugt eine Bewegung mit zwei Fingern. macOS kann in der App unter dem Zeiger scrollen oder zoomen, während Kinesta das Muster aufnimmt.</translation>
    </message>
    <message>
        <source>May conflict with Look Up &amp; Data Detectors</source>
        <translation>Kann „Nachschlagen &amp; Datenerkennung“ stören</translation>
    </message>
    <message>
        <source>macOS can use a three-finger tap to look up words and detect data. Change it in System Settings → Trackpad → Point &amp; Click.</source>
        <translation>macOS kann mit einem Tippen mit drei Fingern Wörter nachschlagen und Daten erkennen. Zu ändern in Systemeinstellungen → Trackpad → Zeigen und Klicken.</translation>
    </message>
    <message>
        <source>May conflict with Secondary Click</source>
        <translation>Kann den Sekundärklick stören</translation>
    </message>
    <message>
        <source>macOS can use a two-finger tap for Secondary Click. Change it in System Settings → Trackpad → Point &amp; Click.</source>
        <translation>macOS kann ein Tippen mit zwei Fingern als Sekundärklick verwenden. Zu ändern in Systemeinstellungen → Trackpad → Zeigen und Klicken.</translation>
    </message>
    <message>
        <source>May conflict with Smart Zoom</source>
        <translation>Kann „Intelligentes Zoomen“ stören</translation>
    </message>
    <message>
        <source>macOS can use a two-finger double tap for Smart Zoom. Change it in System Settings → Trackpad → Scroll &amp; Zoom.</source>
        <translation>macOS kann ein Doppeltippen mit zwei Fingern für „Intelligentes Zoomen“ verwenden. Zu ändern in Systemeinstellungen → Trackpad → Scrollen und Zoomen.</translation>
    </message>
    <message>
        <source>macOS can use a two-finger click for Secondary Click. Change it in System Settings → Trackpad → Point &amp; Click.</source>
        <translation>macOS kann einen Klick mit zwei Fingern als Sekundärklick verwenden. Zu ändern in Systemeinstellungen → Trackpad → Zeigen und Klicken.</translation>
    </message>
    <message>
        <source>May also scroll onscreen content</source>
        <translation>Kann auch den Bildschirminhalt scrollen</translation>
    </message>
    <message>
        <source>macOS handles two-finger movement as scrolling. Sliding at the edge can also scroll the app beneath the pointer.</source>
        <translation>macOS behandelt Bewegungen mit zwei Fingern als Scrollen. Das Wischen am Rand kann auch in der App unter dem Zeiger scrollen.</translation>
    </message>
    <message>
        <source>While tap-to-click is on, %1 can take a two-finger tap for a right click. Change it in Settings → Mouse &amp; Touchpad → Touchpad.</source>
        <translation>Solange Klicken durch Tippen eingeschaltet ist, kann %1 ein Tippen mit zwei Fingern als Rechtsklick verstehen. Zu ändern in Einstellungen → Maus und Touchpad → Touchpad.</translation>
    </message>
    <message>
        <source>While tap-to-click is on, %1 can take a three-finger tap for a middle click, which pastes in many apps. Change it in Settings → Mouse &amp; Touchpad → Touchpad.</source>
        <translation>Solange Klicken durch Tippen eingeschaltet ist, kann %1 ein Tippen mit drei Fingern als Mittelklick verstehen, der in vielen Apps einfügt. Zu ändern in Einstellungen → Maus und Touchpad → Touchpad.</translation>
    </message>
    <message>
        <source>%1 can take a two-finger click for a right click. Change it in Settings → Mouse &amp; Touchpad → Touchpad, in older versions in Tweaks.</source>
        <translation>%1 kann einen Klick mit zwei Fingern als Rechtsklick verstehen. Zu ändern in Einstellungen → Maus und Touchpad → Touchpad, in älteren Versionen in Optimierungen.</translation>
    </message>
    <message>
        <source>%1 can take a three-finger click for a middle click, which pastes in many apps. Change it in Settings → Mouse &amp; Touchpad → Touchpad, in older versions in Tweaks.</source>
        <translation>%1 kann einen Klick mit drei Fingern als Mittelklick verstehen, der in vielen Apps einfügt. Zu ändern in Einstellungen → Maus und Touchpad → Touchpad, in älteren Versionen in Optimierungen.</translation>
    </message>
    <message>
        <source>May also open the Activities overview</source>
        <translation>Kann auch die Aktivitäten-Übersicht öffnen</translation>
    </message>
    <message>
        <source>On Wayland, GNOME 40 and later take a three-finger swipe up or down for the Activities overview. Settings has no switch for it; choose another gesture if it gets in the way.</source>
        <translation>Unter Wayland öffnet GNOME ab Version 40 bei einem Wischen mit drei Fingern nach oben oder unten die Aktivitäten-Übersicht. Die Einstellungen haben dafür keinen Schalter; falls es stört, eine andere Geste auswählen.</translation>
    </message>
    <message>
        <source>May also change the workspace</source>
        <translation>Kann auch die Arbeitsfläche wechseln</translation>
    </message>
    <message>
        <source>On Wayland, some versions of GNOME take a four-finger swipe up or down to change the workspace. Settings has no switch for it; choose another gesture if it gets in the way.</source>
        <translation>Unter Wayland wechseln manche Versionen von GNOME bei einem Wischen mit vier Fingern nach oben oder unten die Arbeitsfläche. Die Einstellungen haben dafür keinen Schalter; falls es stört, eine andere Geste auswählen.</translation>
    </message>
    <message>
        <source>While tap-to-click is on, %1 can take a two-finger tap for a right click. Change it in System Settings, under Touchpad.</source>
        <translation>Solange Klicken durch Antippen eingeschaltet ist, kann %1 ein Tippen mit zwei Fingern als Rechtsklick verstehen. Zu ändern in den Systemeinstellungen unter Touchpad.</translation>
    </message>
    <message>
        <source>While tap-to-click is on, %1 can take a three-finger tap for a middle click, which pastes in many apps. Change it in System Settings, under Touchpad.</source>
        <translation>Solange Klicken durch Antippen eingeschaltet ist, kann %1 ein Tippen mit drei Fingern als Mittelklick verstehen, der in vielen Apps einfügt. Zu ändern in den Systemeinstellungen unter Touchpad.</translation>
    </message>
    <message>
        <source>%1 can take a two-finger click for a right click. Change it in System Settings, under Touchpad.</source>
        <translation>%1 kann einen Klick mit zwei Fingern als Rechtsklick verstehen. Zu ändern in den Systemeinstellungen unter Touchpad.</translation>
    </message>
    <message>
        <source>%1 can take a three-finger click for a middle click, which pastes in many apps. Change it in System Settings, under Touchpad.</source>
        <translation>%1 kann einen Klick mit drei Fingern als Mittelklick verstehen, der in vielen Apps einfügt. Zu ändern in den Systemeinstellungen unter Touchpad.</translation>
    </message>
    <message>
        <source>May also change the virtual desktop</source>
        <translation>Kann auch die virtuelle Arbeitsfläche wechseln</translation>
    </message>
    <message>
        <source>On Wayland, Plasma 6 can take a three-finger swipe to change the virtual desktop. It does nothing while System Settings, under Virtual Desktops, has one only.</source>
        <translation>Unter Wayland kann Plasma 6 bei einem Wischen mit drei Fingern die virtuelle Arbeitsfläche wechseln. Es tut nichts, solange die Systemeinstellungen unter Virtuelle Arbeitsflächen nur eine haben.</translation>
    </message>
    <message>
        <source>May also open the overview</source>
        <translation>Kann auch die Übersicht öffnen</translation>
    </message>
    <message>
        <source>On Wayland, KDE Plasma can take a four-finger swipe for the overview, or to change the virtual desktop. Change it in System Settings, under Desktop Effects and Virtual Desktops.</source>
        <translation>Unter Wayland kann KDE Plasma bei einem Wischen mit vier Fingern die Übersicht öffnen oder die virtuelle Arbeitsfläche wechseln. Zu ändern in den Systemeinstellungen unter Arbeitsflächen-Effekte und Virtuelle Arbeitsflächen.</translation>
    </message>
    <message>
        <source>May also scroll or zoom</source>
        <translation>Kann auch scrollen oder zoomen</translation>
    </message>
    <message>
        <source>The drawing finger creates two-finger movement. %1 may scroll or zoom the app beneath the pointer while Kinesta records the pattern.</source>
        <translation>Der zeichnende Finger erzeugt eine Bewegung mit zwei Fingern. %1 kann in der App unter dem Zeiger scrollen oder zoomen, während Kinesta das Muster aufnimmt.</translation>
    </message>
    <message>
        <source>%1 handles two-finger movement as scrolling. Sliding at the edge can also scroll the app beneath the pointer.</source>
        <translation>%1 behandelt Bewegungen mit zwei Fingern als Scrollen. Das Wischen am Rand kann auch in der App unter dem Zeiger scrollen.</translation>
    </message>
    <message>
        <source>May also click the right button</source>
        <translation>Kann auch die rechte Taste klicken</translation>
    </message>
    <message>
        <source>May also click the middle button</source>
        <translation>Kann auch die mittlere Taste klicken</translation>
    </message>
    <message>
        <source>Choose what the gesture does.</source>
        <translation>Auswählen, was die Geste bewirkt.</translation>
    </message>
    <message>
        <source>Presses the keys of a shortcut in the frontmost app.</source>
        <translation>Drückt die Tasten einer Tastenkombination in der vordersten App.</translation>
    </message>
    <message>
        <source>Clicks the middle mouse button where the pointer is.</source>
        <translation>Klickt mit der mittleren Maustaste dort, wo der Zeiger ist.</translation>
    </message>
    <message>
        <source>Closes the focused window of the frontmost app using its close button. Requires Accessibility permission. Sends no keyboard shortcut. Apps without an accessible, enabled close button are left unchanged; save dialogs remain under your control.</source>
        <translation>Schließt das aktive Fenster der vordersten App über dessen Schließknopf. Erfordert die Berechtigung für Bedienungshilfen. Sendet keine Tastenkombination. Apps ohne zugänglichen, aktiven Schließknopf bleiben unverändert; Dialoge zum Speichern bleiben offen und werden nicht beantwortet.</translation>
    </message>
    <message>
        <source>Opens a web page in your browser.</source>
        <translation>Öffnet eine Webseite im Browser.</translation>
    </message>
    <message>
        <source>Opens a file or folder with the app that it belongs to.</source>
        <translation>Öffnet eine Datei oder einen Ordner mit der zugehörigen App.</translation>
    </message>
    <message>
        <source>Starts an app, with arguments if you add some.</source>
        <translation>Startet eine App, auf Wunsch mit Argumenten.</translation>
    </message>
    <message>
        <source>Runs a command in your shell, without a terminal.</source>
        <translation>Führt einen Befehl in der Shell aus, ohne Terminal.</translation>
    </message>
    <message>
        <source>Shows this window, or hides it.</source>
        <translation>Zeigt dieses Fenster oder blendet es aus.</translation>
    </message>
    <message>
        <source>Switches every rule off, this one too.</source>
        <translation>Schaltet alle Regeln aus, auch diese.</translation>
    </message>
    <message>
        <source>An edge slide always adjusts the volume.</source>
        <translation>Ein Randwischen ändert immer die Lautstärke.</translation>
    </message>
    <message>
        <source>An address has no blanks, quotes or backslashes: write them as %20, %22 or %5C.</source>
        <translation>Eine Adresse hat keine Leerzeichen, Anführungszeichen oder umgekehrten Schrägstriche: Sie werden als %20, %22 oder %5C geschrieben.</translation>
    </message>
    <message>
        <source>Kinesta opens web pages only: begin the address with http:// or https://.</source>
        <translation>Kinesta öffnet nur Webseiten: Die Adresse mit http:// oder https:// beginnen.</translation>
    </message>
    <message>
        <source>Delete “%1”?</source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>Delete %1 gestures?</source>
        <translation>%1 Gesten löschen?</translation>
    </message>
    <message>
        <source>This action cannot be undone.</source>
        <translation>Diese Aktion kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Repetition</source>
        <translation>Wiederholung</translation>
    </message>
    <message>
        <source>Fingers</source>
        <translation>Finger</translation>
    </message>
    <message>
        <source>Side</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Single</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Doppelt</translation>
    </message>
    <message>
        <source>Triple</source>
        <translation>Dreifach</translation>
    </message>
    <message>
        <source>Touch with %1 fingers together and lift.</source>
        <translation>Mit %1 Fingern zugleich berühren und abheben.</translation>
    </message>
    <message>
        <source>Touch with %1 fingers together and lift, twice.</source>
        <translation>Zweimal mit %1 Fingern zugleich berühren und abheben.</translation>
    </message>
    <message>
        <source>Touch with %1 fingers together and lift, three times.</source>
        <translation>Dreimal mit %1 Fingern zugleich berühren und abheben.</translation>
    </message>
    <message>
        <source>Press the pad with %1 fingers until it clicks.</source>
        <translation>Mit %1 Fingern drücken, bis das Touchpad klickt.</translation>
    </message>
    <message>
        <source>Press the pad with %1 fingers until it clicks, twice.</source>
        <translation>Zweimal mit %1 Fingern drücken, bis das Touchpad klickt.</translation>
    </message>
    <message>
        <source>Press the pad with %1 fingers until it clicks, three times.</source>
        <translation>Dreimal mit %1 Fingern drücken, bis das Touchpad klickt.</translation>
    </message>
    <message>
        <source>Press to the first click and no deeper.</source>
        <translation>Bis zum ersten Klick drücken und nicht tiefer.</translation>
    </message>
    <message>
        <source>Press to the first click and no deeper, twice.</source>
        <translation>Zweimal bis zum ersten Klick drücken und nicht tiefer.</translation>
    </message>
    <message>
        <source>Press to the first click and no deeper, three times.</source>
        <translation>Dreimal bis zum ersten Klick drücken und nicht tiefer.</translation>
    </message>
    <message>
        <source>Press on through to the second, deeper click.</source>
        <translation>Bis zum zweiten, tieferen Klick durchdrücken.</translation>
    </message>
    <message>
        <source>Press on through to the second, deeper click, twice.</source>
        <translation>Zweimal bis zum zweiten, tieferen Klick durchdrücken.</translation>
    </message>
    <message>
        <source>Press on through to the second, deeper click, three times.</source>
        <translation>Dreimal bis zum zweiten, tieferen Klick durchdrücken.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap with another to its left.</source>
        <translation>Einen Finger ruhen lassen und links davon mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap twice with another to its left.</source>
        <translation>Einen Finger ruhen lassen und links davon zweimal mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap three times with another to its left.</source>
        <translation>Einen Finger ruhen lassen und links davon dreimal mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap with another to its right.</source>
        <translation>Einen Finger ruhen lassen und rechts davon mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap twice with another to its right.</source>
        <translation>Einen Finger ruhen lassen und rechts davon zweimal mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Rest one finger, then tap three times with another to its right.</source>
        <translation>Einen Finger ruhen lassen und rechts davon dreimal mit einem anderen tippen.</translation>
    </message>
    <message>
        <source>Slide %1 fingers up or down along the left edge.</source>
        <translation>Mit %1 Fingern am linken Rand nach oben oder unten wischen.</translation>
    </message>
    <message>
        <source>Slide %1 fingers up or down along the right edge.</source>
        <translation>Mit %1 Fingern am rechten Rand nach oben oder unten wischen.</translation>
    </message>
    <message>
        <source>Slide %1 fingers up or down along either edge.</source>
        <translation>Mit %1 Fingern an einem der Ränder nach oben oder unten wischen.</translation>
    </message>
    <message>
        <source>two</source>
        <translation>zwei</translation>
    </message>
    <message>
        <source>three</source>
        <translation>drei</translation>
    </message>
    <message>
        <source>four</source>
        <translation>vier</translation>
    </message>
    <message>
        <source>five</source>
        <translation>fünf</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Soft click</source>
        <translation>Sanfter Klick</translation>
    </message>
    <message>
        <source>Edge slide</source>
        <translation>Rand­wischen</translation>
    </message>
    <message>
        <source>Corner draw</source>
        <translation>Ecken­zeichnen</translation>
    </message>
    <message>
        <source>several</source>
        <translation>mehreren</translation>
    </message>
    <message>
        <source>Rest one finger in the corner, then draw with another.</source>
        <translation>Einen Finger in der Ecke ruhen lassen und mit einem anderen zeichnen.</translation>
    </message>
    <message>
        <source>Each picture shows what the fingers do. Point at one to see it performed on the large pad.</source>
        <translation>Jedes Bild zeigt, was die Finger tun. Beim Zeigen auf ein Bild führt das große Touchpad die Geste vor.</translation>
    </message>
    <message>
        <source>Ready for your gestures</source>
        <translation>Bereit für Gesten</translation>
    </message>
    <message>
        <source>Listening, with no rule on</source>
        <translation>Bereit, aber keine Regel ist an</translation>
    </message>
    <message>
        <source>Gestures are off</source>
        <translation>Gesten sind aus</translation>
    </message>
    <message>
        <source>The trackpad is not being read</source>
        <translation>Das Touchpad wird nicht gelesen</translation>
    </message>
    <message>
        <source>The trackpad cannot be read</source>
        <translation>Das Touchpad kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Welcome to Kinesta</source>
        <translation>Willkommen bei Kinesta</translation>
    </message>
    <message>
        <source>Your first gesture is set up: touch the pad with three fingers together and lift. It does a middle click.</source>
        <translation>Die erste Geste ist eingerichtet: das Touchpad mit drei Fingern zugleich berühren und abheben. Sie löst einen Mittelklick aus.</translation>
    </message>
    <message>
        <source>Fingers on the pad do what you choose: add a gesture, then say what happens.</source>
        <translation>Finger auf dem Touchpad bewirken, was hier festgelegt ist: eine Geste hinzufügen, dann eine Aktion auswählen.</translation>
    </message>
    <message>
        <source>Ran “%1”</source>
        <translation>„%1“ ausgeführt</translation>
    </message>
    <message>
        <source>Actions are paused while gestures are tried</source>
        <translation>Aktionen pausieren, während Gesten ausprobiert werden</translation>
    </message>
    <message>
        <source>No rule uses it</source>
        <translation>Keine Regel verwendet sie</translation>
    </message>
    <message>
        <source>Turn gesture recognition on in Settings to use your rules.</source>
        <translation>Um die Regeln zu verwenden, die Gestenerkennung in den Einstellungen einschalten.</translation>
    </message>
    <message>
        <source>Open Settings to review gesture recognition.</source>
        <translation>Die Gestenerkennung in den Einstellungen prüfen.</translation>
    </message>
    <message>
        <source>Listening for 1 enabled gesture rule.</source>
        <translation>Achtet auf 1 eingeschaltete Gestenregel.</translation>
    </message>
    <message>
        <source>Listening for %1 enabled gesture rules.</source>
        <translation>Achtet auf %1 eingeschaltete Gestenregeln.</translation>
    </message>
    <message>
        <source>The touchpad may not be read yet.</source>
        <translation>Das Touchpad darf noch nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This rule comes first in the list.</source>
        <translation>Diese Regel steht in der Liste zuerst.</translation>
    </message>
    <message>
        <source>“%1” comes first in the list.</source>
        <translation>„%1“ steht in der Liste zuerst.</translation>
    </message>
    <message>
        <source>This rule is ready again.</source>
        <translation>Diese Regel ist wieder bereit.</translation>
    </message>
    <message>
        <source>It was switched off while something was missing.</source>
        <translation>Sie wurde ausgeschaltet, als etwas fehlte.</translation>
    </message>
    <message>
        <source>This rule was switched off.</source>
        <translation>Diese Regel wurde ausgeschaltet.</translation>
    </message>
    <message>
        <source>This touchpad cannot tell how hard it is pressed, so no Force Click will come.</source>
        <translation>Dieses Touchpad misst nicht, wie stark gedrückt wird; ein kräftiger Klick kommt hier also nie.</translation>
    </message>
    <message>
        <source>Add a new gesture rule</source>
        <translation>Neue Gestenregel hinzufügen</translation>
    </message>
    <message>
        <source>Complete the current gesture and action before adding another rule.</source>
        <translation>Erst die aktuelle Geste und Aktion vervollständigen, dann eine weitere Regel hinzufügen.</translation>
    </message>
    <message>
        <source>Resolve the current gesture clash before adding another rule.</source>
        <translation>Erst den aktuellen Gestenkonflikt lösen, dann eine weitere Regel hinzufügen.</translation>
    </message>
    <message>
        <source>%1-finger tap</source>
        <translation>%1-Finger-Tippen</translation>
    </message>
    <message>
        <source>%1-finger click</source>
        <translation>%1-Finger-Klick</translation>
    </message>
    <message>
        <source>%1-finger double click</source>
        <translation>%1-Finger-Doppelklick</translation>
    </message>
    <message>
        <source>%1-finger triple click</source>
        <translation>%1-Finger-Dreifachklick</translation>
    </message>
    <message>
        <source>%1-finger soft click</source>
        <translation>Sanfter %1-Finger-Klick</translation>
    </message>
    <message>
        <source>%1-finger double soft click</source>
        <translation>Sanfter %1-Finger-Doppelklick</translation>
    </message>
    <message>
        <source>%1-finger triple soft click</source>
        <translation>Sanfter %1-Finger-Dreifachklick</translation>
    </message>
    <message>
        <source>%1-finger Force Click</source>
        <translation>Kräftiger %1-Finger-Klick</translation>
    </message>
    <message>
        <source>%1-finger double Force Click</source>
        <translation>Kräftiger %1-Finger-Doppelklick</translation>
    </message>
    <message>
        <source>%1-finger triple Force Click</source>
        <translation>Kräftiger %1-Finger-Dreifachklick</translation>
    </message>
    <message>
        <source>%1-finger slide, left</source>
        <translation>%1-Finger-Wischen, links</translation>
    </message>
    <message>
        <source>%1-finger slide, right</source>
        <translation>%1-Finger-Wischen, rechts</translation>
    </message>
    <message>
        <source>%1-finger slide, both sides</source>
        <translation>%1-Finger-Wischen, beidseitig</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>zigzag</source>
        <translation>Zickzack</translation>
    </message>
    <message>
        <source>Choose a gesture and an action to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Geste und eine Aktion auswählen.</translation>
    </message>
    <message>
        <source>Choose a gesture to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Geste auswählen.</translation>
    </message>
    <message>
        <source>Choose how many fingers to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, die Zahl der Finger auswählen.</translation>
    </message>
    <message>
        <source>Choose a corner to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Ecke auswählen.</translation>
    </message>
    <message>
        <source>Choose a pattern to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, ein Muster auswählen.</translation>
    </message>
    <message>
        <source>Record a shortcut to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Tastenkombination aufnehmen.</translation>
    </message>
    <message>
        <source>Enter an address to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Adresse eingeben.</translation>
    </message>
    <message>
        <source>Choose a file or folder to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Datei oder einen Ordner auswählen.</translation>
    </message>
    <message>
        <source>Choose an application to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Anwendung auswählen.</translation>
    </message>
    <message>
        <source>Enter a command to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, einen Befehl eingeben.</translation>
    </message>
    <message>
        <source>Confirm the command to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, den Befehl bestätigen.</translation>
    </message>
    <message>
        <source>Choose an action to switch this rule on.</source>
        <translation>Um diese Regel einzuschalten, eine Aktion auswählen.</translation>
    </message>
    <message>
        <source>Untitled gesture</source>
        <translation>Unbenannte Geste</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>No gesture</source>
        <translation>Keine Geste</translation>
    </message>
    <message>
        <source>Another enabled rule uses this gesture. Only the first matching rule will run.</source>
        <translation>Eine andere eingeschaltete Regel verwendet diese Geste. Nur die erste passende Regel wird ausgeführt.</translation>
    </message>
    <message>
        <source>The trackpad is not being read.</source>
        <translation>Das Touchpad wird nicht gelesen.</translation>
    </message>
    <message>
        <source>Looking for an update…</source>
        <translation>Update wird gesucht …</translation>
    </message>
    <message>
        <source>Checks use the signed Kinesta update feed and do not send a hardware profile.</source>
        <translation>Die Suche verwendet die signierte Update-Quelle von Kinesta und sendet kein Hardwareprofil.</translation>
    </message>
    <message>
        <source>Nothing arrived. The desktop may keep this key for itself: see Other keys.</source>
        <translation>Es kam nichts an. Vielleicht behält die Arbeitsumgebung diese Taste für sich: siehe „Andere Tasten“.</translation>
    </message>
    <message>
        <source>It goes out by its place on the keyboard.</source>
        <translation>Sie wird nach ihrem Platz auf der Tastatur gesendet.</translation>
    </message>
    <message>
        <source>A shortcut needs one more key.</source>
        <translation>Eine Tastenkombination braucht noch eine Taste.</translation>
    </message>
    <message>
        <source>Press the keys. Escape cancels, Delete clears.</source>
        <translation>Die Tasten drücken. Esc bricht ab, Entf löscht.</translation>
    </message>
    <message>
        <source>Gesture recognition is turned off</source>
        <translation>Die Gestenerkennung ist ausgeschaltet</translation>
    </message>
    <message>
        <source>Close this window and start gesture recognition in Settings.</source>
        <translation>Dieses Fenster schließen und die Gestenerkennung in den Einstellungen starten.</translation>
    </message>
    <message>
        <source>Close this window and turn gesture recognition on in Settings.</source>
        <translation>Dieses Fenster schließen und die Gestenerkennung in den Einstellungen einschalten.</translation>
    </message>
    <message>
        <source>Waiting for a gesture…</source>
        <translation>Warten auf eine Geste …</translation>
    </message>
    <message>
        <source>Continuous gesture</source>
        <translation>Fortlaufende Geste</translation>
    </message>
    <message>
        <source>Detected once</source>
        <translation>Einmal erkannt</translation>
    </message>
    <message>
        <source>%1 times in a row</source>
        <translation>%1-mal nacheinander</translation>
    </message>
    <message>
        <source>Detected successfully. No configured action was run.</source>
        <translation>Erfolgreich erkannt. Keine eingerichtete Aktion wurde ausgeführt.</translation>
    </message>
    <message>
        <source>%1 (built in)</source>
        <translation>%1 (eingebaut)</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>“%1” is read now.</source>
        <translation>„%1“ wird jetzt gelesen.</translation>
    </message>
    <message>
        <source>1 rule needs this</source>
        <translation>1 Regel braucht dies</translation>
    </message>
    <message>
        <source>%1 rules need this</source>
        <translation>%1 Regeln brauchen dies</translation>
    </message>
    <message>
        <source>It is being read.</source>
        <translation>Es wird gelesen.</translation>
    </message>
    <message>
        <source>The key with code %1 has no meaning together with fn on this desktop.</source>
        <translation>Die Taste mit dem Code %1 hat zusammen mit fn in dieser Arbeitsumgebung keine Bedeutung.</translation>
    </message>
    <message>
        <source>The key with code %1 is not on keyboards here.</source>
        <translation>Die Taste mit dem Code %1 gibt es auf Tastaturen hier nicht.</translation>
    </message>
    <message>
        <source>The part that updates Kinesta is missing. Install Kinesta again.</source>
        <translation>Der Teil, der Kinesta aktualisiert, fehlt. Bitte Kinesta neu installieren.</translation>
    </message>
    <message>
        <source>macOS did not store the changed settings. Change them again.</source>
        <translation>macOS hat die geänderten Einstellungen nicht gespeichert. Bitte noch einmal ändern.</translation>
    </message>
    <message>
        <source>MultitouchSupport is unavailable on this macOS version.</source>
        <translation>MultitouchSupport gibt es in dieser macOS-Version nicht.</translation>
    </message>
    <message>
        <source>Required trackpad symbols were not found.</source>
        <translation>Benötigte Trackpad-Symbole wurden nicht gefunden.</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Wahl</translation>
    </message>
    <message>
        <source>the file cannot be written: %1</source>
        <translation>die Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>this is larger than 64 MiB, so it is no rule list</source>
        <translation>die Datei ist größer als 64 MiB, also keine Regelliste</translation>
    </message>
    <message>
        <source>reading failed: %1</source>
        <translation>das Lesen ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>this is a folder, not a rule file</source>
        <translation>das ist ein Ordner, keine Regeldatei</translation>
    </message>
    <message>
        <source>the file cannot be opened: %1</source>
        <translation>die Datei kann nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>it holds zero bytes</source>
        <translation>sie enthält Nullbytes</translation>
    </message>
    <message>
        <source>it is nested too deep</source>
        <translation>sie ist zu tief verschachtelt</translation>
    </message>
    <message>
        <source>it is not a JSON object</source>
        <translation>sie ist kein JSON-Objekt</translation>
    </message>
    <message>
        <source>line %1 is not JSON</source>
        <translation>Zeile %1 ist kein JSON</translation>
    </message>
    <message>
        <source>it holds a number that is too large</source>
        <translation>sie enthält eine zu große Zahl</translation>
    </message>
    <message>
        <source>the value of %1 has no known form</source>
        <translation>der Wert von %1 hat keine bekannte Form</translation>
    </message>
    <message>
        <source>another program has been writing it for too long</source>
        <translation>ein anderes Programm schreibt sie schon zu lange</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a whole number of 64 bits</source>
        <translation>eine ganze Zahl mit 64 Bit</translation>
    </message>
    <message>
        <source>a UUID</source>
        <translation>eine UUID</translation>
    </message>
    <message>
        <source>a gesture</source>
        <translation>eine Geste</translation>
    </message>
    <message>
        <source>left, right or both</source>
        <translation>left, right oder both</translation>
    </message>
    <message>
        <source>topLeft, topRight, bottomLeft or bottomRight</source>
        <translation>topLeft, topRight, bottomLeft oder bottomRight</translation>
    </message>
    <message>
        <source>a pattern to draw</source>
        <translation>ein Muster zum Zeichnen</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a kind of action</source>
        <translation>eine Art von Aktion</translation>
    </message>
    <message>
        <source>a whole number from 0 to 65535</source>
        <translation>eine ganze Zahl von 0 bis 65535</translation>
    </message>
    <message>
        <source>a list of texts</source>
        <translation>eine Liste von Texten</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>a NUL byte, which JSON text cannot hold</source>
        <translation>ein Nullbyte, das in JSON nicht vorkommen darf</translation>
    </message>
    <message>
        <source>the text is %1, which is not a list of rules</source>
        <translation>der Text ist %1, erwartet wird eine Liste von Regeln</translation>
    </message>
    <message>
        <source>rule %1 is %2, which is not an object</source>
        <translation>Regel %1 ist %2, erwartet wird ein Objekt</translation>
    </message>
    <message>
        <source>entry %1 of %2 is %3, which is not text</source>
        <translation>Eintrag %1 von %2 ist %3, erwartet wird Text</translation>
    </message>
    <message>
        <source>%1 is %2, which is not %3</source>
        <translation>%1 ist %2, erwartet wird %3</translation>
    </message>
    <message>
        <source>%1 is missing; expected %2</source>
        <translation>%1 fehlt, erwartet wird %2</translation>
    </message>
    <message>
        <source>line %1: rule %2: %3</source>
        <translation>Zeile %1: Regel %2: %3</translation>
    </message>
    <message>
        <source>line %1: rule %2 %3: %4</source>
        <translation>Zeile %1: Regel %2 %3: %4</translation>
    </message>
    <message>
        <source>The desktop&apos;s portal did not open %1.</source>
        <translation>Das Portal der Arbeitsumgebung hat %1 nicht geöffnet.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded, so no trackpad can be read.</source>
        <translation>%1 lässt sich nicht laden, deshalb kann kein Trackpad gelesen werden.</translation>
    </message>
    <message>
        <source>No multi-touch trackpad was found.</source>
        <translation>Es wurde kein Multi-Touch-Trackpad gefunden.</translation>
    </message>
    <message>
        <source>set it in a terminal: %1</source>
        <translation>im Terminal eingeben: %1</translation>
    </message>
    <message>
        <source>Trackpad</source>
        <translation>Touchpad</translation>
    </message>
    <message>
        <source>%1 is no application.</source>
        <translation>%1 ist kein Programm.</translation>
    </message>
    <message>
        <source>Choose an application: a folder whose name ends in .app.</source>
        <translation>Wählen Sie ein Programm: einen Ordner, dessen Name auf .app endet.</translation>
    </message>
    <message>
        <source>Switch Kinesta on under System Settings › Privacy &amp; Security › Accessibility; for the command line, the terminal that it runs in.</source>
        <translation>Schalten Sie Kinesta unter Systemeinstellungen › Datenschutz &amp; Sicherheit › Bedienungshilfen ein; für die Befehlszeile das Terminal, in dem sie läuft.</translation>
    </message>
    <message>
        <source>macOS has not given this program the accessibility permission.</source>
        <translation>macOS hat diesem Programm die Bedienungshilfen nicht erlaubt.</translation>
    </message>
    <message>
        <source>macOS lets this program post them.</source>
        <translation>macOS lässt dieses Programm sie senden.</translation>
    </message>
    <message>
        <source>macOS gives no keyboard layout.</source>
        <translation>macOS nennt keine Tastaturbelegung.</translation>
    </message>
    <message>
        <source>Choose an input source with a keyboard layout in System Settings.</source>
        <translation>Wählen Sie in den Systemeinstellungen eine Eingabequelle mit Tastaturbelegung.</translation>
    </message>
    <message>
        <source>Closed and tiled through the accessibility interface.</source>
        <translation>Sie werden über die Bedienungshilfen geschlossen und angeordnet.</translation>
    </message>
    <message>
        <source>Closed through the accessibility interface. Tiling needs macOS 15.</source>
        <translation>Sie werden über die Bedienungshilfen geschlossen. Das Anordnen braucht macOS 15.</translation>
    </message>
    <message>
        <source>macOS opens them.</source>
        <translation>macOS öffnet sie.</translation>
    </message>
    <message>
        <source>Kinesta shows problems in its window.</source>
        <translation>Kinesta zeigt Probleme in seinem Fenster.</translation>
    </message>
    <message>
        <source>Shown over all windows.</source>
        <translation>Sie erscheint über allen Fenstern.</translation>
    </message>
    <message>
        <source>column %1 has a number that is too large</source>
        <translation>Spalte %1 enthält eine zu große Zahl</translation>
    </message>
    <message>
        <source>the JSON text ends too early, at column %1</source>
        <translation>der JSON-Text endet zu früh, in Spalte %1</translation>
    </message>
    <message>
        <source>not valid JSON from column %1 on</source>
        <translation>ab Spalte %1 kein gültiges JSON</translation>
    </message>
    <message>
        <source>No gesture will be seen until gesture recognition is on: switch it on above.</source>
        <translation>Keine Geste wird erkannt, solange die Gestenerkennung aus ist: oben einschalten.</translation>
    </message>
    <message>
        <source>No gesture will be seen while the trackpad is not read. “What works here” says what helps.</source>
        <translation>Keine Geste wird erkannt, solange das Touchpad nicht gelesen wird. Was hilft, steht unter „Was hier funktioniert“.</translation>
    </message>
    <message>
        <source>Touch the pad with two or more fingers.</source>
        <translation>Das Touchpad mit zwei oder mehr Fingern berühren.</translation>
    </message>
    <message>
        <source>“What works here” on the overview says what is missing and what helps.</source>
        <translation>Was fehlt und was hilft, steht in der Übersicht unter „Was hier funktioniert“.</translation>
    </message>
    <message>
        <source>Launch at login: %1</source>
        <translation>Start bei der Anmeldung: %1</translation>
    </message>
    <message>
        <source>No window is closed or tiled as long as keys and clicks cannot be sent.</source>
        <translation>Kein Fenster wird geschlossen oder angeordnet, solange Tasten und Klicks nicht gesendet werden können.</translation>
    </message>
    <message>
        <source>Let Kinesta send keys and clicks first.</source>
        <translation>Erlauben Sie Kinesta zuerst, Tasten und Klicks zu senden.</translation>
    </message>
</context>
<context>
    <name>kinesta::AboutSheet</name>
    <message>
        <source>About Kinesta</source>
        <translation>Über Kinesta</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Lizenzen</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Rules and settings are kept in</source>
        <translation>Regeln und Einstellungen liegen in</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>kinesta::ActionCard</name>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>Show a cue</source>
        <translation>Einblendung zeigen</translation>
    </message>
    <message>
        <source>Cue text</source>
        <translation>Text der Einblendung</translation>
    </message>
    <message>
        <source>Run action now</source>
        <translation>Aktion jetzt ausführen</translation>
    </message>
    <message>
        <source>A small label names what was done.</source>
        <translation>Ein kleines Schild nennt, was getan wurde.</translation>
    </message>
    <message>
        <source>Cues are switched off in Settings, so none is shown.</source>
        <translation>Einblendungen sind in den Einstellungen ausgeschaltet; daher erscheint keine.</translation>
    </message>
</context>
<context>
    <name>kinesta::AddressPart</name>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
</context>
<context>
    <name>kinesta::ApplicationCard</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Bei Anmeldung starten</translation>
    </message>
    <message>
        <source>Open Login Item Settings…</source>
        <translation>Einstellungen für Anmeldeobjekte öffnen …</translation>
    </message>
    <message>
        <source>Check for updates by itself</source>
        <translation>Von selbst nach Updates suchen</translation>
    </message>
    <message>
        <source>Check now</source>
        <translation>Jetzt suchen</translation>
    </message>
    <message>
        <source>System follows the desktop’s own switch.</source>
        <translation>„System“ folgt dem Schalter der Arbeitsumgebung.</translation>
    </message>
    <message>
        <source>Waiting for your approval in the system’s settings.</source>
        <translation>Wartet auf Zustimmung in den Systemeinstellungen.</translation>
    </message>
    <message>
        <source>Starts with your session and shows no window.</source>
        <translation>Startet mit der Sitzung und zeigt kein Fenster.</translation>
    </message>
</context>
<context>
    <name>kinesta::ApplicationChooser</name>
    <message>
        <source>Choose</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose an application</source>
        <translation>Anwendung auswählen</translation>
    </message>
    <message>
        <source>Find an application</source>
        <translation>Anwendung suchen</translation>
    </message>
    <message>
        <source>Applications</source>
        <translation>Anwendungen</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Datei auswählen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>No applications were found here.</source>
        <translation>Hier wurden keine Anwendungen gefunden.</translation>
    </message>
    <message>
        <source>No application is called “%1”.</source>
        <translation>Keine Anwendung heißt „%1“.</translation>
    </message>
</context>
<context>
    <name>kinesta::ApplicationPart</name>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Add argument</source>
        <translation>Argument hinzufügen</translation>
    </message>
    <message>
        <source>Paste, one a line</source>
        <translation>Zeilenweise einfügen</translation>
    </message>
    <message>
        <source>No application chosen</source>
        <translation>Keine Anwendung ausgewählt</translation>
    </message>
    <message>
        <source>That text is too long for arguments, so it was left out.</source>
        <translation>Dieser Text ist zu lang für Argumente und wurde weggelassen.</translation>
    </message>
    <message>
        <source>There is no text to paste.</source>
        <translation>Es gibt keinen Text zum Einfügen.</translation>
    </message>
</context>
<context>
    <name>kinesta::ArgumentDelegate</name>
    <message>
        <source>Argument</source>
        <translation>Argument</translation>
    </message>
</context>
<context>
    <name>kinesta::CommandPart</name>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>I have read this command and want Kinesta to run it.</source>
        <translation>Dieser Befehl ist gelesen und soll von Kinesta ausgeführt werden.</translation>
    </message>
    <message>
        <source>Shell commands are switched off.</source>
        <translation>Shell-Befehle sind ausgeschaltet.</translation>
    </message>
    <message>
        <source>This rule runs its command once they are switched on in Settings.</source>
        <translation>Diese Regel führt ihren Befehl aus, sobald sie in den Einstellungen eingeschaltet sind.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>That text is too long for a command, so it was left out.</source>
        <translation>Dieser Text ist zu lang für einen Befehl und wurde weggelassen.</translation>
    </message>
    <message>
        <source>This command is too long to run, so only its beginning is shown.</source>
        <translation>Dieser Befehl ist zu lang, um ausgeführt zu werden; nur sein Anfang ist zu sehen.</translation>
    </message>
    <message>
        <source>The command changed, so it must be confirmed again. Until then the rule stays off.</source>
        <translation>Der Befehl wurde geändert und muss erneut bestätigt werden. Bis dahin bleibt die Regel aus.</translation>
    </message>
</context>
<context>
    <name>kinesta::CountdownRing</name>
    <message>
        <source>1 second left</source>
        <translation>Noch 1 Sekunde</translation>
    </message>
    <message>
        <source>%1 seconds left</source>
        <translation>Noch %1 Sekunden</translation>
    </message>
</context>
<context>
    <name>kinesta::CueCard</name>
    <message>
        <source>Show what was done</source>
        <translation>Zeigen, was getan wurde</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>A small label on the screen with the pointer. Each rule can switch it off.</source>
        <translation>Ein kleines Schild auf dem Bildschirm mit dem Zeiger. Jede Regel kann es ausschalten.</translation>
    </message>
</context>
<context>
    <name>kinesta::DeletionQuestion</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>kinesta::DetectionColumn</name>
    <message>
        <source>Detected</source>
        <translation>Erkannt</translation>
    </message>
    <message>
        <source>Would run</source>
        <translation>Würde ausführen</translation>
    </message>
</context>
<context>
    <name>kinesta::EmptyList</name>
    <message>
        <source>No gestures yet</source>
        <translation>Noch keine Gesten</translation>
    </message>
    <message>
        <source>Add a gesture</source>
        <translation>Geste hinzufügen</translation>
    </message>
    <message>
        <source>Clear filter</source>
        <translation>Filter löschen</translation>
    </message>
    <message>
        <source>No gesture is called “%1”.</source>
        <translation>Keine Geste heißt „%1“.</translation>
    </message>
</context>
<context>
    <name>kinesta::FindingList</name>
    <message>
        <source>Looking…</source>
        <translation>Wird geprüft …</translation>
    </message>
    <message>
        <source>What works here could not be found out.</source>
        <translation>Was hier funktioniert, ließ sich nicht feststellen.</translation>
    </message>
    <message>
        <source>Everything your rules need works here.</source>
        <translation>Alles, was die Regeln brauchen, funktioniert hier.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Works</source>
        <translation>Funktioniert</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>Does not work, and no rule needs it</source>
        <translation>Funktioniert nicht, und keine Regel braucht es</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Show rule</source>
        <translation>Regel anzeigen</translation>
    </message>
</context>
<context>
    <name>kinesta::GestureCard</name>
    <message>
        <source>Gesture type</source>
        <translation>Art der Geste</translation>
    </message>
</context>
<context>
    <name>kinesta::GestureDetails</name>
    <message>
        <source>Waiting for a gesture…</source>
        <translation>Warten auf eine Geste …</translation>
    </message>
    <message>
        <source>Stop waiting</source>
        <translation>Nicht mehr warten</translation>
    </message>
    <message>
        <source>Perform it on the touchpad now. No action runs meanwhile. Escape gives up.</source>
        <translation>Die Geste jetzt auf dem Touchpad ausführen. Dabei läuft keine Aktion. Esc bricht ab.</translation>
    </message>
    <message>
        <source>Perform it to choose it</source>
        <translation>Durch Vormachen auswählen</translation>
    </message>
    <message>
        <source>The trackpad is not being read. Turn gesture recognition on in Settings.</source>
        <translation>Das Touchpad wird nicht gelesen. Die Gestenerkennung in den Einstellungen einschalten.</translation>
    </message>
</context>
<context>
    <name>kinesta::HeroCard</name>
    <message>
        <source>Gesture recognition</source>
        <translation>Gestenerkennung</translation>
    </message>
    <message>
        <source>Try a gesture</source>
        <translation>Geste ausprobieren</translation>
    </message>
    <message>
        <source>Show rule</source>
        <translation>Regel anzeigen</translation>
    </message>
    <message>
        <source>Make a rule</source>
        <translation>Regel erstellen</translation>
    </message>
    <message numerus="yes">
        <source>Show %n more</source>
        <translation>
            <numerusform>%n weitere anzeigen</numerusform>
            <numerusform>%n weitere anzeigen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>kinesta::HeroStage</name>
    <message>
        <source>Trackpad</source>
        <translation>Touchpad</translation>
    </message>
    <message>
        <source>Cannot be read</source>
        <translation>Nicht lesbar</translation>
    </message>
</context>
<context>
    <name>kinesta::HistorySteps</name>
    <message>
        <source>Order restored</source>
        <translation>Reihenfolge wiederhergestellt</translation>
    </message>
    <message>
        <source>The rules are as they were before the import</source>
        <translation>Die Regeln sind wieder wie vor dem Import</translation>
    </message>
    <message>
        <source>The settings are as they were before</source>
        <translation>Die Einstellungen sind wieder wie zuvor</translation>
    </message>
    <message>
        <source>Order changed again</source>
        <translation>Reihenfolge erneut geändert</translation>
    </message>
    <message>
        <source>The rules of the file are back</source>
        <translation>Die Regeln der Datei sind wieder da</translation>
    </message>
    <message>
        <source>The settings are as they were at first</source>
        <translation>Die Einstellungen sind zurückgesetzt</translation>
    </message>
</context>
<context>
    <name>kinesta::KinestaWindow</name>
    <message>
        <source>Report copied</source>
        <translation>Bericht kopiert</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>The rules before the import are kept in %1</source>
        <translation>Die Regeln vor dem Import liegen in %1</translation>
    </message>
    <message>
        <source>Only the versions were copied. %1</source>
        <translation>Nur die Versionen wurden kopiert. %1</translation>
    </message>
</context>
<context>
    <name>kinesta::ListHeading</name>
    <message>
        <source>Gestures</source>
        <translation>Gesten</translation>
    </message>
    <message>
        <source>Add gesture</source>
        <translation>Geste hinzufügen</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
</context>
<context>
    <name>kinesta::NoticeStack</name>
    <message>
        <source>Turn on</source>
        <translation>Einschalten</translation>
    </message>
    <message>
        <source>Show “%1”</source>
        <translation>„%1“ anzeigen</translation>
    </message>
</context>
<context>
    <name>kinesta::OverviewPage</name>
    <message>
        <source>Three steps</source>
        <translation>Drei Schritte</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>What works here</source>
        <translation>Was hier funktioniert</translation>
    </message>
</context>
<context>
    <name>kinesta::PadKey</name>
    <message>
        <source>Edge bands</source>
        <translation>Randstreifen</translation>
    </message>
    <message>
        <source>Corners for drawing</source>
        <translation>Ecken zum Zeichnen</translation>
    </message>
    <message>
        <source>Ignored as palm</source>
        <translation>Als Handballen ignoriert</translation>
    </message>
</context>
<context>
    <name>kinesta::PageRow</name>
    <message>
        <source>Selected</source>
        <translation>Ausgewählt</translation>
    </message>
</context>
<context>
    <name>kinesta::PalmsCard</name>
    <message>
        <source>Ignore touches that start in a corner</source>
        <translation>Berührungen ignorieren, die in einer Ecke beginnen</translation>
    </message>
    <message>
        <source>Size of the corners</source>
        <translation>Größe der Ecken</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Where a palm or the ball of the thumb comes to rest.</source>
        <translation>Dort, wo Handfläche oder Daumenballen aufliegen.</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>A touch that starts in a filled square is ignored until it lifts. Corner drawings begin inside the dashed line, beside the square.</source>
        <translation>Eine Berührung, die in einem gefüllten Quadrat beginnt, wird bis zum Abheben ignoriert. Eckenzeichnungen beginnen innerhalb der gestrichelten Linie, neben dem Quadrat.</translation>
    </message>
</context>
<context>
    <name>kinesta::PathPart</name>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Auswählen …</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Datei auswählen …</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Ordner auswählen …</translation>
    </message>
    <message>
        <source>There is nothing at this path now.</source>
        <translation>Unter diesem Pfad ist gerade nichts.</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei auswählen</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Ordner auswählen</translation>
    </message>
</context>
<context>
    <name>kinesta::PlayButton</name>
    <message>
        <source>Perform the gesture</source>
        <translation>Geste vorführen</translation>
    </message>
</context>
<context>
    <name>kinesta::RecognitionCard</name>
    <message>
        <source>Gesture recognition</source>
        <translation>Gestenerkennung</translation>
    </message>
    <message>
        <source>Tap waiting interval</source>
        <translation>Wartezeit beim Tippen</translation>
    </message>
    <message>
        <source>Trackpad</source>
        <translation>Touchpad</translation>
    </message>
    <message>
        <source>Reads the trackpad and runs your rules.</source>
        <translation>Liest das Touchpad und führt die Regeln aus.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>How long to wait for a further tap. Shorter acts sooner, longer forgives slow fingers.</source>
        <translation>Wie lange auf ein weiteres Tippen gewartet wird. Kürzer handelt früher, länger verzeiht langsame Finger.</translation>
    </message>
</context>
<context>
    <name>kinesta::ResetQuestion</name>
    <message>
        <source>Put all settings back as they were at first?</source>
        <translation>Alle Einstellungen auf den Anfangszustand zurücksetzen?</translation>
    </message>
    <message>
        <source>Rules and the start at login stay. This can be undone.</source>
        <translation>Regeln und Anmeldestart bleiben. Es lässt sich rückgängig machen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>The settings are as they were at first</source>
        <translation>Die Einstellungen sind zurückgesetzt</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleEditorPage</name>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleFiles</name>
    <message>
        <source>Rule files (*.json);;All files (*)</source>
        <translation>Regeldateien (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Import rules</source>
        <translation>Regeln importieren</translation>
    </message>
    <message>
        <source>“%1” could not be read: %2. Nothing was changed.</source>
        <translation>„%1“ konnte nicht gelesen werden: %2. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Imported 1 rule</source>
        <translation>1 Regel importiert</translation>
    </message>
    <message>
        <source>Imported %1 rules</source>
        <translation>%1 Regeln importiert</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Export rules</source>
        <translation>Regeln exportieren</translation>
    </message>
    <message>
        <source>Exported to “%1”</source>
        <translation>Nach „%1“ exportiert</translation>
    </message>
    <message>
        <source>Imported %1 rules; %2 of them stay off until they are complete</source>
        <translation>%1 Regeln importiert; %2 davon bleiben aus, bis sie vollständig sind</translation>
    </message>
    <message>
        <source>this is a pipe or a device, not a rule file</source>
        <translation>das ist eine Pipe oder ein Gerät, keine Regeldatei</translation>
    </message>
    <message>
        <source>“%1”: %2.</source>
        <translation>„%1“: %2.</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleHeader</name>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Untitled gesture</source>
        <translation>Unbenannte Geste</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>More for this rule</source>
        <translation>Mehr zu dieser Regel</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Clear gesture</source>
        <translation>Geste leeren</translation>
    </message>
    <message>
        <source>Clear action</source>
        <translation>Aktion leeren</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleItemModel</name>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleListView</name>
    <message>
        <source>Gestures</source>
        <translation>Gesten</translation>
    </message>
</context>
<context>
    <name>kinesta::RuleMenu</name>
    <message>
        <source>Run action now</source>
        <translation>Aktion jetzt ausführen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
</context>
<context>
    <name>kinesta::RulesMenu</name>
    <message>
        <source>Enable all rules</source>
        <translation>Alle Regeln einschalten</translation>
    </message>
    <message>
        <source>Disable all rules</source>
        <translation>Alle Regeln ausschalten</translation>
    </message>
    <message>
        <source>Import rules…</source>
        <translation>Regeln importieren …</translation>
    </message>
    <message>
        <source>Export rules…</source>
        <translation>Regeln exportieren …</translation>
    </message>
    <message>
        <source>About Kinesta</source>
        <translation>Über Kinesta</translation>
    </message>
</context>
<context>
    <name>kinesta::SettingsPage</name>
    <message>
        <source>Let rules run shell commands</source>
        <translation>Regeln dürfen Shell-Befehle ausführen</translation>
    </message>
    <message>
        <source>Palms</source>
        <translation>Handballen</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Action cue</source>
        <translation>Einblendung</translation>
    </message>
    <message>
        <source>Each command must also be confirmed in its rule.</source>
        <translation>Jeder Befehl muss auch in seiner Regel bestätigt werden.</translation>
    </message>
    <message>
        <source>Commands run with all your rights, without asking.</source>
        <translation>Befehle laufen ohne Rückfrage mit allen Rechten des Benutzerkontos.</translation>
    </message>
    <message>
        <source>Switch this on only for commands that you wrote or understand.</source>
        <translation>Nur für selbst geschriebene oder verstandene Befehle einschalten.</translation>
    </message>
    <message>
        <source>Shell commands</source>
        <translation>Shell-Befehle</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Reset…</source>
        <translation>Zurücksetzen …</translation>
    </message>
    <message>
        <source>About…</source>
        <translation>Über …</translation>
    </message>
    <message>
        <source>Rules as a file</source>
        <translation>Regeln als Datei</translation>
    </message>
    <message>
        <source>Reset settings</source>
        <translation>Einstellungen zurücksetzen</translation>
    </message>
    <message>
        <source>Puts the settings back as they were at first. Rules and the start at login stay.</source>
        <translation>Stellt die anfänglichen Einstellungen wieder her. Regeln und Anmeldestart bleiben.</translation>
    </message>
    <message>
        <source>About Kinesta</source>
        <translation>Über Kinesta</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Regeln</translation>
    </message>
    <message>
        <source>Export all rules, or replace them by those of a file. An import can be undone.</source>
        <translation>Alle Regeln exportieren oder durch die einer Datei ersetzen. Ein Import lässt sich rückgängig machen.</translation>
    </message>
</context>
<context>
    <name>kinesta::ShortcutMenus</name>
    <message>
        <source>Common shortcuts</source>
        <translation>Häufige Tastenkombinationen</translation>
    </message>
    <message>
        <source>Other keys</source>
        <translation>Andere Tasten</translation>
    </message>
</context>
<context>
    <name>kinesta::ShortcutPart</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkombination</translation>
    </message>
</context>
<context>
    <name>kinesta::ShortcutRecorder</name>
    <message>
        <source>Record shortcut</source>
        <translation>Tastenkombination aufnehmen</translation>
    </message>
    <message>
        <source>Clear shortcut</source>
        <translation>Tastenkombination löschen</translation>
    </message>
    <message>
        <source>Listening…</source>
        <translation>Aufnahme …</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Keine Tastenkombination</translation>
    </message>
</context>
<context>
    <name>kinesta::Sidebar</name>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Filter gestures</source>
        <translation>Gesten filtern</translation>
    </message>
</context>
<context>
    <name>kinesta::StepNumber</name>
    <message>
        <source>Step %1, done</source>
        <translation>Schritt %1, erledigt</translation>
    </message>
    <message>
        <source>Step %1</source>
        <translation>Schritt %1</translation>
    </message>
</context>
<context>
    <name>kinesta::TerminalCommand</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Command for a terminal</source>
        <translation>Befehl für ein Terminal</translation>
    </message>
    <message>
        <source>Copy the command</source>
        <translation>Befehl kopieren</translation>
    </message>
    <message>
        <source>Command copied</source>
        <translation>Befehl kopiert</translation>
    </message>
</context>
<context>
    <name>kinesta::TestSheet</name>
    <message>
        <source>Try a gesture</source>
        <translation>Geste ausprobieren</translation>
    </message>
    <message>
        <source>Trackpad</source>
        <translation>Touchpad</translation>
    </message>
    <message>
        <source>The fingers on the trackpad as they move.</source>
        <translation>Die Finger auf dem Touchpad in ihrer Bewegung.</translation>
    </message>
    <message>
        <source>Try a gesture and check what Kinesta detects.</source>
        <translation>Eine Geste ausprobieren und prüfen, was Kinesta erkennt.</translation>
    </message>
    <message>
        <source>Actions are paused while this window is open.</source>
        <translation>Aktionen pausieren, solange dieses Fenster offen ist.</translation>
    </message>
    <message>
        <source>Keyboard shortcuts, clicks, links, applications, volume changes, and commands will not run.</source>
        <translation>Tastenkombinationen, Klicks, Links, Anwendungen, Lautstärkeänderungen und Befehle werden nicht ausgeführt.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>kinesta::UpdateDialog</name>
    <message>
        <source>Software Update</source>
        <translation>Softwareupdate</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Updates werden gesucht …</translation>
    </message>
    <message>
        <source>Kinesta is up to date</source>
        <translation>Kinesta ist aktuell</translation>
    </message>
    <message>
        <source>There is no newer version for this system.</source>
        <translation>Für dieses System gibt es keine neuere Version.</translation>
    </message>
    <message>
        <source>Kinesta %1 is available</source>
        <translation>Kinesta %1 ist verfügbar</translation>
    </message>
    <message>
        <source>The download has %1. Kinesta checks its signature and installs nothing by itself.</source>
        <translation>Der Download umfasst %1. Kinesta prüft seine Signatur und installiert nichts von selbst.</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Downloading Kinesta %1…</source>
        <translation>Kinesta %1 wird geladen …</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Checking the signature…</source>
        <translation>Signatur wird geprüft …</translation>
    </message>
    <message>
        <source>Kinesta %1 is ready to install</source>
        <translation>Kinesta %1 ist bereit zur Installation</translation>
    </message>
    <message>
        <source>Its signature is genuine. The file is here:
%1</source>
        <translation>Die Signatur ist echt. Die Datei liegt hier:
%1</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Kinesta could not be updated</source>
        <translation>Kinesta konnte nicht aktualisiert werden</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>kinesta::WelcomeSteps</name>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Try a gesture</source>
        <translation>Geste ausprobieren</translation>
    </message>
    <message>
        <source>See your fingers on the pad. Nothing runs while you try.</source>
        <translation>Die Finger auf dem Touchpad sehen. Beim Ausprobieren wird nichts ausgeführt.</translation>
    </message>
    <message>
        <source>Add a gesture of your own</source>
        <translation>Eine eigene Geste hinzufügen</translation>
    </message>
    <message>
        <source>Choose a picture, then what it does.</source>
        <translation>Ein Bild auswählen, dann die Aktion.</translation>
    </message>
    <message>
        <source>Add a gesture</source>
        <translation>Geste hinzufügen</translation>
    </message>
    <message>
        <source>Kinesta reads the touchpad</source>
        <translation>Kinesta liest das Touchpad</translation>
    </message>
    <message>
        <source>What your fingers do stays on this computer.</source>
        <translation>Was die Finger tun, bleibt auf diesem Computer.</translation>
    </message>
    <message>
        <source>Allow Kinesta to send keys and clicks</source>
        <translation>Kinesta das Senden von Tasten und Klicks erlauben</translation>
    </message>
    <message>
        <source>Rules press keys and click for you.</source>
        <translation>Regeln drücken Tasten und klicken.</translation>
    </message>
    <message>
        <source>Let Kinesta read the touchpad</source>
        <translation>Kinesta das Touchpad lesen lassen</translation>
    </message>
</context>
</TS>
