<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>A button</extracomment>
        <translation>确定</translation>
    </message>
    <message id="IDS_APP_TITLE">
        <source>ZELTO DISK</source>
        <extracomment>The product’s name: never translated</extracomment>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_CANCEL_BUTTON">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source>No ZELTO DISK is ready for use. Plug it in, then start this program again.</source>
        <translation>没有可用的 ZELTO DISK。请插入后重新启动此程序。</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source>Enter the password; the first one if the drive has two.</source>
        <translation>请输入密码；如果驱动器有两个密码，请输入第一个。</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source>Enter the second password.</source>
        <translation>请输入第二密码。</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</source>
        <extracomment>%1 is a date and time</extracomment>
        <translation>驱动器的时钟已停止，因此驱动器已自行锁定。

是否将驱动器的时钟设为此计算机的时间 %1？请先确认该时间是否正确。如果驱动器的密钥还在，之后即可登录。</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</source>
        <translation>已设置驱动器的时钟。程序即将关闭。请重新启动：届时会显示能否登录。</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</source>
        <translation>驱动器已永久锁定，其密钥已丢失：原因是密码错误次数过多、期限已到或密钥已被擦除。安全区域中的内容已无人能够读取。

要重新使用驱动器，请启动此程序（如果它已关闭），在设置中选择“全部清除”，然后拔出并重新插入驱动器，再次启动程序进行初始设置。</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</source>
        <translation>密码不正确。请检查大写锁定键后重试；驱动器可能只允许尝试几次。</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</source>
        <translation>无法卸载驱动器的卷；通常是某个程序仍在使用其中的文件。未执行其他操作：原来已解锁的驱动器仍处于解锁状态。

请关闭所有显示该驱动器的文件和窗口，然后重试。如果此程序已关闭，请重新启动。</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</source>
        <extracomment>Numbers that identify an error</extracomment>
        <translation>驱动器未能执行此步骤。如果再次发生，请关闭此程序，拔出并重新插入驱动器，然后重新启动程序。

供技术支持参考：检测键 %1，代码 %2，限定码 %3。</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</source>
        <translation>驱动器没有响应。请关闭此程序，拔出并重新插入驱动器，然后重新启动程序。</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source>not set</source>
        <extracomment>In place of the time, after “Drive’s clock:”</extracomment>
        <translation>未设置</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source>The time has run out</source>
        <extracomment>In place of the remaining time, after “Key erased in:”</extracomment>
        <translation>期限已到</translation>
    </message>
    <message id="IDS_DAYS">
        <source>d</source>
        <extracomment>After a number: 12 d 5 h 30 min</extracomment>
        <translation>天</translation>
    </message>
    <message id="IDS_HOURS">
        <source>h</source>
        <extracomment>After a number</extracomment>
        <translation>小时</translation>
    </message>
    <message id="IDS_MIN">
        <source>min</source>
        <extracomment>After a number</extracomment>
        <translation>分钟</translation>
    </message>
    <message id="IDS_TIME_SYNC_COMPLETE">
        <source>The drive’s clock has been set to this computer’s time. The program now closes; start it again to go on.</source>
        <translation>已将驱动器的时钟设为此计算机的时间。程序即将关闭；要继续，请重新启动。</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source>Setting up the drive. Please do not unplug it.</source>
        <extracomment>Blinks while the drive is set up</extracomment>
        <translation>正在对驱动器进行初始设置。请勿拔出。</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</source>
        <translation>驱动器的初始设置已完成。各区域仍为空白：使用前请分别格式化一次，安全区域请在登录后格式化。</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</source>
        <translation>驱动器的初始设置已完成，可以使用。只是无法格式化其工具区域，因此驱动器上没有此程序：请使用此计算机上的程序。</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</source>
        <extracomment>%1 and %2 are names of files</extracomment>
        <translation>驱动器的初始设置已完成，可以使用。只是无法将此程序复制到其工具区域：请使用此计算机上的程序。

源：%1
目标：%2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</source>
        <translation>驱动器未能就绪，因此未作任何更改。程序即将关闭。请拔出并重新插入驱动器，然后重新启动程序。</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</source>
        <translation>您选择了手动输入加密密钥，但尚未输入。请输入密钥，或让驱动器生成。</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</source>
        <translation>当前的第一密码不正确，因此未更改第一密码。如果您正在更改两个密码，则第二密码已经更改：从现在起，新密码就是它的当前密码。请检查大写锁定键，然后重新输入密码。</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</source>
        <translation>当前的第二密码不正确，因此未更改任何密码。请检查大写锁定键，然后重新输入。</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source>The drive is locked. Log in to it first, then try again.</source>
        <translation>驱动器已锁定。请先登录，然后重试。</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</source>
        <translation>要清除此驱动器上的所有内容吗？

所有区域及其文件、所有密码和所有设置都将丢失。此操作无法撤销。</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</source>
        <translation>要擦除此驱动器的加密密钥吗？

安全区域中的所有内容将永远无法读取，即使密码正确。此操作无法撤销。</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source>Total: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>总计：%1 MB</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source>Free: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>可用：%1 MB</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source>The areas are larger than the drive.</source>
        <translation>各区域之和超过了驱动器容量。</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source>Normal</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>普通</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source>Secure</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>安全</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source>Not used yet</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>尚未使用</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source>Whole drive</source>
        <extracomment>In place of an area’s capacity: the area takes it all</extracomment>
        <translation>整个驱动器</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</source>
        <translation>有一个已插入的 ZELTO DISK 不在此列表中，因为此计算机尚不允许您使用它。请安装程序的软件包，或请管理员添加其设备规则，然后重新插入驱动器。</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</source>
        <translation>有一个已插入的 ZELTO DISK 不在此列表中，因为它属于此计算机上另一用户的会话。请在该会话中使用，或直接在此计算机上登录后重新插入。</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</source>
        <translation>有一个已插入的 ZELTO DISK 不在此列表中，因为此程序的另一个实例正在使用它。请关闭该实例，然后重新启动此程序。</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source>Still using the drive: %1</source>
        <extracomment>%1 is a list of programs</extracomment>
        <translation>仍在使用驱动器的程序：%1</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source>Next: lay out the areas.</source>
        <translation>下一步：划分区域。</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source>Next: choose the passwords.</source>
        <translation>下一步：选择密码。</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source>Nothing has been changed yet.</source>
        <translation>尚未更改任何内容。</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source>Erase the key after: enter 1 to 9999 days.</source>
        <translation>擦除密钥的期限：请输入 1 至 9999 天。</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source>Erase the key after: enter 1 to 999 minutes.</source>
        <translation>擦除密钥的期限：请输入 1 至 999 分钟。</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source>Log off after: enter 1 to 999 minutes.</source>
        <translation>注销前的时间：请输入 1 至 999 分钟。</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source>Sizes are whole numbers of MB.</source>
        <translation>大小为整数，单位 MB。</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source>Next: enter a size for Disk1.</source>
        <translation>下一步：输入 Disk1 的大小。</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source>Next: enter the first password.</source>
        <translation>下一步：输入第一密码。</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source>Next: enter the first password again.</source>
        <translation>下一步：再次输入第一密码。</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source>The two entries of the first password differ.</source>
        <translation>两次输入的第一密码不一致。</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source>Next: enter the second password.</source>
        <translation>下一步：输入第二密码。</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source>Next: enter the second password again.</source>
        <translation>下一步：再次输入第二密码。</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source>The two entries of the second password differ.</source>
        <translation>两次输入的第二密码不一致。</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source>Next: enter the current first password.</source>
        <translation>下一步：输入当前的第一密码。</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source>Next: enter the current second password.</source>
        <translation>下一步：输入当前的第二密码。</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_SIGNS">
        <source>Only the letters A to Z, digits and the signs of a US keyboard can be used in a password.</source>
        <translation>密码只能使用半角英文字母、数字和美式键盘上的符号。</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source>A password has 32 characters at most.</source>
        <translation>密码最多 32 个字符。</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source>Next: enter how many tries are allowed, 1 to 99.</source>
        <translation>下一步：输入允许的尝试次数（1 至 99）。</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source>Next: enter the digits of the key.</source>
        <translation>下一步：输入密钥的数字。</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source>Only the digits 0 to 9 and A to F can be used.</source>
        <translation>只能使用 0 至 9 和 A 至 F。</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source>One digit is missing.</source>
        <translation>缺少一个数字。</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source>%1 of 128 digits: that is too many.</source>
        <translation>%1/128 个数字：过多。</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source>OK erases everything on this drive and closes this window.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>点击“确定”将擦除此驱动器上的所有内容并关闭此窗口。</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</source>
        <translation>没有安全区域：任何人都可以读取此驱动器。已输入的密码和密钥不会使用。</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source>Before you try again, open the areas and confirm them once more.</source>
        <translation>重试之前，请打开区域并再次点击“确定”。</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</source>
        <translation>区域列表中没有空间再作一次尝试。请打开区域，再次点击“确定”，然后重试。</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source>OK, Cancel, Erase Key and Clear All close the program.</source>
        <extracomment>Names the buttons of the window as they are called there</extracomment>
        <translation>“确定”、“取消”、“擦除密钥”和“全部清除”会关闭程序。</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source>Setting the clock closes the program; what was entered is lost.</source>
        <translation>设置时钟会关闭程序；已输入的内容将丢失。</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source>A period that shows 0 is switched off by OK.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>显示为 0 的期限在点击“确定”后关闭。</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</source>
        <translation>打开此窗口时，只有 Disk1 保留其选择。要将 Disk2 或 Disk3 设为安全区域，请重新选择。</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source>After that many wrong second passwords the drive erases its key for good.</source>
        <translation>第二密码输错这么多次后，驱动器将永久擦除其密钥。</translation>
    </message>
    <message id="IDS_AREAS_TITLE">
        <source>ZELTO DISK: Areas</source>
        <translation>ZELTO DISK：区域</translation>
    </message>
    <message id="IDS_AREAS_HEADING">
        <source>Divide the drive into areas.</source>
        <translation>将驱动器划分为区域。</translation>
    </message>
    <message id="IDS_AREAS_EXPLANATION">
        <source>Up to three areas; leave an area at 0 MB if you do not need it. One of them can be secure: it stays hidden until you log in.</source>
        <translation>最多三个区域；不需要的区域请保留为 0&#xa0;MB。其中一个可以是安全区域：在您登录之前一直隐藏。</translation>
    </message>
    <message id="IDS_AREAS_BAR_NAME">
        <source>The areas in proportion</source>
        <translation>各区域的比例</translation>
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
        <translation>安全区域(&amp;S)</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE_NAME">
        <source>Disk1 is a secure area</source>
        <translation>Disk1 是安全区域</translation>
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
        <translation>安全区域(&amp;E)</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE_NAME">
        <source>Disk2 is a secure area</source>
        <translation>Disk2 是安全区域</translation>
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
        <translation>安全区域(&amp;A)</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE_NAME">
        <source>Disk3 is a secure area</source>
        <translation>Disk3 是安全区域</translation>
    </message>
    <message id="IDS_AREAS_LEFT_NAME">
        <source>Capacity that is left</source>
        <translation>剩余容量</translation>
    </message>
    <message id="IDS_AREAS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_AREAS_OK">
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="IDS_LOGIN_TITLE">
        <source>ZELTO DISK: Log In</source>
        <translation>ZELTO DISK：登录</translation>
    </message>
    <message id="IDS_LOGIN_MESSAGE">
        <source>Enter the password of your drive.</source>
        <translation>请输入驱动器的密码。</translation>
    </message>
    <message id="IDS_LOGIN_PASSWORD">
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK">
        <source>Drive’s clock:</source>
        <translation>驱动器时钟：</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>驱动器时钟</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT">
        <source>Key erased in:</source>
        <extracomment>A time follows: 12 d 5 h 30 min</extracomment>
        <translation>距擦除密钥：</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT_NAME">
        <source>Time left until the drive erases its key</source>
        <translation>距驱动器擦除其密钥的剩余时间</translation>
    </message>
    <message id="IDS_LOGIN_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_LOGIN_SUBMIT">
        <source>&amp;Log In</source>
        <translation>登录(&amp;L)</translation>
    </message>
    <message id="IDS_KEY_TITLE">
        <source>ZELTO DISK: Encryption Key</source>
        <translation>ZELTO DISK：加密密钥</translation>
    </message>
    <message id="IDS_KEY_HEADING">
        <source>Enter the encryption key.</source>
        <translation>请输入加密密钥。</translation>
    </message>
    <message id="IDS_KEY_EXPLANATION">
        <source>An even number of hexadecimal digits, 0 to 9 and A to F, 128 at the most. Keep a copy in a safe place.</source>
        <translation>偶数个十六进制数字（0 至 9 和 A 至 F），最多 128 个。请将副本保存在安全的地方。</translation>
    </message>
    <message id="IDS_KEY_KEY">
        <source>&amp;Key:</source>
        <extracomment>The encryption key; a field follows</extracomment>
        <translation>密钥(&amp;K)：</translation>
    </message>
    <message id="IDS_KEY_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_KEY_OK">
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="IDS_SETTINGS_TITLE">
        <source>ZELTO DISK: Settings</source>
        <translation>ZELTO DISK：设置</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_GROUP">
        <source>Drive</source>
        <extracomment>Title of a group: the USB drive as a whole</extracomment>
        <translation>驱动器</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE">
        <source>Dri&amp;ve:</source>
        <translation>驱动器(&amp;V)：</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK">
        <source>Computer’s clock:</source>
        <translation>计算机时钟：</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK_NAME">
        <source>Computer’s clock</source>
        <translation>计算机时钟</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK">
        <source>Drive’s clock:</source>
        <translation>驱动器时钟：</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>驱动器时钟</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK">
        <source>&amp;Set Clock</source>
        <translation>设置时钟(&amp;S)</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK_DESCRIPTION">
        <source>Sets the drive’s clock to the computer’s time</source>
        <translation>将驱动器的时钟设为计算机的时间</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS_GROUP">
        <source>Areas</source>
        <translation>区域</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_BAR_NAME">
        <source>The drive’s areas in proportion</source>
        <translation>驱动器各区域的比例</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_TABLE_NAME">
        <source>The drive’s areas</source>
        <translation>驱动器的区域</translation>
    </message>
    <message id="IDS_SETTINGS_TOTAL_CAPACITY_NAME">
        <source>Total capacity</source>
        <translation>总容量</translation>
    </message>
    <message id="IDS_SETTINGS_FREE_CAPACITY_NAME">
        <source>Free capacity</source>
        <translation>可用容量</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS">
        <source>&amp;Areas…</source>
        <translation>区域(&amp;A)…</translation>
    </message>
    <message id="IDS_SETTINGS_PROTECTION_GROUP">
        <source>Protection of the secure area</source>
        <translation>安全区域的保护</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS_LABEL">
        <source>Passwords for log-in:</source>
        <translation>登录密码：</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS">
        <source>&amp;Passwords…</source>
        <translation>密码(&amp;P)…</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_LABEL">
        <source>Encryption key:</source>
        <translation>加密密钥：</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_ORIGIN_NAME">
        <source>Encryption key</source>
        <translation>加密密钥</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_DRIVE">
        <source>&amp;Made by the drive</source>
        <extracomment>The encryption key</extracomment>
        <translation>由驱动器生成(&amp;M)</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_HAND">
        <source>&amp;Entered by hand</source>
        <extracomment>The encryption key</extracomment>
        <translation>手动输入(&amp;E)</translation>
    </message>
    <message id="IDS_SETTINGS_ENTER_KEY">
        <source>Enter &amp;Key…</source>
        <translation>输入密钥(&amp;K)…</translation>
    </message>
    <message id="IDS_SETTINGS_AUTOMATIC_GROUP">
        <source>Automatic protection</source>
        <translation>自动保护</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR">
        <source>Erase the key af&amp;ter</source>
        <extracomment>Reads on: [12] (•) days ( ) minutes</extracomment>
        <translation>擦除密钥的期限(&amp;T)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_PERIOD_NAME">
        <source>Period until the key is erased</source>
        <translation>擦除密钥之前的期限</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_UNIT_NAME">
        <source>Unit of the period until the key is erased</source>
        <translation>擦除密钥之前的期限的单位</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_DAYS">
        <source>&amp;days</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>天(&amp;D)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_MINUTES">
        <source>m&amp;inutes</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>分钟(&amp;I)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF">
        <source>Lo&amp;g off after</source>
        <extracomment>Reads on: [12] minutes without use</extracomment>
        <translation>注销前的时间(&amp;G)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_PERIOD_NAME">
        <source>Minutes without use until the drive logs off</source>
        <translation>驱动器注销前未使用的分钟数</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_UNIT">
        <source>minutes without use</source>
        <extracomment>Ends the line “Log off after [12]”</extracomment>
        <translation>分钟未使用</translation>
    </message>
    <message id="IDS_SETTINGS_SHOW_REMAINING_TIME">
        <source>Show the &amp;remaining time at log-in</source>
        <translation>登录时显示剩余时间(&amp;R)</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_GROUP">
        <source>Erase</source>
        <extracomment>Title of a group</extracomment>
        <translation>擦除</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY_EXPLANATION">
        <source>Without its key the secure area can never be read again.</source>
        <translation>没有密钥，安全区域将永远无法读取。</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY">
        <source>Erase Ke&amp;y…</source>
        <translation>擦除密钥(&amp;Y)…</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL_EXPLANATION">
        <source>Clearing removes every area with all its files, every password and every setting.</source>
        <translation>清除所有区域及其文件、所有密码和所有设置。</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL">
        <source>Clear A&amp;ll…</source>
        <translation>全部清除(&amp;L)…</translation>
    </message>
    <message id="IDS_SETTINGS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_SETTINGS_OK">
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="IDS_CHANGE_TITLE">
        <source>ZELTO DISK: Change Passwords</source>
        <translation>ZELTO DISK：更改密码</translation>
    </message>
    <message id="IDS_CHANGE_HEADING">
        <source>Change the passwords of the secure area.</source>
        <translation>更改安全区域的密码。</translation>
    </message>
    <message id="IDS_CHANGE_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>密码由 1 至 32 个半角英文字母、数字或符号组成。驱动器对第一密码不限尝试次数，因此请使其难以猜测。忘记的密码无法恢复。</translation>
    </message>
    <message id="IDS_CHANGE_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>密码个数</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>仅第一密码(&amp;O)</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>第一密码和第二密码(&amp;A)</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_GROUP">
        <source>First password</source>
        <translation>第一密码</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_CURRENT">
        <source>&amp;Current:</source>
        <extracomment>The current first password</extracomment>
        <translation>当前(&amp;C)：</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_NEW">
        <source>&amp;New:</source>
        <extracomment>The new first password</extracomment>
        <translation>新密码(&amp;N)：</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AGAIN">
        <source>New a&amp;gain:</source>
        <extracomment>The new first password again</extracomment>
        <translation>再次输入(&amp;G)：</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_GROUP">
        <source>Second password</source>
        <translation>第二密码</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_CURRENT">
        <source>C&amp;urrent:</source>
        <translation>当前(&amp;U)：</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_NEW">
        <source>N&amp;ew:</source>
        <translation>新密码(&amp;E)：</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_AGAIN">
        <source>New aga&amp;in:</source>
        <translation>再次输入(&amp;I)：</translation>
    </message>
    <message id="IDS_CHANGE_TRIES">
        <source>&amp;Tries allowed:</source>
        <extracomment>How often a wrong second password may be entered</extracomment>
        <translation>允许尝试次数(&amp;T)：</translation>
    </message>
    <message id="IDS_CHANGE_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_CHANGE_CANCEL">
        <source>Cance&amp;l</source>
        <translation>取消(&amp;L)</translation>
    </message>
    <message id="IDS_CHANGE_OK">
        <source>O&amp;K</source>
        <translation>确定(&amp;K)</translation>
    </message>
    <message id="IDS_PASSWORDS_TITLE">
        <source>ZELTO DISK: Passwords</source>
        <translation>ZELTO DISK：密码</translation>
    </message>
    <message id="IDS_PASSWORDS_HEADING">
        <source>Choose the passwords of the secure area.</source>
        <translation>选择安全区域的密码。</translation>
    </message>
    <message id="IDS_PASSWORDS_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>密码由 1 至 32 个半角英文字母、数字或符号组成。驱动器对第一密码不限尝试次数，因此请使其难以猜测。忘记的密码无法恢复。</translation>
    </message>
    <message id="IDS_PASSWORDS_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>密码个数</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>仅第一密码(&amp;O)</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>第一密码和第二密码(&amp;A)</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_GROUP">
        <source>First password</source>
        <translation>第一密码</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST">
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AGAIN">
        <source>A&amp;gain:</source>
        <extracomment>The password again</extracomment>
        <translation>再次输入(&amp;G)：</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_GROUP">
        <source>Second password</source>
        <translation>第二密码</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND">
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_AGAIN">
        <source>Aga&amp;in:</source>
        <translation>再次输入(&amp;I)：</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES">
        <source>&amp;Tries allowed:</source>
        <translation>允许尝试次数(&amp;T)：</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_PASSWORDS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_PASSWORDS_OK">
        <source>O&amp;K</source>
        <translation>确定(&amp;K)</translation>
    </message>
    <message id="IDS_SELECT_TITLE">
        <source>ZELTO DISK</source>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_SELECT_HEADING">
        <source>Which drive do you want to use?</source>
        <translation>您要使用哪个驱动器？</translation>
    </message>
    <message id="IDS_SELECT_EXPLANATION">
        <source>These drives are plugged in. For one that is missing, start the program again.</source>
        <translation>以下是已插入的驱动器。如果缺少，请重新启动程序。</translation>
    </message>
    <message id="IDS_SELECT_DRIVE">
        <source>&amp;Drive:</source>
        <extracomment>The USB drive as a whole: a list follows</extracomment>
        <translation>驱动器(&amp;D)：</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN">
        <source>&amp;Look Again</source>
        <translation>重新查找(&amp;L)</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN_DESCRIPTION">
        <source>Looks again for drives that were plugged in meanwhile</source>
        <translation>重新查找其间插入的驱动器</translation>
    </message>
    <message id="IDS_SELECT_CANCEL">
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message id="IDS_SELECT_OK">
        <source>&amp;OK</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message id="IDS_UNLOCKED_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK：已解锁</translation>
    </message>
    <message id="IDS_UNLOCKED_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>驱动器已解锁。</translation>
    </message>
    <message id="IDS_UNLOCKED_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off before you unplug the drive or leave the computer.</source>
        <translation>安全区域已打开，与其他磁盘一同显示。新的区域为空白：请格式化一次。拔出驱动器或离开计算机之前，请先注销。</translation>
    </message>
    <message id="IDS_UNLOCKED_SETTINGS">
        <source>&amp;Settings…</source>
        <extracomment>Opens the settings of the drive</extracomment>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF">
        <source>&amp;Log Off</source>
        <extracomment>Of the drive, not of the computer’s session</extracomment>
        <translation>注销(&amp;L)</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>锁定驱动器并关闭程序</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>保持解锁并关闭(&amp;K)</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>关闭程序；驱动器保持解锁</translation>
    </message>
    <message id="IDS_UNLOCKING_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK：已解锁</translation>
    </message>
    <message id="IDS_UNLOCKING_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>驱动器已解锁。</translation>
    </message>
    <message id="IDS_UNLOCKING_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off to lock it again, or keep it unlocked and go on working with it.</source>
        <translation>安全区域已打开，与其他磁盘一同显示。新的区域为空白：请格式化一次。可以注销以重新锁定，也可以保持解锁继续使用。</translation>
    </message>
    <message id="IDS_UNLOCKING_SETTINGS">
        <source>&amp;Settings…</source>
        <translation>设置(&amp;S)…</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>保持解锁并关闭(&amp;K)</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>关闭程序；驱动器保持解锁</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF">
        <source>&amp;Log Off</source>
        <translation>注销(&amp;L)</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>锁定驱动器并关闭程序</translation>
    </message>
    <message id="IDS_SETUP_TITLE">
        <source>ZELTO DISK: Setting Up</source>
        <translation>ZELTO DISK：初始设置</translation>
    </message>
    <message id="IDS_SETUP_HEADING">
        <source>Your drive is being set up.</source>
        <translation>正在对驱动器进行初始设置。</translation>
    </message>
    <message id="IDS_SETUP_EXPLANATION">
        <source>This takes about a minute. Leave the drive plugged in until it is finished.</source>
        <translation>大约需要一分钟。完成之前请保持驱动器插入。</translation>
    </message>
    <message id="IDS_SETUP_STEPS_NAME">
        <source>Steps of the set-up</source>
        <translation>初始设置步骤</translation>
    </message>
    <message id="IDS_SETUP_PROGRESS_NAME">
        <source>Progress of the set-up</source>
        <translation>初始设置进度</translation>
    </message>
    <message id="IDS_SETUP_FINISH">
        <source>&amp;Finish</source>
        <translation>完成(&amp;F)</translation>
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
        <translation>普通区域</translation>
    </message>
    <message id="IDS_BAR_SECURE">
        <source>secure area</source>
        <translation>安全区域</translation>
    </message>
    <message id="IDS_BAR_TOOL">
        <source>tool area</source>
        <extracomment>The small area that carries this program</extracomment>
        <translation>工具区域</translation>
    </message>
    <message id="IDS_BAR_FREE">
        <source>not used</source>
        <extracomment>Of a part of the drive</extracomment>
        <translation>未使用</translation>
    </message>
    <message id="IDS_BAR_NAMED">
        <source>%1, %2, %3</source>
        <extracomment>Disk1, secure area, 244 MB</extracomment>
        <translation>%1，%2，%3</translation>
    </message>
    <message id="IDS_BAR_UNNAMED">
        <source>%1, %2</source>
        <extracomment>not used, 244 MB</extracomment>
        <translation>%1，%2</translation>
    </message>
    <message id="IDS_BAR_SEPARATOR">
        <source>; </source>
        <extracomment>Between the areas of the list: Disk1, normal area, 244 MB; not used, 244 MB</extracomment>
        <translation>；</translation>
    </message>
    <message id="IDS_BAR_TOO_LARGE">
        <source>together more than the drive can hold</source>
        <extracomment>Last in that list</extracomment>
        <translation>总和超过驱动器的容量</translation>
    </message>
    <message id="IDS_LIST_SEPARATOR">
        <source>, </source>
        <extracomment>Between the names of programs</extracomment>
        <translation>、</translation>
    </message>
    <message id="IDS_TABLE_AREA">
        <source>Area</source>
        <extracomment>Head of a column: Disk1, Disk2, Disk3</extracomment>
        <translation>区域</translation>
    </message>
    <message id="IDS_TABLE_KIND">
        <source>Kind</source>
        <extracomment>Head of a column: normal or secure</extracomment>
        <translation>类型</translation>
    </message>
    <message id="IDS_TABLE_CAPACITY">
        <source>Capacity</source>
        <extracomment>Head of a column</extracomment>
        <translation>容量</translation>
    </message>
    <message id="IDS_STEP_SETTINGS">
        <source>The settings are on the drive</source>
        <extracomment>One step of the set-up; done or under way</extracomment>
        <translation>设置已写入驱动器</translation>
    </message>
    <message id="IDS_STEP_RESTART">
        <source>The drive starts anew</source>
        <translation>驱动器重新启动</translation>
    </message>
    <message id="IDS_STEP_TOOL_AREA">
        <source>The tool area appears</source>
        <translation>工具区域出现</translation>
    </message>
    <message id="IDS_STEP_COPY">
        <source>The tool area is formatted and this program copied</source>
        <translation>格式化工具区域并复制此程序</translation>
    </message>
    <message id="IDS_STEP_FINISHED">
        <source>Finished</source>
        <translation>已完成</translation>
    </message>
    <message id="IDS_STEP_CURRENT">
        <source>Step %1 of %2: %3</source>
        <extracomment>Read aloud; %3 is one of the steps</extracomment>
        <translation>第 %1 步，共 %2 步：%3</translation>
    </message>
    <message id="IDS_STEP_FAILED">
        <source>Step %1 of %2 failed: %3</source>
        <translation>第 %1 步（共 %2 步）失败：%3</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_MATCH">
        <source>The two entries match.</source>
        <translation>两次输入一致。</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_DIFFER">
        <source>The two entries differ.</source>
        <translation>两次输入不一致。</translation>
    </message>
    <message id="IDS_FIELD_DIGITS">
        <source>%1 of 128 digits</source>
        <translation>%1/128 个数字</translation>
    </message>
    <message id="IDS_FIELD_DIGITS_ODD">
        <source>%1 of 128 digits, one is missing</source>
        <extracomment>Two digits make a byte; the number is odd</extracomment>
        <translation>%1/128 个数字，缺少一个</translation>
    </message>
    <message id="IDS_FIELD_REVEAL">
        <source>Show the password</source>
        <extracomment>Of a button that stays pressed while the password is shown</extracomment>
        <translation>显示密码</translation>
    </message>
    <message id="IDS_FIELD_CAPS_LOCK">
        <source>Caps Lock is on</source>
        <extracomment>The key as it is called in the language</extracomment>
        <translation>大写锁定已开启</translation>
    </message>
    <message id="IDS_FIELD_PASTE">
        <source>&amp;Paste</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message id="IDS_FIELD_SELECT_ALL">
        <source>Select &amp;All</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>全选(&amp;A)</translation>
    </message>
    <message id="IDS_AWAKE_SETUP">
        <source>The drive is being set up</source>
        <extracomment>Why the computer does not go to sleep now, shown by the desktop</extracomment>
        <translation>正在对驱动器进行初始设置</translation>
    </message>
    <message id="IDS_AWAKE_PASSWORDS">
        <source>The passwords are being changed</source>
        <extracomment>Why the computer does not go to sleep now</extracomment>
        <translation>正在更改密码</translation>
    </message>
    <message id="IDS_AWAKE_RELEASE">
        <source>The drive’s volumes are being released</source>
        <extracomment>Why the computer does not go to sleep now; volumes are unmounted</extracomment>
        <translation>正在卸载驱动器的卷</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED">
        <source>The drive is locked. It can be unplugged.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>驱动器已锁定，可以拔出。</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED_IN_USE">
        <source>The drive is locked. Eject its other volumes before you unplug it.</source>
        <extracomment>A notification on the desktop after the program has closed; the drive’s normal areas are still mounted</extracomment>
        <translation>驱动器已锁定。拔出之前，请先弹出其他卷。</translation>
    </message>
    <message id="IDS_NOTICE_STILL_UNLOCKED">
        <source>The drive is still unlocked. To lock it, start this program again.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>驱动器仍处于解锁状态。要锁定它，请重新启动此程序。</translation>
    </message>
    <message id="IDS_NOTICE_SETTINGS_CHANGED">
        <source>The drive’s settings have been changed.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>驱动器的设置已更改。</translation>
    </message>
    <message id="IDS_NOTICE_CLEARED">
        <source>Everything on the drive has been cleared. Unplug it, plug it in again, then start this program to set it up again.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>驱动器上的所有内容已清除。请拔出并重新插入，然后启动此程序重新进行初始设置。</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP">
        <source>The drive is set up. Format each area once before you use it.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>驱动器的初始设置已完成。使用各区域前，请分别格式化一次。</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP_WITHOUT_TOOL">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>驱动器的初始设置已完成，可以使用。只是无法将此程序复制到其工具区域：请使用此计算机上的程序。</translation>
    </message>
    <message id="IDS_RULE_TITLE">
        <source>ZELTO DISK: Device Rule</source>
        <translation>ZELTO DISK：设备规则</translation>
    </message>
    <message id="IDS_RULE_HEADING">
        <source>Let this computer’s users use the drive.</source>
        <translation>允许此计算机的用户使用驱动器。</translation>
    </message>
    <message id="IDS_RULE_EXPLANATION">
        <source>An administrator enters this &amp;command in a terminal. It adds the device rule that it holds. Then plug the drive in again.</source>
        <translation>由管理员在终端中输入此命令。它会添加其中所含的设备规则。然后请重新插入驱动器。(&amp;C)</translation>
    </message>
    <message id="IDS_RULE_CLOSE">
        <source>C&amp;lose</source>
        <translation>关闭(&amp;L)</translation>
    </message>
    <message id="IDS_RULE_COPY">
        <source>Co&amp;py Command</source>
        <translation>复制命令(&amp;P)</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE">
        <source>Show &amp;Rule…</source>
        <translation>显示规则(&amp;R)…</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE_DESCRIPTION">
        <source>Shows the device rule and the command that adds it to this computer</source>
        <translation>显示设备规则以及将其添加到此计算机的命令</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source>Serial number: %1</source>
        <translation>序列号：%1</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source>Serial number: %1, in USB port %2</source>
        <translation>序列号：%1，位于 USB 端口 %2</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source>No serial number, in USB port %1</source>
        <translation>无序列号，位于 USB 端口 %1</translation>
    </message>
    <message id="IDS_STRENGTH_WEAK">
        <source>Strength: weak</source>
        <extracomment>Of a new password; a bar of four parts stands before it</extracomment>
        <translation>强度：弱</translation>
    </message>
    <message id="IDS_STRENGTH_FAIR">
        <source>Strength: fair</source>
        <translation>强度：一般</translation>
    </message>
    <message id="IDS_STRENGTH_GOOD">
        <source>Strength: good</source>
        <translation>强度：良好</translation>
    </message>
    <message id="IDS_STRENGTH_STRONG">
        <source>Strength: strong</source>
        <translation>强度：强</translation>
    </message>
    <message id="IDS_HELP_BUTTON">
        <source>&amp;Help</source>
        <extracomment>In every window; no other button there may have its underlined letter</extracomment>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message id="IDS_HELP_DESCRIPTION">
        <source>Opens the manual’s page about this window (F1). This is version %1 of the program.</source>
        <translation>打开手册中关于此窗口的页面（F1）。程序版本为 %1。</translation>
    </message>
    <message id="IDS_HINT_NO_MANUAL">
        <source>The manual could not be opened: it was not found beside the program, or this computer has nothing to show it with.</source>
        <translation>无法打开手册：程序旁边没有手册，或此计算机没有可用于显示它的程序。</translation>
    </message>
    <message id="IDS_HINT_VERSION">
        <source>Version %1 of the program.</source>
        <extracomment>Below messages that support is asked about</extracomment>
        <translation>程序版本 %1。</translation>
    </message>
    <message id="IDS_ALERT_INFORMATION">
        <source>Information</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>信息</translation>
    </message>
    <message id="IDS_ALERT_WARNING">
        <source>Warning</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>警告</translation>
    </message>
    <message id="IDS_ALERT_CRITICAL">
        <source>Loss of data</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>数据丢失</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_VOLUME">
        <source>The program on this volume is damaged. Use the drive with the program that is installed on a computer; no file has to be erased.</source>
        <extracomment>The starter’s message; the program does not start</extracomment>
        <translation>此卷上的程序已损坏。请通过计算机上安装的程序使用驱动器；无需擦除任何文件。</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_COPY">
        <source>This copy of the program is damaged. Start it from the drive once more to replace it.</source>
        <extracomment>The starter’s message about a copy of the program on the computer</extracomment>
        <translation>程序的这个副本已损坏。请再次从驱动器启动程序以替换它。</translation>
    </message>
    <message id="IDS_STARTER_OTHER_MACHINE">
        <source>This program is made for %1 computers; this one is %2.</source>
        <extracomment>The starter’s message; %1 and %2 are kinds of processors, x86_64 say</extracomment>
        <translation>此程序适用于 %1 计算机；这台计算机是 %2。</translation>
    </message>
    <message id="IDS_STARTER_NOT_FOUND">
        <source>%1 cannot be found.</source>
        <extracomment>The starter’s message; %1 is the name of a file</extracomment>
        <translation>找不到 %1。</translation>
    </message>
    <message id="IDS_STARTER_NO_ROOM">
        <source>The program cannot be unpacked: neither the home folder nor /tmp has room for it.</source>
        <extracomment>The starter’s message; /tmp is a folder</extracomment>
        <translation>无法解压程序：主文件夹和 /tmp 中都没有足够的空间。</translation>
    </message>
    <message id="IDS_STARTER_LACKS">
        <source>This system lacks something that the program needs: %1</source>
        <extracomment>The starter’s message; %1 is what the system says of it, in English</extracomment>
        <translation>此系统缺少程序所需的内容：%1</translation>
    </message>
</context>
</TS>
