<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Cancelar</translation>
    </message>
    <message id="IDS_ERR_NOT_FOUND_ZELTO">
        <source>No ZELTO DISK is ready for use. Plug it in, then start this program again.</source>
        <translation>Nenhum ZELTO DISK está pronto para uso. Conecte-o e inicie este programa novamente.</translation>
    </message>
    <message id="IDS_ENTER_1ST_PASSWORD">
        <source>Enter the password; the first one if the drive has two.</source>
        <translation>Digite a senha; a primeira, se a unidade tiver duas.</translation>
    </message>
    <message id="IDS_ENTER_2ND_PASSWORD">
        <source>Enter the second password.</source>
        <translation>Digite a segunda senha.</translation>
    </message>
    <message id="IDS_FULLLOCK_TIME_STATUS_INVALID">
        <source>The drive’s clock has stopped, so the drive has locked itself.

Set the drive’s clock to this computer’s time, %1? Check first that this time is right. If the drive still has its key, you can log in to it afterwards.</source>
        <extracomment>%1 is a date and time</extracomment>
        <translation>O relógio da unidade parou, por isso a unidade se bloqueou.

Acertar o relógio da unidade pela hora deste computador, %1? Verifique antes se essa hora está certa. Se a unidade ainda tiver sua chave, depois você poderá entrar nela.</translation>
    </message>
    <message id="IDS_SET_CURRENT_YIME">
        <source>The drive’s clock has been set. The program now closes. Start it again: it then says whether you can log in.</source>
        <translation>O relógio da unidade foi acertado. O programa será fechado agora. Inicie-o novamente: ele dirá se você pode entrar.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_DRIVE_LOST">
        <source>The drive has locked itself for good and its key is gone: after too many wrong passwords, because its time ran out, or because the key was erased. What was in the secure area cannot be read any more, by anyone.

To use the drive again, start this program if it has closed, choose “Clear All” in the settings, then plug the drive out and in and start the program once more to set it up.</source>
        <translation>A unidade se bloqueou definitivamente e sua chave se perdeu: após senhas erradas demais, porque o tempo acabou ou porque a chave foi apagada. Ninguém mais pode ler o que estava na área segura.

Para usar a unidade de novo, inicie este programa se ele tiver fechado, escolha “Limpar tudo” nas configurações, depois desconecte e reconecte a unidade e inicie o programa mais uma vez para configurá-la.</translation>
    </message>
    <message id="IDS_ERR_AUTHENTICATE_FAILED">
        <source>This password is not right. Check Caps Lock and try again; the drive may allow only a few tries.</source>
        <translation>Esta senha não está correta. Verifique o Caps Lock e tente novamente; a unidade pode permitir apenas algumas tentativas.</translation>
    </message>
    <message id="IDS_ERR_UNMOUNT">
        <source>The drive’s volumes could not be released; most often a program still uses a file on them. Nothing else was done: a drive that was unlocked is still unlocked.

Close all files and windows that show the drive, then try again. Start this program again if it has closed.</source>
        <translation>Não foi possível desmontar os volumes da unidade; na maioria das vezes, um programa ainda usa um arquivo deles. Nada mais foi feito: uma unidade que estava desbloqueada continua desbloqueada.

Feche todos os arquivos e janelas que mostram a unidade e tente novamente. Inicie este programa de novo se ele tiver fechado.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL_WITH_SENSE_INFO">
        <source>The drive did not carry out this step. If it happens again, close this program, plug the drive out and in, and start the program again.

For support: sense key %1, code %2, qualifier %3.</source>
        <extracomment>Numbers that identify an error</extracomment>
        <translation>A unidade não executou esta etapa. Se isso acontecer de novo, feche este programa, desconecte e reconecte a unidade e inicie o programa novamente.

Para o suporte: chave de detecção %1, código %2, qualificador %3.</translation>
    </message>
    <message id="IDS_COMMAND_FAIL">
        <source>The drive does not answer. Close this program, plug the drive out and in, and start the program again.</source>
        <translation>A unidade não responde. Feche este programa, desconecte e reconecte a unidade e inicie o programa novamente.</translation>
    </message>
    <message id="IDS_ERR_TIME_STATUS_INVALID">
        <source>not set</source>
        <extracomment>In place of the time, after “Drive’s clock:”</extracomment>
        <translation>não acertado</translation>
    </message>
    <message id="IDS_EXPIRED">
        <source>The time has run out</source>
        <extracomment>In place of the remaining time, after “Key erased in:”</extracomment>
        <translation>O tempo acabou</translation>
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
        <translation>O relógio da unidade foi acertado pela hora deste computador. O programa será fechado agora; inicie-o novamente para continuar.</translation>
    </message>
    <message id="IDS_NOW_SETTING">
        <source>Setting up the drive. Please do not unplug it.</source>
        <extracomment>Blinks while the drive is set up</extracomment>
        <translation>Configurando a unidade. Não a desconecte.</translation>
    </message>
    <message id="IDS_SETTING_COMPLETE">
        <source>The drive is set up. Its areas are still blank: format each once before you use it, a secure one after you have logged in.</source>
        <translation>A unidade está configurada. Suas áreas ainda estão vazias: formate cada uma uma vez antes de usá-la; uma área segura, depois de entrar.</translation>
    </message>
    <message id="IDS_ERR_FORMAT">
        <source>The drive is set up and can be used. Only its tool area could not be formatted, so the drive does not carry this program: use the drive with the program on this computer.</source>
        <translation>A unidade está configurada e pode ser usada. Apenas sua área de ferramentas não pôde ser formatada, por isso a unidade não leva este programa: use-a com o programa deste computador.</translation>
    </message>
    <message id="IDS_ERR_FILE_COPY">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.

From: %1
To: %2</source>
        <extracomment>%1 and %2 are names of files</extracomment>
        <translation>A unidade está configurada e pode ser usada. Apenas este programa não pôde ser copiado para a área de ferramentas: use a unidade com o programa deste computador.

De: %1
Para: %2</translation>
    </message>
    <message id="IDS_ERR_SPINUP">
        <source>The drive did not get ready, so nothing on it was changed. The program now closes. Plug the drive out and in, and start the program again.</source>
        <translation>A unidade não ficou pronta, por isso nada nela foi alterado. O programa será fechado agora. Desconecte e reconecte a unidade e inicie o programa novamente.</translation>
    </message>
    <message id="IDS_ERR_ENCRYPTION_MANUAL_KEY_NOT_SETUP">
        <source>You chose to enter the encryption key by hand, but there is none yet. Enter a key, or let the drive make one.</source>
        <translation>Você escolheu digitar a chave de criptografia, mas ainda não há nenhuma. Digite uma chave ou deixe a unidade criá-la.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_1ST_PASSWORD_INVALID">
        <source>The current first password is not right, so the first password was not changed. If you are changing two passwords, the second one has been changed already: from now on its current password is the new one. Check Caps Lock and enter the passwords again.</source>
        <translation>A primeira senha atual não está correta, por isso a primeira senha não foi alterada. Se você está alterando duas senhas, a segunda já foi alterada: de agora em diante, sua senha atual é a nova. Verifique o Caps Lock e digite as senhas novamente.</translation>
    </message>
    <message id="IDS_ERR_CURRENT_2ND_PASSWORD_INVALID">
        <source>The current second password is not right, so no password was changed. Check Caps Lock and enter it again.</source>
        <translation>A segunda senha atual não está correta, por isso nenhuma senha foi alterada. Verifique o Caps Lock e digite-a novamente.</translation>
    </message>
    <message id="IDS_ERR_ZELTO_NOT_UNLOCKING">
        <source>The drive is locked. Log in to it first, then try again.</source>
        <translation>A unidade está bloqueada. Entre nela primeiro e tente novamente.</translation>
    </message>
    <message id="IDS_CLEAR_ALL_CONFIRM">
        <source>Clear everything on this drive?

All areas with all their files, all passwords and all settings will be gone. This cannot be undone.</source>
        <translation>Limpar tudo nesta unidade?

Todas as áreas com todos os arquivos, todas as senhas e todas as configurações serão perdidas. Isso não pode ser desfeito.</translation>
    </message>
    <message id="IDS_ERASE_ENCRYPTION_KEY_CONFIRM">
        <source>Erase the encryption key of this drive?

Everything in the secure area becomes unreadable for good, even with the right password. This cannot be undone.</source>
        <translation>Apagar a chave de criptografia desta unidade?

Tudo na área segura ficará ilegível para sempre, mesmo com a senha correta. Isso não pode ser desfeito.</translation>
    </message>
    <message id="IDS_TOTAL_CAPACITY">
        <source>Total: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Total: %1 MB</translation>
    </message>
    <message id="IDS_FREE_CAPACITY">
        <source>Free: %1 MB</source>
        <extracomment>%1 is a whole number of MB</extracomment>
        <translation>Livre: %1 MB</translation>
    </message>
    <message id="IDS_CAPACITY_OVER">
        <source>The areas are larger than the drive.</source>
        <translation>As áreas são maiores que a unidade.</translation>
    </message>
    <message id="IDS_NORMAL_AREA">
        <source>Normal</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Normal</translation>
    </message>
    <message id="IDS_SECURE_AREA">
        <source>Secure</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Segura</translation>
    </message>
    <message id="IDS_FREE_AREA">
        <source>Not used yet</source>
        <extracomment>Kind of an area, in the table</extracomment>
        <translation>Ainda não usada</translation>
    </message>
    <message id="IDS_ALL_SECTORS">
        <source>Whole drive</source>
        <extracomment>In place of an area’s capacity: the area takes it all</extracomment>
        <translation>Unidade inteira</translation>
    </message>
    <message id="IDS_HINT_RULE_MISSING">
        <source>One ZELTO DISK that is plugged in is not in this list, because this computer does not let you use it yet. Install the program’s package, or ask your administrator to add its device rule, then plug the drive in again.</source>
        <translation>Um ZELTO DISK conectado não está nesta lista porque este computador ainda não permite que você o use. Instale o pacote do programa ou peça ao administrador que adicione a regra de dispositivo e reconecte a unidade.</translation>
    </message>
    <message id="IDS_HINT_OTHER_SESSION">
        <source>One ZELTO DISK that is plugged in is not in this list, because it belongs to another user’s session on this computer. Use it from that session, or log in at this computer’s own screen and plug it in again.</source>
        <translation>Um ZELTO DISK conectado não está nesta lista porque pertence à sessão de outro usuário deste computador. Use-o naquela sessão, ou inicie uma sessão diretamente neste computador e reconecte-o.</translation>
    </message>
    <message id="IDS_HINT_DRIVE_IN_USE">
        <source>One ZELTO DISK that is plugged in is not in this list, because another copy of this program uses it. Close that copy, then start this program again.</source>
        <translation>Um ZELTO DISK conectado não está nesta lista porque outra cópia deste programa o está usando. Feche aquela cópia e inicie este programa novamente.</translation>
    </message>
    <message id="IDS_HINT_BUSY_PROGRAMS">
        <source>Still using the drive: %1</source>
        <extracomment>%1 is a list of programs</extracomment>
        <translation>Ainda usando a unidade: %1</translation>
    </message>
    <message id="IDS_HINT_NEXT_AREAS">
        <source>Next: lay out the areas.</source>
        <translation>Próximo passo: dividir as áreas.</translation>
    </message>
    <message id="IDS_HINT_NEXT_PASSWORDS">
        <source>Next: choose the passwords.</source>
        <translation>Próximo passo: escolher as senhas.</translation>
    </message>
    <message id="IDS_HINT_NOTHING_CHANGED">
        <source>Nothing has been changed yet.</source>
        <translation>Nada foi alterado ainda.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_DAYS">
        <source>Erase the key after: enter 1 to 9999 days.</source>
        <translation>Apagar a chave após: digite de 1 a 9999 dias.</translation>
    </message>
    <message id="IDS_HINT_AUTO_CLEAR_MINUTES">
        <source>Erase the key after: enter 1 to 999 minutes.</source>
        <translation>Apagar a chave após: digite de 1 a 999 minutos.</translation>
    </message>
    <message id="IDS_HINT_AUTO_LOG_OFF_MINUTES">
        <source>Log off after: enter 1 to 999 minutes.</source>
        <translation>Sair da unidade após: digite de 1 a 999 minutos.</translation>
    </message>
    <message id="IDS_HINT_AREA_DIGITS">
        <source>Sizes are whole numbers of MB.</source>
        <translation>Os tamanhos são números inteiros de MB.</translation>
    </message>
    <message id="IDS_HINT_AREA_DISK1">
        <source>Next: enter a size for Disk1.</source>
        <translation>Próximo passo: digitar um tamanho para Disk1.</translation>
    </message>
    <message id="IDS_HINT_FIRST_MISSING">
        <source>Next: enter the first password.</source>
        <translation>Próximo passo: digitar a primeira senha.</translation>
    </message>
    <message id="IDS_HINT_FIRST_AGAIN">
        <source>Next: enter the first password again.</source>
        <translation>Próximo passo: repetir a primeira senha.</translation>
    </message>
    <message id="IDS_HINT_FIRST_DIFFERS">
        <source>The two entries of the first password differ.</source>
        <translation>As duas entradas da primeira senha são diferentes.</translation>
    </message>
    <message id="IDS_HINT_SECOND_MISSING">
        <source>Next: enter the second password.</source>
        <translation>Próximo passo: digitar a segunda senha.</translation>
    </message>
    <message id="IDS_HINT_SECOND_AGAIN">
        <source>Next: enter the second password again.</source>
        <translation>Próximo passo: repetir a segunda senha.</translation>
    </message>
    <message id="IDS_HINT_SECOND_DIFFERS">
        <source>The two entries of the second password differ.</source>
        <translation>As duas entradas da segunda senha são diferentes.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_FIRST_MISSING">
        <source>Next: enter the current first password.</source>
        <translation>Próximo passo: digitar a primeira senha atual.</translation>
    </message>
    <message id="IDS_HINT_CURRENT_SECOND_MISSING">
        <source>Next: enter the current second password.</source>
        <translation>Próximo passo: digitar a segunda senha atual.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_SIGNS">
        <source>Only the letters A to Z, digits and the signs of a US keyboard can be used in a password.</source>
        <translation>Em uma senha só podem ser usados letras de A a Z sem acento nem cedilha, dígitos e os símbolos de um teclado americano.</translation>
    </message>
    <message id="IDS_HINT_PASSWORD_TOO_LONG">
        <source>A password has 32 characters at most.</source>
        <translation>Uma senha tem no máximo 32 caracteres.</translation>
    </message>
    <message id="IDS_HINT_TRIALS">
        <source>Next: enter how many tries are allowed, 1 to 99.</source>
        <translation>Próximo passo: digitar quantas tentativas são permitidas, de 1 a 99.</translation>
    </message>
    <message id="IDS_HINT_KEY_MISSING">
        <source>Next: enter the digits of the key.</source>
        <translation>Próximo passo: digitar os dígitos da chave.</translation>
    </message>
    <message id="IDS_HINT_KEY_DIGITS">
        <source>Only the digits 0 to 9 and A to F can be used.</source>
        <translation>Só os dígitos de 0 a 9 e de A a F podem ser usados.</translation>
    </message>
    <message id="IDS_HINT_KEY_ODD">
        <source>One digit is missing.</source>
        <translation>Falta um dígito.</translation>
    </message>
    <message id="IDS_HINT_KEY_TOO_LONG">
        <source>%1 of 128 digits: that is too many.</source>
        <translation>%1 de 128 dígitos: é demais.</translation>
    </message>
    <message id="IDS_HINT_SETUP_ERASES">
        <source>OK erases everything on this drive and closes this window.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>OK apaga tudo nesta unidade e fecha esta janela.</translation>
    </message>
    <message id="IDS_HINT_SETUP_OPEN">
        <source>No secure area: anyone can read this drive. Passwords and a key that were entered are not used.</source>
        <translation>Sem área segura: qualquer pessoa pode ler esta unidade. As senhas e a chave digitadas não são usadas.</translation>
    </message>
    <message id="IDS_HINT_SETUP_RETRY">
        <source>Before you try again, open the areas and confirm them once more.</source>
        <translation>Antes de tentar novamente, abra as áreas e confirme-as mais uma vez.</translation>
    </message>
    <message id="IDS_HINT_SETUP_TABLE_FULL">
        <source>There is no room for one more attempt in the list of areas. Open the areas, confirm them once more, then try again.</source>
        <translation>Não há espaço para mais uma tentativa na lista de áreas. Abra as áreas, confirme-as mais uma vez e tente novamente.</translation>
    </message>
    <message id="IDS_HINT_CLOSES">
        <source>OK, Cancel, Erase Key and Clear All close the program.</source>
        <extracomment>Names the buttons of the window as they are called there</extracomment>
        <translation>OK, Cancelar, Apagar chave e Limpar tudo fecham o programa.</translation>
    </message>
    <message id="IDS_HINT_SET_CLOCK_CLOSES">
        <source>Setting the clock closes the program; what was entered is lost.</source>
        <translation>Acertar o relógio fecha o programa; o que foi digitado se perde.</translation>
    </message>
    <message id="IDS_HINT_PERIOD_ZERO">
        <source>A period that shows 0 is switched off by OK.</source>
        <extracomment>Names the button OK</extracomment>
        <translation>Um período que mostra 0 é desativado por OK.</translation>
    </message>
    <message id="IDS_HINT_SECURE_CHOICE_DROPPED">
        <source>Only Disk1 keeps its choice when this window opens. To make Disk2 or Disk3 secure, choose it again.</source>
        <translation>Só Disk1 mantém sua escolha quando esta janela se abre. Para tornar Disk2 ou Disk3 segura, escolha de novo.</translation>
    </message>
    <message id="IDS_HINT_TRIALS_ERASE">
        <source>After that many wrong second passwords the drive erases its key for good.</source>
        <translation>Após esse número de segundas senhas erradas, a unidade apaga sua chave para sempre.</translation>
    </message>
    <message id="IDS_AREAS_TITLE">
        <source>ZELTO DISK: Areas</source>
        <translation>ZELTO DISK: áreas</translation>
    </message>
    <message id="IDS_AREAS_HEADING">
        <source>Divide the drive into areas.</source>
        <translation>Divida a unidade em áreas.</translation>
    </message>
    <message id="IDS_AREAS_EXPLANATION">
        <source>Up to three areas; leave an area at 0 MB if you do not need it. One of them can be secure: it stays hidden until you log in.</source>
        <translation>Até três áreas; deixe em 0&#xa0;MB as desnecessárias. Uma delas pode ser segura: fica oculta até você entrar.</translation>
    </message>
    <message id="IDS_AREAS_BAR_NAME">
        <source>The areas in proportion</source>
        <translation>As áreas em proporção</translation>
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
        <translation>Ár&amp;ea segura</translation>
    </message>
    <message id="IDS_AREAS_DISK1_SECURE_NAME">
        <source>Disk1 is a secure area</source>
        <translation>Disk1 é uma área segura</translation>
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
        <translation>Á&amp;rea segura</translation>
    </message>
    <message id="IDS_AREAS_DISK2_SECURE_NAME">
        <source>Disk2 is a secure area</source>
        <translation>Disk2 é uma área segura</translation>
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
        <translation>Área &amp;segura</translation>
    </message>
    <message id="IDS_AREAS_DISK3_SECURE_NAME">
        <source>Disk3 is a secure area</source>
        <translation>Disk3 é uma área segura</translation>
    </message>
    <message id="IDS_AREAS_LEFT_NAME">
        <source>Capacity that is left</source>
        <translation>Capacidade restante</translation>
    </message>
    <message id="IDS_AREAS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_AREAS_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_LOGIN_TITLE">
        <source>ZELTO DISK: Log In</source>
        <translation>ZELTO DISK: entrar</translation>
    </message>
    <message id="IDS_LOGIN_MESSAGE">
        <source>Enter the password of your drive.</source>
        <translation>Digite a senha da sua unidade.</translation>
    </message>
    <message id="IDS_LOGIN_PASSWORD">
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Relógio da unidade:</translation>
    </message>
    <message id="IDS_LOGIN_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Relógio da unidade</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT">
        <source>Key erased in:</source>
        <extracomment>A time follows: 12 d 5 h 30 min</extracomment>
        <translation>Chave apagada em:</translation>
    </message>
    <message id="IDS_LOGIN_TIME_LEFT_NAME">
        <source>Time left until the drive erases its key</source>
        <translation>Tempo restante até a unidade apagar sua chave</translation>
    </message>
    <message id="IDS_LOGIN_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_LOGIN_SUBMIT">
        <source>&amp;Log In</source>
        <translation>&amp;Entrar</translation>
    </message>
    <message id="IDS_KEY_TITLE">
        <source>ZELTO DISK: Encryption Key</source>
        <translation>ZELTO DISK: chave de criptografia</translation>
    </message>
    <message id="IDS_KEY_HEADING">
        <source>Enter the encryption key.</source>
        <translation>Digite a chave de criptografia.</translation>
    </message>
    <message id="IDS_KEY_EXPLANATION">
        <source>An even number of hexadecimal digits, 0 to 9 and A to F, 128 at the most. Keep a copy in a safe place.</source>
        <translation>Um número par de dígitos hexadecimais, de 0 a 9 e de A a F, no máximo 128. Guarde uma cópia em lugar seguro.</translation>
    </message>
    <message id="IDS_KEY_KEY">
        <source>&amp;Key:</source>
        <extracomment>The encryption key; a field follows</extracomment>
        <translation>C&amp;have:</translation>
    </message>
    <message id="IDS_KEY_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_KEY_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_SETTINGS_TITLE">
        <source>ZELTO DISK: Settings</source>
        <translation>ZELTO DISK: configurações</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_GROUP">
        <source>Drive</source>
        <extracomment>Title of a group: the USB drive as a whole</extracomment>
        <translation>Unidade</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE">
        <source>Dri&amp;ve:</source>
        <translation>U&amp;nidade:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK">
        <source>Computer’s clock:</source>
        <translation>Relógio do computador:</translation>
    </message>
    <message id="IDS_SETTINGS_COMPUTER_CLOCK_NAME">
        <source>Computer’s clock</source>
        <translation>Relógio do computador</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK">
        <source>Drive’s clock:</source>
        <translation>Relógio da unidade:</translation>
    </message>
    <message id="IDS_SETTINGS_DRIVE_CLOCK_NAME">
        <source>Drive’s clock</source>
        <translation>Relógio da unidade</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK">
        <source>&amp;Set Clock</source>
        <translation>Acer&amp;tar relógio</translation>
    </message>
    <message id="IDS_SETTINGS_SET_CLOCK_DESCRIPTION">
        <source>Sets the drive’s clock to the computer’s time</source>
        <translation>Acerta o relógio da unidade pela hora do computador</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS_GROUP">
        <source>Areas</source>
        <translation>Áreas</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_BAR_NAME">
        <source>The drive’s areas in proportion</source>
        <translation>As áreas da unidade em proporção</translation>
    </message>
    <message id="IDS_SETTINGS_AREA_TABLE_NAME">
        <source>The drive’s areas</source>
        <translation>As áreas da unidade</translation>
    </message>
    <message id="IDS_SETTINGS_TOTAL_CAPACITY_NAME">
        <source>Total capacity</source>
        <translation>Capacidade total</translation>
    </message>
    <message id="IDS_SETTINGS_FREE_CAPACITY_NAME">
        <source>Free capacity</source>
        <translation>Capacidade livre</translation>
    </message>
    <message id="IDS_SETTINGS_AREAS">
        <source>&amp;Areas…</source>
        <translation>Á&amp;reas…</translation>
    </message>
    <message id="IDS_SETTINGS_PROTECTION_GROUP">
        <source>Protection of the secure area</source>
        <translation>Proteção da área segura</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS_LABEL">
        <source>Passwords for log-in:</source>
        <translation>Senhas de entrada:</translation>
    </message>
    <message id="IDS_SETTINGS_PASSWORDS">
        <source>&amp;Passwords…</source>
        <translation>S&amp;enhas…</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_LABEL">
        <source>Encryption key:</source>
        <translation>Chave de criptografia:</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_ORIGIN_NAME">
        <source>Encryption key</source>
        <translation>Chave de criptografia</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_DRIVE">
        <source>&amp;Made by the drive</source>
        <extracomment>The encryption key</extracomment>
        <translation>Criada pela &amp;unidade</translation>
    </message>
    <message id="IDS_SETTINGS_KEY_BY_HAND">
        <source>&amp;Entered by hand</source>
        <extracomment>The encryption key</extracomment>
        <translation>Digitada por &amp;você</translation>
    </message>
    <message id="IDS_SETTINGS_ENTER_KEY">
        <source>Enter &amp;Key…</source>
        <translation>&amp;Digitar chave…</translation>
    </message>
    <message id="IDS_SETTINGS_AUTOMATIC_GROUP">
        <source>Automatic protection</source>
        <translation>Proteção automática</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR">
        <source>Erase the key af&amp;ter</source>
        <extracomment>Reads on: [12] (•) days ( ) minutes</extracomment>
        <translation>Apa&amp;gar a chave após</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_PERIOD_NAME">
        <source>Period until the key is erased</source>
        <translation>Período até a chave ser apagada</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_UNIT_NAME">
        <source>Unit of the period until the key is erased</source>
        <translation>Unidade do período até a chave ser apagada</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_DAYS">
        <source>&amp;days</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>d&amp;ias</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_CLEAR_MINUTES">
        <source>m&amp;inutes</source>
        <extracomment>Ends the line “Erase the key after [12]”</extracomment>
        <translation>&amp;minutos</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF">
        <source>Lo&amp;g off after</source>
        <extracomment>Reads on: [12] minutes without use</extracomment>
        <translation>&amp;Sair da unidade após</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_PERIOD_NAME">
        <source>Minutes without use until the drive logs off</source>
        <translation>Minutos sem uso até a sessão da unidade ser encerrada</translation>
    </message>
    <message id="IDS_SETTINGS_AUTO_LOG_OFF_UNIT">
        <source>minutes without use</source>
        <extracomment>Ends the line “Log off after [12]”</extracomment>
        <translation>minutos sem uso</translation>
    </message>
    <message id="IDS_SETTINGS_SHOW_REMAINING_TIME">
        <source>Show the &amp;remaining time at log-in</source>
        <translation>Mostrar &amp;o tempo restante ao entrar</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_GROUP">
        <source>Erase</source>
        <extracomment>Title of a group</extracomment>
        <translation>Apagar</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY_EXPLANATION">
        <source>Without its key the secure area can never be read again.</source>
        <translation>Sem a chave, a área segura nunca mais poderá ser lida.</translation>
    </message>
    <message id="IDS_SETTINGS_ERASE_KEY">
        <source>Erase Ke&amp;y…</source>
        <translation>A&amp;pagar chave…</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL_EXPLANATION">
        <source>Clearing removes every area with all its files, every password and every setting.</source>
        <translation>Remove todas as áreas com todos os arquivos, todas as senhas e todas as configurações.</translation>
    </message>
    <message id="IDS_SETTINGS_CLEAR_ALL">
        <source>Clear A&amp;ll…</source>
        <translation>&amp;Limpar tudo…</translation>
    </message>
    <message id="IDS_SETTINGS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_SETTINGS_OK">
        <source>&amp;OK</source>
        <translation>O&amp;K</translation>
    </message>
    <message id="IDS_CHANGE_TITLE">
        <source>ZELTO DISK: Change Passwords</source>
        <translation>ZELTO DISK: alterar senhas</translation>
    </message>
    <message id="IDS_CHANGE_HEADING">
        <source>Change the passwords of the secure area.</source>
        <translation>Altere as senhas da área segura.</translation>
    </message>
    <message id="IDS_CHANGE_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Uma senha tem de 1 a 32 letras sem acento nem cedilha, dígitos ou símbolos. A unidade permite qualquer número de tentativas na primeira, então torne-a difícil de adivinhar. Uma senha esquecida não pode ser recuperada.</translation>
    </message>
    <message id="IDS_CHANGE_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Número de senhas</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>&amp;Só a primeira senha</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>Primeira &amp;e segunda senhas</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_GROUP">
        <source>First password</source>
        <translation>Primeira senha</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_CURRENT">
        <source>&amp;Current:</source>
        <extracomment>The current first password</extracomment>
        <translation>At&amp;ual:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_NEW">
        <source>&amp;New:</source>
        <extracomment>The new first password</extracomment>
        <translation>No&amp;va:</translation>
    </message>
    <message id="IDS_CHANGE_FIRST_AGAIN">
        <source>New a&amp;gain:</source>
        <extracomment>The new first password again</extracomment>
        <translation>Repetir a &amp;nova:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_GROUP">
        <source>Second password</source>
        <translation>Segunda senha</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_CURRENT">
        <source>C&amp;urrent:</source>
        <translation>A&amp;tual:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_NEW">
        <source>N&amp;ew:</source>
        <translation>N&amp;ova:</translation>
    </message>
    <message id="IDS_CHANGE_SECOND_AGAIN">
        <source>New aga&amp;in:</source>
        <translation>&amp;Repetir a nova:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES">
        <source>&amp;Tries allowed:</source>
        <extracomment>How often a wrong second password may be entered</extracomment>
        <translation>Tentativas &amp;permitidas:</translation>
    </message>
    <message id="IDS_CHANGE_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_CHANGE_CANCEL">
        <source>Cance&amp;l</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_CHANGE_OK">
        <source>O&amp;K</source>
        <translation>O&amp;K</translation>
    </message>
    <message id="IDS_PASSWORDS_TITLE">
        <source>ZELTO DISK: Passwords</source>
        <translation>ZELTO DISK: senhas</translation>
    </message>
    <message id="IDS_PASSWORDS_HEADING">
        <source>Choose the passwords of the secure area.</source>
        <translation>Escolha as senhas da área segura.</translation>
    </message>
    <message id="IDS_PASSWORDS_EXPLANATION">
        <source>A password has 1 to 32 letters, digits or signs, without accents. The drive allows any number of tries at the first one, so make it hard to guess. A forgotten password can not be recovered.</source>
        <translation>Uma senha tem de 1 a 32 letras sem acento nem cedilha, dígitos ou símbolos. A unidade permite qualquer número de tentativas na primeira, então torne-a difícil de adivinhar. Uma senha esquecida não pode ser recuperada.</translation>
    </message>
    <message id="IDS_PASSWORDS_NUMBER_NAME">
        <source>Number of passwords</source>
        <translation>Número de senhas</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_ONLY">
        <source>First password &amp;only</source>
        <translation>&amp;Só a primeira senha</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AND_SECOND">
        <source>First &amp;and second password</source>
        <translation>&amp;Primeira e segunda senhas</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_GROUP">
        <source>First password</source>
        <translation>Primeira senha</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST">
        <source>&amp;Password:</source>
        <translation>Sen&amp;ha:</translation>
    </message>
    <message id="IDS_PASSWORDS_FIRST_AGAIN">
        <source>A&amp;gain:</source>
        <extracomment>The password again</extracomment>
        <translation>R&amp;epetir:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_GROUP">
        <source>Second password</source>
        <translation>Segunda senha</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND">
        <source>Pass&amp;word:</source>
        <translation>Se&amp;nha:</translation>
    </message>
    <message id="IDS_PASSWORDS_SECOND_AGAIN">
        <source>Aga&amp;in:</source>
        <translation>&amp;Repetir:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES">
        <source>&amp;Tries allowed:</source>
        <translation>&amp;Tentativas permitidas:</translation>
    </message>
    <message id="IDS_PASSWORDS_TRIES_PLACEHOLDER">
        <source>1–99</source>
        <translation>1–99</translation>
    </message>
    <message id="IDS_PASSWORDS_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
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
        <translation>Qual unidade você quer usar?</translation>
    </message>
    <message id="IDS_SELECT_EXPLANATION">
        <source>These drives are plugged in. For one that is missing, start the program again.</source>
        <translation>Estas unidades estão conectadas. Se faltar alguma, inicie o programa novamente.</translation>
    </message>
    <message id="IDS_SELECT_DRIVE">
        <source>&amp;Drive:</source>
        <extracomment>The USB drive as a whole: a list follows</extracomment>
        <translation>&amp;Unidade:</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN">
        <source>&amp;Look Again</source>
        <translation>&amp;Procurar de novo</translation>
    </message>
    <message id="IDS_SELECT_LOOK_AGAIN_DESCRIPTION">
        <source>Looks again for drives that were plugged in meanwhile</source>
        <translation>Procura de novo unidades conectadas nesse meio-tempo</translation>
    </message>
    <message id="IDS_SELECT_CANCEL">
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="IDS_SELECT_OK">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="IDS_UNLOCKED_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: desbloqueada</translation>
    </message>
    <message id="IDS_UNLOCKED_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Sua unidade está desbloqueada.</translation>
    </message>
    <message id="IDS_UNLOCKED_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off before you unplug the drive or leave the computer.</source>
        <translation>A área segura está aberta e aparece ao lado dos seus outros discos. Uma nova está vazia: formate-a uma vez. Saia da unidade antes de desconectá-la ou deixar o computador.</translation>
    </message>
    <message id="IDS_UNLOCKED_SETTINGS">
        <source>&amp;Settings…</source>
        <extracomment>Opens the settings of the drive</extracomment>
        <translation>&amp;Configurações…</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF">
        <source>&amp;Log Off</source>
        <extracomment>Of the drive, not of the computer’s session</extracomment>
        <translation>&amp;Sair da unidade</translation>
    </message>
    <message id="IDS_UNLOCKED_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Bloqueia a unidade e fecha o programa</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>&amp;Manter desbloqueada e fechar</translation>
    </message>
    <message id="IDS_UNLOCKED_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Fecha o programa; a unidade continua desbloqueada</translation>
    </message>
    <message id="IDS_UNLOCKING_TITLE">
        <source>ZELTO DISK: Unlocked</source>
        <translation>ZELTO DISK: desbloqueada</translation>
    </message>
    <message id="IDS_UNLOCKING_HEADING">
        <source>Your drive is unlocked.</source>
        <translation>Sua unidade está desbloqueada.</translation>
    </message>
    <message id="IDS_UNLOCKING_EXPLANATION">
        <source>The secure area is open and appears beside your other disks. A new one is blank: format it once. Log off to lock it again, or keep it unlocked and go on working with it.</source>
        <translation>A área segura está aberta e aparece ao lado dos seus outros discos. Uma nova está vazia: formate-a uma vez. Saia da unidade para bloqueá-la de novo, ou mantenha-a desbloqueada e continue a usá-la.</translation>
    </message>
    <message id="IDS_UNLOCKING_SETTINGS">
        <source>&amp;Settings…</source>
        <translation>&amp;Configurações…</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP">
        <source>&amp;Keep Unlocked and Close</source>
        <translation>&amp;Manter desbloqueada e fechar</translation>
    </message>
    <message id="IDS_UNLOCKING_KEEP_DESCRIPTION">
        <source>Closes the program; the drive stays unlocked</source>
        <translation>Fecha o programa; a unidade continua desbloqueada</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF">
        <source>&amp;Log Off</source>
        <translation>&amp;Sair da unidade</translation>
    </message>
    <message id="IDS_UNLOCKING_LOG_OFF_DESCRIPTION">
        <source>Locks the drive and closes the program</source>
        <translation>Bloqueia a unidade e fecha o programa</translation>
    </message>
    <message id="IDS_SETUP_TITLE">
        <source>ZELTO DISK: Setting Up</source>
        <translation>ZELTO DISK: configuração inicial</translation>
    </message>
    <message id="IDS_SETUP_HEADING">
        <source>Your drive is being set up.</source>
        <translation>Sua unidade está sendo configurada.</translation>
    </message>
    <message id="IDS_SETUP_EXPLANATION">
        <source>This takes about a minute. Leave the drive plugged in until it is finished.</source>
        <translation>Isso leva cerca de um minuto. Deixe a unidade conectada até terminar.</translation>
    </message>
    <message id="IDS_SETUP_STEPS_NAME">
        <source>Steps of the set-up</source>
        <translation>Etapas da configuração</translation>
    </message>
    <message id="IDS_SETUP_PROGRESS_NAME">
        <source>Progress of the set-up</source>
        <translation>Progresso da configuração</translation>
    </message>
    <message id="IDS_SETUP_FINISH">
        <source>&amp;Finish</source>
        <translation>&amp;Concluir</translation>
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
        <translation>área normal</translation>
    </message>
    <message id="IDS_BAR_SECURE">
        <source>secure area</source>
        <translation>área segura</translation>
    </message>
    <message id="IDS_BAR_TOOL">
        <source>tool area</source>
        <extracomment>The small area that carries this program</extracomment>
        <translation>área de ferramentas</translation>
    </message>
    <message id="IDS_BAR_FREE">
        <source>not used</source>
        <extracomment>Of a part of the drive</extracomment>
        <translation>não usado</translation>
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
        <translation>juntas, mais do que a unidade comporta</translation>
    </message>
    <message id="IDS_LIST_SEPARATOR">
        <source>, </source>
        <extracomment>Between the names of programs</extracomment>
        <translation>, </translation>
    </message>
    <message id="IDS_TABLE_AREA">
        <source>Area</source>
        <extracomment>Head of a column: Disk1, Disk2, Disk3</extracomment>
        <translation>Área</translation>
    </message>
    <message id="IDS_TABLE_KIND">
        <source>Kind</source>
        <extracomment>Head of a column: normal or secure</extracomment>
        <translation>Tipo</translation>
    </message>
    <message id="IDS_TABLE_CAPACITY">
        <source>Capacity</source>
        <extracomment>Head of a column</extracomment>
        <translation>Capacidade</translation>
    </message>
    <message id="IDS_STEP_SETTINGS">
        <source>The settings are on the drive</source>
        <extracomment>One step of the set-up; done or under way</extracomment>
        <translation>As configurações estão na unidade</translation>
    </message>
    <message id="IDS_STEP_RESTART">
        <source>The drive starts anew</source>
        <translation>A unidade reinicia</translation>
    </message>
    <message id="IDS_STEP_TOOL_AREA">
        <source>The tool area appears</source>
        <translation>A área de ferramentas aparece</translation>
    </message>
    <message id="IDS_STEP_COPY">
        <source>The tool area is formatted and this program copied</source>
        <translation>A área de ferramentas é formatada e este programa, copiado</translation>
    </message>
    <message id="IDS_STEP_FINISHED">
        <source>Finished</source>
        <translation>Concluído</translation>
    </message>
    <message id="IDS_STEP_CURRENT">
        <source>Step %1 of %2: %3</source>
        <extracomment>Read aloud; %3 is one of the steps</extracomment>
        <translation>Etapa %1 de %2: %3</translation>
    </message>
    <message id="IDS_STEP_FAILED">
        <source>Step %1 of %2 failed: %3</source>
        <translation>A etapa %1 de %2 falhou: %3</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_MATCH">
        <source>The two entries match.</source>
        <translation>As duas entradas são iguais.</translation>
    </message>
    <message id="IDS_FIELD_ENTRIES_DIFFER">
        <source>The two entries differ.</source>
        <translation>As duas entradas são diferentes.</translation>
    </message>
    <message id="IDS_FIELD_DIGITS">
        <source>%1 of 128 digits</source>
        <translation>%1 de 128 dígitos</translation>
    </message>
    <message id="IDS_FIELD_DIGITS_ODD">
        <source>%1 of 128 digits, one is missing</source>
        <extracomment>Two digits make a byte; the number is odd</extracomment>
        <translation>%1 de 128 dígitos, falta um</translation>
    </message>
    <message id="IDS_FIELD_REVEAL">
        <source>Show the password</source>
        <extracomment>Of a button that stays pressed while the password is shown</extracomment>
        <translation>Mostrar a senha</translation>
    </message>
    <message id="IDS_FIELD_CAPS_LOCK">
        <source>Caps Lock is on</source>
        <extracomment>The key as it is called in the language</extracomment>
        <translation>O Caps Lock está ativado</translation>
    </message>
    <message id="IDS_FIELD_PASTE">
        <source>&amp;Paste</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>&amp;Colar</translation>
    </message>
    <message id="IDS_FIELD_SELECT_ALL">
        <source>Select &amp;All</source>
        <extracomment>In the menu of a field</extracomment>
        <translation>&amp;Selecionar tudo</translation>
    </message>
    <message id="IDS_AWAKE_SETUP">
        <source>The drive is being set up</source>
        <extracomment>Why the computer does not go to sleep now, shown by the desktop</extracomment>
        <translation>A unidade está sendo configurada</translation>
    </message>
    <message id="IDS_AWAKE_PASSWORDS">
        <source>The passwords are being changed</source>
        <extracomment>Why the computer does not go to sleep now</extracomment>
        <translation>As senhas estão sendo alteradas</translation>
    </message>
    <message id="IDS_AWAKE_RELEASE">
        <source>The drive’s volumes are being released</source>
        <extracomment>Why the computer does not go to sleep now; volumes are unmounted</extracomment>
        <translation>Os volumes da unidade estão sendo desmontados</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED">
        <source>The drive is locked. It can be unplugged.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>A unidade está bloqueada. Ela pode ser desconectada.</translation>
    </message>
    <message id="IDS_NOTICE_LOCKED_IN_USE">
        <source>The drive is locked. Eject its other volumes before you unplug it.</source>
        <extracomment>A notification on the desktop after the program has closed; the drive’s normal areas are still mounted</extracomment>
        <translation>A unidade está bloqueada. Ejete os outros volumes dela antes de desconectá-la.</translation>
    </message>
    <message id="IDS_NOTICE_STILL_UNLOCKED">
        <source>The drive is still unlocked. To lock it, start this program again.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>A unidade continua desbloqueada. Para bloqueá-la, inicie este programa de novo.</translation>
    </message>
    <message id="IDS_NOTICE_SETTINGS_CHANGED">
        <source>The drive’s settings have been changed.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>As configurações da unidade foram alteradas.</translation>
    </message>
    <message id="IDS_NOTICE_CLEARED">
        <source>Everything on the drive has been cleared. Unplug it, plug it in again, then start this program to set it up again.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>Tudo na unidade foi limpo. Desconecte-a e reconecte-a; depois, inicie este programa para configurá-la de novo.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP">
        <source>The drive is set up. Format each area once before you use it.</source>
        <extracomment>A notification on the desktop after the program has closed</extracomment>
        <translation>A unidade está configurada. Formate cada área uma vez antes de usá-la.</translation>
    </message>
    <message id="IDS_NOTICE_SET_UP_WITHOUT_TOOL">
        <source>The drive is set up and can be used. Only this program could not be copied to its tool area: use the drive with the program on this computer.</source>
        <extracomment>A notification that stays, after the program has closed</extracomment>
        <translation>A unidade está configurada e pode ser usada. Apenas este programa não pôde ser copiado para a área de ferramentas: use a unidade com o programa deste computador.</translation>
    </message>
    <message id="IDS_RULE_TITLE">
        <source>ZELTO DISK: Device Rule</source>
        <translation>ZELTO DISK: regra de dispositivo</translation>
    </message>
    <message id="IDS_RULE_HEADING">
        <source>Let this computer’s users use the drive.</source>
        <translation>Permita que os usuários deste computador usem a unidade.</translation>
    </message>
    <message id="IDS_RULE_EXPLANATION">
        <source>An administrator enters this &amp;command in a terminal. It adds the device rule that it holds. Then plug the drive in again.</source>
        <translation>&amp;Um administrador digita este comando em um terminal. Ele adiciona a regra de dispositivo que contém. Depois, reconecte a unidade.</translation>
    </message>
    <message id="IDS_RULE_CLOSE">
        <source>C&amp;lose</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message id="IDS_RULE_COPY">
        <source>Co&amp;py Command</source>
        <translation>&amp;Copiar comando</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE">
        <source>Show &amp;Rule…</source>
        <translation>&amp;Mostrar regra…</translation>
    </message>
    <message id="IDS_SELECT_SHOW_RULE_DESCRIPTION">
        <source>Shows the device rule and the command that adds it to this computer</source>
        <translation>Mostra a regra de dispositivo e o comando que a adiciona a este computador</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL">
        <source>Serial number: %1</source>
        <translation>Número de série: %1</translation>
    </message>
    <message id="IDS_DRIVE_SERIAL_AND_PORT">
        <source>Serial number: %1, in USB port %2</source>
        <translation>Número de série: %1, na porta USB %2</translation>
    </message>
    <message id="IDS_DRIVE_PORT">
        <source>No serial number, in USB port %1</source>
        <translation>Sem número de série, na porta USB %1</translation>
    </message>
    <message id="IDS_STRENGTH_WEAK">
        <source>Strength: weak</source>
        <extracomment>Of a new password; a bar of four parts stands before it</extracomment>
        <translation>Força: fraca</translation>
    </message>
    <message id="IDS_STRENGTH_FAIR">
        <source>Strength: fair</source>
        <translation>Força: razoável</translation>
    </message>
    <message id="IDS_STRENGTH_GOOD">
        <source>Strength: good</source>
        <translation>Força: boa</translation>
    </message>
    <message id="IDS_STRENGTH_STRONG">
        <source>Strength: strong</source>
        <translation>Força: forte</translation>
    </message>
    <message id="IDS_HELP_BUTTON">
        <source>&amp;Help</source>
        <extracomment>In every window; no other button there may have its underlined letter</extracomment>
        <translation>&amp;Ajuda</translation>
    </message>
    <message id="IDS_HELP_DESCRIPTION">
        <source>Opens the manual’s page about this window (F1). This is version %1 of the program.</source>
        <translation>Abre a página do manual sobre esta janela (F1). Esta é a versão %1 do programa.</translation>
    </message>
    <message id="IDS_HINT_NO_MANUAL">
        <source>The manual could not be opened: it was not found beside the program, or this computer has nothing to show it with.</source>
        <translation>Não foi possível abrir o manual: ele não está junto do programa, ou este computador não tem com que mostrá-lo.</translation>
    </message>
    <message id="IDS_HINT_VERSION">
        <source>Version %1 of the program.</source>
        <extracomment>Below messages that support is asked about</extracomment>
        <translation>Versão %1 do programa.</translation>
    </message>
    <message id="IDS_ALERT_INFORMATION">
        <source>Information</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Informação</translation>
    </message>
    <message id="IDS_ALERT_WARNING">
        <source>Warning</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Aviso</translation>
    </message>
    <message id="IDS_ALERT_CRITICAL">
        <source>Loss of data</source>
        <extracomment>Heard for the sign of an alert, before its text</extracomment>
        <translation>Perda de dados</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_VOLUME">
        <source>The program on this volume is damaged. Use the drive with the program that is installed on a computer; no file has to be erased.</source>
        <extracomment>The starter’s message; the program does not start</extracomment>
        <translation>O programa neste volume está danificado. Use a unidade com o programa instalado em um computador; não é preciso apagar nenhum arquivo.</translation>
    </message>
    <message id="IDS_STARTER_DAMAGED_COPY">
        <source>This copy of the program is damaged. Start it from the drive once more to replace it.</source>
        <extracomment>The starter’s message about a copy of the program on the computer</extracomment>
        <translation>Esta cópia do programa está danificada. Inicie-o mais uma vez a partir da unidade para substituir a cópia.</translation>
    </message>
    <message id="IDS_STARTER_OTHER_MACHINE">
        <source>This program is made for %1 computers; this one is %2.</source>
        <extracomment>The starter’s message; %1 and %2 are kinds of processors, x86_64 say</extracomment>
        <translation>Este programa é para computadores %1; este computador é %2.</translation>
    </message>
    <message id="IDS_STARTER_NOT_FOUND">
        <source>%1 cannot be found.</source>
        <extracomment>The starter’s message; %1 is the name of a file</extracomment>
        <translation>Não foi possível encontrar %1.</translation>
    </message>
    <message id="IDS_STARTER_NO_ROOM">
        <source>The program cannot be unpacked: neither the home folder nor /tmp has room for it.</source>
        <extracomment>The starter’s message; /tmp is a folder</extracomment>
        <translation>Não é possível descompactar o programa: não há espaço para ele nem na pasta pessoal nem em /tmp.</translation>
    </message>
    <message id="IDS_STARTER_LACKS">
        <source>This system lacks something that the program needs: %1</source>
        <extracomment>The starter’s message; %1 is what the system says of it, in English</extracomment>
        <translation>Falta neste sistema algo de que o programa precisa: %1</translation>
    </message>
</context>
</TS>
