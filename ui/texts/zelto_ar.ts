<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="OK">
        <source>OK</source>
        <extracomment>A button</extracomment>
        <translation>موافق</translation>
    </message>
    <message id="IDS_APP_TITLE">
        <source>ZELTO DISK</source>
        <extracomment>The product’s name: never translated</extracomment>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_CANCEL_BUTTON">
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source>No ZELTO DISK is ready for use. Plug it in, then start this program again.</source>
        <translation>لا يوجد ZELTO DISK جاهز للاستخدام. صِله ثم شغّل هذا البرنامج من جديد.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source>Enter the password; the first one if the drive has two.</source>
        <translation>أدخل كلمة السر؛ وإن كانت للقرص كلمتان فأدخل الأولى.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source>Enter the second password.</source>
        <translation>أدخل كلمة السر الثانية.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</source>
        <extracomment>%1 is a date and time</extracomment>
        <translation>توقّفت ساعة القرص، ولذلك أقفل القرص نفسه.

أتريد ضبط ساعة القرص على وقت هذا الحاسوب، &#x2066;%1&#x2069;؟ تحقّق أولًا من صحة هذا الوقت. إن كان مفتاح القرص ما زال موجودًا فيمكنك تسجيل الدخول بعد ذلك.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</source>
        <translation>ضُبطت ساعة القرص. سيُغلق البرنامج الآن. شغّله من جديد ليخبرك إن كان بإمكانك تسجيل الدخول.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</source>
        <translation>أقفل القرص نفسه نهائيًا وفُقد مفتاحه: بعد كلمات سر خاطئة كثيرة، أو لانتهاء مدته، أو لأن المفتاح مُحي. لم يعد بإمكان أحد قراءة ما كان في المنطقة الآمنة.

لاستخدام القرص من جديد شغّل هذا البرنامج إن كان قد أُغلق، واختر «مسح الكل» في الإعدادات، ثم انزع القرص وصِله مجددًا وشغّل البرنامج مرة أخرى لإعداده.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</source>
        <translation>كلمة السر هذه غير صحيحة. تحقّق من مفتاح Caps Lock وحاول من جديد؛ فقد لا يسمح القرص إلا بمحاولات قليلة.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</source>
        <translation>تعذّر فصل وحدات تخزين القرص؛ وغالبًا ما يكون برنامج ما زال يستخدم ملفًا عليها. لم يُفعل شيء آخر: القرص الذي كان مفتوح القفل ما زال كذلك.

أغلق كل الملفات والنوافذ التي تعرض القرص ثم حاول من جديد. شغّل هذا البرنامج مجددًا إن كان قد أُغلق.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</source>
        <extracomment>Numbers that identify an error</extracomment>
        <translation>لم ينفّذ القرص هذه الخطوة. إن تكرّر ذلك فأغلق هذا البرنامج، وانزع القرص وصِله مجددًا، ثم شغّل البرنامج من جديد.

للدعم: مفتاح الاستشعار %1، الرمز %2، المحدِّد %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</source>
        <translation>لا يستجيب القرص. أغلق هذا البرنامج، وانزع القرص وصِله مجددًا، ثم شغّل البرنامج من جديد.</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source>not set</source>
        <extracomment>In place of the time, after “Drive’s clock:”</extracomment>
        <translation>غير مضبوطة</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source>The time has run out</source>
        <extracomment>In place of the remaining time, after “Key erased in:”</extracomment>
        <translation>انتهت المدة</translation>
    </message>
    <message id="IDS_DAYS">
        <source>d</source>
        <extracomment>After a number: 12 d 5 h 30 min</extracomment>
        <translation>ي</translation>
    </message>
    <message id="IDS_HOURS">
        <source>h</source>
        <extracomment>After a number</extracomment>
        <translation>س</translation>
    </message>
    <message id="IDS_MIN">
        <source>min</source>
        <extracomment>After a number</extracomment>
        <translation>د</translation>
    </message>
    <message id="IDS_TIME_SYNC_COMPLETE">
        <source>The drive’s clock has been set to this computer’s time. The program now closes; start it again to go on.</source>
        <translation>ضُبطت ساعة القرص على وقت هذا الحاسوب. سيُغلق البرنامج الآن؛ شغّله من جديد للمتابعة.</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source>Setting up the drive. Please do not unplug it.</source>
        <extracomment>Blinks while the drive is set up</extracomment>
        <translation>يجري إعداد القرص. يُرجى عدم نزعه.</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</source>
        <translation>أُعدّ القرص. ما زالت مناطقه فارغة: هيّئ كلًّا منها مرة قبل استخدامها، والمنطقة الآمنة بعد تسجيل الدخول.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</source>
        <translation>أُعدّ القرص ويمكن استخدامه. لكن تعذّرت تهيئة منطقة الأدوات، ولذلك لا يحمل القرص هذا البرنامج: استخدم القرص بالبرنامج الذي على هذا الحاسوب.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</source>
        <extracomment>%1 and %2 are names of files</extracomment>
        <translation>أُعدّ القرص ويمكن استخدامه. لكن تعذّر نسخ هذا البرنامج إلى منطقة الأدوات: استخدم القرص بالبرنامج الذي على هذا الحاسوب.

من: &#x2066;%1&#x2069;
إلى: &#x2066;%2&#x2069;</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</source>
        <translation>لم يصبح القرص جاهزًا، ولذلك لم يُغيَّر عليه شيء. سيُغلق البرنامج الآن. انزع القرص وصِله مجددًا ثم شغّل البرنامج من جديد.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</source>
        <translation>اخترت إدخال مفتاح التعمية يدويًا، لكن لا يوجد مفتاح بعد. أدخل مفتاحًا أو دع القرص ينشئه.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</source>
        <translation>كلمة السر الأولى الحالية غير صحيحة، ولذلك لم تُغيَّر كلمة السر الأولى. إن كنت تغيّر كلمتي السر فقد غُيّرت الثانية بالفعل: من الآن فصاعدًا الجديدة هي كلمة السر الثانية الحالية. تحقّق من مفتاح Caps Lock وأدخل كلمتي السر من جديد.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</source>
        <translation>كلمة السر الثانية الحالية غير صحيحة، ولذلك لم تُغيَّر أي كلمة سر. تحقّق من مفتاح Caps Lock وأدخلها من جديد.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source>The drive is locked. Log in to it first, then try again.</source>
        <translation>القرص مقفل. سجّل الدخول أولًا ثم حاول من جديد.</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</source>
        <translation>أتريد مسح كل ما على هذا القرص؟

ستُفقد كل المناطق بكل ملفاتها، وكل كلمات السر، وكل الإعدادات. لا يمكن التراجع عن ذلك.</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</source>
        <translation>أتريد محو مفتاح التعمية لهذا القرص؟

سيصبح كل ما في المنطقة الآمنة غير مقروء نهائيًا، حتى بكلمة السر الصحيحة. لا يمكن التراجع عن ذلك.</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source>Total: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>المجموع: %1 م.بايت</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source>Free: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>المتاح: %1 م.بايت</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source>The areas are larger than the drive.</source>
        <translation>المناطق أكبر من القرص.</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source>Normal</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>عادية</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source>Secure</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>آمنة</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source>Not used yet</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>لم تُستخدم بعد</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source>Whole drive</source>
        <extracomment>In place of an area’s capacity: the area takes it all</extracomment>
        <translation>القرص كله</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</source>
        <translation>أحد أقراص ZELTO DISK الموصولة ليس في هذه القائمة، لأن هذا الحاسوب لا يسمح لك باستخدامه بعد. ثبّت حزمة البرنامج أو اطلب من المدير إضافة قاعدة الجهاز، ثم صِل القرص من جديد.</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</source>
        <translation>أحد أقراص ZELTO DISK الموصولة ليس في هذه القائمة، لأنه يخص جلسة مستخدم آخر على هذا الحاسوب. استخدمه من تلك الجلسة، أو سجّل الدخول على شاشة هذا الحاسوب نفسه وصِله من جديد.</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</source>
        <translation>أحد أقراص ZELTO DISK الموصولة ليس في هذه القائمة، لأن نسخة أخرى من هذا البرنامج تستخدمه. أغلق تلك النسخة ثم شغّل هذا البرنامج من جديد.</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source>Still using the drive: %1</source>
        <extracomment>%1 is a list of programs</extracomment>
        <translation>ما زال يستخدم القرص: &#x2066;%1&#x2069;</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source>Next: lay out the areas.</source>
        <translation>التالي: وزّع المناطق.</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source>Next: choose the passwords.</source>
        <translation>التالي: اختر كلمات السر.</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source>Nothing has been changed yet.</source>
        <translation>لم يُغيَّر شيء بعد.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source>Erase the key after: enter 1 to 9999 days.</source>
        <translation>محو المفتاح بعد: أدخل من 1 إلى 9999 يومًا.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source>Erase the key after: enter 1 to 999 minutes.</source>
        <translation>محو المفتاح بعد: أدخل من 1 إلى 999 دقيقة.</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source>Log off after: enter 1 to 999 minutes.</source>
        <translation>تسجيل الخروج بعد: أدخل من 1 إلى 999 دقيقة.</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source>Sizes are whole numbers of MB.</source>
        <translation>الأحجام أعداد صحيحة بالميغابايت.</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source>Next: enter a size for Disk1.</source>
        <translation>التالي: أدخل حجمًا لـ Disk1.</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source>Next: enter the first password.</source>
        <translation>التالي: أدخل كلمة السر الأولى.</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source>Next: enter the first password again.</source>
        <translation>التالي: أعد إدخال كلمة السر الأولى.</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source>The two entries of the first password differ.</source>
        <translation>إدخالا كلمة السر الأولى مختلفان.</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source>Next: enter the second password.</source>
        <translation>التالي: أدخل كلمة السر الثانية.</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source>Next: enter the second password again.</source>
        <translation>التالي: أعد إدخال كلمة السر الثانية.</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source>The two entries of the second password differ.</source>
        <translation>إدخالا كلمة السر الثانية مختلفان.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source>Next: enter the current first password.</source>
        <translation>التالي: أدخل كلمة السر الأولى الحالية.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source>Next: enter the current second password.</source>
        <translation>التالي: أدخل كلمة السر الثانية الحالية.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_SIGNS">
        <source>Only the letters A to Z, digits and the signs of a US keyboard can be used in a password.</source>
        <translation>لا تُستخدم في كلمة السر إلا الحروف من A إلى Z والأرقام من 0 إلى 9 ورموز لوحة المفاتيح الأمريكية.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source>A password has 32 characters at most.</source>
        <translation>كلمة السر 32 محرفًا على الأكثر.</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source>Next: enter how many tries are allowed, 1 to 99.</source>
        <translation>التالي: أدخل عدد المحاولات المسموح بها، من 1 إلى 99.</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source>Next: enter the digits of the key.</source>
        <translation>التالي: أدخل أرقام المفتاح.</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source>Only the digits 0 to 9 and A to F can be used.</source>
        <translation>لا تُستخدم إلا الأرقام من 0 إلى 9 والحروف من A إلى F.</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source>One digit is missing.</source>
        <translation>ينقص رقم واحد.</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source>%1 of 128 digits: that is too many.</source>
        <translation>%1 من 128 رقمًا: هذا أكثر من اللازم.</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source>OK erases everything on this drive and closes this window.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>زر «موافق» يمحو كل ما على هذا القرص ويغلق هذه النافذة.</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</source>
        <translation>لا توجد منطقة آمنة: يمكن لأي شخص قراءة هذا القرص. لن تُستخدم كلمات السر والمفتاح المدخلة.</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source>Before you try again, open the areas and confirm them once more.</source>
        <translation>قبل المحاولة من جديد افتح المناطق وأكّدها مرة أخرى.</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</source>
        <translation>لا متسع لمحاولة أخرى في قائمة المناطق. افتح المناطق وأكّدها مرة أخرى ثم حاول من جديد.</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source>OK, Cancel, Erase Key and Clear All close the program.</source>
        <extracomment>Names the buttons of the window as they are called there</extracomment>
        <translation>الأزرار «موافق» و«إلغاء» و«محو المفتاح» و«مسح الكل» تغلق البرنامج.</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source>Setting the clock closes the program; what was entered is lost.</source>
        <translation>ضبط الساعة يغلق البرنامج؛ ويضيع ما أُدخل.</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source>A period that shows 0 is switched off by OK.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>المدة التي تعرض 0 يوقفها زر «موافق».</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</source>
        <translation>وحده Disk1 يحتفظ باختياره عند فتح هذه النافذة. لجعل Disk2 أو Disk3 آمنًا اختره من جديد.</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source>After that many wrong second passwords the drive erases its key for good.</source>
        <translation>بعد هذا العدد من كلمات السر الثانية الخاطئة يمحو القرص مفتاحه نهائيًا.</translation>
    </message>
    <message id="IDS_AREAS_TITLE">
        <source>ZELTO DISK: Areas</source>
        <translation>ZELTO DISK: المناطق</translation>
    </message>
    <message id="IDS_AREAS_HEADING">
        <source>Divide the drive into areas.</source>
        <translation>قسّم القرص إلى مناطق.</translation>
    </message>
    <message id="IDS_AREAS_EXPLANATION">
        <source>Up to three areas; leave an area at 0 MB if you do not need it. One of them can be secure: it stays hidden until you log in.</source>
        <translation>ثلاث مناطق على الأكثر؛ اترك ما لا تحتاجه على 0&#xa0;م.بايت. يمكن أن تكون إحداها آمنة: تبقى مخفية حتى تسجّل الدخول.</translation>
    </message>
    <message id="IDS_AREAS_BAR_NAME">
        <source>The areas in proportion</source>
        <translation>المناطق بالتناسب</translation>
    </message>
    <message id="IDS_AREAS_DISK1">
        <source>Disk&amp;1:</source>
        <extracomment>Disk1, Disk2 and Disk3 are given names: never translated</extracomment>
        <translation>‏Disk&amp;1:</translation>
    </message>
    <message id="IDS_AREAS_DISK1_UNIT">
        <source>MB</source>
        <extracomment>Stands after a field with a number</extracomment>
        <translation>م.بايت</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE">
        <source>&amp;Secure area</source>
        <translation>منطقة آمنة (&amp;ق)</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE_NAME">
        <source>Disk1 is a secure area</source>
        <translation>Disk1 منطقة آمنة</translation>
    </message>
    <message id="IDS_AREAS_DISK2">
        <source>Disk&amp;2:</source>
        <translation>‏Disk&amp;2:</translation>
    </message>
    <message id="IDS_AREAS_DISK2_UNIT">
        <source>MB</source>
        <translation>م.بايت</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE">
        <source>S&amp;ecure area</source>
        <translation>منطقة آمنة (&amp;ط)</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE_NAME">
        <source>Disk2 is a secure area</source>
        <translation>Disk2 منطقة آمنة</translation>
    </message>
    <message id="IDS_AREAS_DISK3">
        <source>Disk&amp;3:</source>
        <translation>‏Disk&amp;3:</translation>
    </message>
    <message id="IDS_AREAS_DISK3_UNIT">
        <source>MB</source>
        <translation>م.بايت</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE">
        <source>Secure &amp;area</source>
        <translation>منطقة آمنة (&amp;ن)</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE_NAME">
        <source>Disk3 is a secure area</source>
        <translation>Disk3 منطقة آمنة</translation>
    </message>
    <message id="IDS_AREAS_LEFT_NAME">
        <source>Capacity that is left</source>
        <translation>السعة المتبقية</translation>
    </message>
    <message id="IDS_AREAS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;ل)</translation>
    </message>
    <message id="IDS_AREAS_OK">
        <source>&amp;OK</source>
        <translation>موافق (&amp;و)</translation>
    </message>
    <message id="IDS_LOGIN_TITLE">
        <source>ZELTO DISK: Log In</source>
        <translation>ZELTO DISK: تسجيل الدخول</translation>
    </message>
    <message id="IDS_LOGIN_MESSAGE">
        <source>Enter the password of your drive.</source>
        <translation>أدخل كلمة سر قرصك.</translation>
    </message>
    <message id="IDS_LOGIN_PASSWORD">
        <source>&amp;Password:</source>
        <translation>كلمة السر (&amp;ك):</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK">
        <source>Drive’s clock:</source>
        <translation>ساعة القرص:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>ساعة القرص</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT">
        <source>Key erased in:</source>
        <extracomment>A time follows: 12 d 5 h 30 min</extracomment>
        <translation>يُمحى المفتاح بعد:</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT_NAME">
        <source>Time left until the drive erases its key</source>
        <translation>الوقت المتبقي حتى يمحو القرص مفتاحه</translation>
    </message>
    <message id="IDS_LOGIN_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;ل)</translation>
    </message>
    <message id="IDS_LOGIN_SUBMIT">
        <source>&amp;Log In</source>
        <translation>تسجيل الدخول (&amp;ت)</translation>
    </message>
    <message id="IDS_KEY_TITLE">
        <source>ZELTO DISK: Encryption Key</source>
        <translation>ZELTO DISK: مفتاح التعمية</translation>
    </message>
    <message id="IDS_KEY_HEADING">
        <source>Enter the encryption key.</source>
        <translation>أدخل مفتاح التعمية.</translation>
    </message>
    <message id="IDS_KEY_EXPLANATION">
        <source>An even number of hexadecimal digits, 0 to 9 and A to F, 128 at the most. Keep a copy in a safe place.</source>
        <translation>عدد زوجي من الأرقام الست عشرية، من 0 إلى 9 ومن A إلى F، على ألا تتجاوز 128. احتفظ بنسخة في مكان آمن.</translation>
    </message>
    <message id="IDS_KEY_KEY">
        <source>&amp;Key:</source>
        <extracomment>The encryption key; a field follows</extracomment>
        <translation>المفتاح (&amp;ا):</translation>
    </message>
    <message id="IDS_KEY_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;ل)</translation>
    </message>
    <message id="IDS_KEY_OK">
        <source>&amp;OK</source>
        <translation>موافق (&amp;و)</translation>
    </message>
    <message id="IDS_SETTINGS_TITLE">
        <source>ZELTO DISK: Settings</source>
        <translation>ZELTO DISK: الإعدادات</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_GROUP">
        <source>Drive</source>
        <extracomment>Title of a group: the USB drive as a whole</extracomment>
        <translation>القرص</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE">
        <source>Dri&amp;ve:</source>
        <translation>القرص (&amp;ا):</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK">
        <source>Computer’s clock:</source>
        <translation>ساعة الحاسوب:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK_NAME">
        <source>Computer’s clock</source>
        <translation>ساعة الحاسوب</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK">
        <source>Drive’s clock:</source>
        <translation>ساعة القرص:</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>ساعة القرص</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK">
        <source>&amp;Set Clock</source>
        <translation>ضبط الساعة (&amp;ض)</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK_DESCRIPTION">
        <source>Sets the drive’s clock to the computer’s time</source>
        <translation>يضبط ساعة القرص على وقت الحاسوب</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS_GROUP">
        <source>Areas</source>
        <translation>المناطق</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_BAR_NAME">
        <source>The drive’s areas in proportion</source>
        <translation>مناطق القرص بالتناسب</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_TABLE_NAME">
        <source>The drive’s areas</source>
        <translation>مناطق القرص</translation>
    </message>
    <message id="IDS_SETTINGS_TOTAL_CAPACITY_NAME">
        <source>Total capacity</source>
        <translation>السعة الإجمالية</translation>
    </message>
    <message id="IDS_SETTINGS_FREE_CAPACITY_NAME">
        <source>Free capacity</source>
        <translation>السعة المتاحة</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS">
        <source>&amp;Areas…</source>
        <translation>المناطق (&amp;ل)…</translation>
    </message>
    <message id="IDS_SETTINGS_PROTECTION_GROUP">
        <source>Protection of the secure area</source>
        <translation>حماية المنطقة الآمنة</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS_LABEL">
        <source>Passwords for log-in:</source>
        <translation>كلمات سر الدخول:</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS">
        <source>&amp;Passwords…</source>
        <translation>كلمات السر (&amp;ك)…</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_LABEL">
        <source>Encryption key:</source>
        <translation>مفتاح التعمية:</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_ORIGIN_NAME">
        <source>Encryption key</source>
        <translation>مفتاح التعمية</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_DRIVE">
        <source>&amp;Made by the drive</source>
        <extracomment>The encryption key</extracomment>
        <translation>ينشئه القرص (&amp;ن)</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_HAND">
        <source>&amp;Entered by hand</source>
        <extracomment>The encryption key</extracomment>
        <translation>يُدخل يدويًا (&amp;د)</translation>
    </message>
    <message id="IDS_SETTINGS_ENTER_KEY">
        <source>Enter &amp;Key…</source>
        <translation>إدخال المفتاح (&amp;خ)…</translation>
    </message>
    <message id="IDS_SETTINGS_AUTOMATIC_GROUP">
        <source>Automatic protection</source>
        <translation>الحماية التلقائية</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR">
        <source>Erase the key af&amp;ter</source>
        <extracomment>Reads on: [12] (•) days ( ) minutes</extracomment>
        <translation>محو المفتاح بعد (&amp;ب)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_PERIOD_NAME">
        <source>Period until the key is erased</source>
        <translation>المدة حتى محو المفتاح</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_UNIT_NAME">
        <source>Unit of the period until the key is erased</source>
        <translation>وحدة المدة حتى محو المفتاح</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_DAYS">
        <source>&amp;days</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>يوم (&amp;ي)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_MINUTES">
        <source>m&amp;inutes</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>دقيقة (&amp;ق)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF">
        <source>Lo&amp;g off after</source>
        <extracomment>Reads on: [12] minutes without use</extracomment>
        <translation>تسجيل الخروج بعد (&amp;ت)</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_PERIOD_NAME">
        <source>Minutes without use until the drive logs off</source>
        <translation>دقائق عدم الاستخدام حتى يسجّل القرص الخروج</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_UNIT">
        <source>minutes without use</source>
        <extracomment>Ends the line “Log off after [12]”</extracomment>
        <translation>دقيقة دون استخدام</translation>
    </message>
    <message id="IDS_SETTINGS_SHOW_REMAINING_TIME">
        <source>Show the &amp;remaining time at log-in</source>
        <translation>إظهار الوقت المتبقي عند تسجيل الدخول (&amp;ع)</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_GROUP">
        <source>Erase</source>
        <extracomment>Title of a group</extracomment>
        <translation>المحو</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY_EXPLANATION">
        <source>Without its key the secure area can never be read again.</source>
        <translation>من دون المفتاح لا يمكن قراءة المنطقة الآمنة أبدًا.</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY">
        <source>Erase Ke&amp;y…</source>
        <translation>محو المفتاح (&amp;ح)…</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL_EXPLANATION">
        <source>Clearing removes every area with all its files, every password and every setting.</source>
        <translation>يزيل كل المناطق بكل ملفاتها، وكل كلمات السر، وكل الإعدادات.</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL">
        <source>Clear A&amp;ll…</source>
        <translation>مسح الكل (&amp;س)…</translation>
    </message>
    <message id="IDS_SETTINGS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;غ)</translation>
    </message>
    <message id="IDS_SETTINGS_OK">
        <source>&amp;OK</source>
        <translation>موافق (&amp;و)</translation>
    </message>
    <message id="IDS_CHANGE_TITLE">
        <source>ZELTO DISK: Change Passwords</source>
        <translation>ZELTO DISK: تغيير كلمات السر</translation>
    </message>
    <message id="IDS_CHANGE_HEADING">
        <source>Change the passwords of the secure area.</source>
        <translation>غيّر كلمات سر المنطقة الآمنة.</translation>
    </message>
    <message id="IDS_CHANGE_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>كلمة السر من 1 إلى 32 من الحروف اللاتينية غير المشكّلة والأرقام والرموز. يسمح القرص بأي عدد من المحاولات للأولى، فاجعلها صعبة التخمين. لا يمكن استعادة كلمة سر منسية.</translation>
    </message>
    <message id="IDS_CHANGE_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>عدد كلمات السر</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>كلمة السر الأولى فقط (&amp;ف)</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>كلمتا السر الأولى والثانية (&amp;ك)</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_GROUP">
        <source>First password</source>
        <translation>كلمة السر الأولى</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_CURRENT">
        <source>&amp;Current:</source>
        <extracomment>The current first password</extracomment>
        <translation>الحالية (&amp;ي):</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_NEW">
        <source>&amp;New:</source>
        <extracomment>The new first password</extracomment>
        <translation>الجديدة (&amp;د):</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AGAIN">
        <source>New a&amp;gain:</source>
        <extracomment>The new first password again</extracomment>
        <translation>الجديدة مجددًا (&amp;ج):</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_GROUP">
        <source>Second password</source>
        <translation>كلمة السر الثانية</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_CURRENT">
        <source>C&amp;urrent:</source>
        <translation>الحالية (&amp;ح):</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_NEW">
        <source>N&amp;ew:</source>
        <translation>الجديدة (&amp;ل):</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_AGAIN">
        <source>New aga&amp;in:</source>
        <translation>الجديدة مجددًا (&amp;ا):</translation>
    </message>
    <message id="IDS_CHANGE_TRIES">
        <source>&amp;Tries allowed:</source>
        <extracomment>How often a wrong second password may be entered</extracomment>
        <translation>المحاولات المسموح بها (&amp;و):</translation>
    </message>
    <message id="IDS_CHANGE_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_CHANGE_CANCEL">
        <source>Cance&amp;l</source>
        <translation>إلغاء (&amp;غ)</translation>
    </message>
    <message id="IDS_CHANGE_OK">
        <source>O&amp;K</source>
        <translation>موافق (&amp;ق)</translation>
    </message>
    <message id="IDS_PASSWORDS_TITLE">
        <source>ZELTO DISK: Passwords</source>
        <translation>ZELTO DISK: كلمات السر</translation>
    </message>
    <message id="IDS_PASSWORDS_HEADING">
        <source>Choose the passwords of the secure area.</source>
        <translation>اختر كلمات سر المنطقة الآمنة.</translation>
    </message>
    <message id="IDS_PASSWORDS_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>كلمة السر من 1 إلى 32 من الحروف اللاتينية غير المشكّلة والأرقام والرموز. يسمح القرص بأي عدد من المحاولات للأولى، فاجعلها صعبة التخمين. لا يمكن استعادة كلمة سر منسية.</translation>
    </message>
    <message id="IDS_PASSWORDS_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>عدد كلمات السر</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>كلمة السر الأولى فقط (&amp;ف)</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>كلمتا السر الأولى والثانية (&amp;ك)</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_GROUP">
        <source>First password</source>
        <translation>كلمة السر الأولى</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST">
        <source>&amp;Password:</source>
        <translation>كلمة السر (&amp;س):</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AGAIN">
        <source>A&amp;gain:</source>
        <extracomment>The password again</extracomment>
        <translation>مجددًا (&amp;د):</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_GROUP">
        <source>Second password</source>
        <translation>كلمة السر الثانية</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND">
        <source>Pass&amp;word:</source>
        <translation>كلمة السر (&amp;ا):</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_AGAIN">
        <source>Aga&amp;in:</source>
        <translation>مجددًا (&amp;ج):</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES">
        <source>&amp;Tries allowed:</source>
        <translation>المحاولات المسموح بها (&amp;ل):</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_PASSWORDS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;غ)</translation>
    </message>
    <message id="IDS_PASSWORDS_OK">
        <source>O&amp;K</source>
        <translation>موافق (&amp;و)</translation>
    </message>
    <message id="IDS_SELECT_TITLE">
        <source>ZELTO DISK</source>
        <translation>ZELTO DISK</translation>
    </message>
    <message id="IDS_SELECT_HEADING">
        <source>Which drive do you want to use?</source>
        <translation>أي قرص تريد استخدامه؟</translation>
    </message>
    <message id="IDS_SELECT_EXPLANATION">
        <source>These drives are plugged in. For one that is missing, start the program again.</source>
        <translation>هذه الأقراص موصولة. إن نقص أحدها فشغّل البرنامج من جديد.</translation>
    </message>
    <message id="IDS_SELECT_DRIVE">
        <source>&amp;Drive:</source>
        <extracomment>The USB drive as a whole: a list follows</extracomment>
        <translation>القرص (&amp;ل):</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN">
        <source>&amp;Look Again</source>
        <translation>البحث مجددًا (&amp;ب)</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN_DESCRIPTION">
        <source>Looks again for drives that were plugged in meanwhile</source>
        <translation>يبحث من جديد عن أقراص وُصلت في هذه الأثناء</translation>
    </message>
    <message id="IDS_SELECT_CANCEL">
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;غ)</translation>
    </message>
    <message id="IDS_SELECT_OK">
        <source>&amp;OK</source>
        <translation>موافق (&amp;و)</translation>
    </message>
    <message id="IDS_UNLOCKED_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: مفتوح القفل</translation>
    </message>
    <message id="IDS_UNLOCKED_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>قرصك مفتوح القفل.</translation>
    </message>
    <message id="IDS_UNLOCKED_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off before you unplug the drive or leave the computer.</source>
        <translation>المنطقة الآمنة مفتوحة وتظهر بجانب أقراصك الأخرى. المنطقة الجديدة فارغة: هيّئها مرة واحدة. سجّل الخروج قبل نزع القرص أو مغادرة الحاسوب.</translation>
    </message>
    <message id="IDS_UNLOCKED_SETTINGS">
        <source>&amp;Settings…</source>
        <extracomment>Opens the settings of the drive</extracomment>
        <translation>الإعدادات (&amp;ل)…</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF">
        <source>&amp;Log Off</source>
        <extracomment>Of the drive, not of the computer’s session</extracomment>
        <translation>تسجيل الخروج (&amp;ت)</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>يقفل القرص ويغلق البرنامج</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>إبقاء القفل مفتوحًا والإغلاق (&amp;ا)</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>يغلق البرنامج؛ ويبقى القرص مفتوح القفل</translation>
    </message>
    <message id="IDS_UNLOCKING_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: مفتوح القفل</translation>
    </message>
    <message id="IDS_UNLOCKING_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>قرصك مفتوح القفل.</translation>
    </message>
    <message id="IDS_UNLOCKING_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off to lock it again, or keep it unlocked and go on working with it.</source>
        <translation>المنطقة الآمنة مفتوحة وتظهر بجانب أقراصك الأخرى. المنطقة الجديدة فارغة: هيّئها مرة واحدة. سجّل الخروج لإقفالها من جديد، أو أبقِ القفل مفتوحًا وواصل العمل.</translation>
    </message>
    <message id="IDS_UNLOCKING_SETTINGS">
        <source>&amp;Settings…</source>
        <translation>الإعدادات (&amp;ل)…</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>إبقاء القفل مفتوحًا والإغلاق (&amp;ا)</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>يغلق البرنامج؛ ويبقى القرص مفتوح القفل</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF">
        <source>&amp;Log Off</source>
        <translation>تسجيل الخروج (&amp;ت)</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>يقفل القرص ويغلق البرنامج</translation>
    </message>
    <message id="IDS_SETUP_TITLE">
        <source>ZELTO DISK: Setting Up</source>
        <translation>ZELTO DISK: الإعداد</translation>
    </message>
    <message id="IDS_SETUP_HEADING">
        <source>Your drive is being set up.</source>
        <translation>يجري إعداد قرصك.</translation>
    </message>
    <message id="IDS_SETUP_EXPLANATION">
        <source>This takes about a minute. Leave the drive plugged in until it is finished.</source>
        <translation>يستغرق ذلك نحو دقيقة. أبقِ القرص موصولًا حتى ينتهي.</translation>
    </message>
    <message id="IDS_SETUP_STEPS_NAME">
        <source>Steps of the set-up</source>
        <translation>خطوات الإعداد</translation>
    </message>
    <message id="IDS_SETUP_PROGRESS_NAME">
        <source>Progress of the set-up</source>
        <translation>تقدّم الإعداد</translation>
    </message>
    <message id="IDS_SETUP_FINISH">
        <source>&amp;Finish</source>
        <translation>إنهاء (&amp;ن)</translation>
    </message>
    <message id="IDS_SIZE_MB">
        <source>%1 MB</source>
        <translation>%1 م.بايت</translation>
    </message>
    <message id="IDS_SIZE_GB">
        <source>%1 GB</source>
        <extracomment>%1 has one decimal: 3.7</extracomment>
        <translation>%1 ج.بايت</translation>
    </message>
    <message id="IDS_SIZE_TB">
        <source>%1 TB</source>
        <translation>%1 ت.بايت</translation>
    </message>
    <message id="IDS_BAR_NORMAL">
        <source>normal area</source>
        <extracomment>In a sentence: Disk1, normal area, 244 MB</extracomment>
        <translation>منطقة عادية</translation>
    </message>
    <message id="IDS_BAR_SECURE">
        <source>secure area</source>
        <translation>منطقة آمنة</translation>
    </message>
    <message id="IDS_BAR_TOOL">
        <source>tool area</source>
        <extracomment>The small area that carries this program</extracomment>
        <translation>منطقة الأدوات</translation>
    </message>
    <message id="IDS_BAR_FREE">
        <source>not used</source>
        <extracomment>Of a part of the drive</extracomment>
        <translation>غير مستخدم</translation>
    </message>
    <message id="IDS_BAR_NAMED">
        <source>%1, %2, %3</source>
        <extracomment>Disk1, secure area, 244 MB</extracomment>
        <translation>%1، %2، %3</translation>
    </message>
    <message id="IDS_BAR_UNNAMED">
        <source>%1, %2</source>
        <extracomment>not used, 244 MB</extracomment>
        <translation>%1، %2</translation>
    </message>
    <message id="IDS_BAR_SEPARATOR">
        <source>; </source>
        <extracomment>Between the areas of the list: Disk1, normal area, 244 MB; not used, 244 MB</extracomment>
        <translation>؛ </translation>
    </message>
    <message id="IDS_BAR_TOO_LARGE">
        <source>together more than the drive can hold</source>
        <extracomment>Last in that list</extracomment>
        <translation>مجموعها أكثر مما يسعه القرص</translation>
    </message>
    <message id="IDS_LIST_SEPARATOR">
        <source>, </source>
        <extracomment>Between the names of programs</extracomment>
        <translation>، </translation>
    </message>
    <message id="IDS_TABLE_AREA">
        <source>Area</source>
        <extracomment>Head of a column: Disk1, Disk2, Disk3</extracomment>
        <translation>المنطقة</translation>
    </message>
    <message id="IDS_TABLE_KIND">
        <source>Kind</source>
        <extracomment>Head of a column: normal or secure</extracomment>
        <translation>النوع</translation>
    </message>
    <message id="IDS_TABLE_CAPACITY">
        <source>Capacity</source>
        <extracomment>Head of a column</extracomment>
        <translation>السعة</translation>
    </message>
    <message id="IDS_STEP_SETTINGS">
        <source>The settings are on the drive</source>
        <extracomment>One step of the set-up; done or under way</extracomment>
        <translation>كتابة الإعدادات على القرص</translation>
    </message>
    <message id="IDS_STEP_RESTART">
        <source>The drive starts anew</source>
        <translation>إعادة تشغيل القرص</translation>
    </message>
    <message id="IDS_STEP_TOOL_AREA">
        <source>The tool area appears</source>
        <translation>ظهور منطقة الأدوات</translation>
    </message>
    <message id="IDS_STEP_COPY">
        <source>The tool area is formatted and this program copied</source>
        <translation>تهيئة منطقة الأدوات ونسخ هذا البرنامج</translation>
    </message>
    <message id="IDS_STEP_FINISHED">
        <source>Finished</source>
        <translation>انتهى</translation>
    </message>
    <message id="IDS_STEP_CURRENT">
        <source>Step %1 of %2: %3</source>
        <extracomment>Read aloud; %3 is one of the steps</extracomment>
        <translation>الخطوة %1 من %2: %3</translation>
    </message>
    <message id="IDS_STEP_FAILED">
        <source>Step %1 of %2 failed: %3</source>
        <translation>فشلت الخطوة %1 من %2: %3</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_MATCH">
        <source>The two entries match.</source>
        <translation>الإدخالان متطابقان.</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_DIFFER">
        <source>The two entries differ.</source>
        <translation>الإدخالان مختلفان.</translation>
    </message>
    <message id="IDS_FIELD_DIGITS">
        <source>%1 of 128 digits</source>
        <translation>%1 من 128 رقمًا</translation>
    </message>
    <message id="IDS_FIELD_DIGITS_ODD">
        <source>%1 of 128 digits, one is missing</source>
        <extracomment>Two digits make a byte; the number is odd</extracomment>
        <translation>%1 من 128 رقمًا، ينقص رقم واحد</translation>
    </message>
    <message id="IDS_FIELD_REVEAL">
        <source>Show the password</source>
        <extracomment>Of a button that stays pressed while the password is shown</extracomment>
        <translation>إظهار كلمة السر</translation>
    </message>
    <message id="IDS_FIELD_CAPS_LOCK">
        <source>Caps Lock is on</source>
        <extracomment>The key as it is called in the language</extracomment>
        <translation>Caps Lock مفعّل</translation>
    </message>
    <message id="IDS_FIELD_PASTE">
        <source>&amp;Paste</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>لصق (&amp;ل)</translation>
    </message>
    <message id="IDS_FIELD_SELECT_ALL">
        <source>Select &amp;All</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>تحديد الكل (&amp;ت)</translation>
    </message>
    <message id="IDS_AWAKE_SETUP">
        <source>The drive is being set up</source>
        <extracomment>Why the computer does not go to sleep now, shown by the desktop</extracomment>
        <translation>يجري إعداد القرص</translation>
    </message>
    <message id="IDS_AWAKE_PASSWORDS">
        <source>The passwords are being changed</source>
        <extracomment>Why the computer does not go to sleep now</extracomment>
        <translation>يجري تغيير كلمات السر</translation>
    </message>
    <message id="IDS_AWAKE_RELEASE">
        <source>The drive’s volumes are being released</source>
        <extracomment>Why the computer does not go to sleep now; volumes are unmounted</extracomment>
        <translation>يجري فصل وحدات تخزين القرص</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED">
        <source>The drive is locked. It can be unplugged.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>القرص مقفل. يمكن نزعه.</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED_IN_USE">
        <source>The drive is locked. Eject its other volumes before you unplug it.</source>
        <extracomment>A notification on the desktop after the program has closed; the drive’s normal areas are still mounted</extracomment>
        <translation>القرص مقفل. أخرج وحدات التخزين الأخرى التي عليه قبل نزعه.</translation>
    </message>
    <message id="IDS_NOTICE_STILL_UNLOCKED">
        <source>The drive is still unlocked. To lock it, start this program again.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>ما زال القرص مفتوح القفل. لإقفاله شغّل هذا البرنامج مجددًا.</translation>
    </message>
    <message id="IDS_NOTICE_SETTINGS_CHANGED">
        <source>The drive’s settings have been changed.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>غُيّرت إعدادات القرص.</translation>
    </message>
    <message id="IDS_NOTICE_CLEARED">
        <source>Everything on the drive has been cleared. Unplug it, plug it in again, then start this program to set it up again.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>مُسح كل ما على القرص. انزعه وصِله مجددًا، ثم شغّل هذا البرنامج لإعداده من جديد.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP">
        <source>The drive is set up. Format each area once before you use it.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>أُعدّ القرص. هيّئ كل منطقة مرة قبل استخدامها.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP_WITHOUT_TOOL">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>أُعدّ القرص ويمكن استخدامه. لكن تعذّر نسخ هذا البرنامج إلى منطقة الأدوات: استخدم القرص بالبرنامج الذي على هذا الحاسوب.</translation>
    </message>
    <message id="IDS_RULE_TITLE">
        <source>ZELTO DISK: Device Rule</source>
        <translation>ZELTO DISK: قاعدة الجهاز</translation>
    </message>
    <message id="IDS_RULE_HEADING">
        <source>Let this computer’s users use the drive.</source>
        <translation>اسمح لمستخدمي هذا الحاسوب باستخدام القرص.</translation>
    </message>
    <message id="IDS_RULE_EXPLANATION">
        <source>An administrator enters this &amp;command in a terminal. It adds the device rule that it holds. Then plug the drive in again.</source>
        <translation>يُدخل المدير هذا الأمر في طرفية. يضيف الأمر قاعدة الجهاز التي يحتويها. صِل القرص من جديد بعد ذلك. (&amp;ي)</translation>
    </message>
    <message id="IDS_RULE_CLOSE">
        <source>C&amp;lose</source>
        <translation>إغلاق (&amp;غ)</translation>
    </message>
    <message id="IDS_RULE_COPY">
        <source>Co&amp;py Command</source>
        <translation>نسخ الأمر (&amp;ن)</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE">
        <source>Show &amp;Rule…</source>
        <translation>إظهار القاعدة (&amp;ا)…</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE_DESCRIPTION">
        <source>Shows the device rule and the command that adds it to this computer</source>
        <translation>يعرض قاعدة الجهاز والأمر الذي يضيفها إلى هذا الحاسوب</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source>Serial number: %1</source>
        <translation>الرقم التسلسلي: &#x2066;%1&#x2069;</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source>Serial number: %1, in USB port %2</source>
        <translation>الرقم التسلسلي: &#x2066;%1&#x2069;، في منفذ USB رقم &#x2066;%2&#x2069;</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source>No serial number, in USB port %1</source>
        <translation>دون رقم تسلسلي، في منفذ USB رقم &#x2066;%1&#x2069;</translation>
    </message>
    <message id="IDS_STRENGTH_WEAK">
        <source>Strength: weak</source>
        <extracomment>Of a new password; a bar of four parts stands before it</extracomment>
        <translation>القوة: ضعيفة</translation>
    </message>
    <message id="IDS_STRENGTH_FAIR">
        <source>Strength: fair</source>
        <translation>القوة: متوسطة</translation>
    </message>
    <message id="IDS_STRENGTH_GOOD">
        <source>Strength: good</source>
        <translation>القوة: جيدة</translation>
    </message>
    <message id="IDS_STRENGTH_STRONG">
        <source>Strength: strong</source>
        <translation>القوة: قوية</translation>
    </message>
    <message id="IDS_HELP_BUTTON">
        <source>&amp;Help</source>
        <extracomment>In every window; no other button there may have its underlined letter</extracomment>
        <translation>مساعدة (&amp;م)</translation>
    </message>
    <message id="IDS_HELP_DESCRIPTION">
        <source>Opens the manual’s page about this window (F1). This is version %1 of the program.</source>
        <translation>يفتح صفحة الدليل عن هذه النافذة (F1). هذا هو الإصدار &#x2066;%1&#x2069; من البرنامج.</translation>
    </message>
    <message id="IDS_HINT_NO_MANUAL">
        <source>The manual could not be opened: it was not found beside the program, or this computer has nothing to show it with.</source>
        <translation>تعذّر فتح الدليل: لم يُعثر عليه بجانب البرنامج، أو ليس على هذا الحاسوب ما يعرضه.</translation>
    </message>
    <message id="IDS_HINT_VERSION">
        <source>Version %1 of the program.</source>
        <extracomment>Below messages that support is asked about</extracomment>
        <translation>الإصدار &#x2066;%1&#x2069; من البرنامج.</translation>
    </message>
    <message id="IDS_ALERT_INFORMATION">
        <source>Information</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>معلومة</translation>
    </message>
    <message id="IDS_ALERT_WARNING">
        <source>Warning</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>تحذير</translation>
    </message>
    <message id="IDS_ALERT_CRITICAL">
        <source>Loss of data</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>فقدان البيانات</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_VOLUME">
        <source>The program on this volume is damaged. Use the drive with the program that is installed on a computer; no file has to be erased.</source>
        <extracomment>The starter’s message; the program does not start</extracomment>
        <translation>البرنامج الموجود على وحدة التخزين هذه تالف. استخدم القرص بالبرنامج المثبّت على حاسوب؛ لا حاجة إلى محو أي ملف.</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_COPY">
        <source>This copy of the program is damaged. Start it from the drive once more to replace it.</source>
        <extracomment>The starter’s message about a copy of the program on the computer</extracomment>
        <translation>هذه النسخة من البرنامج تالفة. شغّله من القرص مرة أخرى لاستبدالها.</translation>
    </message>
    <message id="IDS_STARTER_OTHER_MACHINE">
        <source>This program is made for %1 computers; this one is %2.</source>
        <extracomment>The starter’s message; %1 and %2 are kinds of processors, x86_64 say</extracomment>
        <translation>هذا البرنامج مُعدّ لحواسيب ⁦%1⁩، وهذا الحاسوب من نوع ⁦%2⁩.</translation>
    </message>
    <message id="IDS_STARTER_NOT_FOUND">
        <source>%1 cannot be found.</source>
        <extracomment>The starter’s message; %1 is the name of a file</extracomment>
        <translation>تعذّر العثور على ⁦%1⁩.</translation>
    </message>
    <message id="IDS_STARTER_NO_ROOM">
        <source>The program cannot be unpacked: neither the home folder nor /tmp has room for it.</source>
        <extracomment>The starter’s message; /tmp is a folder</extracomment>
        <translation>تعذّر فكّ حزمة البرنامج: لا مكان له في مجلد المنزل ولا في ⁦/tmp⁩.</translation>
    </message>
    <message id="IDS_STARTER_LACKS">
        <source>This system lacks something that the program needs: %1</source>
        <extracomment>The starter’s message; %1 is what the system says of it, in English</extracomment>
        <translation>ينقص هذا النظام شيء يحتاجه البرنامج: ⁦%1⁩</translation>
    </message>
</context>
</TS>
