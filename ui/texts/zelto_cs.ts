<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
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
        <translation>Zrušit</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source>No ZELTO DISK is ready for use. Plug it in, then start this program again.</source>
        <translation>Žádný ZELTO DISK není připraven k použití. Připojte jej a spusťte tento program znovu.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source>Enter the password; the first one if the drive has two.</source>
        <translation>Zadejte heslo; první, má-li jednotka dvě.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source>Enter the second password.</source>
        <translation>Zadejte druhé heslo.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</source>
        <extracomment>%1 is a date and time</extracomment>
        <translation>Hodiny jednotky se zastavily, a proto se jednotka zamkla.

Nastavit hodiny jednotky podle tohoto počítače, %1? Nejprve ověřte, že je tento čas správný. Má-li jednotka ještě svůj klíč, budete se k ní potom moci přihlásit.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</source>
        <translation>Hodiny jednotky byly nastaveny. Program se nyní zavře. Spusťte jej znovu: oznámí, zda se můžete přihlásit.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</source>
        <translation>Jednotka se natrvalo zamkla a její klíč je ztracen: po příliš mnoha chybných heslech, protože vypršel čas, nebo protože byl klíč smazán. Co bylo v zabezpečené oblasti, už nikdo nepřečte.

Chcete-li jednotku znovu používat, spusťte tento program, pokud se zavřel, zvolte v nastavení „Vymazat vše“, potom jednotku odpojte a připojte a spusťte program ještě jednou, abyste ji zprovoznili.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</source>
        <translation>Toto heslo není správné. Zkontrolujte Caps Lock a zkuste to znovu; jednotka možná dovoluje jen několik pokusů.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</source>
        <translation>Svazky jednotky se nepodařilo odpojit; nejčastěji na nich některý program ještě používá soubor. Nic jiného se nestalo: odemčená jednotka je stále odemčená.

Zavřete všechny soubory a okna, která jednotku zobrazují, a zkuste to znovu. Pokud se tento program zavřel, spusťte jej znovu.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</source>
        <extracomment>Numbers that identify an error</extracomment>
        <translation>Jednotka tento krok neprovedla. Stane-li se to znovu, zavřete tento program, jednotku odpojte a připojte a spusťte program znovu.

Pro podporu: stavový klíč (sense) %1, kód %2, kvalifikátor %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</source>
        <translation>Jednotka neodpovídá. Zavřete tento program, jednotku odpojte a připojte a spusťte program znovu.</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source>not set</source>
        <extracomment>In place of the time, after “Drive’s clock:”</extracomment>
        <translation>nenastaveno</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source>The time has run out</source>
        <extracomment>In place of the remaining time, after “Key erased in:”</extracomment>
        <translation>Čas vypršel</translation>
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
        <translation>Hodiny jednotky byly nastaveny podle tohoto počítače. Program se nyní zavře; chcete-li pokračovat, spusťte jej znovu.</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source>Setting up the drive. Please do not unplug it.</source>
        <extracomment>Blinks while the drive is set up</extracomment>
        <translation>Jednotka se zprovozňuje. Neodpojujte ji.</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</source>
        <translation>Jednotka je zprovozněna. Její oblasti jsou zatím prázdné: každou před použitím jednou naformátujte, zabezpečenou po přihlášení.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</source>
        <translation>Jednotka je zprovozněna a lze ji používat. Pouze její oblast nástrojů se nepodařilo naformátovat, takže na ní tento program není: používejte jednotku s programem v tomto počítači.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</source>
        <extracomment>%1 and %2 are names of files</extracomment>
        <translation>Jednotka je zprovozněna a lze ji používat. Pouze tento program se nepodařilo zkopírovat do její oblasti nástrojů: používejte jednotku s programem v tomto počítači.

Odkud: %1
Kam: %2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</source>
        <translation>Jednotka nebyla připravena, proto na ní nebylo nic změněno. Program se nyní zavře. Jednotku odpojte a připojte a spusťte program znovu.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</source>
        <translation>Zvolili jste ruční zadání šifrovacího klíče, ale žádný zatím není zadán. Zadejte klíč, nebo nechte jednotku, ať jej vytvoří.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</source>
        <translation>Současné první heslo není správné, takže první heslo nebylo změněno. Pokud měníte dvě hesla, druhé již změněno bylo: od této chvíle je jeho současným heslem to nové. Zkontrolujte Caps Lock a zadejte hesla znovu.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</source>
        <translation>Současné druhé heslo není správné, takže žádné heslo nebylo změněno. Zkontrolujte Caps Lock a zadejte je znovu.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source>The drive is locked. Log in to it first, then try again.</source>
        <translation>Jednotka je zamčená. Nejprve se přihlaste a potom to zkuste znovu.</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</source>
        <translation>Vymazat vše na této jednotce?

Všechny oblasti se všemi soubory, všechna hesla a všechna nastavení budou ztracena. Tuto akci nelze vrátit zpět.</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</source>
        <translation>Smazat šifrovací klíč této jednotky?

Vše v zabezpečené oblasti bude navždy nečitelné, i se správným heslem. Tuto akci nelze vrátit zpět.</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source>Total: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Celkem: %1 MB</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source>Free: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Volné: %1 MB</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source>The areas are larger than the drive.</source>
        <translation>Oblasti jsou větší než jednotka.</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source>Normal</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Běžná</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source>Secure</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Zabezpečená</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source>Not used yet</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Zatím nepoužito</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source>Whole drive</source>
        <extracomment>In place of an area’s capacity: the area takes it all</extracomment>
        <translation>Celá jednotka</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</source>
        <translation>Připojený ZELTO DISK není v tomto seznamu, protože tento počítač jej zatím nedovoluje používat. Nainstalujte balíček programu nebo požádejte správce o přidání pravidla zařízení a jednotku znovu připojte.</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</source>
        <translation>Připojený ZELTO DISK není v tomto seznamu, protože patří do relace jiného uživatele tohoto počítače. Použijte jej v oné relaci, nebo se přihlaste přímo u tohoto počítače a znovu jej připojte.</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</source>
        <translation>Připojený ZELTO DISK není v tomto seznamu, protože jej používá jiná kopie tohoto programu. Zavřete ji a spusťte tento program znovu.</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source>Still using the drive: %1</source>
        <extracomment>%1 is a list of programs</extracomment>
        <translation>Jednotku stále používá: %1</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source>Next: lay out the areas.</source>
        <translation>Další krok: rozdělit oblasti.</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source>Next: choose the passwords.</source>
        <translation>Další krok: zvolit hesla.</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source>Nothing has been changed yet.</source>
        <translation>Zatím nebylo nic změněno.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source>Erase the key after: enter 1 to 9999 days.</source>
        <translation>Smazat klíč po: zadejte 1 až 9999 dní.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source>Erase the key after: enter 1 to 999 minutes.</source>
        <translation>Smazat klíč po: zadejte 1 až 999 minut.</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source>Log off after: enter 1 to 999 minutes.</source>
        <translation>Odhlásit po: zadejte 1 až 999 minut.</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source>Sizes are whole numbers of MB.</source>
        <translation>Velikosti jsou celá čísla v MB.</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source>Next: enter a size for Disk1.</source>
        <translation>Další krok: zadat velikost pro Disk1.</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source>Next: enter the first password.</source>
        <translation>Další krok: zadat první heslo.</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source>Next: enter the first password again.</source>
        <translation>Další krok: zadat první heslo znovu.</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source>The two entries of the first password differ.</source>
        <translation>Dvě zadání prvního hesla se liší.</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source>Next: enter the second password.</source>
        <translation>Další krok: zadat druhé heslo.</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source>Next: enter the second password again.</source>
        <translation>Další krok: zadat druhé heslo znovu.</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source>The two entries of the second password differ.</source>
        <translation>Dvě zadání druhého hesla se liší.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source>Next: enter the current first password.</source>
        <translation>Další krok: zadat současné první heslo.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source>Next: enter the current second password.</source>
        <translation>Další krok: zadat současné druhé heslo.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_SIGNS">
        <source>Only the letters A to Z, digits and the signs of a US keyboard can be used in a password.</source>
        <translation>V hesle lze použít jen písmena A až Z bez diakritiky, číslice a symboly americké klávesnice.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source>A password has 32 characters at most.</source>
        <translation>Heslo má nejvýše 32 znaků.</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source>Next: enter how many tries are allowed, 1 to 99.</source>
        <translation>Další krok: zadat počet povolených pokusů, 1 až 99.</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source>Next: enter the digits of the key.</source>
        <translation>Další krok: zadat číslice klíče.</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source>Only the digits 0 to 9 and A to F can be used.</source>
        <translation>Lze použít jen číslice 0 až 9 a A až F.</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source>One digit is missing.</source>
        <translation>Jedna číslice chybí.</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source>%1 of 128 digits: that is too many.</source>
        <translation>%1 ze 128 číslic: to je příliš mnoho.</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source>OK erases everything on this drive and closes this window.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>OK vymaže vše na této jednotce a zavře toto okno.</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</source>
        <translation>Bez zabezpečené oblasti: tuto jednotku může číst kdokoli. Zadaná hesla a klíč se nepoužijí.</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source>Before you try again, open the areas and confirm them once more.</source>
        <translation>Než to zkusíte znovu, otevřete oblasti a ještě jednou je potvrďte.</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</source>
        <translation>V seznamu oblastí není místo na další pokus. Otevřete oblasti, ještě jednou je potvrďte a potom to zkuste znovu.</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source>OK, Cancel, Erase Key and Clear All close the program.</source>
        <extracomment>Names the buttons of the window as they are called there</extracomment>
        <translation>OK, Zrušit, Smazat klíč a Vymazat vše zavřou program.</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source>Setting the clock closes the program; what was entered is lost.</source>
        <translation>Nastavením hodin se program zavře; zadané údaje se ztratí.</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source>A period that shows 0 is switched off by OK.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>Doba, která ukazuje 0, se tlačítkem OK vypne.</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</source>
        <translation>Jen Disk1 si po otevření tohoto okna podrží svou volbu. Má-li být zabezpečen Disk2 nebo Disk3, zvolte to znovu.</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source>After that many wrong second passwords the drive erases its key for good.</source>
        <translation>Po tolika chybných druhých heslech jednotka navždy smaže svůj klíč.</translation>
    </message>
    <message id="IDS_AREAS_TITLE">
        <source>ZELTO DISK: Areas</source>
        <translation>ZELTO DISK: oblasti</translation>
    </message>
    <message id="IDS_AREAS_HEADING">
        <source>Divide the drive into areas.</source>
        <translation>Rozdělte jednotku na oblasti.</translation>
    </message>
    <message id="IDS_AREAS_EXPLANATION">
        <source>Up to three areas; leave an area at 0 MB if you do not need it. One of them can be secure: it stays hidden until you log in.</source>
        <translation>Nejvýše tři oblasti; nepotřebnou oblast ponechte na 0&#xa0;MB. Jedna z nich může být zabezpečená: zůstane skrytá, dokud se nepřihlásíte.</translation>
    </message>
    <message id="IDS_AREAS_BAR_NAME">
        <source>The areas in proportion</source>
        <translation>Poměr velikostí oblastí</translation>
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
        <translation>Z&amp;abezpečená oblast</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE_NAME">
        <source>Disk1 is a secure area</source>
        <translation>Disk1 je zabezpečená oblast</translation>
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
        <translation>Zabezpečená &amp;oblast</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE_NAME">
        <source>Disk2 is a secure area</source>
        <translation>Disk2 je zabezpečená oblast</translation>
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
        <translation>&amp;Zabezpečená oblast</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE_NAME">
        <source>Disk3 is a secure area</source>
        <translation>Disk3 je zabezpečená oblast</translation>
    </message>
    <message id="IDS_AREAS_LEFT_NAME">
        <source>Capacity that is left</source>
        <translation>Zbývající kapacita</translation>
    </message>
    <message id="IDS_AREAS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message id="IDS_AREAS_OK">
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message id="IDS_LOGIN_TITLE">
        <source>ZELTO DISK: Log In</source>
        <translation>ZELTO DISK: přihlášení</translation>
    </message>
    <message id="IDS_LOGIN_MESSAGE">
        <source>Enter the password of your drive.</source>
        <translation>Zadejte heslo své jednotky.</translation>
    </message>
    <message id="IDS_LOGIN_PASSWORD">
        <source>&amp;Password:</source>
        <translation>&amp;Heslo:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Hodiny jednotky:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Hodiny jednotky</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT">
        <source>Key erased in:</source>
        <extracomment>A time follows: 12 d 5 h 30 min</extracomment>
        <translation>Klíč bude smazán za:</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT_NAME">
        <source>Time left until the drive erases its key</source>
        <translation>Čas, než jednotka smaže svůj klíč</translation>
    </message>
    <message id="IDS_LOGIN_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message id="IDS_LOGIN_SUBMIT">
        <source>&amp;Log In</source>
        <translation>&amp;Přihlásit</translation>
    </message>
    <message id="IDS_KEY_TITLE">
        <source>ZELTO DISK: Encryption Key</source>
        <translation>ZELTO DISK: šifrovací klíč</translation>
    </message>
    <message id="IDS_KEY_HEADING">
        <source>Enter the encryption key.</source>
        <translation>Zadejte šifrovací klíč.</translation>
    </message>
    <message id="IDS_KEY_EXPLANATION">
        <source>An even number of hexadecimal digits, 0 to 9 and A to F, 128 at the most. Keep a copy in a safe place.</source>
        <translation>Sudý počet šestnáctkových číslic, 0 až 9 a A až F, nejvýše 128. Kopii uschovejte na bezpečném místě.</translation>
    </message>
    <message id="IDS_KEY_KEY">
        <source>&amp;Key:</source>
        <extracomment>The encryption key; a field follows</extracomment>
        <translation>&amp;Klíč:</translation>
    </message>
    <message id="IDS_KEY_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message id="IDS_KEY_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_SETTINGS_TITLE">
        <source>ZELTO DISK: Settings</source>
        <translation>ZELTO DISK: nastavení</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_GROUP">
        <source>Drive</source>
        <extracomment>Title of a group: the USB drive as a whole</extracomment>
        <translation>Jednotka</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE">
        <source>Dri&amp;ve:</source>
        <translation>&amp;Jednotka:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK">
        <source>Computer’s clock:</source>
        <translation>Hodiny počítače:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK_NAME">
        <source>Computer’s clock</source>
        <translation>Hodiny počítače</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Hodiny jednotky:</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Hodiny jednotky</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK">
        <source>&amp;Set Clock</source>
        <translation>Nastavit &amp;hodiny</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK_DESCRIPTION">
        <source>Sets the drive’s clock to the computer’s time</source>
        <translation>Nastaví hodiny jednotky podle počítače</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS_GROUP">
        <source>Areas</source>
        <translation>Oblasti</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_BAR_NAME">
        <source>The drive’s areas in proportion</source>
        <translation>Poměr velikostí oblastí jednotky</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_TABLE_NAME">
        <source>The drive’s areas</source>
        <translation>Oblasti jednotky</translation>
    </message>
    <message id="IDS_SETTINGS_TOTAL_CAPACITY_NAME">
        <source>Total capacity</source>
        <translation>Celková kapacita</translation>
    </message>
    <message id="IDS_SETTINGS_FREE_CAPACITY_NAME">
        <source>Free capacity</source>
        <translation>Volná kapacita</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS">
        <source>&amp;Areas…</source>
        <translation>O&amp;blasti…</translation>
    </message>
    <message id="IDS_SETTINGS_PROTECTION_GROUP">
        <source>Protection of the secure area</source>
        <translation>Ochrana zabezpečené oblasti</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS_LABEL">
        <source>Passwords for log-in:</source>
        <translation>Hesla pro přihlášení:</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS">
        <source>&amp;Passwords…</source>
        <translation>H&amp;esla…</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_LABEL">
        <source>Encryption key:</source>
        <translation>Šifrovací klíč:</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_ORIGIN_NAME">
        <source>Encryption key</source>
        <translation>Šifrovací klíč</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_DRIVE">
        <source>&amp;Made by the drive</source>
        <extracomment>The encryption key</extracomment>
        <translation>&amp;Vytvoří jednotka</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_HAND">
        <source>&amp;Entered by hand</source>
        <extracomment>The encryption key</extracomment>
        <translation>Zadaný &amp;ručně</translation>
    </message>
    <message id="IDS_SETTINGS_ENTER_KEY">
        <source>Enter &amp;Key…</source>
        <translation>Zadat &amp;klíč…</translation>
    </message>
    <message id="IDS_SETTINGS_AUTOMATIC_GROUP">
        <source>Automatic protection</source>
        <translation>Automatická ochrana</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR">
        <source>Erase the key af&amp;ter</source>
        <extracomment>Reads on: [12] (•) days ( ) minutes</extracomment>
        <translation>&amp;Smazat klíč po</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_PERIOD_NAME">
        <source>Period until the key is erased</source>
        <translation>Doba do smazání klíče</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_UNIT_NAME">
        <source>Unit of the period until the key is erased</source>
        <translation>Jednotka doby do smazání klíče</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_DAYS">
        <source>&amp;days</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>&amp;dnech</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_MINUTES">
        <source>m&amp;inutes</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>m&amp;inutách</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF">
        <source>Lo&amp;g off after</source>
        <extracomment>Reads on: [12] minutes without use</extracomment>
        <translation>Odhlásit &amp;po</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_PERIOD_NAME">
        <source>Minutes without use until the drive logs off</source>
        <translation>Minuty nečinnosti, než se jednotka odhlásí</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_UNIT">
        <source>minutes without use</source>
        <extracomment>Ends the line “Log off after [12]”</extracomment>
        <translation>minutách nečinnosti</translation>
    </message>
    <message id="IDS_SETTINGS_SHOW_REMAINING_TIME">
        <source>Show the &amp;remaining time at log-in</source>
        <translation>Při přihlášení &amp;ukázat zbývající čas</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_GROUP">
        <source>Erase</source>
        <extracomment>Title of a group</extracomment>
        <translation>Mazání</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY_EXPLANATION">
        <source>Without its key the secure area can never be read again.</source>
        <translation>Bez klíče už zabezpečenou oblast nikdy nepůjde přečíst.</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY">
        <source>Erase Ke&amp;y…</source>
        <translation>S&amp;mazat klíč…</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL_EXPLANATION">
        <source>Clearing removes every area with all its files, every password and every setting.</source>
        <translation>Odstraní všechny oblasti se všemi soubory, všechna hesla a všechna nastavení.</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL">
        <source>Clear A&amp;ll…</source>
        <translation>V&amp;ymazat vše…</translation>
    </message>
    <message id="IDS_SETTINGS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Zrušit</translation>
    </message>
    <message id="IDS_SETTINGS_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_CHANGE_TITLE">
        <source>ZELTO DISK: Change Passwords</source>
        <translation>ZELTO DISK: změna hesel</translation>
    </message>
    <message id="IDS_CHANGE_HEADING">
        <source>Change the passwords of the secure area.</source>
        <translation>Změňte hesla zabezpečené oblasti.</translation>
    </message>
    <message id="IDS_CHANGE_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Heslo má 1 až 32 písmen bez diakritiky, číslic nebo symbolů. U prvního dovoluje jednotka libovolný počet pokusů, proto je zvolte těžko uhodnutelné. Zapomenuté heslo nelze obnovit.</translation>
    </message>
    <message id="IDS_CHANGE_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Počet hesel</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>&amp;Jen první heslo</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>První a &amp;druhé heslo</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_GROUP">
        <source>First password</source>
        <translation>První heslo</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_CURRENT">
        <source>&amp;Current:</source>
        <extracomment>The current first password</extracomment>
        <translation>Souč&amp;asné:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_NEW">
        <source>&amp;New:</source>
        <extracomment>The new first password</extracomment>
        <translation>No&amp;vé:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AGAIN">
        <source>New a&amp;gain:</source>
        <extracomment>The new first password again</extracomment>
        <translation>Nové znov&amp;u:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_GROUP">
        <source>Second password</source>
        <translation>Druhé heslo</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_CURRENT">
        <source>C&amp;urrent:</source>
        <translation>&amp;Současné:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_NEW">
        <source>N&amp;ew:</source>
        <translation>N&amp;ové:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_AGAIN">
        <source>New aga&amp;in:</source>
        <translation>Nové &amp;znovu:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES">
        <source>&amp;Tries allowed:</source>
        <extracomment>How often a wrong second password may be entered</extracomment>
        <translation>&amp;Povolené pokusy:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_CHANGE_CANCEL">
        <source>Cance&amp;l</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message id="IDS_CHANGE_OK">
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message id="IDS_PASSWORDS_TITLE">
        <source>ZELTO DISK: Passwords</source>
        <translation>ZELTO DISK: hesla</translation>
    </message>
    <message id="IDS_PASSWORDS_HEADING">
        <source>Choose the passwords of the secure area.</source>
        <translation>Zvolte hesla zabezpečené oblasti.</translation>
    </message>
    <message id="IDS_PASSWORDS_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Heslo má 1 až 32 písmen bez diakritiky, číslic nebo symbolů. U prvního dovoluje jednotka libovolný počet pokusů, proto je zvolte těžko uhodnutelné. Zapomenuté heslo nelze obnovit.</translation>
    </message>
    <message id="IDS_PASSWORDS_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Počet hesel</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>&amp;Jen první heslo</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>První &amp;a druhé heslo</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_GROUP">
        <source>First password</source>
        <translation>První heslo</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST">
        <source>&amp;Password:</source>
        <translation>H&amp;eslo:</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AGAIN">
        <source>A&amp;gain:</source>
        <extracomment>The password again</extracomment>
        <translation>Zn&amp;ovu:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_GROUP">
        <source>Second password</source>
        <translation>Druhé heslo</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND">
        <source>Pass&amp;word:</source>
        <translation>&amp;Heslo:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_AGAIN">
        <source>Aga&amp;in:</source>
        <translation>&amp;Znovu:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES">
        <source>&amp;Tries allowed:</source>
        <translation>&amp;Povolené pokusy:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_PASSWORDS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message id="IDS_PASSWORDS_OK">
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message id="IDS_SELECT_TITLE">
        <source>ZELTO DISK</source>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_SELECT_HEADING">
        <source>Which drive do you want to use?</source>
        <translation>Kterou jednotku chcete použít?</translation>
    </message>
    <message id="IDS_SELECT_EXPLANATION">
        <source>These drives are plugged in. For one that is missing, start the program again.</source>
        <translation>Tyto jednotky jsou připojeny. Pokud některá chybí, spusťte program znovu.</translation>
    </message>
    <message id="IDS_SELECT_DRIVE">
        <source>&amp;Drive:</source>
        <extracomment>The USB drive as a whole: a list follows</extracomment>
        <translation>&amp;Jednotka:</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN">
        <source>&amp;Look Again</source>
        <translation>&amp;Hledat znovu</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN_DESCRIPTION">
        <source>Looks again for drives that were plugged in meanwhile</source>
        <translation>Znovu vyhledá jednotky, které byly mezitím připojeny</translation>
    </message>
    <message id="IDS_SELECT_CANCEL">
        <source>&amp;Cancel</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message id="IDS_SELECT_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_UNLOCKED_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: odemčeno</translation>
    </message>
    <message id="IDS_UNLOCKED_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Vaše jednotka je odemčená.</translation>
    </message>
    <message id="IDS_UNLOCKED_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off before you unplug the drive or leave the computer.</source>
        <translation>Zabezpečená oblast je otevřená a zobrazuje se vedle ostatních disků. Nová je prázdná: jednou ji naformátujte. Než jednotku odpojíte nebo od počítače odejdete, odhlaste se.</translation>
    </message>
    <message id="IDS_UNLOCKED_SETTINGS">
        <source>&amp;Settings…</source>
        <extracomment>Opens the settings of the drive</extracomment>
        <translation>N&amp;astavení…</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF">
        <source>&amp;Log Off</source>
        <extracomment>Of the drive, not of the computer’s session</extracomment>
        <translation>O&amp;dhlásit</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Zamkne jednotku a zavře program</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>Nechat &amp;odemčenou a zavřít</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Zavře program; jednotka zůstane odemčená</translation>
    </message>
    <message id="IDS_UNLOCKING_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: odemčeno</translation>
    </message>
    <message id="IDS_UNLOCKING_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Vaše jednotka je odemčená.</translation>
    </message>
    <message id="IDS_UNLOCKING_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off to lock it again, or keep it unlocked and go on working with it.</source>
        <translation>Zabezpečená oblast je otevřená a zobrazuje se vedle ostatních disků. Nová je prázdná: jednou ji naformátujte. Odhlášením ji znovu zamknete, nebo ji nechte odemčenou a pracujte s ní dál.</translation>
    </message>
    <message id="IDS_UNLOCKING_SETTINGS">
        <source>&amp;Settings…</source>
        <translation>N&amp;astavení…</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>Nechat &amp;odemčenou a zavřít</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Zavře program; jednotka zůstane odemčená</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF">
        <source>&amp;Log Off</source>
        <translation>O&amp;dhlásit</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Zamkne jednotku a zavře program</translation>
    </message>
    <message id="IDS_SETUP_TITLE">
        <source>ZELTO DISK: Setting Up</source>
        <translation>ZELTO DISK: zprovoznění</translation>
    </message>
    <message id="IDS_SETUP_HEADING">
        <source>Your drive is being set up.</source>
        <translation>Vaše jednotka se zprovozňuje.</translation>
    </message>
    <message id="IDS_SETUP_EXPLANATION">
        <source>This takes about a minute. Leave the drive plugged in until it is finished.</source>
        <translation>Trvá to asi minutu. Do dokončení nechte jednotku připojenou.</translation>
    </message>
    <message id="IDS_SETUP_STEPS_NAME">
        <source>Steps of the set-up</source>
        <translation>Kroky zprovoznění</translation>
    </message>
    <message id="IDS_SETUP_PROGRESS_NAME">
        <source>Progress of the set-up</source>
        <translation>Průběh zprovoznění</translation>
    </message>
    <message id="IDS_SETUP_FINISH">
        <source>&amp;Finish</source>
        <translation>&amp;Dokončit</translation>
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
        <translation>běžná oblast</translation>
    </message>
    <message id="IDS_BAR_SECURE">
        <source>secure area</source>
        <translation>zabezpečená oblast</translation>
    </message>
    <message id="IDS_BAR_TOOL">
        <source>tool area</source>
        <extracomment>The small area that carries this program</extracomment>
        <translation>oblast nástrojů</translation>
    </message>
    <message id="IDS_BAR_FREE">
        <source>not used</source>
        <extracomment>Of a part of the drive</extracomment>
        <translation>nepoužito</translation>
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
        <translation>dohromady víc, než se na jednotku vejde</translation>
    </message>
    <message id="IDS_LIST_SEPARATOR">
        <source>, </source>
        <extracomment>Between the names of programs</extracomment>
        <translation>, </translation>
    </message>
    <message id="IDS_TABLE_AREA">
        <source>Area</source>
        <extracomment>Head of a column: Disk1, Disk2, Disk3</extracomment>
        <translation>Oblast</translation>
    </message>
    <message id="IDS_TABLE_KIND">
        <source>Kind</source>
        <extracomment>Head of a column: normal or secure</extracomment>
        <translation>Druh</translation>
    </message>
    <message id="IDS_TABLE_CAPACITY">
        <source>Capacity</source>
        <extracomment>Head of a column</extracomment>
        <translation>Kapacita</translation>
    </message>
    <message id="IDS_STEP_SETTINGS">
        <source>The settings are on the drive</source>
        <extracomment>One step of the set-up; done or under way</extracomment>
        <translation>Nastavení jsou na jednotce</translation>
    </message>
    <message id="IDS_STEP_RESTART">
        <source>The drive starts anew</source>
        <translation>Jednotka se znovu spouští</translation>
    </message>
    <message id="IDS_STEP_TOOL_AREA">
        <source>The tool area appears</source>
        <translation>Objevuje se oblast nástrojů</translation>
    </message>
    <message id="IDS_STEP_COPY">
        <source>The tool area is formatted and this program copied</source>
        <translation>Formátování oblasti nástrojů a kopírování tohoto programu</translation>
    </message>
    <message id="IDS_STEP_FINISHED">
        <source>Finished</source>
        <translation>Dokončeno</translation>
    </message>
    <message id="IDS_STEP_CURRENT">
        <source>Step %1 of %2: %3</source>
        <extracomment>Read aloud; %3 is one of the steps</extracomment>
        <translation>Krok %1 z %2: %3</translation>
    </message>
    <message id="IDS_STEP_FAILED">
        <source>Step %1 of %2 failed: %3</source>
        <translation>Krok %1 z %2 selhal: %3</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_MATCH">
        <source>The two entries match.</source>
        <translation>Obě zadání se shodují.</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_DIFFER">
        <source>The two entries differ.</source>
        <translation>Obě zadání se liší.</translation>
    </message>
    <message id="IDS_FIELD_DIGITS">
        <source>%1 of 128 digits</source>
        <translation>%1 ze 128 číslic</translation>
    </message>
    <message id="IDS_FIELD_DIGITS_ODD">
        <source>%1 of 128 digits, one is missing</source>
        <extracomment>Two digits make a byte; the number is odd</extracomment>
        <translation>%1 ze 128 číslic, jedna chybí</translation>
    </message>
    <message id="IDS_FIELD_REVEAL">
        <source>Show the password</source>
        <extracomment>Of a button that stays pressed while the password is shown</extracomment>
        <translation>Zobrazit heslo</translation>
    </message>
    <message id="IDS_FIELD_CAPS_LOCK">
        <source>Caps Lock is on</source>
        <extracomment>The key as it is called in the language</extracomment>
        <translation>Caps Lock je zapnutý</translation>
    </message>
    <message id="IDS_FIELD_PASTE">
        <source>&amp;Paste</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>V&amp;ložit</translation>
    </message>
    <message id="IDS_FIELD_SELECT_ALL">
        <source>Select &amp;All</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>&amp;Vybrat vše</translation>
    </message>
    <message id="IDS_AWAKE_SETUP">
        <source>The drive is being set up</source>
        <extracomment>Why the computer does not go to sleep now, shown by the desktop</extracomment>
        <translation>Jednotka se zprovozňuje</translation>
    </message>
    <message id="IDS_AWAKE_PASSWORDS">
        <source>The passwords are being changed</source>
        <extracomment>Why the computer does not go to sleep now</extracomment>
        <translation>Mění se hesla</translation>
    </message>
    <message id="IDS_AWAKE_RELEASE">
        <source>The drive’s volumes are being released</source>
        <extracomment>Why the computer does not go to sleep now; volumes are unmounted</extracomment>
        <translation>Odpojují se svazky jednotky</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED">
        <source>The drive is locked. It can be unplugged.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Jednotka je zamčená. Lze ji odpojit.</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED_IN_USE">
        <source>The drive is locked. Eject its other volumes before you unplug it.</source>
        <extracomment>A notification on the desktop after the program has closed; the drive’s normal areas are still mounted</extracomment>
        <translation>Jednotka je zamčená. Než ji odpojíte, vysuňte její ostatní svazky.</translation>
    </message>
    <message id="IDS_NOTICE_STILL_UNLOCKED">
        <source>The drive is still unlocked. To lock it, start this program again.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>Jednotka je stále odemčená. Chcete-li ji zamknout, spusťte tento program znovu.</translation>
    </message>
    <message id="IDS_NOTICE_SETTINGS_CHANGED">
        <source>The drive’s settings have been changed.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Nastavení jednotky bylo změněno.</translation>
    </message>
    <message id="IDS_NOTICE_CLEARED">
        <source>Everything on the drive has been cleared. Unplug it, plug it in again, then start this program to set it up again.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Vše na jednotce bylo vymazáno. Odpojte ji a připojte, potom spusťte tento program, abyste ji znovu zprovoznili.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP">
        <source>The drive is set up. Format each area once before you use it.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Jednotka je zprovozněna. Každou oblast před použitím jednou naformátujte.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP_WITHOUT_TOOL">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>Jednotka je zprovozněna a lze ji používat. Pouze tento program se nepodařilo zkopírovat do její oblasti nástrojů: používejte jednotku s programem v tomto počítači.</translation>
    </message>
    <message id="IDS_RULE_TITLE">
        <source>ZELTO DISK: Device Rule</source>
        <translation>ZELTO DISK: pravidlo zařízení</translation>
    </message>
    <message id="IDS_RULE_HEADING">
        <source>Let this computer’s users use the drive.</source>
        <translation>Dovolte uživatelům tohoto počítače jednotku používat.</translation>
    </message>
    <message id="IDS_RULE_EXPLANATION">
        <source>An administrator enters this &amp;command in a terminal. It adds the device rule that it holds. Then plug the drive in again.</source>
        <translation>&amp;Správce zadá tento příkaz v terminálu. Příkaz přidá pravidlo zařízení, které obsahuje. Potom jednotku znovu připojte.</translation>
    </message>
    <message id="IDS_RULE_CLOSE">
        <source>C&amp;lose</source>
        <translation>&amp;Zavřít</translation>
    </message>
    <message id="IDS_RULE_COPY">
        <source>Co&amp;py Command</source>
        <translation>&amp;Kopírovat příkaz</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE">
        <source>Show &amp;Rule…</source>
        <translation>&amp;Zobrazit pravidlo…</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE_DESCRIPTION">
        <source>Shows the device rule and the command that adds it to this computer</source>
        <translation>Zobrazí pravidlo zařízení a příkaz, který jej do tohoto počítače přidá</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source>Serial number: %1</source>
        <translation>Sériové číslo: %1</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source>Serial number: %1, in USB port %2</source>
        <translation>Sériové číslo: %1, v portu USB %2</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source>No serial number, in USB port %1</source>
        <translation>Bez sériového čísla, v portu USB %1</translation>
    </message>
    <message id="IDS_STRENGTH_WEAK">
        <source>Strength: weak</source>
        <extracomment>Of a new password; a bar of four parts stands before it</extracomment>
        <translation>Síla: nízká</translation>
    </message>
    <message id="IDS_STRENGTH_FAIR">
        <source>Strength: fair</source>
        <translation>Síla: střední</translation>
    </message>
    <message id="IDS_STRENGTH_GOOD">
        <source>Strength: good</source>
        <translation>Síla: dobrá</translation>
    </message>
    <message id="IDS_STRENGTH_STRONG">
        <source>Strength: strong</source>
        <translation>Síla: vysoká</translation>
    </message>
    <message id="IDS_HELP_BUTTON">
        <source>&amp;Help</source>
        <extracomment>In every window; no other button there may have its underlined letter</extracomment>
        <translation>&amp;Nápověda</translation>
    </message>
    <message id="IDS_HELP_DESCRIPTION">
        <source>Opens the manual’s page about this window (F1). This is version %1 of the program.</source>
        <translation>Otevře stránku příručky o tomto okně (F1). Toto je verze %1 programu.</translation>
    </message>
    <message id="IDS_HINT_NO_MANUAL">
        <source>The manual could not be opened: it was not found beside the program, or this computer has nothing to show it with.</source>
        <translation>Příručku se nepodařilo otevřít: vedle programu není, nebo ji tento počítač nemá čím zobrazit.</translation>
    </message>
    <message id="IDS_HINT_VERSION">
        <source>Version %1 of the program.</source>
        <extracomment>Below messages that support is asked about</extracomment>
        <translation>Verze %1 programu.</translation>
    </message>
    <message id="IDS_ALERT_INFORMATION">
        <source>Information</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Informace</translation>
    </message>
    <message id="IDS_ALERT_WARNING">
        <source>Warning</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Varování</translation>
    </message>
    <message id="IDS_ALERT_CRITICAL">
        <source>Loss of data</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Ztráta dat</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_VOLUME">
        <source>The program on this volume is damaged. Use the drive with the program that is installed on a computer; no file has to be erased.</source>
        <extracomment>The starter’s message; the program does not start</extracomment>
        <translation>Program na tomto svazku je poškozený. Používejte jednotku s programem nainstalovaným v počítači; žádný soubor není třeba mazat.</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_COPY">
        <source>This copy of the program is damaged. Start it from the drive once more to replace it.</source>
        <extracomment>The starter’s message about a copy of the program on the computer</extracomment>
        <translation>Tato kopie programu je poškozená. Spusťte program ještě jednou z jednotky, tím se tato kopie nahradí.</translation>
    </message>
    <message id="IDS_STARTER_OTHER_MACHINE">
        <source>This program is made for %1 computers; this one is %2.</source>
        <extracomment>The starter’s message; %1 and %2 are kinds of processors, x86_64 say</extracomment>
        <translation>Tento program je určen pro počítače %1; tento počítač je %2.</translation>
    </message>
    <message id="IDS_STARTER_NOT_FOUND">
        <source>%1 cannot be found.</source>
        <extracomment>The starter’s message; %1 is the name of a file</extracomment>
        <translation>Soubor %1 nelze najít.</translation>
    </message>
    <message id="IDS_STARTER_NO_ROOM">
        <source>The program cannot be unpacked: neither the home folder nor /tmp has room for it.</source>
        <extracomment>The starter’s message; /tmp is a folder</extracomment>
        <translation>Program nelze rozbalit: není pro něj místo v domovské složce ani v /tmp.</translation>
    </message>
    <message id="IDS_STARTER_LACKS">
        <source>This system lacks something that the program needs: %1</source>
        <extracomment>The starter’s message; %1 is what the system says of it, in English</extracomment>
        <translation>V tomto systému chybí něco, co program potřebuje: %1</translation>
    </message>
</context>
</TS>
