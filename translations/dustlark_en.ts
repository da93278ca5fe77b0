<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>AIPrompt</name>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="24"/>
        <source>runs `%1` (permanent)</source>
        <extracomment>AI prompt: how a tool removes a row, after &quot;How Dustlark would remove it: &quot;. Keep the backticks; %1 is the command line</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="65"/>
        <source>Dustlark category: %1. %2</source>
        <extracomment>AI prompt line. Placeholders: category title; its explanation</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="72"/>
        <source>Mac: %1</source>
        <extracomment>AI prompt line. %1 names the system version and the processor</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="79"/>
        <source>Answer in %1.</source>
        <extracomment>AI prompt line for a person whose language the app has no translation for. %1 is that language&apos;s name</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="81"/>
        <source>Answer in English.</source>
        <extracomment>AI prompt&apos;s last line. Translators: write this sentence naming your own language, e.g. &quot;Réponds en français.&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="88"/>
        <source>Item: %1</source>
        <extracomment>AI prompt line for a row without a tag. Placeholder: item name</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="90"/>
        <source>Item: %1 (%2)</source>
        <extracomment>AI prompt line. Placeholders: item name; its tag</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="98"/>
        <source>Paths:</source>
        <extracomment>AI prompt: heading of the row&apos;s paths, listed one per line below it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="109"/>
        <source>Largest contents:</source>
        <extracomment>AI prompt: heading of a folder&apos;s largest entries, listed one per line below it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="112"/>
        <source>%1: %2</source>
        <extracomment>AI prompt: one entry of a folder. Placeholders: its name; its size on disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/prompt/AIPrompt.cpp" line="39"/>
        <source>runs `%1` after `docker rm` of %n stopped containers (permanent)</source>
        <extracomment>AI prompt: how Docker removes an image that stopped containers hold. Keep the backticks; %1 is the command line; %n is the number of containers</extracomment>
        <translation>
            <numerusform>runs `%1` after `docker rm` of %n stopped container (permanent)</numerusform>
            <numerusform>runs `%1` after `docker rm` of %n stopped containers (permanent)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../src/prompt/AIPrompt.cpp" line="115"/>
        <source>%n more entries</source>
        <extracomment>AI prompt: the entries of a folder left out of the list. %n is their number</extracomment>
        <translation>
            <numerusform>%n more entry</numerusform>
            <numerusform>%n more entries</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="123"/>
        <source>Dustlark&apos;s note: %1</source>
        <extracomment>AI prompt line. Placeholder: the row&apos;s detail line</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="125"/>
        <source>Dustlark&apos;s safety hint: %1</source>
        <extracomment>AI prompt line. Placeholder: the safety label (&quot;Safe&quot;, &quot;Ask AI&quot; or &quot;Risky&quot;)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="127"/>
        <source>Size on disk: %1</source>
        <extracomment>AI prompt line. Placeholder: the size on disk</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="130"/>
        <source>Last changed or used: %1</source>
        <extracomment>AI prompt line. Placeholder: the date and time the row was last changed or used</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="132"/>
        <source>How Dustlark would remove it: %1</source>
        <extracomment>AI prompt line. Placeholder: how the row goes, e.g. &quot;moves it to the Trash (…)&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="140"/>
        <source>Please tell me:</source>
        <extracomment>AI prompt: heading of the four questions</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="142"/>
        <source>1. What this is and which app or tool uses it.</source>
        <extracomment>AI prompt question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="144"/>
        <source>2. What breaks or is lost if I remove it, and whether it comes back on its own.</source>
        <extracomment>AI prompt question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="146"/>
        <source>3. How I could restore it if I need it later.</source>
        <extracomment>AI prompt question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="148"/>
        <source>4. Your recommendation: remove, keep, or check something first (say exactly what to check).</source>
        <extracomment>AI prompt question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="159"/>
        <source>Removal: everything goes to the Trash (it can be put back until the Trash is emptied).</source>
        <extracomment>AI prompt line about a list of rows that all go to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="161"/>
        <source>Removal: some items are removed permanently by their tool.</source>
        <extracomment>AI prompt line about a list of rows some of which a tool removes for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="172"/>
        <source>%1. %2 — %3 — %4</source>
        <extracomment>AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="174"/>
        <source>%1. %2 — %3 — %4 — %5</source>
        <extracomment>AI prompt: one numbered row of a list. Placeholders: number; name; detail line; size; its paths joined by &quot;; &quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="186"/>
        <source>(%1 more not listed)</source>
        <extracomment>AI prompt: the rows left out of a long list. %1 is their number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="202"/>
        <source>empties the Trash (permanent)</source>
        <extracomment>AI prompt: how emptying the Trash works, after &quot;How Dustlark would remove it: &quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="204"/>
        <source>moves it to the Trash (it can be put back until the Trash is emptied)</source>
        <extracomment>AI prompt: how a row goes to the Trash, after &quot;How Dustlark would remove it: &quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="210"/>
        <source>I&apos;m cleaning up my Mac with Dustlark and want to know whether it&apos;s safe to remove this item.</source>
        <extracomment>AI prompt&apos;s first line, about one row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="225"/>
        <source>I&apos;m cleaning up my Mac with Dustlark. For each item below, tell me whether it&apos;s safe to remove.</source>
        <extracomment>AI prompt&apos;s first line, about a list of rows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/prompt/AIPrompt.cpp" line="229"/>
        <source>Answer as a table: number, item, verdict (Remove / Keep / Check), and one short reason. For Check, say exactly what to check (for example, whether saved passwords are synced elsewhere). Then list the numbers to remove.</source>
        <extracomment>AI prompt: what the answer about a list of rows should look like</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AIQuestions</name>
    <message>
        <location filename="../src/ui/AIQuestions.cpp" line="35"/>
        <source>Question copied. Paste it into your AI assistant.</source>
        <extracomment>Toast after the question for an AI assistant was copied to the clipboard</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppLanguage</name>
    <message>
        <location filename="../src/vocabulary/AppLanguage.cpp" line="88"/>
        <source>System Language</source>
        <extracomment>Language picker: the entry that follows the language chosen in System Settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <location filename="../src/model/AppModel.cpp" line="202"/>
        <source>The scan was stopped before this category finished.</source>
        <extracomment>Banner of a category whose scanner had not finished when the person stopped the scan</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/AppModel.cpp" line="217"/>
        <source>The scan was stopped; this list may be incomplete.</source>
        <extracomment>Banner of a category whose scanner returned early because the scan was stopped</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/AppModelCleanup.cpp" line="73"/>
        <source>It&apos;s the last copy of this file, so it was kept.</source>
        <extracomment>Why a duplicate was not removed: every other copy is gone or being removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/AppModelSafeList.cpp" line="11"/>
        <source>“%1” is on the Safe List.</source>
        <extracomment>Toast after a row was put on the Safe List; %1 is the row&apos;s title</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ByteCount</name>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="41"/>
        <source>Zero KB</source>
        <extracomment>A size of nothing, in the system&apos;s file-size style</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="46"/>
        <source>%1 byte</source>
        <extracomment>A size of one byte; %1 is &quot;1&quot; or &quot;-1&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="48"/>
        <source>%1 bytes</source>
        <extracomment>A size below one kilobyte; %1 is the number of bytes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="61"/>
        <source>%1 %2</source>
        <extracomment>A size with its unit, e.g. &quot;1.2 GB&quot;; %1 is the number, %2 the unit (KB, MB, GB, TB)</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryID</name>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="90"/>
        <source>Project Builds</source>
        <extracomment>Sidebar title of the category of build folders inside projects</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="92"/>
        <source>Git Worktrees</source>
        <extracomment>Sidebar title of the category of extra git working copies</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="94"/>
        <source>Xcode</source>
        <extracomment>Sidebar title of the category of Xcode data (product name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="96"/>
        <source>Simulators</source>
        <extracomment>Sidebar title of the category of iOS simulator devices and runtimes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="98"/>
        <source>Android</source>
        <extracomment>Sidebar title of the category of Android SDK and Gradle data</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="100"/>
        <source>Package Caches</source>
        <extracomment>Sidebar title of the category of package-manager download caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="102"/>
        <source>Editors</source>
        <extracomment>Sidebar title of the category of code editor caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="104"/>
        <source>Docker</source>
        <extracomment>Sidebar title of the category of Docker objects (product name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="106"/>
        <source>AI Models</source>
        <extracomment>Sidebar title of the category of local AI model files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="108"/>
        <source>AI Agents</source>
        <extracomment>Sidebar title of the category of AI coding agents&apos; data</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="110"/>
        <source>Applications</source>
        <extracomment>Sidebar title of the category of installed applications (the uninstaller)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="112"/>
        <source>Removed Apps&apos; Leftovers</source>
        <extracomment>Sidebar title of the category of data left behind by apps that were removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="114"/>
        <source>App Caches</source>
        <extracomment>Sidebar title of the category of application caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="116"/>
        <source>Logs</source>
        <extracomment>Sidebar title of the category of log files and crash reports</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="118"/>
        <source>Browser Caches</source>
        <extracomment>Sidebar title of the category of web browser caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="120"/>
        <source>Installers</source>
        <extracomment>Sidebar title of the category of disk images and installer packages</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="122"/>
        <source>Old Downloads</source>
        <extracomment>Sidebar title of the category of files that sat in Downloads for a long time</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="124"/>
        <source>Temporary Files</source>
        <extracomment>Sidebar title of the category of temporary files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="126"/>
        <source>Large Files</source>
        <extracomment>Sidebar title of the category of very large files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="128"/>
        <source>Duplicates</source>
        <extracomment>Sidebar title of the category of files with exact copies</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="130"/>
        <source>iPhone &amp; iPad</source>
        <extracomment>Sidebar title of the category of iPhone and iPad backups and updates</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="132"/>
        <source>Trash</source>
        <extracomment>Sidebar title of the Trash category</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="143"/>
        <source>node_modules, build outputs and virtual environments inside your projects. npm, Gradle, Xcode or SwiftPM rebuild them on the next build, which takes time and sometimes internet. Each row shows when its project last changed.</source>
        <extracomment>Explanation above the Project Builds list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="146"/>
        <source>Extra working copies of your git repositories, grouped by repository, often left by AI agents and parallel branches. Removing one moves its folder to the Trash; its branch and commits stay in the repository. Changes not committed in it, and files git ignores there (like .env), go with it. The main copy of a repository is never listed.</source>
        <extracomment>Explanation above the Git Worktrees list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="149"/>
        <source>DerivedData, caches, previews and device support files are rebuilt automatically. Archives hold your uploaded builds and the symbols that make their crash reports readable. An old archive&apos;s build comes back from its git tag, but not its crash symbols; the newest archive of each app is marked Risky.</source>
        <extracomment>Explanation above the Xcode list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="152"/>
        <source>Device: one virtual iPhone or iPad with its apps and data. Removing it keeps its iOS; a new one is created in seconds (agents and Xcode do it themselves). Runtime: an iOS version itself, shared by its devices. Removing it stops those devices until you download that iOS again. Xcode removes both for good, they don&apos;t go to the Trash. Running simulators can&apos;t be removed.</source>
        <extracomment>Explanation above the Simulators list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="155"/>
        <source>Gradle caches and downloads come back on the next build. Emulators and system images are kept unless you select them.</source>
        <extracomment>Explanation above the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="158"/>
        <source>Download caches of npm, Yarn, Homebrew, pip, CocoaPods and other tools. They are downloaded again when needed. The Maven repository, pnpm store and browser test downloads take longer to get back.</source>
        <extracomment>Explanation above the Package Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="161"/>
        <source>Caches of VS Code, Cursor and JetBrains IDEs. Settings, extensions and projects stay.</source>
        <extracomment>Explanation above the Editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="164"/>
        <source>Stopped containers, images no running container uses, build cache and volumes no container uses. Docker removes them for good, they don&apos;t go to the Trash. Check volumes carefully: they can hold databases.</source>
        <extracomment>Explanation above the Docker list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="167"/>
        <source>Local AI models from Ollama, LM Studio and Hugging Face. They are often many gigabytes to download again, so keep the ones you still use.</source>
        <extracomment>Explanation above the AI Models list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="170"/>
        <source>What AI coding agents keep on this Mac: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what &quot;resume&quot; uses; anything changed in the last day is locked. Live databases and settings are never offered.</source>
        <extracomment>Explanation above the AI Agents list; &quot;resume&quot; is the agents&apos; command to continue a session</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="173"/>
        <source>Remove an app together with its own data in your Library: settings, history, caches and login agents, matched by the app&apos;s identifier. That data is what the app works with, so removing it resets the app. Hover a row to see every path. Apple apps and running apps aren&apos;t offered; apps installed for all users may need Finder to remove.</source>
        <extracomment>Explanation above the Applications list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="176"/>
        <source>Settings, caches and data in your Library from apps that are no longer installed, grouped by app identifier. If you plan to install an app again and want its settings back, keep its row. Not shown: leftovers of a vendor whose other apps are still installed (vendors share helpers) and anything changed in the last %1 days (something still uses it).</source>
        <extracomment>Explanation above the leftovers list; %1 is a number of days</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="180"/>
        <source>Temporary data apps keep to work faster. Apps recreate it; quit them before cleaning. Leave Apple system caches (com.apple.…) unless you know what they hold.</source>
        <extracomment>Explanation above the App Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="183"/>
        <source>Diagnostic logs and crash reports of apps.</source>
        <extracomment>Explanation above the Logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="186"/>
        <source>Cached pages and images. Cookies, history, passwords and open tabs are not touched.</source>
        <extracomment>Explanation above the Browser Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="189"/>
        <source>Disk images and installer packages in Downloads and Desktop. Keep the ones you need offline.</source>
        <extracomment>Explanation above the Installers list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="192"/>
        <source>Files and folders that have been in Downloads for %1 days or more. Installers and files of %2+ are listed in their own categories.</source>
        <extracomment>Explanation above the Old Downloads list; %1 is a number of days, %2 a size such as &quot;200 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="197"/>
        <source>Temporary files apps and tools left in /tmp and your macOS temp folder, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.</source>
        <extracomment>Explanation above the Temporary Files list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="200"/>
        <source>Files of %1 or more in your home folder. Review each one before you select it.</source>
        <extracomment>Explanation above the Large Files list; %1 is a size such as &quot;200 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="204"/>
        <source>Files of %1 or more that have exact copies in your home folder. Open a file to see every copy and choose which to remove; one copy always stays. Copies that already share space on the disk aren&apos;t shown, since removing them frees nothing.</source>
        <extracomment>Explanation above the Duplicates list; %1 is a size such as &quot;1 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="208"/>
        <source>iPhone and iPad backups made by Finder, and downloaded iOS updates. A backup may be the only copy of a device&apos;s data: remove it only if you have a newer one or iCloud Backup.</source>
        <extracomment>Explanation above the iPhone &amp; iPad list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="211"/>
        <source>Files in the Trash still take space until the Trash is emptied.</source>
        <extracomment>Explanation above the Trash list</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryItemDelegate</name>
    <message>
        <location filename="../src/ui/CategoryItemDelegate.cpp" line="70"/>
        <source>11 months ago</source>
        <extracomment>Width sample for the date column; not shown</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryListModel</name>
    <message>
        <location filename="../src/ui/CategoryListModel.cpp" line="78"/>
        <source>Other worktrees</source>
        <extracomment>Section heading of worktrees whose repository is not known</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/CategoryListModel.cpp" line="80"/>
        <source>%1 · %n worktrees</source>
        <extracomment>Under a repository&apos;s name in Git Worktrees: %1 is its folder, %n the number of its worktrees listed</extracomment>
        <translation>
            <numerusform>%1 · %n worktree</numerusform>
            <numerusform>%1 · %n worktrees</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/CategoryListModel.cpp" line="89"/>
        <source>%n copies of %1 each</source>
        <extracomment>Section heading of a group of identical files; %n is the number of copies shown, %1 the size of one copy</extracomment>
        <translation>
            <numerusform>%n copy of %1</numerusform>
            <numerusform>%n copies of %1 each</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryListModel.cpp" line="157"/>
        <source>One copy always stays.</source>
        <extracomment>Tooltip of the disabled checkbox of the one copy of a duplicate that must stay</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="103"/>
        <source>Rescan</source>
        <extracomment>Button that scans one category again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="120"/>
        <source>Select All</source>
        <extracomment>Checkbox that selects every row the list shows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="125"/>
        <source>Search</source>
        <extracomment>Placeholder of the search field above a list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="130"/>
        <source>Ask AI About These</source>
        <extracomment>Button that copies one question about every shown row for an AI assistant</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="132"/>
        <source>Copies a description of the shown rows for an AI assistant (Claude, Codex, ChatGPT).</source>
        <extracomment>Tooltip of the button that copies a question about every shown row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="135"/>
        <source>Empty Trash…</source>
        <extracomment>Button of the Trash category; a confirmation follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="156"/>
        <source>Shows only rows of at least this size, in every list.</source>
        <extracomment>Tooltip of the size filter above every list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="213"/>
        <source>Scans the scan folders again; Project Builds, Git Worktrees, Large Files and Duplicates refresh together</source>
        <extracomment>Tooltip of the rescan button of Project Builds, Git Worktrees, Large Files and Duplicates</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="216"/>
        <source>Scans this category again</source>
        <extracomment>Tooltip of the rescan button of every other category</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="283"/>
        <source>Nothing matches the filter.</source>
        <extracomment>Empty state when the size filter or the search hides every row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="286"/>
        <source>Scanning…</source>
        <extracomment>Empty state while the category is being scanned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="289"/>
        <source>Scan to see what&apos;s here.</source>
        <extracomment>Empty state of a category that was never scanned</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="291"/>
        <source>Nothing to clean here.</source>
        <extracomment>Empty state when the scan found nothing in this category</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPageActions.cpp" line="34"/>
        <source>Add to Safe List</source>
        <extracomment>Row menu: never show this row in scans again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPageActions.cpp" line="38"/>
        <source>Add Project to Safe List</source>
        <extracomment>Row menu: never show anything inside this row&apos;s project or repository folder again</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPageActions.cpp" line="42"/>
        <source>Show in Finder</source>
        <extracomment>Row menu: open the folder that holds this row in the file manager</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPageActions.cpp" line="45"/>
        <source>Ask an AI Assistant</source>
        <extracomment>Row menu: copy a description of this row to paste into an AI assistant</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CategoryPageActions.cpp" line="82"/>
        <source>“%1” is on the Safe List.</source>
        <extracomment>Toast after a row was put on the Safe List; %1 is the row&apos;s title</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanerGroup</name>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="240"/>
        <source>Developer</source>
        <extracomment>Sidebar heading of the developer categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="242"/>
        <source>Everyday</source>
        <extracomment>Sidebar heading of the everyday categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="249"/>
        <source>Developer Cleaner</source>
        <extracomment>Overview heading of the developer categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/CategoryID.cpp" line="251"/>
        <source>Everyday Cleaner</source>
        <extracomment>Overview heading of the everyday categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupConfirmation</name>
    <message>
        <location filename="../src/ui/CleanupConfirmation.cpp" line="29"/>
        <source>Move “%1” to the Trash?</source>
        <extracomment>Title of the cleanup confirmation for one item that goes to the Trash; %1 is its name</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/CleanupConfirmation.cpp" line="31"/>
        <source>Move %n items to the Trash?</source>
        <extracomment>Title of the cleanup confirmation when every item goes to the Trash; %n is their number</extracomment>
        <translation>
            <numerusform>Move %n item to the Trash?</numerusform>
            <numerusform>Move %n items to the Trash?</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupConfirmation.cpp" line="85"/>
        <source>Removed for good</source>
        <extracomment>Heading of the part of the cleanup confirmation about items Docker and Xcode remove for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupConfirmation.cpp" line="132"/>
        <source>Remove for Good and Clean</source>
        <extracomment>Confirming button of the cleanup when some items are removed for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupConfirmation.cpp" line="135"/>
        <source>Move to Trash</source>
        <extracomment>Confirming button of the cleanup when every item goes to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupConfirmation.cpp" line="137"/>
        <source>Cancel</source>
        <extracomment>Button that closes the cleanup sheet without removing anything</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupProgress</name>
    <message>
        <location filename="../src/ui/CleanupProgress.cpp" line="17"/>
        <source>Cleaning…</source>
        <extracomment>Heading of the cleanup sheet while items are being removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupProgress.cpp" line="25"/>
        <source>Stop</source>
        <extracomment>Button that stops the cleanup after the item being removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/CleanupProgress.cpp" line="51"/>
        <source>%1 of %n items</source>
        <extracomment>Progress of the cleanup; %1 items handled so far, %n items in all</extracomment>
        <translation>
            <numerusform>%1 of %n item</numerusform>
            <numerusform>%1 of %n items</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupProgress.cpp" line="54"/>
        <source>Stopping…</source>
        <extracomment>The Stop button after it was pressed, until the current item is done</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupResults</name>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="39"/>
        <source>Done</source>
        <extracomment>Button that closes the results of a cleanup</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="64"/>
        <source>Moved to the Trash</source>
        <extracomment>Results of a cleanup: the size of what went to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="67"/>
        <source>Removed by Docker and Xcode</source>
        <extracomment>Results of a cleanup: the size of what Docker and the simulator tool removed for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="69"/>
        <source>Free space before</source>
        <extracomment>Results of a cleanup: free disk space before it ran</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="71"/>
        <source>Free space after</source>
        <extracomment>Results of a cleanup: free disk space after it ran</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/CleanupResults.cpp" line="94"/>
        <source>%n items couldn&apos;t be removed</source>
        <extracomment>Heading of the failures in the results of a cleanup; %n is their number</extracomment>
        <translation>
            <numerusform>%n item couldn&apos;t be removed</numerusform>
            <numerusform>%n items couldn&apos;t be removed</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="113"/>
        <source>Empty Trash…</source>
        <extracomment>Button in the results of a cleanup; a confirmation follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="133"/>
        <source>The Trash is empty.</source>
        <extracomment>Results of a cleanup, after the Trash was emptied</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/CleanupResults.cpp" line="136"/>
        <source>Files in the Trash still take space. Empty the Trash to get it back, or check them in Finder first.</source>
        <extracomment>Results of a cleanup when files went to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupSession</name>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="104"/>
        <source>Docker and Xcode remove these items without the Trash. This can&apos;t be undone.</source>
        <extracomment>Text of the cleanup confirmation when some items are removed for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/model/CleanupSession.cpp" line="98"/>
        <source>Remove %n items for good?</source>
        <extracomment>Title of the cleanup confirmation when some items are removed for good; %n is their number</extracomment>
        <translation>
            <numerusform>Remove %n item for good?</numerusform>
            <numerusform>Remove %n items for good?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <location filename="../src/model/CleanupSession.cpp" line="116"/>
        <source>%n selected items are marked Risky: %1. They may hold data that exists nowhere else.</source>
        <extracomment>Cleanup confirmation line; %n is the number of Risky items, %1 the first three titles, comma-separated</extracomment>
        <translation>
            <numerusform>%n selected item is marked Risky: %1. It may hold data that exists nowhere else.</numerusform>
            <numerusform>%n selected items are marked Risky: %1. They may hold data that exists nowhere else.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="124"/>
        <source>Move to the Trash</source>
        <extracomment>Heading of the part of the cleanup confirmation that lists what goes to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="130"/>
        <source>You can put them back from the Trash until you empty it.</source>
        <extracomment>Cleanup confirmation, under &quot;Move to the Trash&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="138"/>
        <source>Docker and Xcode remove these themselves. This can&apos;t be undone.</source>
        <extracomment>Cleanup confirmation, the part about items Docker and Xcode remove for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="140"/>
        <source>Docker and Xcode remove these themselves. This can&apos;t be undone. Docker also removes %1 stopped containers of the selected images.</source>
        <extracomment>Cleanup confirmation when selected Docker images have stopped containers; %1 is their number</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="148"/>
        <source>Cleaning stopped</source>
        <extracomment>Heading of the results sheet after the person stopped the cleanup</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CleanupSession.cpp" line="150"/>
        <source>Cleaning finished</source>
        <extracomment>Heading of the results sheet</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanupSheet</name>
    <message>
        <location filename="../src/ui/CleanupSheet.cpp" line="17"/>
        <source>Clean</source>
        <extracomment>Window title of the cleanup sheet (shown where sheets have a title bar)</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DuplicateFinder</name>
    <message>
        <location filename="../src/scan/DuplicateFinder.cpp" line="370"/>
        <source>created %1</source>
        <extracomment>Fact in a Duplicates row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/DuplicateFinder.cpp" line="379"/>
        <source>Oldest copy</source>
        <extracomment>Badge of the oldest copy among duplicates</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderListEditor</name>
    <message>
        <location filename="../src/ui/FolderListEditor.cpp" line="21"/>
        <source>Choose a Folder</source>
        <extracomment>Title of the folder picker</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/FolderListEditor.cpp" line="34"/>
        <source>Add Folder…</source>
        <extracomment>Button that adds a folder to a list of folders</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/FolderListEditor.cpp" line="36"/>
        <source>Remove</source>
        <extracomment>Button that removes the selected folder from a list of folders</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KnownLocations</name>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="42"/>
        <source>Xcode cache</source>
        <extracomment>Row title in the Xcode list: Xcode&apos;s own cache folder</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="45"/>
        <source>SwiftUI previews</source>
        <extracomment>Row title in the Xcode list: data of SwiftUI previews</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="48"/>
        <source>Simulator caches</source>
        <extracomment>Row title in the Xcode list: caches of the iOS simulator</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="51"/>
        <source>Test simulator clones</source>
        <extracomment>Row title in the Xcode list: simulator copies made for running tests</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="54"/>
        <source>Xcode downloads</source>
        <extracomment>Row title in the Xcode list: files Xcode downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="58"/>
        <source>Device logs</source>
        <extracomment>Row title in the Xcode list: logs copied from connected iPhones and iPads</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="67"/>
        <source>Gradle caches</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="70"/>
        <source>Gradle wrapper · </source>
        <extracomment>Prefix of a row title in the Android list; a Gradle version such as gradle-8.5-bin follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="73"/>
        <source>Gradle daemon logs</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="76"/>
        <source>Android cache</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="79"/>
        <source>Android build cache</source>
        <extracomment>Row title in the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="82"/>
        <source>Android Studio cache · </source>
        <extracomment>Prefix of a row title in the Android list; a folder name such as AndroidStudio2024.1 follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="85"/>
        <source>Android SDK system image</source>
        <extracomment>Detail line of an Android system image row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="88"/>
        <source>NDK </source>
        <extracomment>Prefix of a row title in the Android list; an NDK version number follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="90"/>
        <source>Android NDK version; projects that pin it download it again</source>
        <extracomment>Detail line of an Android NDK row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="93"/>
        <source>Build tools </source>
        <extracomment>Prefix of a row title in the Android list; a version number follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="95"/>
        <source>Android SDK build tools version</source>
        <extracomment>Detail line of an Android build tools row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="98"/>
        <source>SDK platform </source>
        <extracomment>Prefix of a row title in the Android list; a platform name such as android-34 follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="100"/>
        <source>Android SDK platform</source>
        <extracomment>Detail line of an Android SDK platform row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="103"/>
        <source>Gradle JDK · </source>
        <extracomment>Prefix of a row title in the Android list; a Java version folder follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="105"/>
        <source>Java downloaded by Gradle toolchains</source>
        <extracomment>Detail line of a row of Java that Gradle downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="114"/>
        <source>npm cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="117"/>
        <source>Yarn cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="120"/>
        <source>Yarn Berry cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="123"/>
        <source>pnpm store</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="125"/>
        <source>Projects link their packages from here</source>
        <extracomment>Detail line of the pnpm store row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="128"/>
        <source>Bun cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="131"/>
        <source>Homebrew downloads</source>
        <extracomment>Row title in the package caches list: packages Homebrew downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="134"/>
        <source>pip cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="137"/>
        <source>uv cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="140"/>
        <source>CocoaPods cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="143"/>
        <source>Swift Package Manager cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="146"/>
        <source>Carthage cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="149"/>
        <source>Go build cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="152"/>
        <source>Cargo downloads</source>
        <extracomment>Row title in the package caches list: crates Cargo downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="155"/>
        <source>Cargo registry index</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="158"/>
        <source>Cargo git dependencies</source>
        <extracomment>Row title in the package caches list: dependencies Cargo fetched from git</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="161"/>
        <source>Go modules</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="163"/>
        <source>Projects download them again on the next build</source>
        <extracomment>Detail line of the Go modules row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="166"/>
        <source>Dart and Flutter packages</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="168"/>
        <source>`flutter pub get` downloads them again</source>
        <extracomment>Detail line of the Dart and Flutter packages row; the command stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="171"/>
        <source>NuGet packages</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="174"/>
        <source>NuGet HTTP cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="177"/>
        <source>Poetry cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="179"/>
        <source>Includes Poetry&apos;s virtual environments; `poetry install` creates them again</source>
        <extracomment>Detail line of the Poetry cache row; the command stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="182"/>
        <source>node-gyp headers</source>
        <extracomment>Row title in the package caches list: C headers node-gyp downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="185"/>
        <source>Electron downloads</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="188"/>
        <source>electron-builder cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="191"/>
        <source>Deno cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="194"/>
        <source>TypeScript cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="197"/>
        <source>Composer cache</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="200"/>
        <source>Prisma engines</source>
        <extracomment>Row title in the package caches list: database engines Prisma downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="203"/>
        <source>Playwright browsers</source>
        <extracomment>Row title in the package caches list: browsers Playwright downloaded for tests</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="205"/>
        <source>Tests need `npx playwright install` afterwards</source>
        <extracomment>Detail line of the Playwright browsers row; the command stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="208"/>
        <source>Puppeteer browsers</source>
        <extracomment>Row title in the package caches list: browsers Puppeteer downloaded</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="211"/>
        <source>Maven repository</source>
        <extracomment>Row title in the package caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="213"/>
        <source>May hold artifacts you installed locally</source>
        <extracomment>Detail line of the Maven repository row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="222"/>
        <source>Ollama models</source>
        <extracomment>Row title in the AI models list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="224"/>
        <source>All models pulled with Ollama; `ollama pull` downloads them again</source>
        <extracomment>Detail line of the Ollama models row; the command stays as it is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="236"/>
        <source>Downloaded iPhone update; Finder downloads it again when needed</source>
        <extracomment>Detail line of a downloaded iPhone software update</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="239"/>
        <source>Downloaded iPad update; Finder downloads it again when needed</source>
        <extracomment>Detail line of a downloaded iPad software update</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="256"/>
        <source>VS Code caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="258"/>
        <source>Cursor caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="260"/>
        <source>Windsurf caches</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="263"/>
        <source>JetBrains cache · </source>
        <extracomment>Prefix of a row title in the editors list; an IDE folder such as IntelliJIdea2024.1 follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="266"/>
        <source>Zed cache</source>
        <extracomment>Row title in the editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="293"/>
        <source>Crash reports</source>
        <extracomment>Row title in the logs list: reports macOS wrote when apps crashed or hung</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="295"/>
        <source>Reports of apps that crashed or hung; needed only to report a problem</source>
        <extracomment>Detail line of the crash reports row</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="298"/>
        <source>Diagnostic logs; the app starts new ones when it needs them</source>
        <extracomment>Detail line of an app&apos;s log folder in the logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="307"/>
        <source>VS Code logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="310"/>
        <source>Cursor logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="313"/>
        <source>Windsurf logs</source>
        <extracomment>Row title in the logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/KnownLocations.cpp" line="316"/>
        <source>npm debug logs</source>
        <extracomment>Row title in the logs list: logs npm writes when a command fails</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LocationScanner</name>
    <message>
        <location filename="../src/scan/LocationScanner.cpp" line="144"/>
        <source>project no longer exists</source>
        <extracomment>Fact in the detail line of an Xcode DerivedData row, after the project&apos;s path</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/LocationScanner.cpp" line="168"/>
        <source>Archived %1</source>
        <extracomment>Detail line of an Xcode archive row; %1 is the date it was archived, like &quot;Jan 15, 2024&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/LocationScanner.cpp" line="344"/>
        <source>Some folders couldn&apos;t be read. Give Dustlark Full Disk Access in Settings to include them.</source>
        <extracomment>Note above a category&apos;s list when some folders could not be read</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="26"/>
        <source>Dustlark</source>
        <extracomment>Window title (the app&apos;s name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="94"/>
        <source>File</source>
        <extracomment>Menu of the app&apos;s commands</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="97"/>
        <source>Settings…</source>
        <extracomment>Menu entry that opens the settings window</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="109"/>
        <source>Quit Dustlark</source>
        <extracomment>Menu entry that quits the app</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowCleanup.cpp" line="83"/>
        <location filename="../src/ui/MainWindowCleanup.cpp" line="88"/>
        <source>Quit while Dustlark is working?</source>
        <extracomment>Question when the app is asked to quit while a cleanup or a move changes files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowCleanup.cpp" line="93"/>
        <source>Dustlark stops after the current item and removes an unfinished copy, then quits.</source>
        <extracomment>Under &quot;Quit while Dustlark is working?&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowCleanup.cpp" line="95"/>
        <source>Keep Working</source>
        <extracomment>Answer to &quot;Quit while Dustlark is working?&quot;: don&apos;t quit</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowCleanup.cpp" line="97"/>
        <source>Stop and Quit</source>
        <extracomment>Answer to &quot;Quit while Dustlark is working?&quot;: stop after the current item, then quit</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowNavigation.cpp" line="39"/>
        <source>Clean the selected items?</source>
        <extracomment>Question when another screen is chosen while items are selected</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowNavigation.cpp" line="43"/>
        <source>%1 is selected here. Clean it now, or clear the selection and go on.</source>
        <extracomment>Under &quot;Clean the selected items?&quot;; %1 names the selection, e.g. &quot;1.2 GB in 3 items&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowNavigation.cpp" line="45"/>
        <source>Clean…</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: open the cleanup of the selection</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowNavigation.cpp" line="48"/>
        <source>Clear Selection</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: empty the selection and show the chosen screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowNavigation.cpp" line="50"/>
        <source>Cancel</source>
        <extracomment>Answer to &quot;Clean the selected items?&quot;: stay on this screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowToolbar.cpp" line="27"/>
        <source>Toolbar</source>
        <extracomment>Name of the main toolbar (shown in its context menu)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowToolbar.cpp" line="74"/>
        <source>Stop</source>
        <extracomment>Toolbar button that stops the running scan</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowToolbar.cpp" line="78"/>
        <source>Scan</source>
        <extracomment>Toolbar button that scans everything</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/MainWindowToolbar.cpp" line="97"/>
        <source>Scanning… %Ln items</source>
        <extracomment>Scan progress in the toolbar; %Ln is the number of files and folders looked at so far</extracomment>
        <translation>
            <numerusform>Scanning… %Ln item</numerusform>
            <numerusform>Scanning… %Ln items</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindowToolbar.cpp" line="110"/>
        <source>%1 available</source>
        <extracomment>Free space on the disk, in the toolbar; %1 is a size such as &quot;120.5 GB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverviewPage</name>
    <message numerus="yes">
        <location filename="../src/ui/OverviewPage.cpp" line="29"/>
        <source>%Ln items</source>
        <extracomment>Number of items removed by one cleanup; %Ln is the number</extracomment>
        <translation>
            <numerusform>%Ln item</numerusform>
            <numerusform>%Ln items</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="35"/>
        <source>Date</source>
        <extracomment>Column heading of the cleanup history: when a cleanup ran</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="37"/>
        <source>Freed</source>
        <extracomment>Column heading of the cleanup history: the space a cleanup freed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="39"/>
        <source>Items</source>
        <extracomment>Column heading of the cleanup history: how many items a cleanup removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="49"/>
        <source>%1 moved to the Trash, %2 removed by tools</source>
        <extracomment>Tooltip of a cleanup&apos;s freed space; %1 and %2 are sizes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="76"/>
        <source>Overview</source>
        <extracomment>Heading of the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="78"/>
        <source>A scan only reads. You choose what goes to the Trash.</source>
        <extracomment>The promise on the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="83"/>
        <source>Statistics</source>
        <extracomment>Heading of the statistics on the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="88"/>
        <source>Cleanup History</source>
        <extracomment>Heading of the list of past cleanups on the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="121"/>
        <source>Your first cleanup will show up here.</source>
        <extracomment>Shown instead of the cleanup history while there is none</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="144"/>
        <source>Full Disk Access is off</source>
        <extracomment>Heading of the banner shown while the app lacks Full Disk Access</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="146"/>
        <source>Without it, Dustlark can&apos;t read some folders, such as Mail, Messages and Safari data, so what they hold is missing from the scan.</source>
        <extracomment>Banner text shown while the app lacks Full Disk Access</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="149"/>
        <source>Open Privacy Settings…</source>
        <extracomment>Button of the Full Disk Access banner; opens the system&apos;s privacy settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="191"/>
        <source>Cleaned in total</source>
        <extracomment>Statistics caption under the bytes freed by all cleanups so far</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="193"/>
        <source>Cleanups</source>
        <extracomment>Statistics caption under the number of cleanups so far</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="195"/>
        <source>Items removed</source>
        <extracomment>Statistics caption under the number of items removed so far</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="232"/>
        <source>Found so far</source>
        <extracomment>Caption under a group&apos;s found size while a scan runs</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="235"/>
        <source>Found to review</source>
        <extracomment>Caption under a group&apos;s found size after a scan</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="238"/>
        <source>Not scanned yet</source>
        <extracomment>Caption of a group on the overview before any scan</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="250"/>
        <source>Last scan: %1, found %2.</source>
        <extracomment>Overview statistics line; %1 is a relative date (&quot;3 days ago&quot;), %2 a size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/OverviewPage.cpp" line="254"/>
        <source>No full scan yet.</source>
        <extracomment>Overview statistics line before the first finished full scan</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProcessRunner</name>
    <message>
        <location filename="../src/machinery/ProcessRunner.cpp" line="343"/>
        <source>The tool didn&apos;t answer in time.</source>
        <extracomment>Error when a command-line tool (docker, xcrun) times out</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/machinery/ProcessRunner.cpp" line="350"/>
        <source>Exit code %1</source>
        <extracomment>Error of a command-line tool that gave no message</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectScanner</name>
    <message numerus="yes">
        <location filename="../src/scan/ProjectScanner.cpp" line="145"/>
        <source>%n folders couldn&apos;t be read. Allow access when macOS asks, or give Dustlark Full Disk Access.</source>
        <extracomment>Note above Project Builds and Large Files; %n is the number of folders that couldn&apos;t be read</extracomment>
        <translation>
            <numerusform>%n folder couldn&apos;t be read. Allow access when macOS asks, or give Dustlark Full Disk Access.</numerusform>
            <numerusform>%n folders couldn&apos;t be read. Allow access when macOS asks, or give Dustlark Full Disk Access.</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/scan/ProjectScannerRows.cpp" line="42"/>
        <source>project changed %1</source>
        <extracomment>Fact in a Project Builds row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/scan/ProjectScannerRows.cpp" line="46"/>
        <source>%n files in it are tracked by git</source>
        <extracomment>Fact in a Project Builds row&apos;s detail line; %n is how many files in the folder git tracks</extracomment>
        <translation>
            <numerusform>%n file in it is tracked by git</numerusform>
            <numerusform>%n files in it are tracked by git</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/scan/ProjectScannerRows.cpp" line="104"/>
        <source>opened %1</source>
        <extracomment>Fact in a Large Files row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RelativeDate</name>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="23"/>
        <source>last month</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="25"/>
        <source>%1 months ago</source>
        <extracomment>Relative date; %1 is a number of months (2 to 11)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="30"/>
        <source>last year</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="32"/>
        <source>%1 years ago</source>
        <extracomment>Relative date; %1 is a number of years (2 or more)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="42"/>
        <source>just now</source>
        <extracomment>Relative date of something that happened less than a minute ago</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="47"/>
        <source>1 minute ago</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="49"/>
        <source>%1 minutes ago</source>
        <extracomment>Relative date; %1 is a number of minutes (2 to 59)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="55"/>
        <source>1 hour ago</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="57"/>
        <source>%1 hours ago</source>
        <extracomment>Relative date; %1 is a number of hours (2 to 23)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="62"/>
        <source>yesterday</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="65"/>
        <source>%1 days ago</source>
        <extracomment>Relative date; %1 is a number of days (2 to 6)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="71"/>
        <source>last week</source>
        <extracomment>Relative date</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/RelativeDate.cpp" line="73"/>
        <source>%1 weeks ago</source>
        <extracomment>Relative date; %1 is a number of weeks (2 to 4)</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Remover</name>
    <message>
        <location filename="../src/actions/DockerRemoval.cpp" line="49"/>
        <source>Docker isn&apos;t installed.</source>
        <extracomment>Cleanup failure reason for a Docker item</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/DockerRemoval.cpp" line="55"/>
        <source>Docker now uses a different setup than during the scan. Scan again.</source>
        <extracomment>Cleanup failure reason for a Docker item: the Docker endpoint differs from the scan&apos;s</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/FinderTrash.cpp" line="43"/>
        <source>The administrator password wasn&apos;t entered.</source>
        <extracomment>Cleanup failure reason: macOS asked for the password to remove an app and it was cancelled</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/FinderTrash.cpp" line="47"/>
        <source>macOS didn&apos;t allow Dustlark to control Finder. Allow it in System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>Cleanup failure reason: macOS doesn&apos;t let Dustlark control Finder (Automation permission)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/FinderTrash.cpp" line="53"/>
        <source>Finder couldn&apos;t move it to the Trash: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is Finder&apos;s own message (a sentence).</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="10"/>
        <source>It is outside your home folder.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="16"/>
        <source>It no longer exists.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="22"/>
        <source>It is a symbolic link.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="28"/>
        <source>It changed since the scan. Scan again.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="34"/>
        <source>Its path goes through a symbolic link.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="40"/>
        <source>Its folder can&apos;t be read.</source>
        <extracomment>Why an item can&apos;t be moved to the Trash</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="46"/>
        <source>Locked in git (git worktree lock).</source>
        <extracomment>Why a git worktree can&apos;t be selected; keep the command as is</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="52"/>
        <source>Running. Quit it to remove it.</source>
        <extracomment>Why a running app can&apos;t be selected</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="58"/>
        <source>Changed in the last day; a session may be running.</source>
        <extracomment>Why an AI agent&apos;s session history can&apos;t be selected</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="64"/>
        <source>The Trash is emptied with Empty Trash.</source>
        <extracomment>Why the Trash row is not removed like other items</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="71"/>
        <source>It couldn&apos;t be moved to the Trash.</source>
        <extracomment>Cleanup failure reason when the system&apos;s trash refused without saying why</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="74"/>
        <source>It couldn&apos;t be moved to the Trash: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is the system&apos;s own description of the error.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/RemovalReasons.cpp" line="80"/>
        <source>The tool couldn&apos;t be started: %1</source>
        <extracomment>Cleanup failure reason. The placeholder is the system&apos;s reason, e.g. &quot;No such file or directory&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SimulatorRemoval.cpp" line="25"/>
        <source>Xcode&apos;s simulator tool gave an answer Dustlark can&apos;t read.</source>
        <extracomment>Cleanup failure reason when Xcode&apos;s simulator tool (xcrun simctl) printed something unreadable</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SimulatorRemoval.cpp" line="94"/>
        <source>Running. Shut it down to remove it.</source>
        <extracomment>Why a simulator device can&apos;t be removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SimulatorRemoval.cpp" line="132"/>
        <source>A simulator on it is running. Shut it down to remove it.</source>
        <extracomment>Why a simulator runtime can&apos;t be removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReportOptions</name>
    <message>
        <location filename="../src/report/ReportOptions.cpp" line="27"/>
        <source>Unknown argument &quot;%1&quot;.</source>
        <extracomment>Error of the report tool; %1 is the argument it did not understand</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/report/ReportOptions.cpp" line="32"/>
        <source>%1 needs a value.</source>
        <extracomment>Error of the report tool; %1 is an option such as --home</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/report/ReportOptions.cpp" line="45"/>
        <source>Unknown category &quot;%1&quot;.</source>
        <extracomment>Error of the report tool; %1 is the category name it did not know</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SafeListPage</name>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="42"/>
        <source>Added %1</source>
        <extracomment>When a row was put on the Safe List; %1 is a relative date (&quot;3 days ago&quot;, &quot;yesterday&quot;)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="95"/>
        <source>Safe List</source>
        <extracomment>Heading of the Safe List screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="97"/>
        <source>Items and folders here never appear in scans and can&apos;t be cleaned by mistake. Add an item or its whole project from the ••• menu of any row.</source>
        <extracomment>Explanation at the top of the Safe List screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="110"/>
        <source>Items</source>
        <extracomment>Heading of the single items on the Safe List</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="118"/>
        <source>No items are on the list.</source>
        <extracomment>Shown instead of the Safe List&apos;s items while there are none</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="121"/>
        <source>Taking an item off the list scans its category again, so it shows up right away.</source>
        <extracomment>Note under the Safe List&apos;s items</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="127"/>
        <source>Folders — nothing inside is shown</source>
        <extracomment>Heading of the folders on the Safe List</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="130"/>
        <source>No folders are on the list.</source>
        <extracomment>Shown instead of the Safe List&apos;s folders while there are none</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="133"/>
        <source>A folder taken off the list shows up again in the next scan.</source>
        <extracomment>Note under the Safe List&apos;s folders</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SafeListPage.cpp" line="151"/>
        <source>Remove from List</source>
        <extracomment>Button that takes one row off the Safe List</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Safety</name>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="11"/>
        <source>Safe</source>
        <extracomment>Safety label of a row: it comes back on its own</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="13"/>
        <source>Ask AI</source>
        <extracomment>Safety label of a row: ask an AI assistant whether to remove it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="15"/>
        <source>Risky</source>
        <extracomment>Safety label of a row: may hold data that exists nowhere else</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="24"/>
        <source>comes back on its own</source>
        <extracomment>Legend of the Safe label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="26"/>
        <source>depends on how you use it</source>
        <extracomment>Legend of the Ask AI label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="28"/>
        <source>may hold data you can&apos;t get back</source>
        <extracomment>Legend of the Risky label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="37"/>
        <source>Safe to remove: it comes back on its own when needed; you only lose the time to rebuild or download it.</source>
        <extracomment>Tooltip of the Safe label</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="39"/>
        <source>Depends on how you use it. Click to copy a description for an AI assistant (Claude, Codex, ChatGPT) and ask.</source>
        <extracomment>Tooltip of the Ask AI label; clicking it copies a question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/Safety.cpp" line="41"/>
        <source>Risky: you can lose data that exists nowhere else. Remove only if you&apos;re sure.</source>
        <extracomment>Tooltip of the Risky label</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionBar</name>
    <message>
        <location filename="../src/ui/SelectionBar.cpp" line="14"/>
        <source>Clean…</source>
        <extracomment>Button that opens the cleanup of the selected items</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/ui/SelectionBar.cpp" line="31"/>
        <source>%1 in %n items</source>
        <extracomment>Names a selection; %1 is the total size, %n the number of items</extracomment>
        <translation>
            <numerusform>%1 in %n item</numerusform>
            <numerusform>%1 in %n items</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/ui/SelectionBar.cpp" line="39"/>
        <source>Labels show how safe it is to delete each item. Nothing is selected for you.</source>
        <extracomment>Line under a list while nothing is selected</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SelectionBar.cpp" line="43"/>
        <source>%1 selected</source>
        <extracomment>Line under a list; %1 names the selection, e.g. &quot;1.2 GB in 3 items&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="25"/>
        <source>Settings</source>
        <extracomment>Heading of the settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="27"/>
        <source>Scan Folders</source>
        <extracomment>Heading of the scan folders in the settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="29"/>
        <source>Dustlark looks for project builds, Git worktrees, large files and duplicates in these folders.</source>
        <extracomment>Explanation of the scan folders in the settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="64"/>
        <source>Language:</source>
        <extracomment>Label of the interface language picker in the settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="67"/>
        <source>Relaunch</source>
        <extracomment>Button that restarts the app so a newly chosen language takes effect</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="79"/>
        <source>Interface Language</source>
        <extracomment>Heading of the interface language in the settings</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="108"/>
        <source>The new language is used after Dustlark relaunches.</source>
        <extracomment>Shown after choosing another interface language</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/SettingsPage.cpp" line="118"/>
        <source>Dustlark couldn&apos;t relaunch. Quit it and open it again.</source>
        <extracomment>Shown when the app could not start itself again</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="48"/>
        <source>Overview</source>
        <extracomment>Sidebar entry of the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="50"/>
        <source>Storage</source>
        <extracomment>Sidebar entry of the storage breakdown screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="52"/>
        <source>Large Folders</source>
        <extracomment>Sidebar entry of the screen of folders that are large because of many small files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="54"/>
        <source>Safe List</source>
        <extracomment>Sidebar entry of the Safe List screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="57"/>
        <source>About</source>
        <extracomment>Sidebar entry of the About screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SizeFilter</name>
    <message>
        <location filename="../src/vocabulary/SizeFilter.cpp" line="38"/>
        <source>All Sizes</source>
        <extracomment>Size filter menu: show rows of every size</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/SizeFilter.cpp" line="40"/>
        <source>10 MB+</source>
        <extracomment>Size filter menu: show rows of 10 megabytes or more</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/SizeFilter.cpp" line="42"/>
        <source>100 MB+</source>
        <extracomment>Size filter menu: show rows of 100 megabytes or more</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/vocabulary/SizeFilter.cpp" line="44"/>
        <source>1 GB+</source>
        <extracomment>Size filter menu: show rows of 1 gigabyte or more</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemAccess</name>
    <message>
        <location filename="../src/actions/FreedesktopTrash.cpp" line="150"/>
        <source>Some items in the Trash couldn&apos;t be removed. Empty the Trash again or use your file manager.</source>
        <extracomment>Empty Trash error on Linux, when some trashed items could not be deleted</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="33"/>
        <source>Finder is still emptying the Trash; it finishes on its own.</source>
        <extracomment>Empty Trash status</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="40"/>
        <source>macOS didn&apos;t allow Dustlark to control Finder. Allow it in System Settings › Privacy &amp; Security › Automation.</source>
        <extracomment>Empty Trash error</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="46"/>
        <source>Emptying the Trash was stopped in Finder. What was already removed is gone.</source>
        <extracomment>Empty Trash error</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="65"/>
        <source>Finder couldn&apos;t empty the whole Trash: %1 Quit the app that uses it and empty the Trash again.</source>
        <extracomment>Empty Trash error. The placeholder is Finder&apos;s own sentence.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="68"/>
        <source>Finder couldn&apos;t empty the whole Trash: %1 Empty the Trash again or use Finder.</source>
        <extracomment>Empty Trash error. The placeholder is Finder&apos;s own sentence.</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/actions/SystemAccess.cpp" line="77"/>
        <source>Finder couldn&apos;t be asked to empty the Trash: %1</source>
        <extracomment>Empty Trash error when osascript can&apos;t be started. The placeholder is the system&apos;s reason.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SystemTrash</name>
    <message>
        <location filename="../src/actions/SystemTrash.cpp" line="25"/>
        <source>The Trash folder can&apos;t be set up.</source>
        <extracomment>Why a file couldn&apos;t be moved to the Trash: the system&apos;s Trash folder is missing and can&apos;t be made</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrashEmptier</name>
    <message>
        <location filename="../src/ui/TrashEmptier.cpp" line="16"/>
        <source>Empty the Trash?</source>
        <extracomment>Question before the Trash is emptied</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/TrashEmptier.cpp" line="19"/>
        <source>Everything in the Trash is deleted for good, including files you put there yourself. This can&apos;t be undone.</source>
        <extracomment>Text of the question before the Trash is emptied</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/TrashEmptier.cpp" line="21"/>
        <source>Empty Trash</source>
        <extracomment>Button that empties the Trash for good</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/TrashEmptier.cpp" line="23"/>
        <source>Cancel</source>
        <extracomment>Button that closes a question without doing anything</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/TrashEmptier.cpp" line="47"/>
        <source>Couldn&apos;t empty the Trash</source>
        <extracomment>Title of the message when the Trash could not be emptied; the system&apos;s reason follows</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WorktreeFinder</name>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="74"/>
        <source>not checked for changes: git isn&apos;t installed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line when git is missing</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="80"/>
        <source>not checked for changes</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line when git couldn&apos;t tell what changed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="83"/>
        <source>everything committed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line: no file differs from the last commit</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="85"/>
        <source>%n files not committed</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %n is the number of files not committed</extracomment>
        <translation>
            <numerusform>%n file not committed</numerusform>
            <numerusform>%n files not committed</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="94"/>
        <source>changed %1</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %1 is a relative date like &apos;3 months ago&apos;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="100"/>
        <source>%n commits on no branch</source>
        <extracomment>Fact in a Git Worktrees row&apos;s detail line; %n commits only this detached worktree holds</extracomment>
        <translation>
            <numerusform>%n commit on no branch</numerusform>
            <numerusform>%n commits on no branch</numerusform>
        </translation>
    </message>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="143"/>
        <source>No branch</source>
        <extracomment>Badge of a git worktree whose HEAD is detached</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/scan/WorktreeFinderRows.cpp" line="177"/>
        <source>Git isn&apos;t installed, so Dustlark can&apos;t see changes not committed in these worktrees. Install Xcode&apos;s command line tools to see them.</source>
        <extracomment>Note above the Git Worktrees list when no git is installed</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
