<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AIPrompt</name>
    <message>
        <source>runs `%1` (permanent)</source>
        <extracomment>AI prompt: how a tool removes a row, after &quot;How Dustlark would remove it: &quot;. Keep the backticks; %1 is the command line</extracomment>
        <translation>führt `%1` aus (endgültig)</translation>
    </message>
    <message numerus="yes">
        <source>runs `%1` after `docker rm` of %n stopped containers (permanent)</source>
        <extracomment>AI prompt: how Docker removes an image that stopped containers hold. Keep the backticks; %1 is the command line; %n is the number of containers</extracomment>
        <translation>
            <numerusform>führt `%1` aus, nachdem `docker rm` %n gestoppten Container entfernt hat (endgültig)</numerusform>
            <numerusform>führt `%1` aus, nachdem `docker rm` %n gestoppte Container entfernt hat (endgültig)</numerusform>
        </translation>
    </message>
    <message>
        <source>Dustlark category: %1. %2</source>
        <extracomment>AI prompt line. Placeholders: category title; its explanation</extracomment>
        <translation>Dustlark-Kategorie: %1. %2</translation>
    </message>
    <message>
        <source>Mac: %1</source>
        <extracomment>AI prompt line. %1 names the system version and the processor</extracomment>
        <translation>Mac: %1</translation>
    </message>
    <message>
        <source>Answer in %1.</source>
        <extracomment>AI prompt line for a person whose language the app has no translation for. %1 is that language&apos;s name</extracomment>
        <translation>Antworte auf %1.</translation>
    </message>
    <message>
        <source>Answer in English.</source>
        <extracomment>AI prompt&apos;s last line. Translators: write this sentence naming your own language, e.g. &quot;Réponds en français.&quot;</extracomment>
        <translation>Antworte auf Deutsch.</translation>
    </message>
    <message>
        <source>Item: %1</source>
        <extracomment>AI prompt line for a row without a tag. Placeholder: item name</extracomment>
        <translation>Objekt: %1</translation>
    </message>
    <message>
        <source>Item: %1 (%2)</source>
        <extracomment>AI prompt line. Placeholders: item name; its tag</extracomment>
        <translation>Objekt: %1 (%2)</translation>
    </message>
    <message>
        <source>Paths:</source>
        <extracomment>AI prompt: heading of the row&apos;s paths, listed one per line below it</extracomment>
        <translation>Pfade:</translation>
    </message>
    <message>
        <source>Largest contents:</source>
        <extracomment>AI prompt: heading of a folder&apos;s largest entries, listed one per line below it</extracomment>
        <translation>Größte Inhalte:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>AI prompt: one entry of a folder. Placeholders: its name; its size on disk</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more entries</source>
        <extracomment>AI prompt: the entries of a folder left out of the list. %n is their number</extracomment>
        <translation>
            <numerusform>%n weiterer Eintrag</numerusform>
            <numerusform>%n weitere Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>Dustlark&apos;s note: %1</source>
        <extracomment>AI prompt line. Placeholder: the row&apos;s detail line</extracomment>
        <translation>Hinweis von Dustlark: %1</translation>
    </message>
    <message>
        <source>Dustlark&apos;s safety hint: %1</source>
        <extracomment>AI prompt line. Placeholder: the safety label (&quot;Safe&quot;, &quot;Ask AI&quot; or &quot;Risky&quot;)</extracomment>
        <translation>Sicherheitshinweis von Dustlark: %1</translation>
    </message>
    <message>
        <source>Size on disk: %1</source>
        <extracomment>AI prompt line. Placeholder: the size on disk</extracomment>
        <translation>Größe auf dem Datenträger: %1</translation>
    </message>
    <message>
        <source>Last changed or used: %1</source>
        <extracomment>AI prompt line. Placeholder: the date and time the row was last changed or used</extracomment>
        <translation>Zuletzt geändert oder benutzt: %1</translation>
    </message>
    <message>
        <source>How Dustlark would remove it: %1</source>
        <extracomment>AI prompt line. Placeholder: how the row goes, e.g. &quot;moves it to the Trash (…)&quot;</extracomment>
        <translation>So würde Dustlark es entfernen: %1</translation>
    </message>
    <message>
        <source>Please tell me:</source>
        <extracomment>AI prompt: heading of the four questions</extracomment>
        <translation>Bitte sag mir:</translation>
    </message>
    <message>
        <source>1. What this is and which app or tool uses it.</source>
        <extracomment>AI prompt question</extracomment>
        <translation>1. Was das ist und welche App oder welches Werkzeug es benutzt.</translation>
    </message>
    <message>
        <source>2. What breaks or is lost if I remove it, and whether it comes back on its own.</source>
        <extracomment>AI prompt question</extracomment>
        <translation>2. Was kaputtgeht oder verloren ist, wenn ich es entferne, und ob es von selbst wiederkommt.</translation>
    </message>
    <message>
        <source>3. How I could restore it if I need it later.</source>
        <extracomment>AI prompt question</extracomment>
        <translation>3. Wie ich es wiederherstellen könnte, falls ich es später brauche.</translation>
    </message>
    <message>
        <source>4. Your recommendation: remove, keep, or check something first (say exactly what to check).</source>
        <extracomment>AI prompt question</extracomment>
        <translation>4. Deine Empfehlung: entfernen, behalten oder erst etwas prüfen (sag genau, was zu prüfen ist).</translation>
    </message>
    <message>
        <source>Removal: everything goes to the Trash (it can be put back until the Trash is emptied).</source>
        <extracomment>AI prompt line about a list of rows that all go to the Trash</extracomment>
        <translation>Entfernen: Alles kommt in den Papierkorb (es lässt sich zurücklegen, bis der Papierkorb entleert wird).</translation>
    </message>
    <message>
        <source>Removal: some items are removed permanently by their tool.</source>
        <extracomment>AI prompt line about a list of rows some of which a tool removes for good</extracomment>
        <translation>Entfernen: Einige Objekte werden von ihrem Werkzeug endgültig entfernt.</translation>
    </message>
    <message>
        <source>%1. %2 — %3 — %4</source>
        <extracomment>AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size</extracomment>
        <translation>%1. %2 — %3 — %4</translation>
    </message>
    <message>
        <source>%1. %2 — %3 — %4 — %5</source>
        <extracomment>AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size; its paths joined by &quot;; &quot;</extracomment>
        <translation>%1. %2 — %3 — %4 — %5</translation>
    </message>
    <message>
        <source>(%1 more not listed)</source>
        <extracomment>AI prompt: the rows left out of a long list. %1 is their number</extracomment>
        <translation>(%1 weitere nicht aufgeführt)</translation>
    </message>
    <message>
        <source>empties the Trash (permanent)</source>
        <extracomment>AI prompt: how emptying the Trash works, after &quot;How Dustlark would remove it: &quot;</extracomment>
        <translation>entleert den Papierkorb (endgültig)</translation>
    </message>
    <message>
        <source>moves it to the Trash (it can be put back until the Trash is emptied)</source>
        <extracomment>AI prompt: how a row goes to the Trash, after &quot;How Dustlark would remove it: &quot;</extracomment>
        <translation>legt es in den Papierkorb (es lässt sich zurücklegen, bis der Papierkorb entleert wird)</translation>
    </message>
    <message>
        <source>I&apos;m cleaning up my Mac with Dustlark and want to know whether it&apos;s safe to remove this item.</source>
        <extracomment>AI prompt&apos;s first line, about one row</extracomment>
        <translation>Ich räume meinen Mac mit Dustlark auf und möchte wissen, ob ich dieses Objekt gefahrlos entfernen kann.</translation>
    </message>
    <message>
        <source>I&apos;m cleaning up my Mac with Dustlark. For each item below, tell me whether it&apos;s safe to remove.</source>
        <extracomment>AI prompt&apos;s first line, about a list of rows</extracomment>
        <translation>Ich räume meinen Mac mit Dustlark auf. Sag mir zu jedem Objekt unten, ob ich es gefahrlos entfernen kann.</translation>
    </message>
    <message>
        <source>Answer as a table: number, item, verdict (Remove / Keep / Check), and one short reason. For Check, say exactly what to check (for example, whether saved passwords are synced elsewhere). Then list the numbers to remove.</source>
        <extracomment>AI prompt: what the answer about a list of rows should look like</extracomment>
        <translation>Antworte als Tabelle: Nummer, Objekt, Urteil (Entfernen / Behalten / Prüfen) und ein kurzer Grund. Bei „Prüfen“ sag genau, was zu prüfen ist (zum Beispiel, ob gespeicherte Passwörter anderswo synchronisiert sind). Liste danach die Nummern auf, die entfernt werden sollen.</translation>
    </message>
    <message>
        <source>Computer: %1</source>
        <extracomment>AI prompt line on Linux. %1 names the distribution and the processor, e.g. &quot;Debian GNU/Linux 12 on Intel Core i5&quot;</extracomment>
        <translation>Computer: %1</translation>
    </message>
    <message>
        <source>I&apos;m cleaning up my Linux computer with Dustlark and want to know whether it&apos;s safe to remove this item.</source>
        <extracomment>AI prompt&apos;s first line, about one row, on Linux</extracomment>
        <translation>Ich räume meinen Linux-Computer mit Dustlark auf und möchte wissen, ob ich dieses Element gefahrlos entfernen kann.</translation>
    </message>
    <message>
        <source>I&apos;m cleaning up my Linux computer with Dustlark. For each item below, tell me whether it&apos;s safe to remove.</source>
        <extracomment>AI prompt&apos;s first line, about a list of rows, on Linux</extracomment>
        <translation>Ich räume meinen Linux-Computer mit Dustlark auf. Sag mir zu jedem Element unten, ob ich es gefahrlos entfernen kann.</translation>
    </message>
</context>
<context>
    <name>AIQuestions</name>
    <message>
        <source>Question copied. Paste it into your AI assistant.</source>
        <extracomment>Toast after the question for an AI assistant was copied to the clipboard</extracomment>
        <translation>Frage kopiert. Füge sie in deinen KI-Assistenten ein.</translation>
    </message>
</context>
<context>
    <name>AboutPage</name>
    <message>
        <source>Version %1 (%2)</source>
        <extracomment>Version line of the About screen; %1 is the version (1.4), %2 the build number (140)</extracomment>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>A scan only reads. You choose what goes to the Trash.</source>
        <extracomment>The app&apos;s promise, on the overview and the About screen</extracomment>
        <translation>Ein Scan liest nur. Du entscheidest, was in den Papierkorb kommt.</translation>
    </message>
    <message>
        <source>Updates</source>
        <extracomment>Heading of the update check on the About screen</extracomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 3</source>
        <extracomment>Licence of Qt on the About screen</extracomment>
        <translation>GNU Lesser General Public License, Version 3</translation>
    </message>
    <message>
        <source>Apache License, version 2.0</source>
        <extracomment>Licence of OpenSSL on the About screen</extracomment>
        <translation>Apache License, Version 2.0</translation>
    </message>
    <message>
        <source>GNU Lesser General Public License, version 2.1</source>
        <extracomment>Licence of libplist on the About screen</extracomment>
        <translation>GNU Lesser General Public License, Version 2.1</translation>
    </message>
    <message>
        <source>Libraries and Licences</source>
        <extracomment>Heading of the licences of the libraries Dustlark ships</extracomment>
        <translation>Bibliotheken und Lizenzen</translation>
    </message>
    <message>
        <source>Dustlark is built with these libraries and ships them under their licences. The LGPL libraries are linked so that they can be replaced by your own build.</source>
        <extracomment>Note above the licences on the About screen</extracomment>
        <translation>Dustlark ist mit diesen Bibliotheken gebaut und liefert sie unter ihren Lizenzen aus. Die LGPL-Bibliotheken sind so gelinkt, dass du sie durch einen eigenen Build ersetzen kannst.</translation>
    </message>
    <message>
        <source>Show Licence</source>
        <extracomment>Button that shows the full text of a library&apos;s licence</extracomment>
        <translation>Lizenz anzeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the window of a licence&apos;s text</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AgentsScanner</name>
    <message>
        <source>last changed %1</source>
        <extracomment>Fact in the detail line of an AI agents row; %1 is a relative date like &quot;3 days ago&quot;</extracomment>
        <translation>zuletzt geändert %1</translation>
    </message>
    <message>
        <source>Claude app scratch</source>
        <extracomment>Name of the project of Claude desktop&apos;s scratch sessions, shown in a Claude Code sessions row</extracomment>
        <translation>Claude-App-Entwürfe</translation>
    </message>
    <message>
        <source>Claude sandbox status</source>
        <extracomment>Name of the project of Claude&apos;s sandbox status sessions, shown in a Claude Code sessions row</extracomment>
        <translation>Claude-Sandbox-Status</translation>
    </message>
    <message>
        <source>%1 data · %2</source>
        <extracomment>Row title of a data folder of an AI agent that is not installed; %1 is the agent, %2 the folder</extracomment>
        <translation>Daten von %1 · %2</translation>
    </message>
    <message>
        <source>%1 isn&apos;t installed; its chats, settings and caches are here</source>
        <extracomment>Note of a data folder of an AI agent that is not installed; %1 is the agent</extracomment>
        <translation>%1 ist nicht installiert; hier liegen seine Chats, Einstellungen und Caches</translation>
    </message>
    <message>
        <source>Claude virtual machine image</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Claude-VM-Image</translation>
    </message>
    <message>
        <source>Used by Claude&apos;s agent mode; downloaded again the next time it&apos;s needed</source>
        <extracomment>Note of the Claude virtual machine image row</extracomment>
        <translation>Wird vom Agentenmodus von Claude benutzt; beim nächsten Bedarf erneut geladen</translation>
    </message>
    <message>
        <source>Claude Code sessions · %1</source>
        <extracomment>Row title of one project&apos;s Claude Code sessions; %1 is the project, like ~/code/app</extracomment>
        <translation>Claude-Code-Sitzungen · %1</translation>
    </message>
    <message>
        <source>Session history /resume uses</source>
        <extracomment>Note of a Claude Code sessions row; /resume is a command and stays as it is</extracomment>
        <translation>Sitzungsverlauf, den /resume benutzt</translation>
    </message>
    <message>
        <source>Codex sessions · %1-%2</source>
        <extracomment>Row title of one month of Codex sessions; %1 is the year, %2 the month number</extracomment>
        <translation>Codex-Sitzungen · %1-%2</translation>
    </message>
    <message>
        <source>Session history `codex resume` uses</source>
        <extracomment>Note of a Codex sessions row; the command stays as it is</extracomment>
        <translation>Sitzungsverlauf, den `codex resume` benutzt</translation>
    </message>
    <message>
        <source>Codex archived sessions</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Archivierte Codex-Sitzungen</translation>
    </message>
    <message>
        <source>Sessions you archived</source>
        <extracomment>Note of the Codex archived sessions row</extracomment>
        <translation>Sitzungen, die du archiviert hast</translation>
    </message>
    <message>
        <source>Codex migration backups</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Codex-Migrationsbackups</translation>
    </message>
    <message>
        <source>Copies Codex made while migrating its data</source>
        <extracomment>Note of the Codex migration backups row</extracomment>
        <translation>Kopien, die Codex beim Migrieren seiner Daten angelegt hat</translation>
    </message>
    <message numerus="yes">
        <source>Codex backup files (%n)</source>
        <extracomment>Row title in the AI agents list; %n is the number of backup files</extracomment>
        <translation>
            <numerusform>Codex-Backupdateien (%n)</numerusform>
            <numerusform>Codex-Backupdateien (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Old copies of Codex&apos;s databases and settings (*.bak)</source>
        <extracomment>Note of the Codex backup files row</extracomment>
        <translation>Alte Kopien der Datenbanken und Einstellungen von Codex (*.bak)</translation>
    </message>
    <message>
        <source>Cursor state backup</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Cursor-Status-Backup</translation>
    </message>
    <message>
        <source>One-time backup of Cursor&apos;s state database (chat history lives in the live copy)</source>
        <extracomment>Note of the Cursor state backup row</extracomment>
        <translation>Einmaliges Backup der Statusdatenbank von Cursor (der Chatverlauf liegt in der aktiven Kopie)</translation>
    </message>
    <message>
        <source>Cursor agent chats</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Cursor-Agent-Chats</translation>
    </message>
    <message>
        <source>Saved chats of Cursor&apos;s agent</source>
        <extracomment>Note of the Cursor agent chats row</extracomment>
        <translation>Gespeicherte Chats des Cursor-Agenten</translation>
    </message>
    <message>
        <source>Chat history and checkpoints; resuming and restoring use them</source>
        <extracomment>Note of the Gemini CLI and Qwen Code temporary files rows</extracomment>
        <translation>Chatverlauf und Checkpoints; Fortsetzen und Wiederherstellen brauchen sie</translation>
    </message>
    <message>
        <source>Antigravity backup</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Antigravity-Backup</translation>
    </message>
    <message>
        <source>A backup copy of Antigravity&apos;s data</source>
        <extracomment>Note of the Antigravity backup row</extracomment>
        <translation>Eine Sicherungskopie der Daten von Antigravity</translation>
    </message>
    <message>
        <source>Antigravity browser profile</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Antigravity-Browserprofil</translation>
    </message>
    <message>
        <source>The browser profile the agent uses; may hold sign-ins</source>
        <extracomment>Note of the Antigravity browser profile row</extracomment>
        <translation>Das Browserprofil, das der Agent benutzt; kann Anmeldungen enthalten</translation>
    </message>
    <message>
        <source>Gemini CLI temporary files</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Temporäre Dateien von Gemini CLI</translation>
    </message>
    <message>
        <source>Qwen Code temporary files</source>
        <extracomment>Row title in the AI agents list</extracomment>
        <translation>Temporäre Dateien von Qwen Code</translation>
    </message>
    <message numerus="yes">
        <source>%1 state of deleted projects (%n)</source>
        <extracomment>Row title in the AI agents list; %1 is an editor, %n the number of folders</extracomment>
        <translation>
            <numerusform>%1: Status gelöschter Projekte (%n)</numerusform>
            <numerusform>%1: Status gelöschter Projekte (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Saved editor state of folders that no longer exist</source>
        <extracomment>Note of an editor&apos;s state of deleted projects row</extracomment>
        <translation>Gespeicherter Editorstatus von Ordnern, die es nicht mehr gibt</translation>
    </message>
    <message numerus="yes">
        <source>%1 old extension versions (%n)</source>
        <extracomment>Row title in the AI agents list; %1 is an editor, %n the number of extension folders</extracomment>
        <translation>
            <numerusform>%1: alte Erweiterungsversionen (%n)</numerusform>
            <numerusform>%1: alte Erweiterungsversionen (%n)</numerusform>
        </translation>
    </message>
    <message>
        <source>Older copies kept after extensions updated</source>
        <extracomment>Note of an editor&apos;s old extension versions row</extracomment>
        <translation>Ältere Kopien, die nach dem Aktualisieren von Erweiterungen geblieben sind</translation>
    </message>
    <message>
        <source>%1 task history in %2</source>
        <extracomment>Row title in the AI agents list; %1 is an agent extension like Cline, %2 the editor it runs in</extracomment>
        <translation>Aufgabenverlauf von %1 in %2</translation>
    </message>
    <message>
        <source>Saved tasks and conversations</source>
        <extracomment>Note of an agent extension&apos;s task history row</extracomment>
        <translation>Gespeicherte Aufgaben und Unterhaltungen</translation>
    </message>
</context>
<context>
    <name>AndroidScanner</name>
    <message>
        <source>Android emulator with its apps and data</source>
        <extracomment>Detail line of an Android emulator row</extracomment>
        <translation>Android-Emulator mit seinen Apps und Daten</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>Fact in an Android emulator&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>geändert %1</translation>
    </message>
    <message>
        <source>Emulator</source>
        <extracomment>Badge of an Android emulator row</extracomment>
        <translation>Emulator</translation>
    </message>
</context>
<context>
    <name>AppCachesScanner</name>
    <message>
        <source>Mail attachment copies</source>
        <extracomment>Row title in the app caches list: copies of attachments Mail made when they were opened</extracomment>
        <translation>Kopien von Mail-Anhängen</translation>
    </message>
    <message>
        <source>Opened attachments; the messages keep the originals</source>
        <extracomment>Detail line of the Mail attachment copies row</extracomment>
        <translation>Geöffnete Anhänge; die Nachrichten behalten die Originale</translation>
    </message>
    <message>
        <source>Web caches in ~/.config/%1</source>
        <extracomment>Detail line of an app&apos;s web caches row on Linux; %1 is the app&apos;s folder in ~/.config</extracomment>
        <translation>Web-Caches in ~/.config/%1</translation>
    </message>
    <message>
        <source>Web caches in ~/Library/Application Support/%1</source>
        <extracomment>Detail line of an app&apos;s web caches row; %1 is the app&apos;s folder in Application Support</extracomment>
        <translation>Web-Caches in ~/Library/Application Support/%1</translation>
    </message>
    <message>
        <source>Inside app data</source>
        <extracomment>Badge of a row of web caches found inside an app&apos;s data folder</extracomment>
        <translation>In App-Daten</translation>
    </message>
</context>
<context>
    <name>AppLanguage</name>
    <message>
        <source>System Language</source>
        <extracomment>Language picker: the entry that follows the language chosen in System Settings</extracomment>
        <translation>Systemsprache</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>The scan was stopped before this category finished.</source>
        <extracomment>Banner of a category whose scanner had not finished when the person stopped the scan</extracomment>
        <translation>Der Scan wurde gestoppt, bevor diese Kategorie fertig war.</translation>
    </message>
    <message>
        <source>The scan was stopped; this list may be incomplete.</source>
        <extracomment>Banner of a category whose scanner returned early because the scan was stopped</extracomment>
        <translation>Der Scan wurde gestoppt; diese Liste ist vielleicht unvollständig.</translation>
    </message>
    <message>
        <source>It&apos;s the last copy of this file, so it was kept.</source>
        <extracomment>Why a duplicate was not removed: every other copy is gone or being removed</extracomment>
        <translation>Es ist die letzte Kopie dieser Datei, daher wurde sie behalten.</translation>
    </message>
    <message>
        <source>“%1” is on the Safe List.</source>
        <extracomment>Toast after a row was put on the Safe List; %1 is the row&apos;s title
----------
Toast after a folder was put on the Safe List; %1 is the folder&apos;s name</extracomment>
        <translation>„%1“ ist auf der Schutzliste.</translation>
    </message>
    <message>
        <source>the release has no disk image on the maker&apos;s site</source>
        <extracomment>Inside &quot;Couldn&apos;t install the update (...)&quot; when the release names no disk image on the maker&apos;s site</extracomment>
        <translation>das Release hat keine Image-Datei auf der Website des Herstellers</translation>
    </message>
    <message>
        <source>The other copies are gone, so this is the last one. It was kept.</source>
        <extracomment>Why a duplicate was not removed: the other copies were moved or changed outside Dustlark</extracomment>
        <translation>Die anderen Kopien sind weg, das hier ist also die letzte. Sie wurde behalten.</translation>
    </message>
    <message>
        <source>The update is installed, but Dustlark couldn&apos;t ask macOS to open it. Open Dustlark again.</source>
        <extracomment>Shown when the update is in place but Dustlark couldn&apos;t ask macOS to open the new copy</extracomment>
        <translation>Das Update ist installiert, aber Dustlark konnte macOS nicht bitten, es zu öffnen. Öffne Dustlark erneut.</translation>
    </message>
</context>
<context>
    <name>AppsScanner</name>
    <message>
        <source>App %1</source>
        <extracomment>Uninstaller row detail of an app without data; %1 is the app&apos;s size</extracomment>
        <translation>App %1</translation>
    </message>
    <message numerus="yes">
        <source>App %1 + app data %2 in %n places</source>
        <extracomment>Uninstaller row detail; %1 is the app&apos;s size, %2 its data size, %n the number of places</extracomment>
        <translation>
            <numerusform>App %1 + App-Daten %2 an %n Ort</numerusform>
            <numerusform>App %1 + App-Daten %2 an %n Orten</numerusform>
        </translation>
    </message>
    <message>
        <source>never opened</source>
        <extracomment>Fact in an uninstaller row&apos;s detail line</extracomment>
        <translation>nie geöffnet</translation>
    </message>
    <message>
        <source>opened %1</source>
        <extracomment>Fact in an uninstaller row&apos;s detail line; %1 is a relative date like &quot;3 months ago&quot;</extracomment>
        <translation>geöffnet %1</translation>
    </message>
    <message>
        <source>“%1” folder stays: it may belong to %2</source>
        <extracomment>Fact in an uninstaller row&apos;s detail line; first %1 is a folder name, %2 another app&apos;s name</extracomment>
        <translation>Ordner „%1“ bleibt: Er gehört vielleicht zu %2</translation>
    </message>
    <message>
        <source>Your apps</source>
        <extracomment>Badge of an app installed in ~/Applications</extracomment>
        <translation>Deine Apps</translation>
    </message>
    <message>
        <source>Running. Quit it to remove it.</source>
        <extracomment>Why a running app can&apos;t be selected</extracomment>
        <translation>Läuft. Beende die App, um sie zu entfernen.</translation>
    </message>
    <message>
        <source>Without Full Disk Access, the data of App Store apps (their containers) isn&apos;t listed as leftovers.</source>
        <extracomment>Note above the Apps list</extracomment>
        <translation>Ohne Festplattenvollzugriff werden die Daten von App-Store-Apps (ihre Container) nicht als Reste aufgeführt.</translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <source>Zero KB</source>
        <extracomment>A size of nothing, in the system&apos;s file-size style</extracomment>
        <translation>Null KB</translation>
    </message>
    <message>
        <source>%1 byte</source>
        <extracomment>A size of one byte; %1 is &quot;1&quot; or &quot;-1&quot;</extracomment>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <extracomment>A size below one kilobyte; %1 is the number of bytes</extracomment>
        <translation>%1 Byte</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A size with its unit, e.g. &quot;1.2 GB&quot;; %1 is the number, %2 the unit (KB, MB, GB, TB)</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>CategoryID</name>
    <message>
        <source>Project Builds</source>
        <extracomment>Sidebar title of the category of build folders inside projects</extracomment>
        <translation>Projekt-Builds</translation>
    </message>
    <message>
        <source>Git Worktrees</source>
        <extracomment>Sidebar title of the category of extra git working copies</extracomment>
        <translation>Git-Worktrees</translation>
    </message>
    <message>
        <source>Xcode</source>
        <extracomment>Sidebar title of the category of Xcode data (product name)</extracomment>
        <translation>Xcode</translation>
    </message>
    <message>
        <source>Simulators</source>
        <extracomment>Sidebar title of the category of iOS simulator devices and runtimes</extracomment>
        <translation>Simulatoren</translation>
    </message>
    <message>
        <source>Android</source>
        <extracomment>Sidebar title of the category of Android SDK and Gradle data</extracomment>
        <translation>Android</translation>
    </message>
    <message>
        <source>Package Caches</source>
        <extracomment>Sidebar title of the category of package-manager download caches</extracomment>
        <translation>Paket-Caches</translation>
    </message>
    <message>
        <source>Editors</source>
        <extracomment>Sidebar title of the category of code editor caches</extracomment>
        <translation>Editoren</translation>
    </message>
    <message>
        <source>Docker</source>
        <extracomment>Sidebar title of the category of Docker objects (product name)</extracomment>
        <translation>Docker</translation>
    </message>
    <message>
        <source>AI Models</source>
        <extracomment>Sidebar title of the category of local AI model files</extracomment>
        <translation>KI-Modelle</translation>
    </message>
    <message>
        <source>AI Agents</source>
        <extracomment>Sidebar title of the category of AI coding agents&apos; data</extracomment>
        <translation>KI-Agenten</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>Sidebar title of the category of installed applications (the uninstaller)</extracomment>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Removed Apps&apos; Leftovers</source>
        <extracomment>Sidebar title of the category of data left behind by apps that were removed</extracomment>
        <translation>Reste entfernter Apps</translation>
    </message>
    <message>
        <source>App Caches</source>
        <extracomment>Sidebar title of the category of application caches</extracomment>
        <translation>App-Caches</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Sidebar title of the category of log files and crash reports</extracomment>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Browser Caches</source>
        <extracomment>Sidebar title of the category of web browser caches</extracomment>
        <translation>Browser-Caches</translation>
    </message>
    <message>
        <source>Installers</source>
        <extracomment>Sidebar title of the category of disk images and installer packages</extracomment>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Old Downloads</source>
        <extracomment>Sidebar title of the category of files that sat in Downloads for a long time</extracomment>
        <translation>Alte Downloads</translation>
    </message>
    <message>
        <source>Temporary Files</source>
        <extracomment>Sidebar title of the category of temporary files</extracomment>
        <translation>Temporäre Dateien</translation>
    </message>
    <message>
        <source>Large Files</source>
        <extracomment>Sidebar title of the category of very large files</extracomment>
        <translation>Große Dateien</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <extracomment>Sidebar title of the category of files with exact copies</extracomment>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad</source>
        <extracomment>Sidebar title of the category of iPhone and iPad backups and updates</extracomment>
        <translation>iPhone &amp; iPad</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>Sidebar title of the Trash category</extracomment>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>node_modules, build outputs and virtual environments inside your projects. npm, Gradle, Xcode or SwiftPM rebuild them on the next build, which takes time and sometimes internet. Each row shows when its project last changed.</source>
        <extracomment>Explanation above the Project Builds list</extracomment>
        <translation>node_modules, Build-Ausgaben und virtuelle Umgebungen in deinen Projekten. npm, Gradle, Xcode oder SwiftPM bauen sie beim nächsten Build neu, was Zeit und manchmal eine Internetverbindung braucht. Jede Zeile zeigt, wann ihr Projekt zuletzt geändert wurde.</translation>
    </message>
    <message>
        <source>Extra working copies of your git repositories, grouped by repository, often left by AI agents and parallel branches. Removing one moves its folder to the Trash; its branch and commits stay in the repository. Changes not committed in it, and files git ignores there (like .env), go with it. The main copy of a repository is never listed.</source>
        <extracomment>Explanation above the Git Worktrees list</extracomment>
        <translation>Zusätzliche Arbeitskopien deiner Git-Repositorys, nach Repository gruppiert, oft von KI-Agenten und parallelen Branches übrig. Entfernen legt den Ordner in den Papierkorb; sein Branch und seine Commits bleiben im Repository. Nicht committete Änderungen darin und Dateien, die Git dort ignoriert (wie .env), gehen mit. Die Hauptkopie eines Repositorys wird nie aufgeführt.</translation>
    </message>
    <message>
        <source>DerivedData, caches, previews and device support files are rebuilt automatically. Archives hold your uploaded builds and the symbols that make their crash reports readable. An old archive&apos;s build comes back from its git tag, but not its crash symbols; the newest archive of each app is marked Risky.</source>
        <extracomment>Explanation above the Xcode list</extracomment>
        <translation>DerivedData, Caches, Vorschauen und Gerätesupportdateien werden automatisch neu erstellt. Archive enthalten deine hochgeladenen Builds und die Symbole, die ihre Absturzberichte lesbar machen. Den Build eines alten Archivs bekommst du über sein Git-Tag zurück, seine Absturzsymbole nicht; das neueste Archiv jeder App ist als riskant markiert.</translation>
    </message>
    <message>
        <source>Device: one virtual iPhone or iPad with its apps and data. Removing it keeps its iOS; a new one is created in seconds (agents and Xcode do it themselves). Runtime: an iOS version itself, shared by its devices. Removing it stops those devices until you download that iOS again. Xcode removes both for good, they don&apos;t go to the Trash. Running simulators can&apos;t be removed.</source>
        <extracomment>Explanation above the Simulators list</extracomment>
        <translation>Gerät: ein virtuelles iPhone oder iPad mit seinen Apps und Daten. Entfernen behält sein iOS; ein neues ist in Sekunden erstellt (Agenten und Xcode erledigen das selbst). Runtime: eine iOS-Version selbst, von ihren Geräten geteilt. Entfernen legt diese Geräte still, bis du dieses iOS erneut lädst. Xcode entfernt beides endgültig, nichts kommt in den Papierkorb. Laufende Simulatoren lassen sich nicht entfernen.</translation>
    </message>
    <message>
        <source>Gradle caches and downloads come back on the next build. Emulators and system images are kept unless you select them.</source>
        <extracomment>Explanation above the Android list</extracomment>
        <translation>Gradle-Caches und Downloads kommen beim nächsten Build zurück. Emulatoren und Systemimages bleiben, außer du wählst sie aus.</translation>
    </message>
    <message>
        <source>Download caches of npm, Yarn, Homebrew, pip, CocoaPods and other tools. They are downloaded again when needed. The Maven repository, pnpm store and browser test downloads take longer to get back.</source>
        <extracomment>Explanation above the Package Caches list</extracomment>
        <translation>Download-Caches von npm, Yarn, Homebrew, pip, CocoaPods und anderen Werkzeugen. Sie werden bei Bedarf erneut geladen. Das Maven-Repository, der pnpm-Store und Downloads von Browser-Tests brauchen länger, bis sie wieder da sind.</translation>
    </message>
    <message>
        <source>Caches of VS Code, Cursor and JetBrains IDEs. Settings, extensions and projects stay.</source>
        <extracomment>Explanation above the Editors list</extracomment>
        <translation>Caches von VS Code, Cursor und JetBrains-IDEs. Einstellungen, Erweiterungen und Projekte bleiben.</translation>
    </message>
    <message>
        <source>Stopped containers, images no running container uses, build cache and volumes no container uses. Docker removes them for good, they don&apos;t go to the Trash. Check volumes carefully: they can hold databases.</source>
        <extracomment>Explanation above the Docker list</extracomment>
        <translation>Gestoppte Container, Images, die kein laufender Container benutzt, Build-Cache und Volumes, die kein Container benutzt. Docker entfernt sie endgültig, nichts kommt in den Papierkorb. Prüfe Volumes sorgfältig: Sie können Datenbanken enthalten.</translation>
    </message>
    <message>
        <source>Local AI models from Ollama, LM Studio and Hugging Face. They are often many gigabytes to download again, so keep the ones you still use.</source>
        <extracomment>Explanation above the AI Models list</extracomment>
        <translation>Lokale KI-Modelle von Ollama, LM Studio und Hugging Face. Sie erneut zu laden, kostet oft viele Gigabyte; behalte also die, die du noch benutzt.</translation>
    </message>
    <message>
        <source>What AI coding agents keep on this Mac: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what &quot;resume&quot; uses; anything changed in the last day is locked. Live databases and settings are never offered.</source>
        <extracomment>Explanation above the AI Agents list; &quot;resume&quot; is the agents&apos; command to continue a session</extracomment>
        <translation>Was KI-Agenten fürs Programmieren auf diesem Mac ablegen: Claude, ChatGPT und Codex, Cursor, Antigravity und Gemini, Qwen, Windsurf, Kiro, Trae, Cline und andere. Der Sitzungsverlauf ist das, was „resume“ benutzt; alles, was sich am letzten Tag geändert hat, ist gesperrt. Aktive Datenbanken und Einstellungen werden nie angeboten.</translation>
    </message>
    <message>
        <source>Remove an app together with its own data in your Library: settings, history, caches and login agents, matched by the app&apos;s identifier. That data is what the app works with, so removing it resets the app. Hover a row to see every path. Apple apps and running apps aren&apos;t offered; apps installed for all users may need Finder to remove.</source>
        <extracomment>Explanation above the Applications list</extracomment>
        <translation>Entferne eine App zusammen mit ihren eigenen Daten in deiner Library: Einstellungen, Verlauf, Caches und Anmeldeagenten, erkannt an der Kennung der App. Mit diesen Daten arbeitet die App, Entfernen setzt sie also zurück. Zeige mit dem Zeiger auf eine Zeile, um jeden Pfad zu sehen. Apple-Apps und laufende Apps werden nicht angeboten; für alle Benutzer installierte Apps lassen sich eventuell nur im Finder entfernen.</translation>
    </message>
    <message>
        <source>Settings, caches and data in your Library from apps that are no longer installed, grouped by app identifier. If you plan to install an app again and want its settings back, keep its row. Not shown: leftovers of a vendor whose other apps are still installed (vendors share helpers) and anything changed in the last %1 days (something still uses it).</source>
        <extracomment>Explanation above the leftovers list; %1 is a number of days</extracomment>
        <translation>Einstellungen, Caches und Daten in deiner Library von Apps, die nicht mehr installiert sind, nach App-Kennung gruppiert. Willst du eine App wieder installieren und ihre Einstellungen zurückhaben, behalte ihre Zeile. Nicht gezeigt: Reste eines Herstellers, dessen andere Apps noch installiert sind (Hersteller teilen Hilfsprogramme), und alles, was sich in den letzten %1 Tagen geändert hat (etwas benutzt es noch).</translation>
    </message>
    <message>
        <source>Temporary data apps keep to work faster. Apps recreate it; quit them before cleaning. Leave Apple system caches (com.apple.…) unless you know what they hold.</source>
        <extracomment>Explanation above the App Caches list</extracomment>
        <translation>Temporäre Daten, mit denen Apps schneller arbeiten. Apps legen sie neu an; beende sie vor dem Bereinigen. Lass Apple-Systemcaches (com.apple.…) in Ruhe, außer du weißt, was sie enthalten.</translation>
    </message>
    <message>
        <source>Diagnostic logs and crash reports of apps.</source>
        <extracomment>Explanation above the Logs list</extracomment>
        <translation>Diagnoseprotokolle und Absturzberichte von Apps.</translation>
    </message>
    <message>
        <source>Cached pages and images. Cookies, history, passwords and open tabs are not touched.</source>
        <extracomment>Explanation above the Browser Caches list</extracomment>
        <translation>Zwischengespeicherte Seiten und Bilder. Cookies, Verlauf, Passwörter und offene Tabs bleiben unberührt.</translation>
    </message>
    <message>
        <source>Disk images and installer packages in Downloads and Desktop. Keep the ones you need offline.</source>
        <extracomment>Explanation above the Installers list</extracomment>
        <translation>Image-Dateien und Installationspakete in „Downloads“ und auf dem Schreibtisch. Behalte die, die du offline brauchst.</translation>
    </message>
    <message>
        <source>Files and folders that have been in Downloads for %1 days or more. Installers and files of %2+ are listed in their own categories.</source>
        <extracomment>Explanation above the Old Downloads list; %1 is a number of days, %2 a size such as &quot;200 MB&quot;</extracomment>
        <translation>Dateien und Ordner, die seit %1 Tagen oder länger in „Downloads“ liegen. Installer und Dateien ab %2 stehen in eigenen Kategorien.</translation>
    </message>
    <message>
        <source>Temporary files apps and tools left in /tmp and your macOS temp folder, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.</source>
        <extracomment>Explanation above the Temporary Files list</extracomment>
        <translation>Temporäre Dateien, die Apps und Werkzeuge in /tmp und deinem macOS-Temp-Ordner gelassen haben, dazu deine eigenen Temp-Ordner (~/tmp, ~/temp). Gezeigt wird nur, woran sich seit Tagen nichts geändert hat; laufende Builds und Agentensitzungen bleiben also draußen.</translation>
    </message>
    <message>
        <source>Files of %1 or more in your home folder. Review each one before you select it.</source>
        <extracomment>Explanation above the Large Files list; %1 is a size such as &quot;200 MB&quot;</extracomment>
        <translation>Dateien ab %1 in deinem Benutzerordner. Prüfe jede, bevor du sie auswählst.</translation>
    </message>
    <message>
        <source>Files of %1 or more that have exact copies in your home folder. Open a file to see every copy and choose which to remove; one copy always stays. Copies that already share space on the disk aren&apos;t shown, since removing them frees nothing.</source>
        <extracomment>Explanation above the Duplicates list; %1 is a size such as &quot;1 MB&quot;</extracomment>
        <translation>Dateien ab %1, von denen es in deinem Benutzerordner exakte Kopien gibt. Öffne eine Datei, um jede Kopie zu sehen und zu wählen, welche weg soll; eine Kopie bleibt immer. Kopien, die sich schon Platz auf dem Datenträger teilen, werden nicht gezeigt, denn ihr Entfernen gibt nichts frei.</translation>
    </message>
    <message>
        <source>iPhone and iPad backups made by Finder, and downloaded iOS updates. A backup may be the only copy of a device&apos;s data: remove it only if you have a newer one or iCloud Backup.</source>
        <extracomment>Explanation above the iPhone &amp; iPad list</extracomment>
        <translation>iPhone- und iPad-Backups aus dem Finder und geladene iOS-Updates. Ein Backup ist vielleicht die einzige Kopie der Daten eines Geräts: Entferne es nur, wenn du ein neueres oder ein iCloud-Backup hast.</translation>
    </message>
    <message>
        <source>Files in the Trash still take space until the Trash is emptied.</source>
        <extracomment>Explanation above the Trash list</extracomment>
        <translation>Dateien im Papierkorb belegen weiter Platz, bis der Papierkorb entleert wird.</translation>
    </message>
    <message>
        <source>Xcode runs only on Apple&apos;s own system, so this computer has none of its data. Its build data, archives and device support files would be listed here.</source>
        <extracomment>Explanation above the Xcode list on Linux, where Xcode can&apos;t be installed</extracomment>
        <translation>Xcode läuft nur auf Apples eigenem System, daher hat dieser Computer keine seiner Daten. Seine Build-Daten, Archive und Gerätesupport-Dateien würden hier stehen.</translation>
    </message>
    <message>
        <source>iPhone and iPad simulators come with Xcode, which doesn&apos;t run on Linux, so this computer has none.</source>
        <extracomment>Explanation above the Simulators list on Linux, where Xcode&apos;s simulators can&apos;t be installed</extracomment>
        <translation>iPhone- und iPad-Simulatoren kommen mit Xcode, das nicht unter Linux läuft, daher hat dieser Computer keine.</translation>
    </message>
    <message>
        <source>iPhone and iPad backups and downloaded iOS updates are made by Apple&apos;s own tools, which don&apos;t run on Linux, so this computer has none.</source>
        <extracomment>Explanation above the iPhone &amp; iPad list on Linux, where no Apple tool makes device backups</extracomment>
        <translation>iPhone- und iPad-Backups und geladene iOS-Updates machen Apples eigene Werkzeuge, die nicht unter Linux laufen, daher hat dieser Computer keine.</translation>
    </message>
    <message>
        <source>Download caches of npm, Yarn, pip, Cargo and other tools, and the Rust toolchains and Python versions installed with rustup and pyenv. Caches are downloaded again when needed; a toolchain or Python comes back when you install it again. The Maven repository, pnpm store and browser test downloads take longer to get back.</source>
        <extracomment>Explanation above the Package Caches list on Linux</extracomment>
        <translation>Download-Caches von npm, Yarn, pip, Cargo und anderen Werkzeugen sowie die mit rustup und pyenv installierten Rust-Toolchains und Python-Versionen. Caches werden bei Bedarf erneut geladen; eine Toolchain oder ein Python kommt zurück, wenn du sie erneut installierst. Das Maven-Repository, der pnpm-Store und Browser-Test-Downloads brauchen länger, bis sie wieder da sind.</translation>
    </message>
    <message>
        <source>What AI coding agents keep on this computer: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what &quot;resume&quot; uses; anything changed in the last day is locked. Live databases and settings are never offered.</source>
        <extracomment>Explanation above the AI Agents list on Linux; &quot;resume&quot; is the agents&apos; command to continue a session</extracomment>
        <translation>Was KI-Coding-Agenten auf diesem Computer ablegen: Claude, ChatGPT und Codex, Cursor, Antigravity und Gemini, Qwen, Windsurf, Kiro, Trae, Cline und andere. Sitzungsverläufe nutzt „Fortsetzen“; alles, was sich am letzten Tag geändert hat, ist gesperrt. Laufende Datenbanken und Einstellungen werden nie angeboten.</translation>
    </message>
    <message>
        <source>Apps kept as bundles in an Applications folder, removed together with their own data in your home folder, matched by the app&apos;s identifier. Running apps aren&apos;t offered. Apps from your distribution&apos;s packages or from Flatpak aren&apos;t listed here: remove those with your package manager or software centre.</source>
        <extracomment>Explanation above the Applications list on Linux</extracomment>
        <translation>Apps, die als Bundle in einem Programme-Ordner liegen, werden zusammen mit ihren eigenen Daten in deinem Benutzerordner entfernt, zugeordnet über die Kennung der App. Laufende Apps werden nicht angeboten. Apps aus den Paketen deiner Distribution oder aus Flatpak stehen nicht hier: Entferne sie mit deiner Paketverwaltung oder deinem Software-Center.</translation>
    </message>
    <message>
        <source>Settings, caches and data in ~/.var/app from Flatpak apps that are no longer installed, grouped by app ID. If you plan to install an app again and want its settings back, keep its row. Not shown: anything changed in the last %1 days (something still uses it).</source>
        <extracomment>Explanation above the leftovers list on Linux; %1 is a number of days</extracomment>
        <translation>Einstellungen, Caches und Daten in ~/.var/app von Flatpak-Apps, die nicht mehr installiert sind, nach App-ID gruppiert. Wenn du eine App wieder installieren willst und ihre Einstellungen zurückhaben möchtest, behalte ihre Zeile. Nicht gezeigt: alles, was sich in den letzten %1 Tagen geändert hat (etwas nutzt es noch).</translation>
    </message>
    <message>
        <source>Temporary data apps keep in ~/.cache and beside their settings in ~/.config to work faster. Apps recreate it; quit them before cleaning.</source>
        <extracomment>Explanation above the App Caches list on Linux</extracomment>
        <translation>Temporäre Daten, die Apps in ~/.cache und neben ihren Einstellungen in ~/.config ablegen, um schneller zu arbeiten. Apps legen sie neu an; beende sie vor dem Aufräumen.</translation>
    </message>
    <message>
        <source>Temporary files apps and tools left in /tmp and /var/tmp, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.</source>
        <extracomment>Explanation above the Temporary Files list on Linux</extracomment>
        <translation>Temporäre Dateien, die Apps und Werkzeuge in /tmp und /var/tmp hinterlassen haben, dazu deine eigenen Temp-Ordner (~/tmp, ~/temp). Gezeigt wird nur, was sich seit Tagen nicht geändert hat, damit laufende Builds und Agent-Sitzungen draußen bleiben.</translation>
    </message>
</context>
<context>
    <name>CategoryItemDelegate</name>
    <message>
        <source>11 months ago</source>
        <extracomment>Width sample for the date column; not shown</extracomment>
        <translation>vor 11 Monaten</translation>
    </message>
</context>
<context>
    <name>CategoryListModel</name>
    <message>
        <source>Other worktrees</source>
        <extracomment>Section heading of worktrees whose repository is not known</extracomment>
        <translation>Andere Worktrees</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n worktrees</source>
        <extracomment>Under a repository&apos;s name in Git Worktrees: %1 is its folder, %n the number of its worktrees listed</extracomment>
        <translation>
            <numerusform>%1 · %n Worktree</numerusform>
            <numerusform>%1 · %n Worktrees</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n copies of %1 each</source>
        <extracomment>Section heading of a group of identical files; %n is the number of copies shown, %1 the size of one copy</extracomment>
        <translation>
            <numerusform>%n Kopie zu je %1</numerusform>
            <numerusform>%n Kopien zu je %1</numerusform>
        </translation>
    </message>
    <message>
        <source>One copy always stays.</source>
        <extracomment>Tooltip of the disabled checkbox of the one copy of a duplicate that must stay</extracomment>
        <translation>Eine Kopie bleibt immer.</translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <source>Rescan</source>
        <extracomment>Button that scans one category again</extracomment>
        <translation>Neu scannen</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>Checkbox that selects every row the list shows</extracomment>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>Placeholder of the search field above a list</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Ask AI About These</source>
        <extracomment>Button that copies one question about every shown row for an AI assistant</extracomment>
        <translation>KI zu allen fragen</translation>
    </message>
    <message>
        <source>Copies a description of the shown rows for an AI assistant (Claude, Codex, ChatGPT).</source>
        <extracomment>Tooltip of the button that copies a question about every shown row</extracomment>
        <translation>Kopiert eine Beschreibung der gezeigten Zeilen für einen KI-Assistenten (Claude, Codex, ChatGPT).</translation>
    </message>
    <message>
        <source>Empty Trash…</source>
        <extracomment>Button of the Trash category; a confirmation follows</extracomment>
        <translation>Papierkorb entleeren …</translation>
    </message>
    <message>
        <source>Shows only rows of at least this size, in every list.</source>
        <extracomment>Tooltip of the size filter above every list</extracomment>
        <translation>Zeigt in jeder Liste nur Zeilen ab dieser Größe.</translation>
    </message>
    <message>
        <source>Scans the scan folders again; Project Builds, Git Worktrees, Large Files and Duplicates refresh together</source>
        <extracomment>Tooltip of the rescan button of Project Builds, Git Worktrees, Large Files and Duplicates</extracomment>
        <translation>Scannt die Scan-Ordner erneut; Projekt-Builds, Git-Worktrees, Große Dateien und Duplikate werden zusammen aktualisiert</translation>
    </message>
    <message>
        <source>Scans this category again</source>
        <extracomment>Tooltip of the rescan button of every other category</extracomment>
        <translation>Scannt diese Kategorie erneut</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <extracomment>Empty state when the size filter or the search hides every row</extracomment>
        <translation>Nichts passt zum Filter.</translation>
    </message>
    <message>
        <source>Scanning…</source>
        <extracomment>Empty state while the category is being scanned</extracomment>
        <translation>Scannen …</translation>
    </message>
    <message>
        <source>Scan to see what&apos;s here.</source>
        <extracomment>Empty state of a category that was never scanned</extracomment>
        <translation>Scanne, um zu sehen, was hier liegt.</translation>
    </message>
    <message>
        <source>Nothing to clean here.</source>
        <extracomment>Empty state when the scan found nothing in this category</extracomment>
        <translation>Hier gibt es nichts zu bereinigen.</translation>
    </message>
    <message>
        <source>Add to Safe List</source>
        <extracomment>Row menu: never show this row in scans again</extracomment>
        <translation>Zur Schutzliste hinzufügen</translation>
    </message>
    <message>
        <source>Add Project to Safe List</source>
        <extracomment>Row menu: never show anything inside this row&apos;s project or repository folder again</extracomment>
        <translation>Projekt zur Schutzliste hinzufügen</translation>
    </message>
    <message>
        <source>Ask an AI Assistant</source>
        <extracomment>Row menu: copy a description of this row to paste into an AI assistant</extracomment>
        <translation>KI-Assistenten fragen</translation>
    </message>
    <message>
        <source>Move to Another Disk…</source>
        <extracomment>Row menu: copy this row&apos;s files to another disk, check the copy, then trash the original</extracomment>
        <translation>Auf ein anderes Laufwerk bewegen …</translation>
    </message>
    <message>
        <source>Scanned %1</source>
        <extracomment>In a category&apos;s header: when its list was scanned; %1 is a relative date (&quot;5 minutes ago&quot;)</extracomment>
        <translation>Gescannt %1</translation>
    </message>
</context>
<context>
    <name>CleanCommand</name>
    <message>
        <source>Waiting for the other cleanup to finish…</source>
        <extracomment>Said by clean --yes --wait while the app or another clean removes files</extracomment>
        <translation>Warte, bis die andere Bereinigung fertig ist …</translation>
    </message>
    <message>
        <source>Stopped before anything was removed.</source>
        <extracomment>Said by clean --yes after Ctrl-C while it waited for another cleanup</extracomment>
        <translation>Gestoppt, bevor etwas entfernt wurde.</translation>
    </message>
    <message>
        <source>Stopped after the current item.</source>
        <extracomment>Said by clean --yes after Ctrl-C; what was done is listed above</extracomment>
        <translation>Nach dem aktuellen Element gestoppt.</translation>
    </message>
    <message>
        <source>No item with the id &quot;%1&quot; was found.</source>
        <extracomment>Said by clean when an --id names no row of the scanned categories; %1 is that id</extracomment>
        <translation>Kein Element mit der ID „%1“ gefunden.</translation>
    </message>
    <message>
        <source>Nothing to clean: no item passes the filters.</source>
        <extracomment>Said by clean when no row of the asked categories passes the filters</extracomment>
        <translation>Nichts zu bereinigen: Kein Element besteht die Filter.</translation>
    </message>
</context>
<context>
    <name>CleanPlan</name>
    <message>
        <source>Docker or Xcode would remove it for good, without the Trash. Add --permanent to include it.</source>
        <extracomment>Why clean left a row out; keep the option as it is</extracomment>
        <translation>Docker oder Xcode würde es endgültig entfernen, ohne Papierkorb. Gib --permanent an, um es einzuschließen.</translation>
    </message>
</context>
<context>
    <name>CleanReport</name>
    <message>
        <source>The cleanup was stopped before it got to this item.</source>
        <extracomment>Why clean did not remove a row: the person stopped it (Ctrl-C) before it got there</extracomment>
        <translation>Die Bereinigung wurde gestoppt, bevor sie bei diesem Element ankam.</translation>
    </message>
    <message>
        <source>Would free %1 from 1 item.</source>
        <extracomment>Last line of clean --dry-run; %1 is a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>Würde %1 aus 1 Element freigeben.</translation>
    </message>
    <message>
        <source>Would free %1 from %2 items.</source>
        <extracomment>Last line of clean --dry-run; %1 is a size such as &quot;1.2 GB&quot;, %2 the number of items</extracomment>
        <translation>Würde %1 aus %2 Elementen freigeben.</translation>
    </message>
    <message>
        <source>Freed %1 from 1 item.</source>
        <extracomment>Last line of clean --yes; %1 is a size such as &quot;1.2 GB&quot;</extracomment>
        <translation>%1 aus 1 Element freigegeben.</translation>
    </message>
    <message>
        <source>Freed %1 from %2 items.</source>
        <extracomment>Last line of clean --yes; %1 is a size such as &quot;1.2 GB&quot;, %2 the number of items</extracomment>
        <translation>%1 aus %2 Elementen freigegeben.</translation>
    </message>
    <message>
        <source>1 item couldn&apos;t be removed.</source>
        <extracomment>Last lines of clean --yes, when one item failed (its reason is above)</extracomment>
        <translation>1 Element konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>%1 items couldn&apos;t be removed.</source>
        <extracomment>Last lines of clean --yes; %1 is the number of items that failed (their reasons are above)</extracomment>
        <translation>%1 Elemente konnten nicht entfernt werden.</translation>
    </message>
    <message>
        <source>1 item was left where it is.</source>
        <extracomment>Last lines of clean, when one item stays (its reason is above)</extracomment>
        <translation>1 Element blieb, wo es ist.</translation>
    </message>
    <message>
        <source>%1 items were left where they are.</source>
        <extracomment>Last lines of clean; %1 is the number of items that stay (their reasons are above)</extracomment>
        <translation>%1 Elemente blieben, wo sie sind.</translation>
    </message>
</context>
<context>
    <name>CleanerGroup</name>
    <message>
        <source>Developer</source>
        <extracomment>Sidebar heading of the developer categories</extracomment>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Everyday</source>
        <extracomment>Sidebar heading of the everyday categories</extracomment>
        <translation>Alltag</translation>
    </message>
    <message>
        <source>Developer Cleaner</source>
        <extracomment>Overview heading of the developer categories</extracomment>
        <translation>Entwickler-Bereinigung</translation>
    </message>
    <message>
        <source>Everyday Cleaner</source>
        <extracomment>Overview heading of the everyday categories</extracomment>
        <translation>Alltags-Bereinigung</translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <source>Move “%1” to the Trash?</source>
        <extracomment>Title of the cleanup confirmation for one item that goes to the Trash; %1 is its name, like &quot;node_modules in ~/Projects/app&quot;</extracomment>
        <translation>„%1“ in den Papierkorb legen?</translation>
    </message>
    <message numerus="yes">
        <source>Move %n items to the Trash?</source>
        <extracomment>Title of the cleanup confirmation when every item goes to the Trash; %n is their number</extracomment>
        <translation>
            <numerusform>%n Objekt in den Papierkorb legen?</numerusform>
            <numerusform>%n Objekte in den Papierkorb legen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Removed for good</source>
        <extracomment>Heading of the part of the cleanup confirmation about items Docker and Xcode remove for good</extracomment>
        <translation>Endgültig entfernt</translation>
    </message>
    <message>
        <source>Remove for Good and Clean</source>
        <extracomment>Confirming button of the cleanup when some items are removed for good</extracomment>
        <translation>Endgültig entfernen und bereinigen</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Confirming button of the cleanup when every item goes to the Trash</extracomment>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the cleanup sheet without removing anything</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>CleanupLock</name>
    <message>
        <source>Dustlark couldn&apos;t open %1 (%2).</source>
        <extracomment>Why a cleanup didn&apos;t start; %1 is the path of the lock file, %2 the system&apos;s reason</extracomment>
        <translation>Dustlark konnte %1 nicht öffnen (%2).</translation>
    </message>
    <message>
        <source>Another cleanup is removing files right now. Try again when it has finished.</source>
        <extracomment>Why a cleanup didn&apos;t start: the app or the command-line tool is already removing files</extracomment>
        <translation>Gerade entfernt eine andere Bereinigung Dateien. Versuche es erneut, wenn sie fertig ist.</translation>
    </message>
</context>
<context>
    <name>CleanupProgress</name>
    <message>
        <source>Cleaning…</source>
        <extracomment>Heading of the cleanup sheet while items are being removed</extracomment>
        <translation>Bereinigen …</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops the cleanup after the item being removed</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n items</source>
        <extracomment>Progress of the cleanup; %1 items handled so far, %n items in all</extracomment>
        <translation>
            <numerusform>%1 von %n Objekt</numerusform>
            <numerusform>%1 von %n Objekten</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopping…</source>
        <extracomment>The Stop button after it was pressed, until the current item is done</extracomment>
        <translation>Wird gestoppt …</translation>
    </message>
</context>
<context>
    <name>CleanupResults</name>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the results of a cleanup</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Moved to the Trash</source>
        <extracomment>Results of a cleanup: the size of what went to the Trash</extracomment>
        <translation>In den Papierkorb gelegt</translation>
    </message>
    <message>
        <source>Removed by Docker and Xcode</source>
        <extracomment>Results of a cleanup: the size of what Docker and the simulator tool removed for good</extracomment>
        <translation>Von Docker und Xcode entfernt</translation>
    </message>
    <message>
        <source>Free space before</source>
        <extracomment>Results of a cleanup: free disk space before it ran</extracomment>
        <translation>Freier Platz vorher</translation>
    </message>
    <message>
        <source>Free space after</source>
        <extracomment>Results of a cleanup: free disk space after it ran (and after the Trash was emptied, once it is)</extracomment>
        <translation>Freier Platz danach</translation>
    </message>
    <message numerus="yes">
        <source>%n items couldn&apos;t be removed</source>
        <extracomment>Heading of the failures in the results of a cleanup; %n is their number</extracomment>
        <translation>
            <numerusform>%n Objekt konnte nicht entfernt werden</numerusform>
            <numerusform>%n Objekte konnten nicht entfernt werden</numerusform>
        </translation>
    </message>
    <message>
        <source>Empty Trash…</source>
        <extracomment>Button in the results of a cleanup; a confirmation follows</extracomment>
        <translation>Papierkorb entleeren …</translation>
    </message>
    <message>
        <source>The Trash is empty.</source>
        <extracomment>Results of a cleanup, after the Trash was emptied</extracomment>
        <translation>Der Papierkorb ist leer.</translation>
    </message>
    <message>
        <source>Files in the Trash still take space. Empty the Trash to get it back, or check them in Finder first.</source>
        <extracomment>Results of a cleanup when files went to the Trash</extracomment>
        <translation>Dateien im Papierkorb belegen weiter Platz. Entleere den Papierkorb, um ihn freizugeben, oder prüfe sie vorher im Finder.</translation>
    </message>
    <message>
        <source>Files in the Trash still take space. Empty the Trash to get it back, or check them in your file manager first.</source>
        <extracomment>Results of a cleanup when files went to the Trash (Linux: the desktop&apos;s file manager)</extracomment>
        <translation>Dateien im Papierkorb belegen weiter Platz. Entleere den Papierkorb, um ihn freizugeben, oder prüfe sie vorher im Dateimanager.</translation>
    </message>
    <message>
        <source>Freed</source>
        <extracomment>Results of a cleanup: the free space it gained, measured; what went to the Trash counts only once the Trash is emptied</extracomment>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>None yet: the space comes back when the Trash is emptied</source>
        <extracomment>Results of a cleanup, the freed space when everything went to the Trash on the same disk</extracomment>
        <translation>Noch nichts: Der Platz kommt zurück, wenn der Papierkorb geleert wird</translation>
    </message>
</context>
<context>
    <name>CleanupSession</name>
    <message numerus="yes">
        <source>Remove %n items for good?</source>
        <extracomment>Title of the cleanup confirmation when some items are removed for good; %n is their number</extracomment>
        <translation>
            <numerusform>%n Objekt endgültig entfernen?</numerusform>
            <numerusform>%n Objekte endgültig entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Docker and Xcode remove these items without the Trash. This can&apos;t be undone.</source>
        <extracomment>Text of the cleanup confirmation when some items are removed for good</extracomment>
        <translation>Docker und Xcode entfernen diese Objekte ohne Papierkorb. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message numerus="yes">
        <source>%n selected items are marked Risky: %1. They may hold data that exists nowhere else.</source>
        <extracomment>Cleanup confirmation line; %n is the number of Risky items, %1 the first three names, comma-separated</extracomment>
        <translation>
            <numerusform>%n ausgewähltes Objekt ist als „Riskant“ markiert: %1. Es kann Daten enthalten, die es sonst nirgends gibt.</numerusform>
            <numerusform>%n ausgewählte Objekte sind als „Riskant“ markiert: %1. Sie können Daten enthalten, die es sonst nirgends gibt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Move to the Trash</source>
        <extracomment>Heading of the part of the cleanup confirmation that lists what goes to the Trash</extracomment>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>You can put them back from the Trash until you empty it.</source>
        <extracomment>Cleanup confirmation, under &quot;Move to the Trash&quot;</extracomment>
        <translation>Du kannst sie aus dem Papierkorb zurücklegen, bis du ihn entleerst.</translation>
    </message>
    <message>
        <source>Docker and Xcode remove these themselves. This can&apos;t be undone.</source>
        <extracomment>Cleanup confirmation, the part about items Docker and Xcode remove for good</extracomment>
        <translation>Docker und Xcode entfernen diese selbst. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Docker and Xcode remove these themselves. This can&apos;t be undone. Docker also removes %1 stopped containers of the selected images.</source>
        <extracomment>Cleanup confirmation when selected Docker images have stopped containers; %1 is their number</extracomment>
        <translation>Docker und Xcode entfernen diese selbst. Das lässt sich nicht widerrufen. Docker entfernt außerdem gestoppte Container der ausgewählten Images (%1).</translation>
    </message>
    <message>
        <source>Cleaning stopped</source>
        <extracomment>Heading of the results sheet after the person stopped the cleanup</extracomment>
        <translation>Bereinigen gestoppt</translation>
    </message>
    <message>
        <source>Cleaning finished</source>
        <extracomment>Heading of the results sheet</extracomment>
        <translation>Bereinigen abgeschlossen</translation>
    </message>
</context>
<context>
    <name>CleanupSheet</name>
    <message>
        <source>Clean</source>
        <extracomment>Window title of the cleanup sheet (shown where sheets have a title bar)</extracomment>
        <translation>Bereinigen</translation>
    </message>
</context>
<context>
    <name>DevicesScanner</name>
    <message>
        <source>date unknown</source>
        <extracomment>Detail of a device backup whose date can&apos;t be read</extracomment>
        <translation>Datum unbekannt</translation>
    </message>
    <message>
        <source>backed up %1</source>
        <extracomment>Detail of a device backup; %1 is a relative date like &apos;2 years ago&apos;</extracomment>
        <translation>gesichert %1</translation>
    </message>
    <message>
        <source>iPhone or iPad backup</source>
        <extracomment>Title of a device backup whose device name can&apos;t be read</extracomment>
        <translation>iPhone- oder iPad-Backup</translation>
    </message>
    <message>
        <source>Backup</source>
        <extracomment>Badge of a device backup row</extracomment>
        <translation>Backup</translation>
    </message>
    <message>
        <source>Device backups can be listed only with Full Disk Access.</source>
        <extracomment>Note above iPhone &amp; iPad when backups can&apos;t be listed</extracomment>
        <translation>Gerätebackups lassen sich nur mit Festplattenvollzugriff auflisten.</translation>
    </message>
</context>
<context>
    <name>DockerScanner</name>
    <message>
        <source>Docker Desktop&apos;s disk image takes %1 on this Mac</source>
        <extracomment>Part of the Docker summary list; %1 is a size like &apos;60 GB&apos;</extracomment>
        <translation>Das Festplattenimage von Docker Desktop belegt %1 auf diesem Mac</translation>
    </message>
    <message>
        <source>Docker Desktop may return freed space to macOS gradually.</source>
        <extracomment>Note in the Docker category</extracomment>
        <translation>Docker Desktop gibt freigewordenen Platz eventuell nur nach und nach an macOS zurück.</translation>
    </message>
    <message>
        <source>Docker uses: %1</source>
        <extracomment>Summary above the Docker list; %1 is a comma-separated list like &apos;images 3 GB, build cache 5 GB&apos;</extracomment>
        <translation>Docker belegt: %1</translation>
    </message>
    <message>
        <source>Docker isn&apos;t installed.</source>
        <extracomment>Note in the Docker category</extracomment>
        <translation>Docker ist nicht installiert.</translation>
    </message>
    <message>
        <source>Docker is set to use another computer. Dustlark cleans only Docker on this Mac.</source>
        <extracomment>Note in the Docker category</extracomment>
        <translation>Docker ist auf einen anderen Computer eingestellt. Dustlark bereinigt nur Docker auf diesem Mac.</translation>
    </message>
    <message>
        <source>Docker isn&apos;t running. Start Docker and scan again to see its containers and images.</source>
        <extracomment>Note in the Docker category</extracomment>
        <translation>Docker läuft nicht. Starte Docker und scanne erneut, um seine Container und Images zu sehen.</translation>
    </message>
    <message>
        <source>Created %1</source>
        <extracomment>Docker image detail; %1 is the image&apos;s age like &apos;3 months ago&apos;</extracomment>
        <translation>Erstellt %1</translation>
    </message>
    <message>
        <source>also removes stopped container %1</source>
        <extracomment>Docker image detail; %1 is the name of a stopped container made from the image</extracomment>
        <translation>entfernt auch den gestoppten Container %1</translation>
    </message>
    <message>
        <source>also removes stopped containers %1</source>
        <extracomment>Docker image detail; %1 lists the names of stopped containers made from the image</extracomment>
        <translation>entfernt auch die gestoppten Container %1</translation>
    </message>
    <message>
        <source>Untagged image</source>
        <extracomment>Title of a Docker image without a name</extracomment>
        <translation>Image ohne Tag</translation>
    </message>
    <message>
        <source>Image</source>
        <extracomment>Badge of a Docker image</extracomment>
        <translation>Image</translation>
    </message>
    <message>
        <source>Anonymous volume %1</source>
        <extracomment>Title of an unnamed Docker volume; %1 is the start of its identifier</extracomment>
        <translation>Anonymes Volume %1</translation>
    </message>
    <message>
        <source>no container uses it</source>
        <extracomment>Docker volume detail</extracomment>
        <translation>kein Container benutzt es</translation>
    </message>
    <message>
        <source>may hold a database or uploads</source>
        <extracomment>Docker volume detail</extracomment>
        <translation>kann eine Datenbank oder Uploads enthalten</translation>
    </message>
    <message>
        <source>Compose project %1</source>
        <extracomment>Docker volume detail; %1 is a Compose project name</extracomment>
        <translation>Compose-Projekt %1</translation>
    </message>
    <message>
        <source>images %1</source>
        <extracomment>Part of the Docker summary list; %1 is a size like &apos;1.2 GB&apos;</extracomment>
        <translation>Images %1</translation>
    </message>
    <message>
        <source>containers %1</source>
        <extracomment>Part of the Docker summary list; %1 is a size like &apos;1.2 GB&apos;</extracomment>
        <translation>Container %1</translation>
    </message>
    <message>
        <source>local volumes %1</source>
        <extracomment>Part of the Docker summary list; %1 is a size like &apos;1.2 GB&apos;</extracomment>
        <translation>lokale Volumes %1</translation>
    </message>
    <message>
        <source>build cache %1</source>
        <extracomment>Part of the Docker summary list; %1 is a size like &apos;1.2 GB&apos;</extracomment>
        <translation>Build-Cache %1</translation>
    </message>
    <message>
        <source>Container</source>
        <extracomment>Badge of a stopped Docker container</extracomment>
        <translation>Container</translation>
    </message>
    <message>
        <source>Build cache</source>
        <extracomment>Title of Docker&apos;s build cache row</extracomment>
        <translation>Build-Cache</translation>
    </message>
    <message>
        <source>Cache</source>
        <extracomment>Badge of Docker&apos;s build cache row</extracomment>
        <translation>Cache</translation>
    </message>
    <message>
        <source>Layers kept by docker build; the next build takes longer</source>
        <extracomment>Detail of Docker&apos;s build cache row</extracomment>
        <translation>Schichten, die docker build behält; der nächste Build dauert länger</translation>
    </message>
    <message>
        <source>Volume</source>
        <extracomment>Badge of a Docker volume</extracomment>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Docker is set to use another computer. Dustlark cleans only Docker on this computer.</source>
        <extracomment>Note in the Docker category on Linux</extracomment>
        <translation>Docker ist auf einen anderen Computer eingestellt. Dustlark bereinigt nur Docker auf diesem Computer.</translation>
    </message>
</context>
<context>
    <name>DuplicateFinder</name>
    <message>
        <source>created %1</source>
        <extracomment>Fact in a Duplicates row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>erstellt %1</translation>
    </message>
    <message>
        <source>Oldest copy</source>
        <extracomment>Badge of the oldest copy among duplicates</extracomment>
        <translation>Älteste Kopie</translation>
    </message>
</context>
<context>
    <name>FolderActions</name>
    <message>
        <source>Add to Safe List</source>
        <extracomment>Row menu of a storage folder or file: never show anything inside it in scans</extracomment>
        <translation>Zur Schutzliste hinzufügen</translation>
    </message>
    <message>
        <source>Move to Another Disk…</source>
        <extracomment>Row menu of a storage folder or file: copy it to another disk, check the copy, then trash the original</extracomment>
        <translation>Auf ein anderes Laufwerk bewegen …</translation>
    </message>
    <message>
        <source>Move to Trash</source>
        <extracomment>Row menu of a storage folder or file: move it to the Trash after the cleanup&apos;s confirmation</extracomment>
        <translation>In den Papierkorb legen</translation>
    </message>
    <message>
        <source>Dustlark is busy with a scan, a cleanup or a move.</source>
        <extracomment>Why a storage row&apos;s Move to Trash is unavailable: the app is scanning, cleaning or moving something else</extracomment>
        <translation>Dustlark ist gerade mit einem Scan, einer Bereinigung oder einem Umzug beschäftigt.</translation>
    </message>
    <message>
        <source>Moved away since the disk was measured.</source>
        <extracomment>Tooltip of a storage row whose folder or file was moved to the Trash or another disk after the disk was measured</extracomment>
        <translation>Seit der Messung verschoben.</translation>
    </message>
    <message>
        <source>Measure This Folder Again</source>
        <extracomment>Row menu item and button of the storage screens: measure only this folder again</extracomment>
        <translation>Diesen Ordner neu messen</translation>
    </message>
</context>
<context>
    <name>FolderListEditor</name>
    <message>
        <source>Choose a Folder</source>
        <extracomment>Title of the folder picker</extracomment>
        <translation>Ordner auswählen</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <extracomment>Button that adds a folder to a list of folders</extracomment>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>Button that removes the selected folder from a list of folders</extracomment>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>FreeSpaceWarning</name>
    <message>
        <source>Off</source>
        <extracomment>Settings, &quot;Warn me when free space falls below&quot;: never warn</extracomment>
        <translation>Aus</translation>
    </message>
    <message>
        <source>5% of the disk</source>
        <extracomment>Settings, &quot;Warn me when free space falls below&quot;: 5 percent of the disk</extracomment>
        <translation>5 % des Laufwerks</translation>
    </message>
    <message>
        <source>10% of the disk</source>
        <extracomment>Settings, &quot;Warn me when free space falls below&quot;: 10 percent of the disk</extracomment>
        <translation>10 % des Laufwerks</translation>
    </message>
    <message>
        <source>20 GB</source>
        <extracomment>Settings, &quot;Warn me when free space falls below&quot;: 20 gigabytes</extracomment>
        <translation>20 GB</translation>
    </message>
    <message>
        <source>50 GB</source>
        <extracomment>Settings, &quot;Warn me when free space falls below&quot;: 50 gigabytes</extracomment>
        <translation>50 GB</translation>
    </message>
</context>
<context>
    <name>GrewTheMost</name>
    <message>
        <source>Grew the most</source>
        <extracomment>Heading of the list of folders that grew most since an earlier storage analysis</extracomment>
        <translation>Am stärksten gewachsen</translation>
    </message>
    <message>
        <source>since</source>
        <extracomment>Before the choice of the earlier storage analysis to compare with</extracomment>
        <translation>seit</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Column header of the &quot;Grew the most&quot; list: the folder</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Column header of the &quot;Grew the most&quot; list: the kind of data the folder holds</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Change</source>
        <extracomment>Column header of the &quot;Grew the most&quot; list: how much it grew, such as &quot;+1.2 GB&quot;</extracomment>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>No folder grew since then.</source>
        <extracomment>The &quot;Grew the most&quot; list when no folder grew since the chosen analysis</extracomment>
        <translation>Seitdem ist kein Ordner gewachsen.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A choice of earlier storage analysis; %1 how long ago (&quot;3 days ago&quot;), %2 its date and time</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>HistoryChart</name>
    <message>
        <source>Found to review: %1</source>
        <extracomment>Legend of the Overview&apos;s chart; %1 the bytes found to review by the newest scan</extracomment>
        <translation>Zum Prüfen gefunden: %1</translation>
    </message>
    <message>
        <source>Disk used: %1</source>
        <extracomment>Legend of the Overview&apos;s chart; %1 the disk&apos;s used space at the newest scan</extracomment>
        <translation>Belegt: %1</translation>
    </message>
</context>
<context>
    <name>HistoryDigest</name>
    <message>
        <source>%1 %2</source>
        <extracomment>One category in the Overview&apos;s change since the last scan: %1 its name, %2 its growth (&quot;Docker +900 MB&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 since %2</source>
        <extracomment>The Overview&apos;s change since the last scan; %1 the change (&quot;+3.2 GB&quot;), %2 when that scan was (&quot;3 days ago&quot;)</extracomment>
        <translation>%1 seit %2</translation>
    </message>
    <message>
        <source>%1 since %2: %3</source>
        <extracomment>The Overview&apos;s change since the last scan; %1 the change (&quot;+3.2 GB&quot;), %2 when that scan was (&quot;3 days ago&quot;), %3 the categories that grew most</extracomment>
        <translation>%1 seit %2: %3</translation>
    </message>
</context>
<context>
    <name>HistoryReport</name>
    <message>
        <source>&quot;%1&quot; is neither &quot;last&quot; nor a date such as 2026-11-01.</source>
        <extracomment>Error of the report tool; %1 is what followed --since</extracomment>
        <translation>„%1“ ist weder „last“ noch ein Datum wie 2026-11-01.</translation>
    </message>
    <message>
        <source>No scans are kept yet.</source>
        <extracomment>The report tool&apos;s history when nothing was recorded yet</extracomment>
        <translation>Noch sind keine Scans gespeichert.</translation>
    </message>
    <message>
        <source>%1  scan     found %2, disk used %3</source>
        <extracomment>A line of the report tool&apos;s history; %1 date, %2 bytes found to review, %3 disk used</extracomment>
        <translation>%1  Scan     gefunden %2, belegt %3</translation>
    </message>
    <message>
        <source>%1  storage  measured %2, disk used %3</source>
        <extracomment>A line of the report tool&apos;s history; %1 date, %2 bytes measured, %3 disk used</extracomment>
        <translation>%1  Speicher gemessen %2, belegt %3</translation>
    </message>
    <message>
        <source>Fewer than two scans are kept, so there is nothing to compare yet.</source>
        <extracomment>The report tool&apos;s history comparison with fewer than two kept scans</extracomment>
        <translation>Weniger als zwei Scans sind gespeichert, daher gibt es noch nichts zu vergleichen.</translation>
    </message>
    <message>
        <source>Scans of %1 and %2: %3</source>
        <extracomment>Heading of the report tool&apos;s comparison; %1 and %2 are the two scans&apos; dates, %3 the change of the disk&apos;s used space</extracomment>
        <translation>Scans vom %1 und %2: %3</translation>
    </message>
    <message>
        <source>Categories:</source>
        <extracomment>Heading of the categories in the report tool&apos;s comparison</extracomment>
        <translation>Kategorien:</translation>
    </message>
    <message>
        <source>Storage analyses of %1 and %2:</source>
        <extracomment>Heading of the report tool&apos;s comparison of two storage analyses; %1 and %2 are their dates</extracomment>
        <translation>Speicheranalysen vom %1 und %2:</translation>
    </message>
    <message>
        <source>Kinds:</source>
        <extracomment>Heading of the storage kinds in the report tool&apos;s comparison</extracomment>
        <translation>Arten:</translation>
    </message>
    <message>
        <source>Folders:</source>
        <extracomment>Heading of the folders in the report tool&apos;s comparison</extracomment>
        <translation>Ordner:</translation>
    </message>
</context>
<context>
    <name>HistoryStore</name>
    <message>
        <source>The disk is full.</source>
        <extracomment>Why the scan history could not be saved</extracomment>
        <translation>Das Laufwerk ist voll.</translation>
    </message>
    <message>
        <source>The scan history couldn&apos;t be opened.</source>
        <extracomment>Shown when the scan history file can&apos;t be used at all</extracomment>
        <translation>Der Scan-Verlauf konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The scan history was written by a newer version of Dustlark. It was kept as “%1” and a new history was started.</source>
        <extracomment>Note after the scan history file turned out to come from a newer app; %1 is the name it was kept under</extracomment>
        <translation>Der Scan-Verlauf wurde von einer neueren Version von Dustlark geschrieben. Er wurde als „%1“ behalten und ein neuer Verlauf begonnen.</translation>
    </message>
    <message>
        <source>The scan history couldn&apos;t be read. It was kept as “%1” and a new history was started.</source>
        <extracomment>Note after the scan history file turned out to be damaged; %1 is the name it was kept under</extracomment>
        <translation>Der Scan-Verlauf konnte nicht gelesen werden. Er wurde als „%1“ behalten und ein neuer Verlauf begonnen.</translation>
    </message>
    <message>
        <source>The scan history couldn&apos;t be saved. %1</source>
        <extracomment>Shown beside the scan&apos;s results when its summary could not be added to the history; %1 says why</extracomment>
        <translation>Der Scan-Verlauf konnte nicht gespeichert werden. %1</translation>
    </message>
</context>
<context>
    <name>ImageInstall</name>
    <message>
        <source>the disk image holds no app</source>
        <extracomment>Inside &quot;Couldn&apos;t install the update (...)&quot; when the downloaded disk image holds no app</extracomment>
        <translation>das Image enthält keine App</translation>
    </message>
    <message>
        <source>its disk image asks to accept a licence agreement; download it from the website instead</source>
        <extracomment>Inside &quot;Couldn&apos;t install the update (...)&quot; when the downloaded disk image asks to accept a licence first</extracomment>
        <translation>sein Festplattenimage verlangt, eine Lizenzvereinbarung zu akzeptieren; lade es stattdessen von der Website</translation>
    </message>
</context>
<context>
    <name>InstallersScanner</name>
    <message>
        <source>changed %1</source>
        <extracomment>Fact in an Installers row&apos;s detail, after its folder; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>geändert %1</translation>
    </message>
    <message>
        <source>Some folders couldn&apos;t be read. Allow access when macOS asks.</source>
        <extracomment>Note above Installers when some folders of Downloads or Desktop can&apos;t be read</extracomment>
        <translation>Einige Ordner konnten nicht gelesen werden. Erlaube den Zugriff, wenn macOS fragt.</translation>
    </message>
    <message>
        <source>Some folders couldn&apos;t be read: their permissions don&apos;t let you open them.</source>
        <extracomment>Note above Installers on Linux when some folders of Downloads or Desktop can&apos;t be read</extracomment>
        <translation>Einige Ordner konnten nicht gelesen werden: Ihre Zugriffsrechte erlauben dir nicht, sie zu öffnen.</translation>
    </message>
</context>
<context>
    <name>ItemName</name>
    <message>
        <source>%1 in %2</source>
        <extracomment>How a sheet names a folder or file by where it is; %1 is its name, %2 the folder holding it, like &quot;~/Projects/app&quot;</extracomment>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>KnownLocations</name>
    <message>
        <source>Xcode cache</source>
        <extracomment>Row title in the Xcode list: Xcode&apos;s own cache folder</extracomment>
        <translation>Xcode-Cache</translation>
    </message>
    <message>
        <source>SwiftUI previews</source>
        <extracomment>Row title in the Xcode list: data of SwiftUI previews</extracomment>
        <translation>SwiftUI-Vorschauen</translation>
    </message>
    <message>
        <source>Simulator caches</source>
        <extracomment>Row title in the Xcode list: caches of the iOS simulator</extracomment>
        <translation>Simulator-Caches</translation>
    </message>
    <message>
        <source>Test simulator clones</source>
        <extracomment>Row title in the Xcode list: simulator copies made for running tests</extracomment>
        <translation>Simulator-Klone für Tests</translation>
    </message>
    <message>
        <source>Xcode downloads</source>
        <extracomment>Row title in the Xcode list: files Xcode downloaded</extracomment>
        <translation>Xcode-Downloads</translation>
    </message>
    <message>
        <source>Device logs</source>
        <extracomment>Row title in the Xcode list: logs copied from connected iPhones and iPads</extracomment>
        <translation>Geräteprotokolle</translation>
    </message>
    <message>
        <source>Gradle caches</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation>Gradle-Caches</translation>
    </message>
    <message>
        <source>Gradle wrapper · </source>
        <extracomment>Prefix of a row title in the Android list; a Gradle version such as gradle-8.5-bin follows</extracomment>
        <translation>Gradle-Wrapper · </translation>
    </message>
    <message>
        <source>Gradle daemon logs</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation>Gradle-Daemon-Protokolle</translation>
    </message>
    <message>
        <source>Android cache</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation>Android-Cache</translation>
    </message>
    <message>
        <source>Android build cache</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation>Android-Build-Cache</translation>
    </message>
    <message>
        <source>Android Studio cache · </source>
        <extracomment>Prefix of a row title in the Android list; a folder name such as AndroidStudio2024.1 follows</extracomment>
        <translation>Android Studio-Cache · </translation>
    </message>
    <message>
        <source>Android SDK system image</source>
        <extracomment>Detail line of an Android system image row</extracomment>
        <translation>Android-SDK-Systemimage</translation>
    </message>
    <message>
        <source>NDK </source>
        <extracomment>Prefix of a row title in the Android list; an NDK version number follows</extracomment>
        <translation>NDK </translation>
    </message>
    <message>
        <source>Android NDK version; projects that pin it download it again</source>
        <extracomment>Detail line of an Android NDK row</extracomment>
        <translation>Android-NDK-Version; Projekte, die sie festlegen, laden sie erneut</translation>
    </message>
    <message>
        <source>Build tools </source>
        <extracomment>Prefix of a row title in the Android list; a version number follows</extracomment>
        <translation>Build-Tools </translation>
    </message>
    <message>
        <source>Android SDK build tools version</source>
        <extracomment>Detail line of an Android build tools row</extracomment>
        <translation>Version der Android-SDK-Build-Tools</translation>
    </message>
    <message>
        <source>SDK platform </source>
        <extracomment>Prefix of a row title in the Android list; a platform name such as android-34 follows</extracomment>
        <translation>SDK-Plattform </translation>
    </message>
    <message>
        <source>Android SDK platform</source>
        <extracomment>Detail line of an Android SDK platform row</extracomment>
        <translation>Android-SDK-Plattform</translation>
    </message>
    <message>
        <source>Gradle JDK · </source>
        <extracomment>Prefix of a row title in the Android list; a Java version folder follows</extracomment>
        <translation>Gradle-JDK · </translation>
    </message>
    <message>
        <source>Java downloaded by Gradle toolchains</source>
        <extracomment>Detail line of a row of Java that Gradle downloaded</extracomment>
        <translation>Java, von Gradle-Toolchains geladen</translation>
    </message>
    <message>
        <source>npm cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>npm-Cache</translation>
    </message>
    <message>
        <source>Yarn cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Yarn-Cache</translation>
    </message>
    <message>
        <source>Yarn Berry cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Yarn-Berry-Cache</translation>
    </message>
    <message>
        <source>pnpm store</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>pnpm-Store</translation>
    </message>
    <message>
        <source>Projects link their packages from here</source>
        <extracomment>Detail line of the pnpm store row</extracomment>
        <translation>Projekte verlinken ihre Pakete von hier</translation>
    </message>
    <message>
        <source>Bun cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Bun-Cache</translation>
    </message>
    <message>
        <source>Homebrew downloads</source>
        <extracomment>Row title in the package caches list: packages Homebrew downloaded</extracomment>
        <translation>Homebrew-Downloads</translation>
    </message>
    <message>
        <source>pip cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>pip-Cache</translation>
    </message>
    <message>
        <source>uv cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>uv-Cache</translation>
    </message>
    <message>
        <source>CocoaPods cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>CocoaPods-Cache</translation>
    </message>
    <message>
        <source>Swift Package Manager cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Swift Package Manager-Cache</translation>
    </message>
    <message>
        <source>Carthage cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Carthage-Cache</translation>
    </message>
    <message>
        <source>Go build cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Go-Build-Cache</translation>
    </message>
    <message>
        <source>Cargo downloads</source>
        <extracomment>Row title in the package caches list: crates Cargo downloaded</extracomment>
        <translation>Cargo-Downloads</translation>
    </message>
    <message>
        <source>Cargo registry index</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Cargo-Registry-Index</translation>
    </message>
    <message>
        <source>Cargo git dependencies</source>
        <extracomment>Row title in the package caches list: dependencies Cargo fetched from git</extracomment>
        <translation>Git-Abhängigkeiten von Cargo</translation>
    </message>
    <message>
        <source>Go modules</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Go-Module</translation>
    </message>
    <message>
        <source>Projects download them again on the next build</source>
        <extracomment>Detail line of the Go modules row</extracomment>
        <translation>Projekte laden sie beim nächsten Build erneut</translation>
    </message>
    <message>
        <source>Dart and Flutter packages</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Dart- und Flutter-Pakete</translation>
    </message>
    <message>
        <source>`flutter pub get` downloads them again</source>
        <extracomment>Detail line of the Dart and Flutter packages row; the command stays as it is</extracomment>
        <translation>`flutter pub get` lädt sie erneut</translation>
    </message>
    <message>
        <source>NuGet packages</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>NuGet-Pakete</translation>
    </message>
    <message>
        <source>NuGet HTTP cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>NuGet-HTTP-Cache</translation>
    </message>
    <message>
        <source>Poetry cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Poetry-Cache</translation>
    </message>
    <message>
        <source>Includes Poetry&apos;s virtual environments; `poetry install` creates them again</source>
        <extracomment>Detail line of the Poetry cache row; the command stays as it is</extracomment>
        <translation>Enthält die virtuellen Umgebungen von Poetry; `poetry install` legt sie neu an</translation>
    </message>
    <message>
        <source>node-gyp headers</source>
        <extracomment>Row title in the package caches list: C headers node-gyp downloaded</extracomment>
        <translation>node-gyp-Header</translation>
    </message>
    <message>
        <source>Electron downloads</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Electron-Downloads</translation>
    </message>
    <message>
        <source>electron-builder cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>electron-builder-Cache</translation>
    </message>
    <message>
        <source>Deno cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Deno-Cache</translation>
    </message>
    <message>
        <source>TypeScript cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>TypeScript-Cache</translation>
    </message>
    <message>
        <source>Composer cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Composer-Cache</translation>
    </message>
    <message>
        <source>Prisma engines</source>
        <extracomment>Row title in the package caches list: database engines Prisma downloaded</extracomment>
        <translation>Prisma-Engines</translation>
    </message>
    <message>
        <source>Playwright browsers</source>
        <extracomment>Row title in the package caches list: browsers Playwright downloaded for tests</extracomment>
        <translation>Playwright-Browser</translation>
    </message>
    <message>
        <source>Tests need `npx playwright install` afterwards</source>
        <extracomment>Detail line of the Playwright browsers row; the command stays as it is</extracomment>
        <translation>Tests brauchen danach `npx playwright install`</translation>
    </message>
    <message>
        <source>Puppeteer browsers</source>
        <extracomment>Row title in the package caches list: browsers Puppeteer downloaded</extracomment>
        <translation>Puppeteer-Browser</translation>
    </message>
    <message>
        <source>Maven repository</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation>Maven-Repository</translation>
    </message>
    <message>
        <source>May hold artifacts you installed locally</source>
        <extracomment>Detail line of the Maven repository row</extracomment>
        <translation>Kann lokal installierte Artefakte enthalten</translation>
    </message>
    <message>
        <source>Ollama models</source>
        <extracomment>Row title in the AI models list</extracomment>
        <translation>Ollama-Modelle</translation>
    </message>
    <message>
        <source>All models pulled with Ollama; `ollama pull` downloads them again</source>
        <extracomment>Detail line of the Ollama models row; the command stays as it is</extracomment>
        <translation>Alle mit Ollama geladenen Modelle; `ollama pull` lädt sie erneut</translation>
    </message>
    <message>
        <source>Downloaded iPhone update; Finder downloads it again when needed</source>
        <extracomment>Detail line of a downloaded iPhone software update</extracomment>
        <translation>Geladenes iPhone-Update; der Finder lädt es bei Bedarf erneut</translation>
    </message>
    <message>
        <source>Downloaded iPad update; Finder downloads it again when needed</source>
        <extracomment>Detail line of a downloaded iPad software update</extracomment>
        <translation>Geladenes iPad-Update; der Finder lädt es bei Bedarf erneut</translation>
    </message>
    <message>
        <source>VS Code caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation>VS Code-Caches</translation>
    </message>
    <message>
        <source>Cursor caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation>Cursor-Caches</translation>
    </message>
    <message>
        <source>Windsurf caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation>Windsurf-Caches</translation>
    </message>
    <message>
        <source>JetBrains cache · </source>
        <extracomment>Prefix of a row title in the editors list; an IDE folder such as IntelliJIdea2024.1 follows</extracomment>
        <translation>JetBrains-Cache · </translation>
    </message>
    <message>
        <source>Zed cache</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation>Zed-Cache</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <extracomment>Row title in the logs list: reports macOS wrote when apps crashed or hung</extracomment>
        <translation>Absturzberichte</translation>
    </message>
    <message>
        <source>Reports of apps that crashed or hung; needed only to report a problem</source>
        <extracomment>Detail line of the crash reports row</extracomment>
        <translation>Berichte über abgestürzte oder hängende Apps; nur nötig, um ein Problem zu melden</translation>
    </message>
    <message>
        <source>Diagnostic logs; the app starts new ones when it needs them</source>
        <extracomment>Detail line of an app&apos;s log folder in the logs list</extracomment>
        <translation>Diagnoseprotokolle; die App legt bei Bedarf neue an</translation>
    </message>
    <message>
        <source>VS Code logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation>VS Code-Protokolle</translation>
    </message>
    <message>
        <source>Cursor logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation>Cursor-Protokolle</translation>
    </message>
    <message>
        <source>Windsurf logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation>Windsurf-Protokolle</translation>
    </message>
    <message>
        <source>npm debug logs</source>
        <extracomment>Row title in the logs list: logs npm writes when a command fails</extracomment>
        <translation>npm-Debug-Protokolle</translation>
    </message>
    <message>
        <source>Cargo unpacked sources</source>
        <extracomment>Row title in the package caches list: crate sources Cargo unpacked from its downloads</extracomment>
        <translation>Entpackte Cargo-Quellen</translation>
    </message>
    <message>
        <source>Unpacked again from Cargo&apos;s downloads on the next build</source>
        <extracomment>Detail line of the Cargo unpacked sources row</extracomment>
        <translation>Werden beim nächsten Build erneut aus Cargos Downloads entpackt</translation>
    </message>
    <message>
        <source>Rust toolchain · </source>
        <extracomment>Prefix of a row title in the package caches list; a Rust toolchain such as stable-x86_64-unknown-linux-gnu follows</extracomment>
        <translation>Rust-Toolchain · </translation>
    </message>
    <message>
        <source>Installed with rustup; `rustup toolchain install` brings it back</source>
        <extracomment>Detail line of a Rust toolchain row; the command stays as it is</extracomment>
        <translation>Mit rustup installiert; `rustup toolchain install` bringt sie zurück</translation>
    </message>
    <message>
        <source>Python · </source>
        <extracomment>Prefix of a row title in the package caches list; a Python version such as 3.11.4 follows</extracomment>
        <translation>Python · </translation>
    </message>
    <message>
        <source>Installed with pyenv, with the packages installed into it; `pyenv install` brings the Python back</source>
        <extracomment>Detail line of a pyenv Python version row; the command stays as it is</extracomment>
        <translation>Mit pyenv installiert, samt der darin installierten Pakete; `pyenv install` bringt das Python zurück</translation>
    </message>
</context>
<context>
    <name>LargeFoldersPage</name>
    <message>
        <source>Folder</source>
        <extracomment>Column heading of the large folders: the folder</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading of the large folders: its size</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Column heading of the large folders: how many files it holds</extracomment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Small Files</source>
        <extracomment>Column heading of the large folders: the share of its bytes in small files</extracomment>
        <translation>Kleine Dateien</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Column heading of the large folders: the kind of data</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Large Folders</source>
        <extracomment>Heading of the large folders screen</extracomment>
        <translation>Große Ordner</translation>
    </message>
    <message>
        <source>Folders that are big because they hold thousands of small files (each under 1 MB), such as package folders and caches. A folder inside a listed one is counted only once.</source>
        <extracomment>Explanation on the large folders screen</extracomment>
        <translation>Ordner, die groß sind, weil sie Tausende kleiner Dateien enthalten (jede unter 1 MB), etwa Paketordner und Caches. Ein Ordner in einem aufgeführten Ordner zählt nur einmal.</translation>
    </message>
    <message>
        <source>%1 without the large folders listed inside it; the whole folder holds %2, as Storage shows.</source>
        <extracomment>Tooltip of a large folder&apos;s size when the whole folder is larger; %1 is the size shown here, %2 the whole folder&apos;s size</extracomment>
        <translation>%1 ohne die darin aufgeführten großen Ordner; der ganze Ordner enthält %2, wie „Speicher“ zeigt.</translation>
    </message>
</context>
<context>
    <name>LeftoversScanner</name>
    <message>
        <source>settings and caches only</source>
        <extracomment>Fact in a leftovers row&apos;s detail line</extracomment>
        <translation>nur Einstellungen und Caches</translation>
    </message>
    <message>
        <source>has %1</source>
        <extracomment>Fact in a leftovers row&apos;s detail line; %1 is a list like &apos;saved passwords, bookmarks&apos;</extracomment>
        <translation>enthält %1</translation>
    </message>
    <message numerus="yes">
        <source>%n places</source>
        <extracomment>Badge of a leftovers row; %n is the number of places in ~/Library</extracomment>
        <translation>
            <numerusform>%n Ort</numerusform>
            <numerusform>%n Orte</numerusform>
        </translation>
    </message>
    <message>
        <source>last changed %1</source>
        <extracomment>Fact in a leftovers row&apos;s detail line; %1 is a relative date like &quot;3 months ago&quot;</extracomment>
        <translation>zuletzt geändert %1</translation>
    </message>
    <message>
        <source>saved passwords</source>
        <extracomment>Kind of personal data found in a leftover, in a list</extracomment>
        <translation>gespeicherte Passwörter</translation>
    </message>
    <message>
        <source>bookmarks</source>
        <extracomment>Kind of personal data found in a leftover, in a list</extracomment>
        <translation>Lesezeichen</translation>
    </message>
    <message>
        <source>browsing history</source>
        <extracomment>Kind of personal data found in a leftover, in a list</extracomment>
        <translation>Browserverlauf</translation>
    </message>
    <message>
        <source>documents</source>
        <extracomment>Kind of personal data found in a leftover, in a list</extracomment>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>databases</source>
        <extracomment>Kind of personal data found in a leftover, in a list</extracomment>
        <translation>Datenbanken</translation>
    </message>
</context>
<context>
    <name>LocationScanner</name>
    <message>
        <source>project no longer exists</source>
        <extracomment>Fact in the detail line of an Xcode DerivedData row, after the project&apos;s path</extracomment>
        <translation>Projekt existiert nicht mehr</translation>
    </message>
    <message>
        <source>Archived %1</source>
        <extracomment>Detail line of an Xcode archive row; %1 is the date it was archived, like &quot;Jan 15, 2024&quot;</extracomment>
        <translation>Archiviert am %1</translation>
    </message>
    <message>
        <source>Some folders couldn&apos;t be read. Give Dustlark Full Disk Access in Settings to include them.</source>
        <extracomment>Note above a category&apos;s list when some folders could not be read</extracomment>
        <translation>Einige Ordner konnten nicht gelesen werden. Gib Dustlark in den Einstellungen Festplattenvollzugriff, um sie einzubeziehen.</translation>
    </message>
    <message>
        <source>Some folders couldn&apos;t be read: their permissions don&apos;t let you open them.</source>
        <extracomment>Note above a category&apos;s list on Linux when some folders could not be read</extracomment>
        <translation>Einige Ordner konnten nicht gelesen werden: Ihre Zugriffsrechte erlauben dir nicht, sie zu öffnen.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Dustlark</source>
        <extracomment>Window title (the app&apos;s name)</extracomment>
        <translation>Dustlark</translation>
    </message>
    <message>
        <source>File</source>
        <extracomment>Menu of the app&apos;s commands</extracomment>
        <translation>Ablage</translation>
    </message>
    <message>
        <source>Settings…</source>
        <extracomment>Menu entry that opens the settings window</extracomment>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Dustlark</source>
        <extracomment>Menu entry that quits the app</extracomment>
        <translation>Dustlark beenden</translation>
    </message>
    <message>
        <source>Quit while Dustlark is working?</source>
        <extracomment>Question when the app is asked to quit while a cleanup, a move or emptying the Trash changes files</extracomment>
        <translation>Beenden, während Dustlark arbeitet?</translation>
    </message>
    <message>
        <source>Dustlark stops after the current item and removes an unfinished copy, then quits.</source>
        <extracomment>Under &quot;Quit while Dustlark is working?&quot;</extracomment>
        <translation>Dustlark stoppt nach dem aktuellen Objekt, entfernt eine unfertige Kopie und wird dann beendet.</translation>
    </message>
    <message>
        <source>Keep Working</source>
        <extracomment>Answer to &quot;Quit while Dustlark is working?&quot;: don&apos;t quit</extracomment>
        <translation>Weiterarbeiten</translation>
    </message>
    <message>
        <source>Stop and Quit</source>
        <extracomment>Answer to &quot;Quit while Dustlark is working?&quot;: stop after the current item, then quit</extracomment>
        <translation>Stoppen und beenden</translation>
    </message>
    <message>
        <source>Clean the selected items?</source>
        <extracomment>Question when another screen is chosen while items are selected</extracomment>
        <translation>Die ausgewählten Objekte bereinigen?</translation>
    </message>
    <message>
        <source>Clean…</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: open the cleanup of the selection</extracomment>
        <translation>Bereinigen …</translation>
    </message>
    <message>
        <source>Clear Selection</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: empty the selection and show the chosen screen</extracomment>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: stay on this screen</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <extracomment>Name of the main toolbar (shown in its context menu)</extracomment>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Toolbar button that stops the running scan</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Scan</source>
        <extracomment>Toolbar button that scans everything</extracomment>
        <translation>Scannen</translation>
    </message>
    <message numerus="yes">
        <source>Scanning… %Ln items</source>
        <extracomment>Scan progress in the toolbar; %Ln is the number of files and folders looked at so far</extracomment>
        <translation>
            <numerusform>Scannen … %Ln Objekt</numerusform>
            <numerusform>Scannen … %Ln Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 available</source>
        <extracomment>Free space on the disk, in the toolbar; %1 is a size such as &quot;120.5 GB&quot;</extracomment>
        <translation>%1 verfügbar</translation>
    </message>
    <message>
        <source>File</source>
        <comment>Linux menu</comment>
        <extracomment>Menu of the app&apos;s commands on Linux, named as Linux desktops name it (German: &quot;Datei&quot;)</extracomment>
        <translation>Datei</translation>
    </message>
    <message>
        <source>You selected 1 item here (%1). Clean it now, or clear the selection and go on.</source>
        <extracomment>Under &quot;Clean the selected items?&quot; with one item selected; %1 is its size, e.g. &quot;43 MB&quot;</extracomment>
        <translation>Du hast hier 1 Element ausgewählt (%1). Bereinige es jetzt oder hebe die Auswahl auf und mach weiter.</translation>
    </message>
    <message>
        <source>You selected %1 items here (%2). Clean them now, or clear the selection and go on.</source>
        <extracomment>Under &quot;Clean the selected items?&quot;; %1 is the number of items, %2 their size, e.g. &quot;43 MB&quot;</extracomment>
        <translation>Du hast hier %1 Elemente ausgewählt (%2). Bereinige sie jetzt oder hebe die Auswahl auf und mach weiter.</translation>
    </message>
</context>
<context>
    <name>MoveDestinationPage</name>
    <message>
        <source>Move “%1” to another disk?</source>
        <extracomment>Heading of the move sheet; %1 names the row, like &quot;node_modules in ~/Projects/app&quot;</extracomment>
        <translation>„%1“ auf ein anderes Laufwerk bewegen?</translation>
    </message>
    <message>
        <source>Dustlark copies it to the folder you choose, checks that the copy matches the original, and only then moves the original to the Trash.</source>
        <extracomment>Under the move sheet&apos;s heading: what a move does, in order</extracomment>
        <translation>Dustlark kopiert es in den gewählten Ordner, prüft, ob die Kopie dem Original entspricht, und legt erst dann das Original in den Papierkorb.</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the chosen destination folder of a move</extracomment>
        <translation>Nach:</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <extracomment>Shown where the destination folder goes until one is chosen</extracomment>
        <translation>Kein Ordner ausgewählt</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <extracomment>Button that opens the folder chooser for a move&apos;s destination</extracomment>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>Button that starts the move to another disk</extracomment>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>Choose a Folder on Another Disk</source>
        <extracomment>Title of the folder chooser for a move&apos;s destination</extracomment>
        <translation>Ordner auf einem anderen Laufwerk wählen</translation>
    </message>
    <message>
        <source>Choose</source>
        <extracomment>Confirming button of the folder chooser of a move</extracomment>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Checking the folder…</source>
        <extracomment>Shown while a chosen destination folder is being checked</extracomment>
        <translation>Ordner wird geprüft …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the move sheet without moving anything</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MoveOutcomePage</name>
    <message>
        <source>“%1” was moved</source>
        <extracomment>Heading of the move sheet after a move; %1 names the row, like &quot;node_modules in ~/Projects/app&quot;</extracomment>
        <translation>„%1“ wurde bewegt</translation>
    </message>
    <message>
        <source>The move didn&apos;t finish</source>
        <extracomment>Heading of the move sheet when a move failed or was stopped; the text below says how far it came</extracomment>
        <translation>Das Bewegen wurde nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Done</source>
        <extracomment>Button that closes the move sheet</extracomment>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>It is now at %1. The original is in the Trash; its space comes back once the Trash is emptied.</source>
        <extracomment>After a move: %1 is the new location; the original went to the Trash, which still holds its space</extracomment>
        <translation>Es liegt jetzt unter %1. Das Original ist im Papierkorb; sein Platz kommt zurück, sobald der Papierkorb geleert wird.</translation>
    </message>
</context>
<context>
    <name>MoveProgressPage</name>
    <message>
        <source>Moving “%1”…</source>
        <extracomment>Heading of the move sheet while the copy runs; %1 names the row, like &quot;node_modules in ~/Projects/app&quot;</extracomment>
        <translation>„%1“ wird bewegt …</translation>
    </message>
    <message>
        <source>To %1</source>
        <extracomment>Under the heading while a move runs; %1 is the destination folder</extracomment>
        <translation>Nach %1</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops a move: the copy ends and is removed, the original stays</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Stopping and removing the copy…</source>
        <extracomment>Shown after Stop while the copy ends and is removed</extracomment>
        <translation>Wird gestoppt, Kopie wird entfernt …</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>Progress of a move; %1 is how much of the item is copied, %2 its size, e.g. &quot;1.2 GB of 4.5 GB&quot;</extracomment>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Reading the original…</source>
        <extracomment>Progress of a move before the first bytes arrived (the original is being read first)</extracomment>
        <translation>Original wird gelesen …</translation>
    </message>
</context>
<context>
    <name>MoveSheet</name>
    <message>
        <source>Move to Another Disk</source>
        <extracomment>Window title of the move sheet (shown where sheets have a title bar)</extracomment>
        <translation>Auf ein anderes Laufwerk bewegen</translation>
    </message>
    <message>
        <source>Dustlark is busy with a scan, a cleanup or another move. Try again when it has finished.</source>
        <extracomment>Why a move could not start: the app is scanning, cleaning or moving something else</extracomment>
        <translation>Dustlark ist mit einem Scan, einer Bereinigung oder einem anderen Bewegen beschäftigt. Versuche es erneut, wenn es fertig ist.</translation>
    </message>
</context>
<context>
    <name>Mover</name>
    <message>
        <source>The destination folder isn&apos;t available.</source>
        <extracomment>Move to Another Disk error: the chosen folder is missing or not a folder</extracomment>
        <translation>Der Zielordner ist nicht verfügbar.</translation>
    </message>
    <message>
        <source>Dustlark can&apos;t write to that folder.</source>
        <extracomment>Move to Another Disk error: no permission to write into the chosen folder</extracomment>
        <translation>Dustlark kann nicht in diesen Ordner schreiben.</translation>
    </message>
    <message>
        <source>That folder is on the same disk, so moving there frees no space. Choose another disk.</source>
        <extracomment>Move to Another Disk error: the chosen folder is on the disk the item is on</extracomment>
        <translation>Dieser Ordner liegt auf demselben Laufwerk, Bewegen dorthin gibt also keinen Platz frei. Wähle ein anderes Laufwerk.</translation>
    </message>
    <message>
        <source>That folder is inside the item itself. Choose another folder.</source>
        <extracomment>Move to Another Disk error: the chosen folder lies inside the item being moved</extracomment>
        <translation>Dieser Ordner liegt im Objekt selbst. Wähle einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Two parts of it are named “%1”, so they can&apos;t go into one folder.</source>
        <extracomment>Move to Another Disk error: two parts of the item differ only in upper and lower case; %1 is the name</extracomment>
        <translation>Zwei Teile davon heißen „%1“, daher passen sie nicht in einen Ordner.</translation>
    </message>
    <message>
        <source>“%1” already exists in that folder.</source>
        <extracomment>Move to Another Disk error: the destination already holds something of that name; %1 is the name</extracomment>
        <translation>„%1“ gibt es in diesem Ordner schon.</translation>
    </message>
    <message>
        <source>Only files and folders can be moved to another disk.</source>
        <extracomment>Move to Another Disk error: the row is a Docker object, a simulator or the Trash</extracomment>
        <translation>Nur Dateien und Ordner lassen sich auf ein anderes Laufwerk bewegen.</translation>
    </message>
    <message>
        <source>Some files in it can&apos;t be read, so the copy couldn&apos;t be checked. Nothing was changed.</source>
        <extracomment>Move to Another Disk error: some entries of the item can&apos;t be read</extracomment>
        <translation>Einige Dateien darin lassen sich nicht lesen, daher konnte die Kopie nicht geprüft werden. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Not enough space on that disk: %1 needed, %2 free.</source>
        <extracomment>Move to Another Disk error: %1 is the size needed, %2 the free space, e.g. &quot;12 GB&quot;</extracomment>
        <translation>Nicht genug Platz auf diesem Laufwerk: %1 nötig, %2 frei.</translation>
    </message>
    <message>
        <source>“Dustlark unfinished move” is still in that folder from an earlier move. Check it and remove it, then try again.</source>
        <extracomment>Move to Another Disk error: a work folder of an earlier, interrupted move is in the destination</extracomment>
        <translation>„Dustlark unfinished move“ liegt noch von einem früheren Bewegen in diesem Ordner. Prüfe und entferne ihn, dann versuche es erneut.</translation>
    </message>
    <message>
        <source>Copy failed: %1</source>
        <extracomment>Move to Another Disk error: the copy tool failed; %1 is its message</extracomment>
        <translation>Kopieren fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The original changed while it was copied. Nothing was changed; try again.</source>
        <extracomment>Move to Another Disk error: a file of the original was changed during the copy</extracomment>
        <translation>Das Original hat sich beim Kopieren geändert. Nichts wurde geändert; versuche es erneut.</translation>
    </message>
    <message>
        <source>The copy didn&apos;t match the original (%1 of %2 files). The original wasn&apos;t changed.</source>
        <extracomment>Move to Another Disk error: the copy differs from the original; %1 is the copy&apos;s file count, %2 the original&apos;s</extracomment>
        <translation>Die Kopie entsprach nicht dem Original (%1 von %2 Dateien). Das Original wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Copied and verified, but the original couldn&apos;t go to the Trash: %1</source>
        <extracomment>Move to Another Disk error: the verified copy is in place but the original stayed; %1 is the reason</extracomment>
        <translation>Kopiert und geprüft, aber das Original konnte nicht in den Papierkorb: %1</translation>
    </message>
    <message>
        <source>Stopped. The original wasn&apos;t changed.</source>
        <extracomment>Move to Another Disk: the person pressed Stop or quit; everything copied was removed</extracomment>
        <translation>Gestoppt. Das Original wurde nicht geändert.</translation>
    </message>
    <message>
        <source>The copy on that disk couldn&apos;t be read back correctly, so it was removed. The original wasn&apos;t changed.</source>
        <extracomment>Move to Another Disk error: a copied file read back from the destination disk held other bytes than the original</extracomment>
        <translation>Die Kopie auf diesem Laufwerk ließ sich nicht fehlerfrei zurücklesen und wurde deshalb entfernt. Das Original wurde nicht geändert.</translation>
    </message>
    <message>
        <source>The copy is at %1, but the original changed after the copy was checked. Its newer content is in the Trash: %2</source>
        <extracomment>Move to Another Disk: the copy is in place and the original went to the Trash, but the original was changed after the copy was checked. %1 is where the copy is, %2 where the changed original is in the Trash (one or more paths)</extracomment>
        <translation>Die Kopie liegt unter %1, aber das Original wurde geändert, nachdem die Kopie geprüft war. Sein neuerer Inhalt liegt im Papierkorb: %2</translation>
    </message>
    <message>
        <source>%1 Part of the copy couldn&apos;t be removed and is still at %2.</source>
        <extracomment>Move to Another Disk error: after a failed move, part of the copy could not be removed from the destination. %1 is the sentence of the failure, %2 the path (or paths) still there</extracomment>
        <translation>%1 Ein Teil der Kopie konnte nicht entfernt werden und liegt noch unter %2.</translation>
    </message>
</context>
<context>
    <name>Notice</name>
    <message>
        <source>%1 %2</source>
        <extracomment>Part of a notification: a category and its size, e.g. &quot;Docker 3.2 GB&quot;</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Space you can review</source>
        <extracomment>Title of the notification after a scheduled scan</extracomment>
        <translation>Platz zum Prüfen</translation>
    </message>
    <message>
        <source>Dustlark found %1 you can review: %2</source>
        <extracomment>Notification after a scheduled scan; %1 is the total size, %2 the largest categories with their sizes, joined by &quot;, &quot;</extracomment>
        <translation>Dustlark hat %1 zum Prüfen gefunden: %2</translation>
    </message>
    <message>
        <source>Your disk is almost full</source>
        <extracomment>Title of the notification when the disk runs low</extracomment>
        <translation>Dein Laufwerk ist fast voll</translation>
    </message>
    <message>
        <source>Only %1 (%2%) is left on your disk. Dustlark can show you what takes the space.</source>
        <extracomment>Notification when the disk runs low; %1 is the free space (&quot;8.2 GB&quot;), %2 the whole percent of the disk it is</extracomment>
        <translation>Nur noch %1 (%2 %) sind auf deinem Laufwerk frei. Dustlark kann dir zeigen, was den Platz belegt.</translation>
    </message>
</context>
<context>
    <name>OldDownloadsScanner</name>
    <message>
        <source>last changed %1</source>
        <extracomment>Detail of an Old Downloads row; %1 is a relative date like &apos;5 months ago&apos;</extracomment>
        <translation>zuletzt geändert %1</translation>
    </message>
    <message>
        <source>Folder</source>
        <extracomment>Badge of an Old Downloads row that is a folder</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Downloads couldn&apos;t be read. Allow access when macOS asks.</source>
        <extracomment>Note above Old Downloads when the Downloads folder can&apos;t be read</extracomment>
        <translation>„Downloads“ konnte nicht gelesen werden. Erlaube den Zugriff, wenn macOS fragt.</translation>
    </message>
    <message>
        <source>Downloads couldn&apos;t be read: its permissions don&apos;t let you open it.</source>
        <extracomment>Note above Old Downloads on Linux when the Downloads folder can&apos;t be read</extracomment>
        <translation>Downloads konnte nicht gelesen werden: Seine Zugriffsrechte erlauben dir nicht, ihn zu öffnen.</translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message numerus="yes">
        <source>%Ln items</source>
        <extracomment>Number of items removed by one cleanup; %Ln is the number</extracomment>
        <translation>
            <numerusform>%Ln Objekt</numerusform>
            <numerusform>%Ln Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Date</source>
        <extracomment>Column heading of the cleanup history: when a cleanup ran</extracomment>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Freed</source>
        <extracomment>Column heading of the cleanup history: the space a cleanup freed</extracomment>
        <translation>Freigegeben</translation>
    </message>
    <message>
        <source>Items</source>
        <extracomment>Column heading of the cleanup history: how many items a cleanup removed</extracomment>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>%1 moved to the Trash, %2 removed by tools</source>
        <extracomment>Tooltip of a cleanup&apos;s freed space; %1 and %2 are sizes</extracomment>
        <translation>%1 in den Papierkorb gelegt, %2 von Werkzeugen entfernt</translation>
    </message>
    <message>
        <source>Overview</source>
        <extracomment>Heading of the overview screen</extracomment>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>A scan only reads. You choose what goes to the Trash.</source>
        <extracomment>The promise on the overview screen</extracomment>
        <translation>Ein Scan liest nur. Du entscheidest, was in den Papierkorb kommt.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <extracomment>Heading of the statistics on the overview screen</extracomment>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Cleanup History</source>
        <extracomment>Heading of the list of past cleanups on the overview screen</extracomment>
        <translation>Bereinigungsverlauf</translation>
    </message>
    <message>
        <source>Your first cleanup will show up here.</source>
        <extracomment>Shown instead of the cleanup history while there is none</extracomment>
        <translation>Deine erste Bereinigung erscheint hier.</translation>
    </message>
    <message>
        <source>Full Disk Access is off</source>
        <extracomment>Heading of the banner shown while the app lacks Full Disk Access</extracomment>
        <translation>Festplattenvollzugriff ist aus</translation>
    </message>
    <message>
        <source>Without it, Dustlark can&apos;t read some folders, such as Mail, Messages and Safari data, so what they hold is missing from the scan.</source>
        <extracomment>Banner text shown while the app lacks Full Disk Access</extracomment>
        <translation>Ohne ihn kann Dustlark einige Ordner nicht lesen, etwa die Daten von Mail, Nachrichten und Safari; was sie enthalten, fehlt im Scan.</translation>
    </message>
    <message>
        <source>Open Privacy Settings…</source>
        <extracomment>Button of the Full Disk Access banner; opens the system&apos;s privacy settings</extracomment>
        <translation>Datenschutz-Einstellungen öffnen …</translation>
    </message>
    <message>
        <source>Cleanups</source>
        <extracomment>Statistics caption under the number of cleanups so far</extracomment>
        <translation>Bereinigungen</translation>
    </message>
    <message>
        <source>Items removed</source>
        <extracomment>Statistics caption under the number of items removed so far</extracomment>
        <translation>Entfernte Objekte</translation>
    </message>
    <message>
        <source>Found so far</source>
        <extracomment>Caption under a group&apos;s found size while a scan runs</extracomment>
        <translation>Bisher gefunden</translation>
    </message>
    <message>
        <source>Found to review</source>
        <extracomment>Caption under a group&apos;s found size after a scan</extracomment>
        <translation>Zum Prüfen gefunden</translation>
    </message>
    <message>
        <source>Not scanned yet</source>
        <extracomment>Caption of a group on the overview before any scan</extracomment>
        <translation>Noch nicht gescannt</translation>
    </message>
    <message>
        <source>Last scan: %1, found %2.</source>
        <extracomment>Overview statistics line; %1 is a relative date (&quot;3 days ago&quot;), %2 a size</extracomment>
        <translation>Letzter Scan: %1, gefunden: %2.</translation>
    </message>
    <message>
        <source>No full scan yet.</source>
        <extracomment>Overview statistics line before the first finished full scan</extracomment>
        <translation>Noch kein vollständiger Scan.</translation>
    </message>
    <message>
        <source>Sent to the Trash or removed</source>
        <extracomment>Statistics caption under the bytes all cleanups so far moved to the Trash or had Docker and Xcode remove</extracomment>
        <translation>In den Papierkorb gelegt oder entfernt</translation>
    </message>
    <message>
        <source>What cleanups moved to the Trash takes its space until the Trash is emptied; what Docker and Xcode removed is gone for good.</source>
        <extracomment>Tooltip of the statistics figure of all cleanups so far</extracomment>
        <translation>Was Bereinigungen in den Papierkorb gelegt haben, belegt Platz, bis der Papierkorb geleert wird; was Docker und Xcode entfernt haben, ist endgültig weg.</translation>
    </message>
</context>
<context>
    <name>ProcessRunner</name>
    <message>
        <source>The tool didn&apos;t answer in time.</source>
        <extracomment>Error when a command-line tool (docker, xcrun) times out</extracomment>
        <translation>Das Werkzeug hat nicht rechtzeitig geantwortet.</translation>
    </message>
    <message>
        <source>Exit code %1</source>
        <extracomment>Error of a command-line tool that gave no message</extracomment>
        <translation>Exit-Code %1</translation>
    </message>
</context>
<context>
    <name>ProjectScanner</name>
    <message numerus="yes">
        <source>%n files or folders were left out because their names can&apos;t be read as text. Rename them to include them.</source>
        <extracomment>Note above Project Builds and Large Files; %n is the number of files and folders whose names aren&apos;t valid text</extracomment>
        <translation>
            <numerusform>%n Datei oder Ordner wurde ausgelassen, weil der Name nicht als Text lesbar ist. Benenne das Objekt um, um es einzubeziehen.</numerusform>
            <numerusform>%n Dateien oder Ordner wurden ausgelassen, weil ihre Namen nicht als Text lesbar sind. Benenne sie um, um sie einzubeziehen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders couldn&apos;t be read. Allow access when macOS asks, or give Dustlark Full Disk Access.</source>
        <extracomment>Note above Project Builds and Large Files; %n is the number of folders that couldn&apos;t be read</extracomment>
        <translation>
            <numerusform>%n Ordner konnte nicht gelesen werden. Erlaube den Zugriff, wenn macOS fragt, oder gib Dustlark Festplattenvollzugriff.</numerusform>
            <numerusform>%n Ordner konnten nicht gelesen werden. Erlaube den Zugriff, wenn macOS fragt, oder gib Dustlark Festplattenvollzugriff.</numerusform>
        </translation>
    </message>
    <message>
        <source>project changed %1</source>
        <extracomment>Fact in a Project Builds row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>Projekt geändert %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files in it are tracked by git</source>
        <extracomment>Fact in a Project Builds row&apos;s detail line; %n is how many files in the folder git tracks</extracomment>
        <translation>
            <numerusform>%n Datei darin wird von Git verfolgt</numerusform>
            <numerusform>%n Dateien darin werden von Git verfolgt</numerusform>
        </translation>
    </message>
    <message>
        <source>opened %1</source>
        <extracomment>Fact in a Large Files row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>geöffnet %1</translation>
    </message>
    <message numerus="yes">
        <source>%n folders couldn&apos;t be read: their permissions don&apos;t let you open them.</source>
        <extracomment>Note above Project Builds and Large Files on Linux; %n is the number of folders that couldn&apos;t be read</extracomment>
        <translation>
            <numerusform>%n Ordner konnte nicht gelesen werden: Seine Zugriffsrechte erlauben dir nicht, ihn zu öffnen.</numerusform>
            <numerusform>%n Ordner konnten nicht gelesen werden: Ihre Zugriffsrechte erlauben dir nicht, sie zu öffnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>Fact in a Large Files row&apos;s detail line when it was never opened after its last change; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>geändert %1</translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <source>last month</source>
        <extracomment>Relative date</extracomment>
        <translation>letzten Monat</translation>
    </message>
    <message>
        <source>%1 months ago</source>
        <extracomment>Relative date; %1 is a number of months (2 to 11)</extracomment>
        <translation>vor %1 Monaten</translation>
    </message>
    <message>
        <source>last year</source>
        <extracomment>Relative date</extracomment>
        <translation>letztes Jahr</translation>
    </message>
    <message>
        <source>%1 years ago</source>
        <extracomment>Relative date; %1 is a number of years (2 or more)</extracomment>
        <translation>vor %1 Jahren</translation>
    </message>
    <message>
        <source>just now</source>
        <extracomment>Relative date of something that happened less than a minute ago</extracomment>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>1 minute ago</source>
        <extracomment>Relative date</extracomment>
        <translation>vor 1 Minute</translation>
    </message>
    <message>
        <source>%1 minutes ago</source>
        <extracomment>Relative date; %1 is a number of minutes (2 to 59)</extracomment>
        <translation>vor %1 Minuten</translation>
    </message>
    <message>
        <source>1 hour ago</source>
        <extracomment>Relative date</extracomment>
        <translation>vor 1 Stunde</translation>
    </message>
    <message>
        <source>%1 hours ago</source>
        <extracomment>Relative date; %1 is a number of hours (2 to 23)</extracomment>
        <translation>vor %1 Stunden</translation>
    </message>
    <message>
        <source>yesterday</source>
        <extracomment>Relative date</extracomment>
        <translation>gestern</translation>
    </message>
    <message>
        <source>%1 days ago</source>
        <extracomment>Relative date; %1 is a number of days (2 to 6)</extracomment>
        <translation>vor %1 Tagen</translation>
    </message>
    <message>
        <source>last week</source>
        <extracomment>Relative date</extracomment>
        <translation>letzte Woche</translation>
    </message>
    <message>
        <source>%1 weeks ago</source>
        <extracomment>Relative date; %1 is a number of weeks (2 to 4)</extracomment>
        <translation>vor %1 Wochen</translation>
    </message>
</context>
<context>
    <name>Remover</name>
    <message>
        <source>Docker isn&apos;t installed.</source>
        <extracomment>Cleanup failure reason for a Docker item</extracomment>
        <translation>Docker ist nicht installiert.</translation>
    </message>
    <message>
        <source>Docker now uses a different setup than during the scan. Scan again.</source>
        <extracomment>Cleanup failure reason for a Docker item: the Docker endpoint differs from the scan&apos;s</extracomment>
        <translation>Docker ist jetzt anders eingerichtet als beim Scan. Scanne erneut.</translation>
    </message>
    <message>
        <source>The administrator password wasn&apos;t entered.</source>
        <extracomment>Cleanup failure reason: macOS asked for the password to remove an app and it was cancelled</extracomment>
        <translation>Das Administratorpasswort wurde nicht eingegeben.</translation>
    </message>
    <message>
        <source>macOS didn&apos;t allow Dustlark to control Finder. Allow it in System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>Cleanup failure reason: macOS doesn&apos;t let Dustlark control Finder (Automation permission)</extracomment>
        <translation>macOS hat Dustlark nicht erlaubt, den Finder zu steuern. Erlaube es in „Systemeinstellungen“ › „Datenschutz &amp; Sicherheit“ › „Automation“.</translation>
    </message>
    <message>
        <source>Finder couldn&apos;t move it to the Trash: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is Finder&apos;s own message (a sentence).</extracomment>
        <translation>Der Finder konnte es nicht in den Papierkorb legen: %1</translation>
    </message>
    <message>
        <source>Xcode&apos;s simulator tool gave an answer Dustlark can&apos;t read.</source>
        <extracomment>Cleanup failure reason when Xcode&apos;s simulator tool (xcrun simctl) printed something unreadable</extracomment>
        <translation>Das Simulator-Werkzeug von Xcode hat eine Antwort gegeben, die Dustlark nicht lesen kann.</translation>
    </message>
    <message>
        <source>Running. Shut it down to remove it.</source>
        <extracomment>Why a simulator device can&apos;t be removed</extracomment>
        <translation>Läuft. Fahre es herunter, um es zu entfernen.</translation>
    </message>
    <message>
        <source>A simulator on it is running. Shut it down to remove it.</source>
        <extracomment>Why a simulator runtime can&apos;t be removed</extracomment>
        <translation>Ein Simulator darauf läuft. Fahre ihn herunter, um sie zu entfernen.</translation>
    </message>
    <message>
        <source>It is outside your home folder.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Es liegt außerhalb deines Benutzerordners.</translation>
    </message>
    <message>
        <source>It no longer exists.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Es existiert nicht mehr.</translation>
    </message>
    <message>
        <source>It is a symbolic link.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Es ist ein symbolischer Link.</translation>
    </message>
    <message>
        <source>It changed since the scan. Scan again.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Es hat sich seit dem Scan geändert. Scanne erneut.</translation>
    </message>
    <message>
        <source>Its path goes through a symbolic link.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Sein Pfad führt über einen symbolischen Link.</translation>
    </message>
    <message>
        <source>Its folder can&apos;t be read.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation>Sein Ordner lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>Locked in git (git worktree lock).</source>
        <extracomment>Why a git worktree can&apos;t be selected; keep the command as is</extracomment>
        <translation>In Git gesperrt (git worktree lock).</translation>
    </message>
    <message>
        <source>Running. Quit it to remove it.</source>
        <extracomment>Why a running app can&apos;t be selected</extracomment>
        <translation>Läuft. Beende die App, um sie zu entfernen.</translation>
    </message>
    <message>
        <source>Changed in the last day; a session may be running.</source>
        <extracomment>Why an AI agent&apos;s session history can&apos;t be selected</extracomment>
        <translation>Am letzten Tag geändert; vielleicht läuft eine Sitzung.</translation>
    </message>
    <message>
        <source>The Trash is emptied with Empty Trash.</source>
        <extracomment>Why the Trash row is not removed like other items</extracomment>
        <translation>Der Papierkorb wird mit „Papierkorb entleeren“ geleert.</translation>
    </message>
    <message>
        <source>Its name can&apos;t be read exactly. Rename it to remove it.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash: its file name is not valid text, so it can&apos;t be told apart from a similar name</extracomment>
        <translation>Sein Name lässt sich nicht exakt lesen. Benenne es um, um es zu entfernen.</translation>
    </message>
    <message>
        <source>It couldn&apos;t be moved to the Trash.</source>
        <extracomment>Cleanup failure reason when the system&apos;s trash refused without saying why</extracomment>
        <translation>Es konnte nicht in den Papierkorb gelegt werden.</translation>
    </message>
    <message>
        <source>It couldn&apos;t be moved to the Trash: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is the system&apos;s own description of the error.</extracomment>
        <translation>Es konnte nicht in den Papierkorb gelegt werden: %1</translation>
    </message>
    <message>
        <source>The tool couldn&apos;t be started: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is the system&apos;s reason, e.g. &quot;No such file or directory&quot;.</extracomment>
        <translation>Das Werkzeug konnte nicht gestartet werden: %1</translation>
    </message>
    <message>
        <source>It is on the Safe List.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash or another disk: the person put it on the Safe List</extracomment>
        <translation>Es steht auf der Schutzliste.</translation>
    </message>
    <message>
        <source>Something inside it is on the Safe List.</source>
        <extracomment>Why a folder can&apos;t be moved to the Trash or another disk: something inside it is on the Safe List</extracomment>
        <translation>Etwas darin steht auf der Schutzliste.</translation>
    </message>
    <message>
        <source>The Trash is inside it.</source>
        <extracomment>Why a folder can&apos;t be moved to the Trash or another disk: the Trash itself is inside it</extracomment>
        <translation>Der Papierkorb liegt darin.</translation>
    </message>
    <message>
        <source>iCloud keeps it, so Dustlark leaves it alone.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash or another disk: it is iCloud&apos;s own data</extracomment>
        <translation>iCloud verwaltet es, deshalb lässt Dustlark es in Ruhe.</translation>
    </message>
</context>
<context>
    <name>ReportHelp</name>
    <message>
        <source>Commands:</source>
        <extracomment>Heading of the report tool&apos;s help page</extracomment>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>List what the scanners find, as the app shows it. Changes nothing.</source>
        <extracomment>Report tool help: what the scan command does</extracomment>
        <translation>Listet, was die Scanner finden, wie die App es zeigt. Ändert nichts.</translation>
    </message>
    <message>
        <source>Show what takes the space of the home folder. Changes nothing.</source>
        <extracomment>Report tool help: what the storage command does</extracomment>
        <translation>Zeigt, was den Platz des Benutzerordners belegt. Ändert nichts.</translation>
    </message>
    <message>
        <source>List the recorded scans, or with --since what grew since one of them.</source>
        <extracomment>Report tool help: what the history command does</extracomment>
        <translation>Listet die gespeicherten Scans oder mit --since, was seit einem davon gewachsen ist.</translation>
    </message>
    <message>
        <source>Scan the categories, then move the rows that pass the filters to the Trash.</source>
        <extracomment>Report tool help: what the clean command does</extracomment>
        <translation>Scannt die Kategorien und legt dann die Zeilen, die die Filter bestehen, in den Papierkorb.</translation>
    </message>
    <message>
        <source>Show this page.</source>
        <extracomment>Report tool help: what the help command does</extracomment>
        <translation>Zeigt diese Seite.</translation>
    </message>
    <message>
        <source>Options:</source>
        <extracomment>Heading of the report tool&apos;s help page</extracomment>
        <translation>Optionen:</translation>
    </message>
    <message>
        <source>Scan DIR as the home folder, without the stored Safe List.</source>
        <extracomment>Report tool help: the --home option</extracomment>
        <translation>DIR als Benutzerordner scannen, ohne die gespeicherte Schutzliste.</translation>
    </message>
    <message>
        <source>Scan DIR as a scan folder (repeat for more).</source>
        <extracomment>Report tool help: the --root option</extracomment>
        <translation>DIR als Scan-Ordner scannen (für mehr wiederholen).</translation>
    </message>
    <message>
        <source>Only this category (repeat for more; names below).</source>
        <extracomment>Report tool help: the --category option</extracomment>
        <translation>Nur diese Kategorie (für mehr wiederholen; Namen unten).</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table.</source>
        <extracomment>Report tool help: the --json option</extracomment>
        <translation>Ein JSON-Objekt statt einer Tabelle ausgeben.</translation>
    </message>
    <message>
        <source>scan, storage: add the result to the scan history, as the app does.</source>
        <extracomment>Report tool help: the --record option of scan and storage</extracomment>
        <translation>scan, storage: das Ergebnis dem Scan-Verlauf hinzufügen, wie die App es tut.</translation>
    </message>
    <message>
        <source>scan: tell the desktop what was found, and when free space runs low.</source>
        <extracomment>Report tool help: the --notify option of scan</extracomment>
        <translation>scan: dem Desktop sagen, was gefunden wurde und wann der freie Platz knapp wird.</translation>
    </message>
    <message>
        <source>history: what grew since the scan of that date (YYYY-MM-DD), or since the one before the newest (last).</source>
        <extracomment>Report tool help: the --since option of history; keep &quot;last&quot; as it is</extracomment>
        <translation>history: was seit dem Scan dieses Datums (JJJJ-MM-TT) gewachsen ist, oder seit dem vor dem neuesten (last).</translation>
    </message>
    <message>
        <source>clean: list what would go and change nothing.</source>
        <extracomment>Report tool help: the --dry-run option of clean</extracomment>
        <translation>clean: auflisten, was gehen würde, und nichts ändern.</translation>
    </message>
    <message>
        <source>clean: remove exactly that list, each row checked again first.</source>
        <extracomment>Report tool help: the --yes option of clean</extracomment>
        <translation>clean: genau diese Liste entfernen, jede Zeile vorher erneut geprüft.</translation>
    </message>
    <message>
        <source>clean: include rows Docker and Xcode remove for good.</source>
        <extracomment>Report tool help: the --permanent option of clean</extracomment>
        <translation>clean: Zeilen einschließen, die Docker und Xcode endgültig entfernen.</translation>
    </message>
    <message>
        <source>clean: wait while another cleanup removes files, instead of refusing.</source>
        <extracomment>Report tool help: the --wait option of clean</extracomment>
        <translation>clean: warten, während eine andere Bereinigung Dateien entfernt, statt abzulehnen.</translation>
    </message>
    <message>
        <source>clean: only the row with this id (repeat for more).</source>
        <extracomment>Report tool help: the --id option of clean</extracomment>
        <translation>clean: nur die Zeile mit dieser ID (für mehr wiederholen).</translation>
    </message>
    <message>
        <source>clean: only rows dated at least DAYS days ago.</source>
        <extracomment>Report tool help: the --older-than option of clean</extracomment>
        <translation>clean: nur Zeilen, die mindestens DAYS Tage alt sind.</translation>
    </message>
    <message>
        <source>clean: only rows of at least BYTES bytes.</source>
        <extracomment>Report tool help: the --min-size option of clean</extracomment>
        <translation>clean: nur Zeilen mit mindestens BYTES Bytes.</translation>
    </message>
    <message>
        <source>clean: only rows labelled safe, askAI or risky (repeat for more).</source>
        <extracomment>Report tool help: the --safety option of clean; keep the three names as they are</extracomment>
        <translation>clean: nur Zeilen mit der Einstufung safe, askAI oder risky (für mehr wiederholen).</translation>
    </message>
    <message>
        <source>Print the version and build.</source>
        <extracomment>Report tool help: the --version option</extracomment>
        <translation>Version und Build ausgeben.</translation>
    </message>
    <message>
        <source>Categories:</source>
        <extracomment>Heading of the report tool&apos;s help page, above the list of category names</extracomment>
        <translation>Kategorien:</translation>
    </message>
    <message>
        <source>clean exits with 0 when everything listed was removed (or would be), 1 when some failed or it was stopped, 2 for bad arguments and 3 when nothing passed the filters.</source>
        <extracomment>Report tool help: the exit statuses of clean</extracomment>
        <translation>clean endet mit 0, wenn alles Aufgeführte entfernt wurde (oder würde), mit 1, wenn etwas fehlschlug oder es gestoppt wurde, mit 2 bei falschen Argumenten und mit 3, wenn nichts die Filter bestand.</translation>
    </message>
</context>
<context>
    <name>ReportOptions</name>
    <message>
        <source>Unknown argument &quot;%1&quot;.</source>
        <extracomment>Error of the report tool; %1 is the argument it did not understand</extracomment>
        <translation>Unbekanntes Argument „%1“.</translation>
    </message>
    <message>
        <source>%1 needs a value.</source>
        <extracomment>Error of the report tool; %1 is an option such as --home</extracomment>
        <translation>%1 braucht einen Wert.</translation>
    </message>
    <message>
        <source>Unknown safety label &quot;%1&quot;. Use safe, askAI or risky.</source>
        <extracomment>Error of the report tool; %1 is what was given after --safety. Keep the three names as they are</extracomment>
        <translation>Unbekannte Einstufung „%1“. Verwende safe, askAI oder risky.</translation>
    </message>
    <message>
        <source>%1 needs a whole number of 0 or more, not &quot;%2&quot;.</source>
        <extracomment>Error of the report tool; %1 is an option such as --older-than, %2 the value given</extracomment>
        <translation>%1 braucht eine ganze Zahl ab 0, nicht „%2“.</translation>
    </message>
    <message>
        <source>Give either --dry-run or --yes, not both.</source>
        <extracomment>Error of the report tool&apos;s clean command; keep the options as they are</extracomment>
        <translation>Gib entweder --dry-run oder --yes an, nicht beides.</translation>
    </message>
    <message>
        <source>clean needs --dry-run to list what would go, or --yes to remove it.</source>
        <extracomment>Error of the report tool&apos;s clean command; keep the options as they are</extracomment>
        <translation>clean braucht --dry-run, um aufzulisten, was gehen würde, oder --yes, um es zu entfernen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not exist.</source>
        <extracomment>Error of the report tool; %1 is the path given after --home or --root</extracomment>
        <translation>„%1“ existiert nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a folder.</source>
        <extracomment>Error of the report tool; %1 is the path given after --home or --root</extracomment>
        <translation>„%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: no permission.</source>
        <extracomment>Error of the report tool; %1 is the path given after --home or --root</extracomment>
        <translation>„%1“ kann nicht gelesen werden: keine Berechtigung.</translation>
    </message>
    <message>
        <source>Unknown category &quot;%1&quot;. The categories are: %2.</source>
        <extracomment>Error of the report tool; %1 is the category name it did not know, %2 the list of valid names</extracomment>
        <translation>Unbekannte Kategorie „%1“. Die Kategorien sind: %2.</translation>
    </message>
    <message>
        <source>clean needs at least one --category.</source>
        <extracomment>Error of the report tool&apos;s clean command; keep the option as it is</extracomment>
        <translation>clean braucht mindestens eine --category.</translation>
    </message>
</context>
<context>
    <name>Reveal</name>
    <message>
        <source>Show in Finder</source>
        <extracomment>Menu entry and button that show an item selected in Finder</extracomment>
        <translation>Im Finder zeigen</translation>
    </message>
    <message>
        <source>Show in File Manager</source>
        <extracomment>Menu entry and button that show an item in the desktop&apos;s file manager (Linux)</extracomment>
        <translation>Im Dateimanager zeigen</translation>
    </message>
    <message>
        <source>No file manager could show “%1”.</source>
        <extracomment>Toast when no file manager could show an item; %1 is its name</extracomment>
        <translation>Kein Dateimanager konnte „%1“ zeigen.</translation>
    </message>
</context>
<context>
    <name>RunningApps</name>
    <message>
        <source>Running. Quit %1 to remove it.</source>
        <extracomment>Why a row can&apos;t be selected; %1 is the name of the app that uses it</extracomment>
        <translation>Läuft. Beende %1, um es zu entfernen.</translation>
    </message>
    <message>
        <source>Running. Quit %1 to clean its caches.</source>
        <extracomment>Why an app&apos;s cache row can&apos;t be selected; %1 is the app&apos;s name</extracomment>
        <translation>Läuft. Beende %1, um die Caches zu bereinigen.</translation>
    </message>
    <message>
        <source>Running. Quit %1 to clean its cache.</source>
        <extracomment>Why a browser&apos;s cache row can&apos;t be selected; %1 is the browser&apos;s name</extracomment>
        <translation>Läuft. Beende %1, um den Cache zu bereinigen.</translation>
    </message>
</context>
<context>
    <name>SafeListPage</name>
    <message>
        <source>Added %1</source>
        <extracomment>When a row was put on the Safe List; %1 is a relative date (&quot;3 days ago&quot;, &quot;yesterday&quot;)</extracomment>
        <translation>Hinzugefügt %1</translation>
    </message>
    <message>
        <source>Safe List</source>
        <extracomment>Heading of the Safe List screen</extracomment>
        <translation>Schutzliste</translation>
    </message>
    <message>
        <source>Items and folders here never appear in scans and can&apos;t be cleaned by mistake. Add an item or its whole project from the ••• menu of any row.</source>
        <extracomment>Explanation at the top of the Safe List screen</extracomment>
        <translation>Objekte und Ordner hier erscheinen nie in Scans und lassen sich nicht versehentlich bereinigen. Füge ein Objekt oder sein ganzes Projekt über das Menü ••• einer Zeile hinzu.</translation>
    </message>
    <message>
        <source>Items</source>
        <extracomment>Heading of the single items on the Safe List</extracomment>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>No items are on the list.</source>
        <extracomment>Shown instead of the Safe List&apos;s items while there are none</extracomment>
        <translation>Keine Objekte auf der Liste.</translation>
    </message>
    <message>
        <source>Taking an item off the list scans its category again, so it shows up right away.</source>
        <extracomment>Note under the Safe List&apos;s items</extracomment>
        <translation>Wenn du ein Objekt von der Liste nimmst, wird seine Kategorie erneut gescannt, damit es sofort wieder erscheint.</translation>
    </message>
    <message>
        <source>Folders — nothing inside is shown</source>
        <extracomment>Heading of the folders on the Safe List</extracomment>
        <translation>Ordner – nichts darin wird gezeigt</translation>
    </message>
    <message>
        <source>No folders are on the list.</source>
        <extracomment>Shown instead of the Safe List&apos;s folders while there are none</extracomment>
        <translation>Keine Ordner auf der Liste.</translation>
    </message>
    <message>
        <source>A folder taken off the list shows up again in the next scan.</source>
        <extracomment>Note under the Safe List&apos;s folders</extracomment>
        <translation>Ein Ordner, den du von der Liste nimmst, erscheint beim nächsten Scan wieder.</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <extracomment>Button that takes one row off the Safe List</extracomment>
        <translation>Von der Liste entfernen</translation>
    </message>
</context>
<context>
    <name>Safety</name>
    <message>
        <source>Safe</source>
        <extracomment>Safety label of a row: it comes back on its own</extracomment>
        <translation>Sicher</translation>
    </message>
    <message>
        <source>Ask AI</source>
        <extracomment>Safety label of a row: ask an AI assistant whether to remove it</extracomment>
        <translation>KI fragen</translation>
    </message>
    <message>
        <source>Risky</source>
        <extracomment>Safety label of a row: may hold data that exists nowhere else</extracomment>
        <translation>Riskant</translation>
    </message>
    <message>
        <source>Safe to remove: it comes back on its own when needed; you only lose the time to rebuild or download it.</source>
        <extracomment>Tooltip of the Safe label</extracomment>
        <translation>Gefahrlos entfernbar: Es kommt bei Bedarf von selbst wieder; du verlierst nur die Zeit, es neu zu bauen oder zu laden.</translation>
    </message>
    <message>
        <source>Depends on how you use it. Click to copy a description for an AI assistant (Claude, Codex, ChatGPT) and ask.</source>
        <extracomment>Tooltip of the Ask AI label; clicking it copies a question</extracomment>
        <translation>Hängt davon ab, wie du es nutzt. Klicke, um eine Beschreibung für einen KI-Assistenten (Claude, Codex, ChatGPT) zu kopieren und zu fragen.</translation>
    </message>
    <message>
        <source>Risky: you can lose data that exists nowhere else. Remove only if you&apos;re sure.</source>
        <extracomment>Tooltip of the Risky label</extracomment>
        <translation>Riskant: Du kannst Daten verlieren, die es sonst nirgends gibt. Entferne es nur, wenn du sicher bist.</translation>
    </message>
</context>
<context>
    <name>ScanReport</name>
    <message>
        <source>1 item</source>
        <extracomment>The number of rows of a category in the report tool&apos;s table</extracomment>
        <translation>1 Element</translation>
    </message>
    <message>
        <source>%1 items</source>
        <extracomment>The number of rows of a category in the report tool&apos;s table; %1 is the number</extracomment>
        <translation>%1 Elemente</translation>
    </message>
</context>
<context>
    <name>ScanSchedule</name>
    <message>
        <source>Never</source>
        <extracomment>Settings, &quot;Scan for me&quot;: no scheduled scan</extracomment>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Every week</source>
        <extracomment>Settings, &quot;Scan for me&quot;: a background scan once a week</extracomment>
        <translation>Jede Woche</translation>
    </message>
    <message>
        <source>Every month</source>
        <extracomment>Settings, &quot;Scan for me&quot;: a background scan once a month</extracomment>
        <translation>Jeden Monat</translation>
    </message>
</context>
<context>
    <name>ScheduledScan</name>
    <message>
        <source>Dustlark couldn&apos;t write %1: %2</source>
        <extracomment>Settings, &quot;Scan for me&quot;; %1 is a file path, %2 the system&apos;s reason</extracomment>
        <translation>Dustlark konnte %1 nicht schreiben: %2</translation>
    </message>
    <message>
        <source>Dustlark couldn&apos;t write %1.</source>
        <extracomment>Settings, &quot;Scan for me&quot;; %1 is a file path</extracomment>
        <translation>Dustlark konnte %1 nicht schreiben.</translation>
    </message>
    <message>
        <source>macOS didn&apos;t start the background scan. It starts after your next login.</source>
        <extracomment>Settings, &quot;Scan for me&quot;, when macOS refused to load the background scan</extracomment>
        <translation>macOS hat den Scan im Hintergrund nicht gestartet. Er startet nach deiner nächsten Anmeldung.</translation>
    </message>
    <message>
        <source>The scan is scheduled, but no systemd user manager is running now, so it starts with your next login that runs one.</source>
        <extracomment>Settings, &quot;Scan for me&quot;, on Linux without a running systemd user manager</extracomment>
        <translation>Der Scan ist geplant, aber gerade läuft kein systemd-Benutzerdienst, daher startet er mit deiner nächsten Anmeldung, die einen startet.</translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message>
        <source>Clean…</source>
        <extracomment>Button that opens the cleanup of the selected items</extracomment>
        <translation>Bereinigen …</translation>
    </message>
    <message numerus="yes">
        <source>%1 in %n items</source>
        <extracomment>Names a selection; %1 is the total size, %n the number of items</extracomment>
        <translation>
            <numerusform>%1 in %n Objekt</numerusform>
            <numerusform>%1 in %n Objekten</numerusform>
        </translation>
    </message>
    <message>
        <source>Labels show how safe it is to delete each item. Nothing is selected for you.</source>
        <extracomment>Line under a list while nothing is selected</extracomment>
        <translation>Die Etiketten zeigen, wie gefahrlos sich jedes Objekt löschen lässt. Nichts wird für dich ausgewählt.</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <extracomment>Line under a list; %1 names the selection, e.g. &quot;1.2 GB in 3 items&quot;</extracomment>
        <translation>%1 ausgewählt</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <extracomment>Heading of the settings</extracomment>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Scan Folders</source>
        <extracomment>Heading of the scan folders in the settings</extracomment>
        <translation>Scan-Ordner</translation>
    </message>
    <message>
        <source>Dustlark looks for project builds, Git worktrees, large files and duplicates in these folders.</source>
        <extracomment>Explanation of the scan folders in the settings</extracomment>
        <translation>Dustlark sucht in diesen Ordnern nach Projekt-Builds, Git-Worktrees, großen Dateien und Duplikaten.</translation>
    </message>
    <message>
        <source>Updates</source>
        <extracomment>Heading of the update check in the settings</extracomment>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Language:</source>
        <extracomment>Label of the interface language picker in the settings</extracomment>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Relaunch</source>
        <extracomment>Button that restarts the app so a newly chosen language takes effect</extracomment>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Interface Language</source>
        <extracomment>Heading of the interface language in the settings</extracomment>
        <translation>Sprache der Oberfläche</translation>
    </message>
    <message>
        <source>The new language is used after Dustlark relaunches.</source>
        <extracomment>Shown after choosing another interface language</extracomment>
        <translation>Die neue Sprache gilt, sobald Dustlark neu gestartet ist.</translation>
    </message>
    <message>
        <source>Dustlark couldn&apos;t relaunch. Quit it and open it again.</source>
        <extracomment>Shown when the app could not start itself again</extracomment>
        <translation>Dustlark konnte nicht neu starten. Beende es und öffne es erneut.</translation>
    </message>
    <message>
        <source>Dustlark Settings</source>
        <extracomment>Title of the settings window</extracomment>
        <translation>Dustlark-Einstellungen</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Overview</source>
        <extracomment>Sidebar entry of the overview screen</extracomment>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Storage</source>
        <extracomment>Sidebar entry of the storage breakdown screen</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Large Folders</source>
        <extracomment>Sidebar entry of the screen of folders that are large because of many small files</extracomment>
        <translation>Große Ordner</translation>
    </message>
    <message>
        <source>Safe List</source>
        <extracomment>Sidebar entry of the Safe List screen</extracomment>
        <translation>Schutzliste</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>Sidebar entry of the About screen</extracomment>
        <translation>Über</translation>
    </message>
    <message>
        <source>Not on This Computer</source>
        <extracomment>Sidebar heading of the categories (Xcode, Simulators, iPhone &amp; iPad) that can&apos;t fill on Linux</extracomment>
        <translation>Nicht auf diesem Computer</translation>
    </message>
</context>
<context>
    <name>SimulatorScanner</name>
    <message>
        <source>The tool&apos;s answer isn&apos;t valid JSON.</source>
        <extracomment>Why the simulator tool&apos;s listing couldn&apos;t be used: it printed something that isn&apos;t valid JSON</extracomment>
        <translation>Die Antwort des Werkzeugs ist kein gültiges JSON.</translation>
    </message>
    <message>
        <source>Couldn&apos;t list simulator devices: %1</source>
        <extracomment>Note in the Simulators category; %1 is the tool&apos;s error sentence</extracomment>
        <translation>Simulatorgeräte ließen sich nicht auflisten: %1</translation>
    </message>
    <message>
        <source>Couldn&apos;t list simulator runtimes: %1</source>
        <extracomment>Note in the Simulators category; %1 is the tool&apos;s error sentence. The devices are still listed.</extracomment>
        <translation>Simulator-Runtimes ließen sich nicht auflisten: %1</translation>
    </message>
    <message>
        <source>Xcode isn&apos;t installed, so there are no simulators to manage.</source>
        <extracomment>Note in the Simulators category</extracomment>
        <translation>Xcode ist nicht installiert, es gibt also keine Simulatoren zu verwalten.</translation>
    </message>
    <message>
        <source>never used</source>
        <extracomment>Fact in a simulator device&apos;s detail line</extracomment>
        <translation>nie benutzt</translation>
    </message>
    <message>
        <source>used %1</source>
        <extracomment>Fact in a simulator&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>benutzt %1</translation>
    </message>
    <message>
        <source>removing it keeps %1</source>
        <extracomment>Fact in a simulator device&apos;s detail line; %1 is the runtime&apos;s name like &apos;iOS 17.5&apos;</extracomment>
        <translation>Entfernen behält %1</translation>
    </message>
    <message>
        <source>runtime is missing</source>
        <extracomment>Why a simulator device can&apos;t run, in parentheses of &quot;can&apos;t run: its iOS is gone (%1)&quot;</extracomment>
        <translation>Runtime fehlt</translation>
    </message>
    <message>
        <source>can&apos;t run: its iOS is gone (%1)</source>
        <extracomment>Fact in a simulator device&apos;s detail line; %1 is Xcode&apos;s reason</extracomment>
        <translation>kann nicht laufen: sein iOS ist weg (%1)</translation>
    </message>
    <message>
        <source>%1 runtime</source>
        <extracomment>Title of a simulator runtime row; %1 is its name like &apos;iOS 17.5&apos;</extracomment>
        <translation>Runtime %1</translation>
    </message>
    <message>
        <source>Build %1</source>
        <extracomment>Fact in a simulator runtime&apos;s detail line; %1 is a build like &apos;21F79&apos;</extracomment>
        <translation>Build %1</translation>
    </message>
    <message>
        <source>%1 devices stop working without it; getting it back is a %2 download</source>
        <extracomment>Fact in a simulator runtime&apos;s detail line; %1 is a number of devices, %2 a size like &apos;7.4 GB&apos;</extracomment>
        <translation>Geräte, die ohne sie nicht mehr laufen: %1; sie zurückzuholen ist ein Download von %2</translation>
    </message>
    <message>
        <source>no devices use it</source>
        <extracomment>Fact in a simulator runtime&apos;s detail line</extracomment>
        <translation>kein Gerät benutzt sie</translation>
    </message>
    <message>
        <source>A simulator on it is running. Shut it down to remove it.</source>
        <extracomment>Why a simulator runtime can&apos;t be selected</extracomment>
        <translation>Ein Simulator darauf läuft. Fahre ihn herunter, um sie zu entfernen.</translation>
    </message>
    <message>
        <source>Installed with Xcode; remove it in Xcode Settings › Components.</source>
        <extracomment>Why a simulator runtime can&apos;t be selected</extracomment>
        <translation>Mit Xcode installiert; entferne sie in den Xcode-Einstellungen › „Components“.</translation>
    </message>
    <message>
        <source>Simulator %1</source>
        <extracomment>A simulator runtime whose platform can&apos;t be told; %1 is its version like &apos;17.5&apos;</extracomment>
        <translation>Simulator %1</translation>
    </message>
    <message>
        <source>Device</source>
        <extracomment>Badge of a simulator device</extracomment>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Unavailable</source>
        <extracomment>Badge of a simulator device that can&apos;t run, because its runtime is gone</extracomment>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Running. Shut it down to remove it.</source>
        <extracomment>Why a simulator device can&apos;t be selected</extracomment>
        <translation>Läuft. Fahre es herunter, um es zu entfernen.</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Badge of a simulator runtime</extracomment>
        <translation>Runtime</translation>
    </message>
</context>
<context>
    <name>SizeFilter</name>
    <message>
        <source>All Sizes</source>
        <extracomment>Size filter menu: show rows of every size</extracomment>
        <translation>Alle Größen</translation>
    </message>
    <message>
        <source>10 MB+</source>
        <extracomment>Size filter menu: show rows of 10 megabytes or more</extracomment>
        <translation>ab 10 MB</translation>
    </message>
    <message>
        <source>100 MB+</source>
        <extracomment>Size filter menu: show rows of 100 megabytes or more</extracomment>
        <translation>ab 100 MB</translation>
    </message>
    <message>
        <source>1 GB+</source>
        <extracomment>Size filter menu: show rows of 1 gigabyte or more</extracomment>
        <translation>ab 1 GB</translation>
    </message>
</context>
<context>
    <name>StatusItem</name>
    <message>
        <source>Scan Now</source>
        <extracomment>Status item menu: starts a full scan and shows the window</extracomment>
        <translation>Jetzt scannen</translation>
    </message>
    <message>
        <source>Open Dustlark</source>
        <extracomment>Status item menu: shows the app&apos;s window on the Overview</extracomment>
        <translation>Dustlark öffnen</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>Status item menu: quits the app</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>%1 free</source>
        <extracomment>Status item menu: the disk&apos;s free space, e.g. &quot;24 GB free&quot;; %1 is the size</extracomment>
        <translation>%1 frei</translation>
    </message>
</context>
<context>
    <name>StorageAnalyzer</name>
    <message>
        <source>1 folder couldn&apos;t be read; what it holds counts as %1.</source>
        <extracomment>Note above the storage breakdown when one folder could not be read</extracomment>
        <translation>1 Ordner konnte nicht gelesen werden; sein Inhalt zählt zu %1.</translation>
    </message>
    <message>
        <source>%1 folders couldn&apos;t be read; what they hold counts as %2.</source>
        <extracomment>Note above the storage breakdown; %1 is the number of folders that could not be read, %2 the name of the remainder</extracomment>
        <translation>%1 Ordner konnten nicht gelesen werden; ihr Inhalt zählt zu %2.</translation>
    </message>
    <message>
        <source>Without Full Disk Access, app containers, Mail, Messages and Safari data aren&apos;t measured and fall under macOS and system data.</source>
        <extracomment>Note above the storage breakdown while the app lacks Full Disk Access</extracomment>
        <translation>Ohne Festplattenvollzugriff werden App-Container sowie die Daten von Mail, Nachrichten und Safari nicht gemessen und zählen zu macOS und Systemdaten.</translation>
    </message>
</context>
<context>
    <name>StorageBucket</name>
    <message>
        <source>Applications</source>
        <extracomment>Storage kind: applications</extracomment>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Developer</source>
        <extracomment>Storage kind: developer tools&apos; data, build folders and package caches</extracomment>
        <translation>Entwicklung</translation>
    </message>
    <message>
        <source>Photos</source>
        <extracomment>Storage kind: pictures and photo libraries</extracomment>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Videos</source>
        <extracomment>Storage kind: movies and video projects</extracomment>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Music</source>
        <extracomment>Storage kind: music, audio and the music and TV libraries</extracomment>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Documents</source>
        <extracomment>Storage kind: pdf, text, office documents, e-books</extracomment>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Archives &amp; Disk Images</source>
        <extracomment>Storage kind: zip, dmg, pkg, ...</extracomment>
        <translation>Archive &amp; Images</translation>
    </message>
    <message>
        <source>iPhone &amp; iPad Backups</source>
        <extracomment>Storage kind: backups of iPhones and iPads made on this computer</extracomment>
        <translation>iPhone- &amp; iPad-Backups</translation>
    </message>
    <message>
        <source>Mail &amp; Messages</source>
        <extracomment>Storage kind: Mail and Messages data</extracomment>
        <translation>Mail &amp; Nachrichten</translation>
    </message>
    <message>
        <source>App Data &amp; Caches</source>
        <extracomment>Storage kind: app data in the Library</extracomment>
        <translation>App-Daten &amp; Caches</translation>
    </message>
    <message>
        <source>Trash</source>
        <extracomment>Storage kind: the macOS Trash</extracomment>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Other Files</source>
        <extracomment>Storage kind: files of any other type</extracomment>
        <translation>Andere Dateien</translation>
    </message>
    <message>
        <source>macOS and System Data</source>
        <extracomment>Storage breakdown: the used space the analysis could not attribute (the system, other accounts, protected data)</extracomment>
        <translation>macOS und Systemdaten</translation>
    </message>
    <message>
        <source>System and Other Data</source>
        <extracomment>Storage breakdown on Linux: the used space the analysis could not attribute (the system, other accounts, protected data)</extracomment>
        <translation>System und andere Daten</translation>
    </message>
</context>
<context>
    <name>StorageChange</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A size change on the Storage screen; %1 is an arrow (up or down), %2 the change (&quot;+1.2 GB&quot;)</extracomment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>StorageFolders</name>
    <message>
        <source>1 file</source>
        <extracomment>Number of files below a folder in the storage lists, singular</extracomment>
        <translation>1 Datei</translation>
    </message>
    <message>
        <source>%1 files</source>
        <extracomment>Number of files below a folder in the storage lists; %1 is the number</extracomment>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column heading of the storage map&apos;s list: a folder&apos;s or file&apos;s name</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading of the storage map&apos;s list: its size on disk</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Column heading of the storage map&apos;s list: how many files a folder holds</extracomment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Smaller folders</source>
        <extracomment>Row of the storage map&apos;s list: the sub-folders too small to show one by one</extracomment>
        <translation>Kleinere Ordner</translation>
    </message>
</context>
<context>
    <name>StorageHeader</name>
    <message>
        <source>Stop</source>
        <extracomment>Button of the storage screens while an analysis runs</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Measure Again</source>
        <extracomment>Button of the storage screens: measure the disk again</extracomment>
        <translation>Erneut messen</translation>
    </message>
    <message>
        <source>Measure Disk</source>
        <extracomment>Button of the storage screens before any analysis</extracomment>
        <translation>Festplatte messen</translation>
    </message>
    <message>
        <source>Measured %1.</source>
        <extracomment>Status line of the storage screens; %1 is a relative date (&quot;5 minutes ago&quot;)</extracomment>
        <translation>Gemessen %1.</translation>
    </message>
    <message>
        <source>Not measured yet. Measuring reads your home folder; it changes nothing.</source>
        <extracomment>Status line of the storage screens before any analysis</extracomment>
        <translation>Noch nicht gemessen. Das Messen liest deinen Benutzerordner; es ändert nichts.</translation>
    </message>
    <message>
        <source>Measuring… %1 items looked at · %2</source>
        <extracomment>Status line while the disk is measured; %1 is a number of files and folders, %2 the folder being read</extracomment>
        <translation>Messen … %1 Objekte angesehen · %2</translation>
    </message>
    <message>
        <source>Out of date: files were cleaned up or moved since. Measure again to update it.</source>
        <extracomment>Added to the status line of the storage screens after a cleanup or move changed the disk</extracomment>
        <translation>Veraltet: Seitdem wurden Dateien bereinigt oder bewegt. Miss erneut, um es zu aktualisieren.</translation>
    </message>
    <message>
        <source>Measuring %1 again… %2 items looked at · %3</source>
        <extracomment>Status line while one folder is measured again; %1 is that folder, %2 a number of files and folders, %3 the folder being read</extracomment>
        <translation>%1 wird neu gemessen … %2 Objekte angesehen · %3</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Storage</source>
        <extracomment>Heading of the storage screen</extracomment>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Where the space on your disk goes, by kind of data. Click a kind to see its folders, and a folder to see its largest files.</source>
        <extracomment>Explanation on the storage screen</extracomment>
        <translation>Wofür der Platz auf deiner Festplatte verwendet wird, nach Art der Daten. Klicke auf eine Art, um ihre Ordner zu sehen, und auf einen Ordner, um seine größten Dateien zu sehen.</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button of the storage drill-down: go up one level</extracomment>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Kind</source>
        <extracomment>Column heading of the storage legend: the kind of data</extracomment>
        <translation>Art</translation>
    </message>
    <message>
        <source>Size</source>
        <extracomment>Column heading of the storage legend: the kind&apos;s size
----------
Column heading of the storage drill-down: its size</extracomment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Share</source>
        <extracomment>Column heading of the storage legend: the kind&apos;s share of the used space</extracomment>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Name</source>
        <extracomment>Column heading of the storage drill-down: a folder or file</extracomment>
        <translation>Name</translation>
    </message>
    <message>
        <source>Files</source>
        <extracomment>Column heading of the storage drill-down: how many files it holds</extracomment>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>not measured</source>
        <extracomment>Middle of the storage ring before any analysis</extracomment>
        <translation>nicht gemessen</translation>
    </message>
    <message>
        <source>used</source>
        <extracomment>Under the size in the middle of the storage ring: the disk&apos;s used space</extracomment>
        <translation>belegt</translation>
    </message>
    <message>
        <source>measured</source>
        <extracomment>Under the size in the middle of the storage ring when the disk&apos;s used space is unknown</extracomment>
        <translation>gemessen</translation>
    </message>
    <message>
        <source>The system, other accounts and data that can&apos;t be read without more access.</source>
        <extracomment>Tooltip of the remainder in the storage legend</extracomment>
        <translation>Das System, andere Benutzerkonten und Daten, die sich ohne weiteren Zugriff nicht lesen lassen.</translation>
    </message>
    <message>
        <source>Choose a kind of data</source>
        <extracomment>Above the storage drill-down before a kind of data is chosen</extracomment>
        <translation>Wähle eine Art von Daten</translation>
    </message>
    <message>
        <source>Files in this folder</source>
        <extracomment>Storage drill-down: the files that lie directly in the folder, not in a sub-folder</extracomment>
        <translation>Dateien in diesem Ordner</translation>
    </message>
    <message>
        <source>Folders</source>
        <extracomment>Tab of the storage screen: the sunburst of the measured folders</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Kinds</source>
        <extracomment>Tab of the storage screen: the folders and files of each kind of data</extracomment>
        <translation>Arten</translation>
    </message>
    <message>
        <source>measured of %1 used</source>
        <extracomment>Under the measured size in the middle of the storage ring when the system&apos;s share is left out of the ring; %1 is the disk&apos;s used space</extracomment>
        <translation>gemessen von %1 belegt</translation>
    </message>
    <message>
        <source>The ring shows only what was measured; %1 is too large beside it to leave the kinds readable.</source>
        <extracomment>Tooltip of the storage ring when it leaves the system&apos;s share out; %1 is the name of that share</extracomment>
        <translation>Der Ring zeigt nur, was gemessen wurde; %1 ist daneben zu groß, um die Arten lesbar zu lassen.</translation>
    </message>
</context>
<context>
    <name>Sunburst</name>
    <message>
        <source>%1
%2 · click to go back</source>
        <extracomment>Tooltip of the sunburst&apos;s centre when zoomed in; %1 is the folder&apos;s name, %2 its size</extracomment>
        <translation>%1
%2 · klicken, um zurückzugehen</translation>
    </message>
    <message>
        <source>Files in %1</source>
        <extracomment>Sunburst segment of the files that lie directly in a folder; %1 is the folder&apos;s name</extracomment>
        <translation>Dateien in %1</translation>
    </message>
    <message>
        <source>Smaller items in %1</source>
        <extracomment>Sunburst segment that merges the sub-folders too small to show; %1 is the folder&apos;s name</extracomment>
        <translation>Kleinere Elemente in %1</translation>
    </message>
    <message>
        <source>%1 · %2 of %3</source>
        <extracomment>Second line of a sunburst tooltip; %1 is a size, %2 a percentage, %3 the folder in the middle</extracomment>
        <translation>%1 · %2 von %3</translation>
    </message>
</context>
<context>
    <name>SystemAccess</name>
    <message>
        <source>Some items in the Trash couldn&apos;t be removed. Empty the Trash again or use your file manager.</source>
        <extracomment>Empty Trash error on Linux, when some trashed items could not be deleted</extracomment>
        <translation>Einige Objekte im Papierkorb konnten nicht entfernt werden. Entleere den Papierkorb erneut oder benutze deinen Dateimanager.</translation>
    </message>
    <message>
        <source>Finder is still emptying the Trash; it finishes on its own.</source>
        <extracomment>Empty Trash status</extracomment>
        <translation>Der Finder entleert den Papierkorb noch; er wird von selbst fertig.</translation>
    </message>
    <message>
        <source>macOS didn&apos;t allow Dustlark to control Finder. Allow it in System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>Empty Trash error</extracomment>
        <translation>macOS hat Dustlark nicht erlaubt, den Finder zu steuern. Erlaube es in „Systemeinstellungen“ › „Datenschutz &amp; Sicherheit“ › „Automation“.</translation>
    </message>
    <message>
        <source>Emptying the Trash was stopped in Finder. What was already removed is gone.</source>
        <extracomment>Empty Trash error</extracomment>
        <translation>Das Entleeren des Papierkorbs wurde im Finder gestoppt. Was schon entfernt wurde, ist weg.</translation>
    </message>
    <message>
        <source>Finder couldn&apos;t empty the whole Trash: %1 Quit the app that uses it and empty the Trash again.</source>
        <extracomment>Empty Trash error. The placeholder is Finder&apos;s own sentence.</extracomment>
        <translation>Der Finder konnte nicht den ganzen Papierkorb entleeren: %1 Beende die App, die ihn benutzt, und entleere den Papierkorb erneut.</translation>
    </message>
    <message>
        <source>Finder couldn&apos;t empty the whole Trash: %1 Empty the Trash again or use Finder.</source>
        <extracomment>Empty Trash error. The placeholder is Finder&apos;s own sentence.</extracomment>
        <translation>Der Finder konnte nicht den ganzen Papierkorb entleeren: %1 Entleere den Papierkorb erneut oder benutze den Finder.</translation>
    </message>
    <message>
        <source>Finder couldn&apos;t be asked to empty the Trash: %1</source>
        <extracomment>Empty Trash error when osascript can&apos;t be started. The placeholder is the system&apos;s reason.</extracomment>
        <translation>Der Finder konnte nicht gebeten werden, den Papierkorb zu entleeren: %1</translation>
    </message>
    <message>
        <source>Nothing was removed: %1 is a symbolic link, not the Trash&apos;s own folder.</source>
        <extracomment>Why Empty Trash removed nothing; %1 is a folder of the Trash (or above it) that is a symbolic link</extracomment>
        <translation>Es wurde nichts entfernt: %1 ist ein symbolischer Link, nicht der eigene Ordner des Papierkorbs.</translation>
    </message>
    <message>
        <source>Nothing was removed: %1 lies on another disk than the Trash.</source>
        <extracomment>Why Empty Trash removed nothing; %1 is a folder of the Trash that another disk is mounted on</extracomment>
        <translation>Es wurde nichts entfernt: %1 liegt auf einem anderen Laufwerk als der Papierkorb.</translation>
    </message>
    <message>
        <source>Nothing was removed: %1 can&apos;t be opened (%2).</source>
        <extracomment>Why Empty Trash removed nothing; %1 is a folder of the Trash, %2 the system&apos;s reason (such as &quot;Permission denied&quot;)</extracomment>
        <translation>Es wurde nichts entfernt: %1 lässt sich nicht öffnen (%2).</translation>
    </message>
    <message>
        <source>Emptying the Trash was stopped. What was already removed is gone.</source>
        <extracomment>Empty Trash status after the person pressed Stop</extracomment>
        <translation>Das Leeren des Papierkorbs wurde gestoppt. Was schon entfernt wurde, ist weg.</translation>
    </message>
</context>
<context>
    <name>SystemTrash</name>
    <message>
        <source>The Trash folder can&apos;t be set up.</source>
        <extracomment>Why a file couldn&apos;t be moved to the Trash: the system&apos;s Trash folder is missing and can&apos;t be made</extracomment>
        <translation>Der Papierkorbordner lässt sich nicht anlegen.</translation>
    </message>
</context>
<context>
    <name>TemporaryScanner</name>
    <message>
        <source>System temp</source>
        <extracomment>Badge of a Temporary Files row found in the system&apos;s temporary folders</extracomment>
        <translation>System-Temp</translation>
    </message>
    <message>
        <source>Your temp folder</source>
        <extracomment>Badge of a Temporary Files row found in the person&apos;s own temp folder (~/tmp)</extracomment>
        <translation>Dein Temp-Ordner</translation>
    </message>
    <message>
        <source>last changed %1</source>
        <extracomment>Detail of a Temporary Files row; %1 is a relative date like &apos;5 days ago&apos;</extracomment>
        <translation>zuletzt geändert %1</translation>
    </message>
    <message>
        <source>Simulator device</source>
        <extracomment>Title and badge of a temporary simulator device found in a temporary folder</extracomment>
        <translation>Simulatorgerät</translation>
    </message>
    <message>
        <source>temporary device set in %1</source>
        <extracomment>Detail of a temporary simulator device; %1 is its folder, like &apos;/tmp/XCTestDevices/…&apos;</extracomment>
        <translation>temporärer Gerätesatz in %1</translation>
    </message>
    <message>
        <source>Running. Shut it down to remove it.</source>
        <extracomment>Why a running simulator device can&apos;t be selected</extracomment>
        <translation>Läuft. Fahre es herunter, um es zu entfernen.</translation>
    </message>
    <message>
        <source>Claude Code</source>
        <extracomment>Badge of a Claude Code scratch entry in a temporary folder</extracomment>
        <translation>Claude Code</translation>
    </message>
    <message numerus="yes">
        <source>%n old files in %1</source>
        <extracomment>Title of a Temporary Files row that gathers the old files of one folder; %1 is the folder&apos;s name</extracomment>
        <translation>
            <numerusform>%n alte Datei in %1</numerusform>
            <numerusform>%n alte Dateien in %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Claude Code temp files · %1</source>
        <extracomment>Title of a Claude Code project&apos;s scratch folder; %1 is the project&apos;s folder, like &apos;~/www/app&apos;</extracomment>
        <translation>Temporäre Claude-Code-Dateien · %1</translation>
    </message>
    <message>
        <source>Scratchpads and task output of this project&apos;s past sessions</source>
        <extracomment>Detail of a Claude Code project&apos;s scratch folder</extracomment>
        <translation>Notizblöcke und Aufgabenausgaben früherer Sitzungen dieses Projekts</translation>
    </message>
    <message>
        <source>Claude Code session files · %1</source>
        <extracomment>Title of one Claude Code session&apos;s scratch files; %1 is the project&apos;s folder, like &apos;~/www/app&apos;</extracomment>
        <translation>Claude-Code-Sitzungsdateien · %1</translation>
    </message>
    <message>
        <source>One past session&apos;s scratchpad and task output; it may hold work that isn&apos;t saved elsewhere</source>
        <extracomment>Detail of one Claude Code session&apos;s scratch files</extracomment>
        <translation>Notizblock und Aufgabenausgabe einer früheren Sitzung; kann Arbeit enthalten, die nirgends sonst gespeichert ist</translation>
    </message>
    <message>
        <source>Claude Code temp files</source>
        <extracomment>Title of Claude Code scratch files that belong to no one project</extracomment>
        <translation>Temporäre Claude-Code-Dateien</translation>
    </message>
    <message>
        <source>Scratchpads and task output of past sessions</source>
        <extracomment>Detail of Claude Code scratch files that belong to no one project</extracomment>
        <translation>Notizblöcke und Aufgabenausgaben früherer Sitzungen</translation>
    </message>
    <message>
        <source>Shown: system temp items untouched for %1+ days (macOS also clears /tmp when it restarts) and items in your own temp folders untouched for %2+ days.</source>
        <extracomment>Summary of Temporary Files; %1 and %2 are numbers of days (3 and 30)</extracomment>
        <translation>Gezeigt: System-Temp-Objekte, die seit mindestens %1 Tagen unberührt sind (macOS leert /tmp auch beim Neustart), und Objekte in deinen eigenen Temp-Ordnern, die seit mindestens %2 Tagen unberührt sind.</translation>
    </message>
    <message>
        <source>Shown: system temp items untouched for %1+ days (many systems also clear /tmp when they restart) and items in your own temp folders untouched for %2+ days.</source>
        <extracomment>Summary of Temporary Files on Linux; %1 and %2 are numbers of days (3 and 30)</extracomment>
        <translation>Gezeigt: System-Temp-Elemente, die seit %1+ Tagen unberührt sind (viele Systeme leeren /tmp auch beim Neustart), und Elemente in deinen eigenen Temp-Ordnern, die seit %2+ Tagen unberührt sind.</translation>
    </message>
</context>
<context>
    <name>TrashEmptier</name>
    <message>
        <source>Empty the Trash?</source>
        <extracomment>Question before the Trash is emptied</extracomment>
        <translation>Papierkorb entleeren?</translation>
    </message>
    <message>
        <source>Everything in the Trash is deleted for good, including files you put there yourself. This can&apos;t be undone.</source>
        <extracomment>Text of the question before the Trash is emptied</extracomment>
        <translation>Alles im Papierkorb wird endgültig gelöscht, auch Dateien, die du selbst hineingelegt hast. Das lässt sich nicht widerrufen.</translation>
    </message>
    <message>
        <source>Empty Trash</source>
        <extracomment>Button that empties the Trash for good</extracomment>
        <translation>Papierkorb entleeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes a question without doing anything</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Couldn&apos;t empty the Trash</source>
        <extracomment>Title of the message when the Trash could not be emptied; the system&apos;s reason follows</extracomment>
        <translation>Papierkorb konnte nicht entleert werden</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Button that closes the message that the Trash could not be emptied</extracomment>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>TrashProgress</name>
    <message>
        <source>Empty Trash</source>
        <extracomment>Window title of the sheet shown while the Trash is being emptied (where sheets have a title bar)</extracomment>
        <translation>Papierkorb leeren</translation>
    </message>
    <message>
        <source>Emptying the Trash…</source>
        <extracomment>Heading of the sheet shown while the Trash is being emptied</extracomment>
        <translation>Papierkorb wird geleert …</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>Button that stops emptying the Trash after the item being removed</extracomment>
        <translation>Stoppen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n items</source>
        <extracomment>Progress of emptying the Trash; %1 items removed so far, %n items in all</extracomment>
        <translation>
            <numerusform>%1 von %n Element</numerusform>
            <numerusform>%1 von %n Elementen</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopping…</source>
        <extracomment>The Stop button after it was pressed, until the item being removed is gone</extracomment>
        <translation>Wird gestoppt …</translation>
    </message>
</context>
<context>
    <name>TrashScanner</name>
    <message>
        <source>Trash</source>
        <extracomment>Title of the one row of the Trash category</extracomment>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Size unknown without Full Disk Access</source>
        <extracomment>Detail of the Trash row when Dustlark may not read the Trash</extracomment>
        <translation>Größe ohne Festplattenvollzugriff unbekannt</translation>
    </message>
    <message>
        <source>macOS lets Dustlark measure the Trash only with Full Disk Access. Empty Trash works without it.</source>
        <extracomment>Note above the Trash category without Full Disk Access</extracomment>
        <translation>macOS lässt Dustlark den Papierkorb nur mit Festplattenvollzugriff messen. „Papierkorb entleeren“ funktioniert auch ohne.</translation>
    </message>
    <message>
        <source>Some items in the Trash couldn&apos;t be read, so its size counts only the rest. Empty Trash removes them too.</source>
        <extracomment>Note above the Trash category when some of its items could not be read</extracomment>
        <translation>Einige Objekte im Papierkorb konnten nicht gelesen werden, seine Größe zählt also nur den Rest. „Papierkorb entleeren“ entfernt auch sie.</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <extracomment>Detail of the Trash row; %n is the number of files in the Trash</extracomment>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UpdateBox</name>
    <message>
        <source>Check for Updates</source>
        <extracomment>Button that asks the maker&apos;s web site whether a newer build exists</extracomment>
        <translation>Nach Updates suchen</translation>
    </message>
    <message>
        <source>Open Release Page</source>
        <extracomment>Button that opens the web page of an available update</extracomment>
        <translation>Release-Seite öffnen</translation>
    </message>
    <message>
        <source>Install and Relaunch</source>
        <extracomment>Button that downloads, checks and installs an available update, then starts it</extracomment>
        <translation>Installieren und neu starten</translation>
    </message>
    <message>
        <source>Installing the update…</source>
        <extracomment>Shown while an update downloads, is checked and installed</extracomment>
        <translation>Update wird installiert …</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>Shown while the update check runs</extracomment>
        <translation>Suche nach Updates …</translation>
    </message>
    <message>
        <source>Dustlark %1 is available.</source>
        <extracomment>Shown when a newer build exists; %1 is its version, e.g. 1.4</extracomment>
        <translation>Dustlark %1 ist verfügbar.</translation>
    </message>
    <message>
        <source>This is the newest build of Dustlark.</source>
        <extracomment>Shown when the update check found no newer build</extracomment>
        <translation>Dies ist der neueste Build von Dustlark.</translation>
    </message>
</context>
<context>
    <name>UpdateChecker</name>
    <message>
        <source>The update information isn&apos;t available right now. Try again later.</source>
        <extracomment>Check for Updates error when the web site answered with something other than the version file</extracomment>
        <translation>Die Update-Informationen sind gerade nicht verfügbar. Versuche es später erneut.</translation>
    </message>
    <message>
        <source>Couldn&apos;t check for updates: %1</source>
        <extracomment>Check for Updates error. The placeholder is the system&apos;s error message.</extracomment>
        <translation>Nach Updates suchen fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>Updater</name>
    <message>
        <source>The downloaded update didn&apos;t pass the check. This copy wasn&apos;t changed.</source>
        <extracomment>Install and Relaunch error when the downloaded image or app fails its digest or signature check</extracomment>
        <translation>Das geladene Update hat die Prüfung nicht bestanden. Diese Kopie wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Couldn&apos;t install the update (%1). This copy wasn&apos;t changed.</source>
        <extracomment>Install and Relaunch error. The placeholder is the system&apos;s or a tool&apos;s message.</extracomment>
        <translation>Das Update konnte nicht installiert werden (%1). Diese Kopie wurde nicht geändert.</translation>
    </message>
    <message>
        <source>the download is larger than %1, more than any update</source>
        <extracomment>Install and Relaunch error, inside &quot;Couldn&apos;t install the update (...)&quot;; %1 is a size like &quot;1 GB&quot;</extracomment>
        <translation>der Download ist größer als %1, mehr als jedes Update</translation>
    </message>
</context>
<context>
    <name>WatchSection</name>
    <message>
        <source>Warn me when free space falls below:</source>
        <extracomment>Settings row: a notification when the disk&apos;s free space drops below the chosen amount</extracomment>
        <translation>Warnen, wenn der freie Platz fällt unter:</translation>
    </message>
    <message>
        <source>Scan for me:</source>
        <extracomment>Settings row: a background scan on a schedule that only reports, never removes</extracomment>
        <translation>Für mich scannen:</translation>
    </message>
    <message>
        <source>Watch Quietly</source>
        <extracomment>Heading of the free-space warning and the scheduled scan in the settings</extracomment>
        <translation>Still im Blick</translation>
    </message>
    <message>
        <source>Dustlark tells you what it found or that space runs low. It never selects or removes anything on its own.</source>
        <extracomment>Explanation of the free-space warning and the scheduled scan in the settings</extracomment>
        <translation>Dustlark sagt dir, was es gefunden hat oder dass der Platz knapp wird. Es wählt nie von selbst etwas aus und entfernt nie etwas von selbst.</translation>
    </message>
    <message>
        <source>Keep watching when the window is closed</source>
        <extracomment>Settings check box: closing the window leaves the status item running the watch</extracomment>
        <translation>Weiter im Blick behalten, wenn das Fenster geschlossen ist</translation>
    </message>
</context>
<context>
    <name>WorktreeFinder</name>
    <message>
        <source>not checked for changes: git isn&apos;t installed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line when git is missing</extracomment>
        <translation>nicht auf Änderungen geprüft: Git ist nicht installiert</translation>
    </message>
    <message>
        <source>not checked for changes</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line when git couldn&apos;t tell what changed</extracomment>
        <translation>nicht auf Änderungen geprüft</translation>
    </message>
    <message>
        <source>everything committed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line: no file differs from the last commit</extracomment>
        <translation>alles committet</translation>
    </message>
    <message numerus="yes">
        <source>%n files not committed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %n is the number of files not committed</extracomment>
        <translation>
            <numerusform>%n Datei nicht committet</numerusform>
            <numerusform>%n Dateien nicht committet</numerusform>
        </translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation>geändert %1</translation>
    </message>
    <message numerus="yes">
        <source>%n commits on no branch</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %n commits only this detached worktree holds</extracomment>
        <translation>
            <numerusform>%n Commit auf keinem Branch</numerusform>
            <numerusform>%n Commits auf keinem Branch</numerusform>
        </translation>
    </message>
    <message>
        <source>No branch</source>
        <extracomment>Badge of a git worktree whose HEAD is detached</extracomment>
        <translation>Kein Branch</translation>
    </message>
    <message>
        <source>Git isn&apos;t installed, so Dustlark can&apos;t see changes not committed in these worktrees. Install Xcode&apos;s command line tools to see them.</source>
        <extracomment>Note above the Git Worktrees list when no git is installed</extracomment>
        <translation>Git ist nicht installiert, daher sieht Dustlark nicht committete Änderungen in diesen Worktrees nicht. Installiere die Befehlszeilenwerkzeuge von Xcode, um sie zu sehen.</translation>
    </message>
</context>
<context>
    <name>XcodeScanner</name>
    <message>
        <source>Another copy of Xcode; the one selected for builds is not this one</source>
        <extracomment>Detail of a row of another Xcode copy, when no copy is known to be selected</extracomment>
        <translation>Eine weitere Kopie von Xcode; die für Builds ausgewählte ist nicht diese</translation>
    </message>
    <message>
        <source>Another copy of Xcode; the one selected for builds is %1</source>
        <extracomment>Detail of a row of another Xcode copy; %1 is the selected copy&apos;s name like &apos;Xcode.app&apos;</extracomment>
        <translation>Eine weitere Kopie von Xcode; für Builds ausgewählt ist %1</translation>
    </message>
    <message>
        <source>Xcode app</source>
        <extracomment>Badge of a row of another copy of Xcode</extracomment>
        <translation>Xcode-App</translation>
    </message>
    <message>
        <source>Version %1 (%2)</source>
        <extracomment>Fact of an Xcode archive; %1 is the app&apos;s version, %2 its build number</extracomment>
        <translation>Version %1 (%2)</translation>
    </message>
    <message>
        <source>Version %1</source>
        <extracomment>Fact of an Xcode archive; %1 is the app&apos;s version</extracomment>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>archived %1</source>
        <extracomment>Fact of an Xcode archive; %1 is the date and time it was made</extracomment>
        <translation>archiviert am %1</translation>
    </message>
    <message>
        <source>uploaded to Apple</source>
        <extracomment>Fact of an Xcode archive that was sent to App Store Connect</extracomment>
        <translation>an Apple hochgeladen</translation>
    </message>
    <message>
        <source>Newest</source>
        <extracomment>Badge of the newest Xcode archive of an app</extracomment>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>newest archive of this app: its build and crash symbols exist only here</source>
        <extracomment>Fact of the newest Xcode archive of an app</extracomment>
        <translation>neuestes Archiv dieser App: Build und Absturzsymbole gibt es nur hier</translation>
    </message>
    <message>
        <source>the build comes back from its git tag; only crash symbols for this build are lost</source>
        <extracomment>Fact of an Xcode archive that is not the newest of its app</extracomment>
        <translation>der Build kommt über sein Git-Tag zurück; nur die Absturzsymbole dieses Builds gehen verloren</translation>
    </message>
    <message>
        <source>a newer build of this version exists</source>
        <extracomment>Fact of an Xcode archive when a later archive of the same app has the same version</extracomment>
        <translation>es gibt einen neueren Build dieser Version</translation>
    </message>
</context>
</TS>
