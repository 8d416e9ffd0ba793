<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>A button</extracomment>
        <translation>OK</translation>
    </message>
    <message id="IDS_APP_TITLE">
        <source>ZELTO DISK</source>
        <extracomment>The product’s name: never translated</extracomment>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_CANCEL_BUTTON">
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source>No ZELTO DISK is ready for use. Plug it in, then start this program again.</source>
        <translation>Es ist keine ZELTO DISK bereit. Stecken Sie sie ein und starten Sie dann dieses Programm erneut.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source>Enter the password; the first one if the drive has two.</source>
        <translation>Geben Sie das Passwort ein; bei zweien das erste.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source>Enter the second password.</source>
        <translation>Geben Sie das zweite Passwort ein.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</source>
        <extracomment>%1 is a date and time</extracomment>
        <translation>Die Uhr des Laufwerks ist stehen geblieben, deshalb hat es sich gesperrt.

Soll die Uhr des Laufwerks auf die Zeit dieses Computers, %1, gestellt werden? Prüfen Sie erst, ob diese Zeit stimmt. Wenn das Laufwerk seinen Schlüssel noch hat, können Sie sich danach anmelden.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</source>
        <translation>Die Uhr des Laufwerks wurde gestellt. Das Programm wird jetzt beendet. Starten Sie es erneut: Es sagt dann, ob Sie sich anmelden können.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</source>
        <translation>Das Laufwerk hat sich endgültig gesperrt und sein Schlüssel ist verloren: nach zu vielen falschen Passwörtern, weil seine Zeit abgelaufen ist oder weil der Schlüssel gelöscht wurde. Was im sicheren Bereich war, kann niemand mehr lesen.

Um das Laufwerk wieder zu verwenden, starten Sie dieses Programm, falls es beendet wurde, und wählen Sie in den Einstellungen „Alles löschen“. Ziehen Sie dann das Laufwerk ab, stecken Sie es wieder ein und starten Sie das Programm noch einmal, um es einzurichten.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</source>
        <translation>Dieses Passwort ist nicht richtig. Prüfen Sie die Feststelltaste und versuchen Sie es noch einmal; vielleicht erlaubt das Laufwerk nur wenige Versuche.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</source>
        <translation>Die Datenträger des Laufwerks konnten nicht ausgehängt werden; meist verwendet ein Programm noch eine Datei darauf. Sonst wurde nichts getan: Ein entsperrtes Laufwerk ist weiterhin entsperrt.

Schließen Sie alle Dateien und Fenster, die das Laufwerk zeigen, und versuchen Sie es dann erneut. Starten Sie dieses Programm wieder, falls es beendet wurde.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</source>
        <extracomment>Numbers that identify an error</extracomment>
        <translation>Das Laufwerk hat diesen Schritt nicht ausgeführt. Wenn das wieder geschieht, beenden Sie dieses Programm, ziehen Sie das Laufwerk ab, stecken Sie es wieder ein und starten Sie das Programm erneut.

Für den Support: Sense-Schlüssel %1, Code %2, Zusatz %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</source>
        <translation>Das Laufwerk antwortet nicht. Beenden Sie dieses Programm, ziehen Sie das Laufwerk ab, stecken Sie es wieder ein und starten Sie das Programm erneut.</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source>not set</source>
        <extracomment>In place of the time, after “Drive’s clock:”</extracomment>
        <translation>nicht gestellt</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source>The time has run out</source>
        <extracomment>In place of the remaining time, after “Key erased in:”</extracomment>
        <translation>Die Zeit ist abgelaufen</translation>
    </message>
    <message id="IDS_DAYS">
        <source>d</source>
        <extracomment>After a number: 12 d 5 h 30 min</extracomment>
        <translation>d</translation>
    </message>
    <message id="IDS_HOURS">
        <source>h</source>
        <extracomment>After a number</extracomment>
        <translation>h</translation>
    </message>
    <message id="IDS_MIN">
        <source>min</source>
        <extracomment>After a number</extracomment>
        <translation>min</translation>
    </message>
    <message id="IDS_TIME_SYNC_COMPLETE">
        <source>The drive’s clock has been set to this computer’s time. The program now closes; start it again to go on.</source>
        <translation>Die Uhr des Laufwerks wurde auf die Zeit dieses Computers gestellt. Das Programm wird jetzt beendet; starten Sie es erneut, um fortzufahren.</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source>Setting up the drive. Please do not unplug it.</source>
        <extracomment>Blinks while the drive is set up</extracomment>
        <translation>Das Laufwerk wird eingerichtet. Bitte nicht abziehen.</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</source>
        <translation>Das Laufwerk ist eingerichtet. Seine Bereiche sind noch leer: Formatieren Sie jeden einmal, bevor Sie ihn verwenden, einen sicheren nach dem Anmelden.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</source>
        <translation>Das Laufwerk ist eingerichtet und kann verwendet werden. Nur sein Programmbereich konnte nicht formatiert werden, deshalb enthält es dieses Programm nicht: Verwenden Sie das Laufwerk mit dem Programm auf diesem Computer.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</source>
        <extracomment>%1 and %2 are names of files</extracomment>
        <translation>Das Laufwerk ist eingerichtet und kann verwendet werden. Nur dieses Programm konnte nicht in seinen Programmbereich kopiert werden: Verwenden Sie das Laufwerk mit dem Programm auf diesem Computer.

Von: %1
Nach: %2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</source>
        <translation>Das Laufwerk war nicht bereit, deshalb wurde darauf nichts geändert. Das Programm wird jetzt beendet. Ziehen Sie das Laufwerk ab, stecken Sie es wieder ein und starten Sie das Programm erneut.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</source>
        <translation>Sie wollen den Verschlüsselungsschlüssel selbst eingeben, haben aber noch keinen eingegeben. Geben Sie einen Schlüssel ein oder lassen Sie ihn vom Laufwerk erzeugen.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</source>
        <translation>Das aktuelle erste Passwort ist nicht richtig, deshalb wurde das erste Passwort nicht geändert. Falls Sie beide Passwörter ändern, ist das zweite schon geändert: Sein aktuelles Passwort ist von nun an das neue. Prüfen Sie die Feststelltaste und geben Sie die Passwörter noch einmal ein.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</source>
        <translation>Das aktuelle zweite Passwort ist nicht richtig, deshalb wurde kein Passwort geändert. Prüfen Sie die Feststelltaste und geben Sie es noch einmal ein.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source>The drive is locked. Log in to it first, then try again.</source>
        <translation>Das Laufwerk ist gesperrt. Melden Sie sich erst an und versuchen Sie es dann erneut.</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</source>
        <translation>Alles auf diesem Laufwerk löschen?

Alle Bereiche mit allen Dateien, alle Passwörter und alle Einstellungen gehen verloren. Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</source>
        <translation>Den Verschlüsselungsschlüssel dieses Laufwerks löschen?

Alles im sicheren Bereich wird endgültig unlesbar, auch mit dem richtigen Passwort. Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source>Total: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Gesamt: %1 MB</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source>Free: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Frei: %1 MB</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source>The areas are larger than the drive.</source>
        <translation>Die Bereiche sind größer als das Laufwerk.</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source>Normal</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Normal</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source>Secure</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Sicher</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source>Not used yet</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Noch unbenutzt</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source>Whole drive</source>
        <extracomment>In place of an area’s capacity: the area takes it all</extracomment>
        <translation>Ganzes Laufwerk</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</source>
        <translation>Eine angeschlossene ZELTO DISK steht nicht in dieser Liste, weil dieser Computer ihre Verwendung noch nicht erlaubt. Installieren Sie das Paket des Programms oder bitten Sie Ihren Systemverwalter, die Geräteregel hinzuzufügen, und stecken Sie das Laufwerk dann erneut ein.</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</source>
        <translation>Eine angeschlossene ZELTO DISK steht nicht in dieser Liste, weil sie zur Sitzung eines anderen Benutzers dieses Computers gehört. Verwenden Sie sie in jener Sitzung, oder melden Sie sich direkt an diesem Computer an und stecken Sie sie erneut ein.</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</source>
        <translation>Eine angeschlossene ZELTO DISK steht nicht in dieser Liste, weil dieses Programm noch einmal läuft und sie verwendet. Beenden Sie es dort und starten Sie es dann hier erneut.</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source>Still using the drive: %1</source>
        <extracomment>%1 is a list of programs</extracomment>
        <translation>Laufwerk noch verwendet von: %1</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source>Next: lay out the areas.</source>
        <translation>Als Nächstes: die Bereiche einteilen.</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source>Next: choose the passwords.</source>
        <translation>Als Nächstes: die Passwörter festlegen.</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source>Nothing has been changed yet.</source>
        <translation>Bisher wurde nichts geändert.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source>Erase the key after: enter 1 to 9999 days.</source>
        <translation>Schlüssel löschen nach: 1 bis 9999 Tage eingeben.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source>Erase the key after: enter 1 to 999 minutes.</source>
        <translation>Schlüssel löschen nach: 1 bis 999 Minuten eingeben.</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source>Log off after: enter 1 to 999 minutes.</source>
        <translation>Abmelden nach: 1 bis 999 Minuten eingeben.</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source>Sizes are whole numbers of MB.</source>
        <translation>Größen sind ganze Zahlen in MB.</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source>Next: enter a size for Disk1.</source>
        <translation>Als Nächstes: eine Größe für Disk1 eingeben.</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source>Next: enter the first password.</source>
        <translation>Als Nächstes: das erste Passwort eingeben.</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source>Next: enter the first password again.</source>
        <translation>Als Nächstes: das erste Passwort wiederholen.</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source>The two entries of the first password differ.</source>
        <translation>Die beiden Eingaben des ersten Passworts sind verschieden.</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source>Next: enter the second password.</source>
        <translation>Als Nächstes: das zweite Passwort eingeben.</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source>Next: enter the second password again.</source>
        <translation>Als Nächstes: das zweite Passwort wiederholen.</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source>The two entries of the second password differ.</source>
        <translation>Die beiden Eingaben des zweiten Passworts sind verschieden.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source>Next: enter the current first password.</source>
        <translation>Als Nächstes: das aktuelle erste Passwort eingeben.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source>Next: enter the current second password.</source>
        <translation>Als Nächstes: das aktuelle zweite Passwort eingeben.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_SIGNS">
        <source>Only the letters A to Z, digits and the signs of a US keyboard can be used in a password.</source>
        <translation>In Passwörtern sind nur die Buchstaben A bis Z, Ziffern und die Zeichen einer US-Tastatur möglich.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source>A password has 32 characters at most.</source>
        <translation>Ein Passwort hat höchstens 32 Zeichen.</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source>Next: enter how many tries are allowed, 1 to 99.</source>
        <translation>Als Nächstes: die Anzahl erlaubter Versuche eingeben, 1 bis 99.</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source>Next: enter the digits of the key.</source>
        <translation>Als Nächstes: die Ziffern des Schlüssels eingeben.</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source>Only the digits 0 to 9 and A to F can be used.</source>
        <translation>Nur die Ziffern 0 bis 9 und A bis F sind möglich.</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source>One digit is missing.</source>
        <translation>Eine Ziffer fehlt.</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source>%1 of 128 digits: that is too many.</source>
        <translation>%1 von 128 Ziffern: Das sind zu viele.</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source>OK erases everything on this drive and closes this window.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>OK löscht alles auf diesem Laufwerk und schließt dieses Fenster.</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</source>
        <translation>Kein sicherer Bereich: Jeder kann dieses Laufwerk lesen. Eingegebene Passwörter und Schlüssel werden nicht verwendet.</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source>Before you try again, open the areas and confirm them once more.</source>
        <translation>Öffnen Sie vor dem nächsten Versuch die Bereiche und bestätigen Sie sie noch einmal.</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</source>
        <translation>In der Liste der Bereiche ist kein Platz für einen weiteren Versuch. Öffnen Sie die Bereiche, bestätigen Sie sie noch einmal und versuchen Sie es dann erneut.</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source>OK, Cancel, Erase Key and Clear All close the program.</source>
        <extracomment>Names the buttons of the window as they are called there</extracomment>
        <translation>OK, „Abbrechen“, „Schlüssel löschen“ und „Alles löschen“ beenden das Programm.</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source>Setting the clock closes the program; what was entered is lost.</source>
        <translation>Das Stellen der Uhr beendet das Programm; was eingegeben wurde, geht verloren.</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source>A period that shows 0 is switched off by OK.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>Eine Dauer, die 0 anzeigt, wird mit OK ausgeschaltet.</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</source>
        <translation>Nur Disk1 behält seine Auswahl, wenn sich dieses Fenster öffnet. Soll Disk2 oder Disk3 sicher sein, wählen Sie das erneut.</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source>After that many wrong second passwords the drive erases its key for good.</source>
        <translation>Nach so vielen falschen zweiten Passwörtern löscht das Laufwerk seinen Schlüssel endgültig.</translation>
    </message>
    <message id="IDS_AREAS_TITLE">
        <source>ZELTO DISK: Areas</source>
        <translation>ZELTO DISK: Bereiche</translation>
    </message>
    <message id="IDS_AREAS_HEADING">
        <source>Divide the drive into areas.</source>
        <translation>Teilen Sie das Laufwerk in Bereiche ein.</translation>
    </message>
    <message id="IDS_AREAS_EXPLANATION">
        <source>Up to three areas; leave an area at 0 MB if you do not need it. One of them can be secure: it stays hidden until you log in.</source>
        <translation>Bis zu drei Bereiche; lassen Sie einen nicht benötigten bei 0&#xa0;MB. Einer davon kann sicher sein: Er bleibt verborgen, bis Sie sich anmelden.</translation>
    </message>
    <message id="IDS_AREAS_BAR_NAME">
        <source>The areas in proportion</source>
        <translation>Die Größenverhältnisse der Bereiche</translation>
    </message>
    <message id="IDS_AREAS_DISK1">
        <source>Disk&amp;1:</source>
        <extracomment>Disk1, Disk2 and Disk3 are given names: never translated</extracomment>
        <translation>Disk&amp;1:</translation>
    </message>
    <message id="IDS_AREAS_DISK1_UNIT">
        <source>MB</source>
        <extracomment>Stands after a field with a number</extracomment>
        <translation>MB</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE">
        <source>&amp;Secure area</source>
        <translation>S&amp;icherer Bereich</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE_NAME">
        <source>Disk1 is a secure area</source>
        <translation>Disk1 ist ein sicherer Bereich</translation>
    </message>
    <message id="IDS_AREAS_DISK2">
        <source>Disk&amp;2:</source>
        <translation>Disk&amp;2:</translation>
    </message>
    <message id="IDS_AREAS_DISK2_UNIT">
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE">
        <source>S&amp;ecure area</source>
        <translation>Sicherer &amp;Bereich</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE_NAME">
        <source>Disk2 is a secure area</source>
        <translation>Disk2 ist ein sicherer Bereich</translation>
    </message>
    <message id="IDS_AREAS_DISK3">
        <source>Disk&amp;3:</source>
        <translation>Disk&amp;3:</translation>
    </message>
    <message id="IDS_AREAS_DISK3_UNIT">
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE">
        <source>Secure &amp;area</source>
        <translation>&amp;Sicherer Bereich</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE_NAME">
        <source>Disk3 is a secure area</source>
        <translation>Disk3 ist ein sicherer Bereich</translation>
    </message>
    <message id="IDS_AREAS_LEFT_NAME">
        <source>Capacity that is left</source>
        <translation>Verbleibende Kapazität</translation>
    </message>
    <message id="IDS_AREAS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="IDS_AREAS_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_LOGIN_TITLE">
        <source>ZELTO DISK: Log In</source>
        <translation>ZELTO DISK: Anmelden</translation>
    </message>
    <message id="IDS_LOGIN_MESSAGE">
        <source>Enter the password of your drive.</source>
        <translation>Geben Sie das Passwort Ihres Laufwerks ein.</translation>
    </message>
    <message id="IDS_LOGIN_PASSWORD">
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Uhr des Laufwerks:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Uhr des Laufwerks</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT">
        <source>Key erased in:</source>
        <extracomment>A time follows: 12 d 5 h 30 min</extracomment>
        <translation>Schlüssel wird gelöscht in:</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT_NAME">
        <source>Time left until the drive erases its key</source>
        <translation>Zeit, bis das Laufwerk seinen Schlüssel löscht</translation>
    </message>
    <message id="IDS_LOGIN_CANCEL">
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message id="IDS_LOGIN_SUBMIT">
        <source>&amp;Log In</source>
        <translation>&amp;Anmelden</translation>
    </message>
    <message id="IDS_KEY_TITLE">
        <source>ZELTO DISK: Encryption Key</source>
        <translation>ZELTO DISK: Verschlüsselungsschlüssel</translation>
    </message>
    <message id="IDS_KEY_HEADING">
        <source>Enter the encryption key.</source>
        <translation>Geben Sie den Verschlüsselungsschlüssel ein.</translation>
    </message>
    <message id="IDS_KEY_EXPLANATION">
        <source>An even number of hexadecimal digits, 0 to 9 and A to F, 128 at the most. Keep a copy in a safe place.</source>
        <translation>Eine gerade Anzahl hexadezimaler Ziffern, 0 bis 9 und A bis F, höchstens 128. Bewahren Sie eine Kopie an einem sicheren Ort auf.</translation>
    </message>
    <message id="IDS_KEY_KEY">
        <source>&amp;Key:</source>
        <extracomment>The encryption key; a field follows</extracomment>
        <translation>&amp;Schlüssel:</translation>
    </message>
    <message id="IDS_KEY_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="IDS_KEY_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_SETTINGS_TITLE">
        <source>ZELTO DISK: Settings</source>
        <translation>ZELTO DISK: Einstellungen</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_GROUP">
        <source>Drive</source>
        <extracomment>Title of a group: the USB drive as a whole</extracomment>
        <translation>Laufwerk</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE">
        <source>Dri&amp;ve:</source>
        <translation>La&amp;ufwerk:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK">
        <source>Computer’s clock:</source>
        <translation>Uhr des Computers:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK_NAME">
        <source>Computer’s clock</source>
        <translation>Uhr des Computers</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Uhr des Laufwerks:</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Uhr des Laufwerks</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK">
        <source>&amp;Set Clock</source>
        <translation>Uhr &amp;stellen</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK_DESCRIPTION">
        <source>Sets the drive’s clock to the computer’s time</source>
        <translation>Stellt die Uhr des Laufwerks auf die Zeit des Computers</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS_GROUP">
        <source>Areas</source>
        <translation>Bereiche</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_BAR_NAME">
        <source>The drive’s areas in proportion</source>
        <translation>Die Größenverhältnisse der Bereiche des Laufwerks</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_TABLE_NAME">
        <source>The drive’s areas</source>
        <translation>Die Bereiche des Laufwerks</translation>
    </message>
    <message id="IDS_SETTINGS_TOTAL_CAPACITY_NAME">
        <source>Total capacity</source>
        <translation>Gesamtkapazität</translation>
    </message>
    <message id="IDS_SETTINGS_FREE_CAPACITY_NAME">
        <source>Free capacity</source>
        <translation>Freie Kapazität</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS">
        <source>&amp;Areas…</source>
        <translation>Be&amp;reiche …</translation>
    </message>
    <message id="IDS_SETTINGS_PROTECTION_GROUP">
        <source>Protection of the secure area</source>
        <translation>Schutz des sicheren Bereichs</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS_LABEL">
        <source>Passwords for log-in:</source>
        <translation>Passwörter zum Anmelden:</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS">
        <source>&amp;Passwords…</source>
        <translation>&amp;Passwörter …</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_LABEL">
        <source>Encryption key:</source>
        <translation>Verschlüsselungsschlüssel:</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_ORIGIN_NAME">
        <source>Encryption key</source>
        <translation>Verschlüsselungsschlüssel</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_DRIVE">
        <source>&amp;Made by the drive</source>
        <extracomment>The encryption key</extracomment>
        <translation>&amp;Vom Laufwerk erzeugt</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_HAND">
        <source>&amp;Entered by hand</source>
        <extracomment>The encryption key</extracomment>
        <translation>Sel&amp;bst eingegeben</translation>
    </message>
    <message id="IDS_SETTINGS_ENTER_KEY">
        <source>Enter &amp;Key…</source>
        <translation>Schlüssel &amp;eingeben …</translation>
    </message>
    <message id="IDS_SETTINGS_AUTOMATIC_GROUP">
        <source>Automatic protection</source>
        <translation>Automatischer Schutz</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR">
        <source>Erase the key af&amp;ter</source>
        <extracomment>Reads on: [12] (•) days ( ) minutes</extracomment>
        <translation>Schlüssel löschen &amp;nach</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_PERIOD_NAME">
        <source>Period until the key is erased</source>
        <translation>Dauer, bis der Schlüssel gelöscht wird</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_UNIT_NAME">
        <source>Unit of the period until the key is erased</source>
        <translation>Einheit der Dauer, bis der Schlüssel gelöscht wird</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_DAYS">
        <source>&amp;days</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>&amp;Tagen</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_MINUTES">
        <source>m&amp;inutes</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>M&amp;inuten</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF">
        <source>Lo&amp;g off after</source>
        <extracomment>Reads on: [12] minutes without use</extracomment>
        <translation>Ab&amp;melden nach</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_PERIOD_NAME">
        <source>Minutes without use until the drive logs off</source>
        <translation>Minuten ohne Benutzung, bis sich das Laufwerk abmeldet</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_UNIT">
        <source>minutes without use</source>
        <extracomment>Ends the line “Log off after [12]”</extracomment>
        <translation>Minuten ohne Benutzung</translation>
    </message>
    <message id="IDS_SETTINGS_SHOW_REMAINING_TIME">
        <source>Show the &amp;remaining time at log-in</source>
        <translation>Verbleibende &amp;Zeit beim Anmelden anzeigen</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_GROUP">
        <source>Erase</source>
        <extracomment>Title of a group</extracomment>
        <translation>Löschen</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY_EXPLANATION">
        <source>Without its key the secure area can never be read again.</source>
        <translation>Ohne seinen Schlüssel ist der sichere Bereich nie wieder lesbar.</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY">
        <source>Erase Ke&amp;y…</source>
        <translation>S&amp;chlüssel löschen …</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL_EXPLANATION">
        <source>Clearing removes every area with all its files, every password and every setting.</source>
        <translation>Entfernt alle Bereiche mit allen Dateien, alle Passwörter und alle Einstellungen.</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL">
        <source>Clear A&amp;ll…</source>
        <translation>Alles &amp;löschen …</translation>
    </message>
    <message id="IDS_SETTINGS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="IDS_SETTINGS_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_CHANGE_TITLE">
        <source>ZELTO DISK: Change Passwords</source>
        <translation>ZELTO DISK: Passwörter ändern</translation>
    </message>
    <message id="IDS_CHANGE_HEADING">
        <source>Change the passwords of the secure area.</source>
        <translation>Ändern Sie die Passwörter des sicheren Bereichs.</translation>
    </message>
    <message id="IDS_CHANGE_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Ein Passwort hat 1 bis 32 Buchstaben, Ziffern oder Zeichen, ohne Umlaute, ß und Akzente. Beim ersten erlaubt das Laufwerk beliebig viele Versuche, es sollte also schwer zu erraten sein. Ein vergessenes Passwort lässt sich nicht wiederherstellen.</translation>
    </message>
    <message id="IDS_CHANGE_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Anzahl der Passwörter</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>Nur erstes &amp;Passwort</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>Erstes und &amp;zweites Passwort</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_GROUP">
        <source>First password</source>
        <translation>Erstes Passwort</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_CURRENT">
        <source>&amp;Current:</source>
        <extracomment>The current first password</extracomment>
        <translation>A&amp;ktuelles:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_NEW">
        <source>&amp;New:</source>
        <extracomment>The new first password</extracomment>
        <translation>Ne&amp;ues:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AGAIN">
        <source>New a&amp;gain:</source>
        <extracomment>The new first password again</extracomment>
        <translation>Neues &amp;wiederholen:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_GROUP">
        <source>Second password</source>
        <translation>Zweites Passwort</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_CURRENT">
        <source>C&amp;urrent:</source>
        <translation>&amp;Aktuelles:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_NEW">
        <source>N&amp;ew:</source>
        <translation>N&amp;eues:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_AGAIN">
        <source>New aga&amp;in:</source>
        <translation>&amp;Neues wiederholen:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES">
        <source>&amp;Tries allowed:</source>
        <extracomment>How often a wrong second password may be entered</extracomment>
        <translation>Erlaubte &amp;Versuche:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_CHANGE_CANCEL">
        <source>Cance&amp;l</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message id="IDS_CHANGE_OK">
        <source>O&amp;K</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_PASSWORDS_TITLE">
        <source>ZELTO DISK: Passwords</source>
        <translation>ZELTO DISK: Passwörter</translation>
    </message>
    <message id="IDS_PASSWORDS_HEADING">
        <source>Choose the passwords of the secure area.</source>
        <translation>Legen Sie die Passwörter des sicheren Bereichs fest.</translation>
    </message>
    <message id="IDS_PASSWORDS_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Ein Passwort hat 1 bis 32 Buchstaben, Ziffern oder Zeichen, ohne Umlaute, ß und Akzente. Beim ersten erlaubt das Laufwerk beliebig viele Versuche, es sollte also schwer zu erraten sein. Ein vergessenes Passwort lässt sich nicht wiederherstellen.</translation>
    </message>
    <message id="IDS_PASSWORDS_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Anzahl der Passwörter</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>&amp;Nur erstes Passwort</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>Erstes &amp;und zweites Passwort</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_GROUP">
        <source>First password</source>
        <translation>Erstes Passwort</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST">
        <source>&amp;Password:</source>
        <translation>P&amp;asswort:</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AGAIN">
        <source>A&amp;gain:</source>
        <extracomment>The password again</extracomment>
        <translation>W&amp;iederholen:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_GROUP">
        <source>Second password</source>
        <translation>Zweites Passwort</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND">
        <source>Pass&amp;word:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_AGAIN">
        <source>Aga&amp;in:</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES">
        <source>&amp;Tries allowed:</source>
        <translation>&amp;Erlaubte Versuche:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_PASSWORDS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>A&amp;bbrechen</translation>
    </message>
    <message id="IDS_PASSWORDS_OK">
        <source>O&amp;K</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_SELECT_TITLE">
        <source>ZELTO DISK</source>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_SELECT_HEADING">
        <source>Which drive do you want to use?</source>
        <translation>Welches Laufwerk möchten Sie verwenden?</translation>
    </message>
    <message id="IDS_SELECT_EXPLANATION">
        <source>These drives are plugged in. For one that is missing, start the program again.</source>
        <translation>Diese Laufwerke sind angeschlossen. Fehlt eines, starten Sie das Programm erneut.</translation>
    </message>
    <message id="IDS_SELECT_DRIVE">
        <source>&amp;Drive:</source>
        <extracomment>The USB drive as a whole: a list follows</extracomment>
        <translation>&amp;Laufwerk:</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN">
        <source>&amp;Look Again</source>
        <translation>&amp;Erneut suchen</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN_DESCRIPTION">
        <source>Looks again for drives that were plugged in meanwhile</source>
        <translation>Sucht erneut nach Laufwerken, die inzwischen eingesteckt wurden</translation>
    </message>
    <message id="IDS_SELECT_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message id="IDS_SELECT_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_UNLOCKED_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: Entsperrt</translation>
    </message>
    <message id="IDS_UNLOCKED_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Ihr Laufwerk ist entsperrt.</translation>
    </message>
    <message id="IDS_UNLOCKED_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off before you unplug the drive or leave the computer.</source>
        <translation>Der sichere Bereich ist geöffnet und erscheint neben Ihren anderen Datenträgern. Ein neuer ist leer: Formatieren Sie ihn einmal. Melden Sie sich ab, bevor Sie das Laufwerk abziehen oder den Computer verlassen.</translation>
    </message>
    <message id="IDS_UNLOCKED_SETTINGS">
        <source>&amp;Settings…</source>
        <extracomment>Opens the settings of the drive</extracomment>
        <translation>E&amp;instellungen …</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF">
        <source>&amp;Log Off</source>
        <extracomment>Of the drive, not of the computer’s session</extracomment>
        <translation>&amp;Abmelden</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Sperrt das Laufwerk und beendet das Programm</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>&amp;Entsperrt lassen und beenden</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Beendet das Programm; das Laufwerk bleibt entsperrt</translation>
    </message>
    <message id="IDS_UNLOCKING_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: Entsperrt</translation>
    </message>
    <message id="IDS_UNLOCKING_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Ihr Laufwerk ist entsperrt.</translation>
    </message>
    <message id="IDS_UNLOCKING_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off to lock it again, or keep it unlocked and go on working with it.</source>
        <translation>Der sichere Bereich ist geöffnet und erscheint neben Ihren anderen Datenträgern. Ein neuer ist leer: Formatieren Sie ihn einmal. Melden Sie sich ab, um das Laufwerk wieder zu sperren, oder lassen Sie es entsperrt und arbeiten Sie weiter damit.</translation>
    </message>
    <message id="IDS_UNLOCKING_SETTINGS">
        <source>&amp;Settings…</source>
        <translation>E&amp;instellungen …</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>&amp;Entsperrt lassen und beenden</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Beendet das Programm; das Laufwerk bleibt entsperrt</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF">
        <source>&amp;Log Off</source>
        <translation>&amp;Abmelden</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Sperrt das Laufwerk und beendet das Programm</translation>
    </message>
    <message id="IDS_SETUP_TITLE">
        <source>ZELTO DISK: Setting Up</source>
        <translation>ZELTO DISK: Einrichten</translation>
    </message>
    <message id="IDS_SETUP_HEADING">
        <source>Your drive is being set up.</source>
        <translation>Ihr Laufwerk wird eingerichtet.</translation>
    </message>
    <message id="IDS_SETUP_EXPLANATION">
        <source>This takes about a minute. Leave the drive plugged in until it is finished.</source>
        <translation>Das dauert etwa eine Minute. Lassen Sie das Laufwerk eingesteckt, bis es fertig ist.</translation>
    </message>
    <message id="IDS_SETUP_STEPS_NAME">
        <source>Steps of the set-up</source>
        <translation>Schritte der Einrichtung</translation>
    </message>
    <message id="IDS_SETUP_PROGRESS_NAME">
        <source>Progress of the set-up</source>
        <translation>Fortschritt der Einrichtung</translation>
    </message>
    <message id="IDS_SETUP_FINISH">
        <source>&amp;Finish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
    <message id="IDS_SIZE_MB">
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message id="IDS_SIZE_GB">
        <source>%1 GB</source>
        <extracomment>%1 has one decimal: 3.7</extracomment>
        <translation>%1 GB</translation>
    </message>
    <message id="IDS_SIZE_TB">
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message id="IDS_BAR_NORMAL">
        <source>normal area</source>
        <extracomment>In a sentence: Disk1, normal area, 244 MB</extracomment>
        <translation>normaler Bereich</translation>
    </message>
    <message id="IDS_BAR_SECURE">
        <source>secure area</source>
        <translation>sicherer Bereich</translation>
    </message>
    <message id="IDS_BAR_TOOL">
        <source>tool area</source>
        <extracomment>The small area that carries this program</extracomment>
        <translation>Programmbereich</translation>
    </message>
    <message id="IDS_BAR_FREE">
        <source>not used</source>
        <extracomment>Of a part of the drive</extracomment>
        <translation>unbenutzt</translation>
    </message>
    <message id="IDS_BAR_NAMED">
        <source>%1, %2, %3</source>
        <extracomment>Disk1, secure area, 244 MB</extracomment>
        <translation>%1, %2, %3</translation>
    </message>
    <message id="IDS_BAR_UNNAMED">
        <source>%1, %2</source>
        <extracomment>not used, 244 MB</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message id="IDS_BAR_SEPARATOR">
        <source>; </source>
        <extracomment>Between the areas of the list: Disk1, normal area, 244 MB; not used, 244 MB</extracomment>
        <translation>; </translation>
    </message>
    <message id="IDS_BAR_TOO_LARGE">
        <source>together more than the drive can hold</source>
        <extracomment>Last in that list</extracomment>
        <translation>zusammen mehr, als auf das Laufwerk passt</translation>
    </message>
    <message id="IDS_LIST_SEPARATOR">
        <source>, </source>
        <extracomment>Between the names of programs</extracomment>
        <translation>, </translation>
    </message>
    <message id="IDS_TABLE_AREA">
        <source>Area</source>
        <extracomment>Head of a column: Disk1, Disk2, Disk3</extracomment>
        <translation>Bereich</translation>
    </message>
    <message id="IDS_TABLE_KIND">
        <source>Kind</source>
        <extracomment>Head of a column: normal or secure</extracomment>
        <translation>Art</translation>
    </message>
    <message id="IDS_TABLE_CAPACITY">
        <source>Capacity</source>
        <extracomment>Head of a column</extracomment>
        <translation>Kapazität</translation>
    </message>
    <message id="IDS_STEP_SETTINGS">
        <source>The settings are on the drive</source>
        <extracomment>One step of the set-up; done or under way</extracomment>
        <translation>Die Einstellungen sind auf dem Laufwerk</translation>
    </message>
    <message id="IDS_STEP_RESTART">
        <source>The drive starts anew</source>
        <translation>Das Laufwerk startet neu</translation>
    </message>
    <message id="IDS_STEP_TOOL_AREA">
        <source>The tool area appears</source>
        <translation>Der Programmbereich erscheint</translation>
    </message>
    <message id="IDS_STEP_COPY">
        <source>The tool area is formatted and this program copied</source>
        <translation>Programmbereich formatieren und dieses Programm kopieren</translation>
    </message>
    <message id="IDS_STEP_FINISHED">
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message id="IDS_STEP_CURRENT">
        <source>Step %1 of %2: %3</source>
        <extracomment>Read aloud; %3 is one of the steps</extracomment>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message id="IDS_STEP_FAILED">
        <source>Step %1 of %2 failed: %3</source>
        <translation>Schritt %1 von %2 fehlgeschlagen: %3</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_MATCH">
        <source>The two entries match.</source>
        <translation>Die beiden Eingaben stimmen überein.</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_DIFFER">
        <source>The two entries differ.</source>
        <translation>Die beiden Eingaben sind verschieden.</translation>
    </message>
    <message id="IDS_FIELD_DIGITS">
        <source>%1 of 128 digits</source>
        <translation>%1 von 128 Ziffern</translation>
    </message>
    <message id="IDS_FIELD_DIGITS_ODD">
        <source>%1 of 128 digits, one is missing</source>
        <extracomment>Two digits make a byte; the number is odd</extracomment>
        <translation>%1 von 128 Ziffern, eine fehlt</translation>
    </message>
    <message id="IDS_FIELD_REVEAL">
        <source>Show the password</source>
        <extracomment>Of a button that stays pressed while the password is shown</extracomment>
        <translation>Passwort anzeigen</translation>
    </message>
    <message id="IDS_FIELD_CAPS_LOCK">
        <source>Caps Lock is on</source>
        <extracomment>The key as it is called in the language</extracomment>
        <translation>Feststelltaste ist aktiv</translation>
    </message>
    <message id="IDS_FIELD_PASTE">
        <source>&amp;Paste</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>&amp;Einfügen</translation>
    </message>
    <message id="IDS_FIELD_SELECT_ALL">
        <source>Select &amp;All</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message id="IDS_AWAKE_SETUP">
        <source>The drive is being set up</source>
        <extracomment>Why the computer does not go to sleep now, shown by the desktop</extracomment>
        <translation>Das Laufwerk wird eingerichtet</translation>
    </message>
    <message id="IDS_AWAKE_PASSWORDS">
        <source>The passwords are being changed</source>
        <extracomment>Why the computer does not go to sleep now</extracomment>
        <translation>Die Passwörter werden geändert</translation>
    </message>
    <message id="IDS_AWAKE_RELEASE">
        <source>The drive’s volumes are being released</source>
        <extracomment>Why the computer does not go to sleep now; volumes are unmounted</extracomment>
        <translation>Die Datenträger des Laufwerks werden ausgehängt</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED">
        <source>The drive is locked. It can be unplugged.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Das Laufwerk ist gesperrt. Es kann abgezogen werden.</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED_IN_USE">
        <source>The drive is locked. Eject its other volumes before you unplug it.</source>
        <extracomment>A notification on the desktop after the program has closed; the drive’s normal areas are still mounted</extracomment>
        <translation>Das Laufwerk ist gesperrt. Werfen Sie seine anderen Datenträger aus, bevor Sie es abziehen.</translation>
    </message>
    <message id="IDS_NOTICE_STILL_UNLOCKED">
        <source>The drive is still unlocked. To lock it, start this program again.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>Das Laufwerk ist weiterhin entsperrt. Um es zu sperren, starten Sie dieses Programm noch einmal.</translation>
    </message>
    <message id="IDS_NOTICE_SETTINGS_CHANGED">
        <source>The drive’s settings have been changed.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Die Einstellungen des Laufwerks wurden geändert.</translation>
    </message>
    <message id="IDS_NOTICE_CLEARED">
        <source>Everything on the drive has been cleared. Unplug it, plug it in again, then start this program to set it up again.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Alles auf dem Laufwerk wurde gelöscht. Ziehen Sie es ab, stecken Sie es wieder ein und starten Sie dann dieses Programm, um es neu einzurichten.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP">
        <source>The drive is set up. Format each area once before you use it.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Das Laufwerk ist eingerichtet. Formatieren Sie jeden Bereich einmal, bevor Sie ihn verwenden.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP_WITHOUT_TOOL">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>Das Laufwerk ist eingerichtet und kann verwendet werden. Nur dieses Programm konnte nicht in seinen Programmbereich kopiert werden: Verwenden Sie das Laufwerk mit dem Programm auf diesem Computer.</translation>
    </message>
    <message id="IDS_RULE_TITLE">
        <source>ZELTO DISK: Device Rule</source>
        <translation>ZELTO DISK: Geräteregel</translation>
    </message>
    <message id="IDS_RULE_HEADING">
        <source>Let this computer’s users use the drive.</source>
        <translation>Erlauben Sie den Benutzern dieses Computers, das Laufwerk zu verwenden.</translation>
    </message>
    <message id="IDS_RULE_EXPLANATION">
        <source>An administrator enters this &amp;command in a terminal. It adds the device rule that it holds. Then plug the drive in again.</source>
        <translation>&amp;Ein Systemverwalter gibt diesen Befehl in einem Terminal ein. Er fügt die darin enthaltene Geräteregel hinzu. Stecken Sie das Laufwerk danach erneut ein.</translation>
    </message>
    <message id="IDS_RULE_CLOSE">
        <source>C&amp;lose</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message id="IDS_RULE_COPY">
        <source>Co&amp;py Command</source>
        <translation>&amp;Befehl kopieren</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE">
        <source>Show &amp;Rule…</source>
        <translation>&amp;Regel anzeigen …</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE_DESCRIPTION">
        <source>Shows the device rule and the command that adds it to this computer</source>
        <translation>Zeigt die Geräteregel und den Befehl, der sie diesem Computer hinzufügt</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source>Serial number: %1</source>
        <translation>Seriennummer: %1</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source>Serial number: %1, in USB port %2</source>
        <translation>Seriennummer: %1, am USB-Anschluss %2</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source>No serial number, in USB port %1</source>
        <translation>Keine Seriennummer, am USB-Anschluss %1</translation>
    </message>
    <message id="IDS_STRENGTH_WEAK">
        <source>Strength: weak</source>
        <extracomment>Of a new password; a bar of four parts stands before it</extracomment>
        <translation>Stärke: schwach</translation>
    </message>
    <message id="IDS_STRENGTH_FAIR">
        <source>Strength: fair</source>
        <translation>Stärke: mittel</translation>
    </message>
    <message id="IDS_STRENGTH_GOOD">
        <source>Strength: good</source>
        <translation>Stärke: gut</translation>
    </message>
    <message id="IDS_STRENGTH_STRONG">
        <source>Strength: strong</source>
        <translation>Stärke: stark</translation>
    </message>
    <message id="IDS_HELP_BUTTON">
        <source>&amp;Help</source>
        <extracomment>In every window; no other button there may have its underlined letter</extracomment>
        <translation>&amp;Hilfe</translation>
    </message>
    <message id="IDS_HELP_DESCRIPTION">
        <source>Opens the manual’s page about this window (F1). This is version %1 of the program.</source>
        <translation>Öffnet die Seite des Handbuchs zu diesem Fenster (F1). Dies ist Version %1 des Programms.</translation>
    </message>
    <message id="IDS_HINT_NO_MANUAL">
        <source>The manual could not be opened: it was not found beside the program, or this computer has nothing to show it with.</source>
        <translation>Das Handbuch konnte nicht geöffnet werden: Es liegt nicht neben dem Programm, oder dieser Computer kann es nicht anzeigen.</translation>
    </message>
    <message id="IDS_HINT_VERSION">
        <source>Version %1 of the program.</source>
        <extracomment>Below messages that support is asked about</extracomment>
        <translation>Version %1 des Programms.</translation>
    </message>
    <message id="IDS_ALERT_INFORMATION">
        <source>Information</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Hinweis</translation>
    </message>
    <message id="IDS_ALERT_WARNING">
        <source>Warning</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Warnung</translation>
    </message>
    <message id="IDS_ALERT_CRITICAL">
        <source>Loss of data</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Datenverlust</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_VOLUME">
        <source>The program on this volume is damaged. Use the drive with the program that is installed on a computer; no file has to be erased.</source>
        <extracomment>The starter’s message; the program does not start</extracomment>
        <translation>Das Programm auf diesem Datenträger ist beschädigt. Verwenden Sie das Laufwerk mit dem Programm, das auf einem Computer installiert ist; es muss keine Datei gelöscht werden.</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_COPY">
        <source>This copy of the program is damaged. Start it from the drive once more to replace it.</source>
        <extracomment>The starter’s message about a copy of the program on the computer</extracomment>
        <translation>Diese Kopie des Programms ist beschädigt. Starten Sie es noch einmal vom Laufwerk, um sie zu ersetzen.</translation>
    </message>
    <message id="IDS_STARTER_OTHER_MACHINE">
        <source>This program is made for %1 computers; this one is %2.</source>
        <extracomment>The starter’s message; %1 and %2 are kinds of processors, x86_64 say</extracomment>
        <translation>Dieses Programm ist für Computer der Art %1; dieser hier ist %2.</translation>
    </message>
    <message id="IDS_STARTER_NOT_FOUND">
        <source>%1 cannot be found.</source>
        <extracomment>The starter’s message; %1 is the name of a file</extracomment>
        <translation>%1 wurde nicht gefunden.</translation>
    </message>
    <message id="IDS_STARTER_NO_ROOM">
        <source>The program cannot be unpacked: neither the home folder nor /tmp has room for it.</source>
        <extracomment>The starter’s message; /tmp is a folder</extracomment>
        <translation>Das Programm kann nicht entpackt werden: Weder im persönlichen Ordner noch in /tmp ist Platz dafür.</translation>
    </message>
    <message id="IDS_STARTER_LACKS">
        <source>This system lacks something that the program needs: %1</source>
        <extracomment>The starter’s message; %1 is what the system says of it, in English</extracomment>
        <translation>Diesem System fehlt etwas, das das Programm braucht: %1</translation>
    </message>
</context>
</TS>
