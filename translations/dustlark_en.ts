<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ByteCount</name>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="40"/>
        <source>Zero KB</source>
        <extracomment>A size of nothing, in the system&apos;s file-size style</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="45"/>
        <source>%1 byte</source>
        <extracomment>A size of one byte; %1 is &quot;1&quot; or &quot;-1&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="47"/>
        <source>%1 bytes</source>
        <extracomment>A size below one kilobyte; %1 is the number of bytes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/format/ByteCount.cpp" line="60"/>
        <source>%1 %2</source>
        <extracomment>A size with its unit, e.g. &quot;1.2 GB&quot;; %1 is the number, %2 the unit (KB, MB, GB, TB)</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryID</name>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="90"/>
        <source>Project Builds</source>
        <extracomment>Sidebar title of the category of build folders inside projects</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="92"/>
        <source>Git Worktrees</source>
        <extracomment>Sidebar title of the category of extra git working copies</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="94"/>
        <source>Xcode</source>
        <extracomment>Sidebar title of the category of Xcode data (product name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="96"/>
        <source>Simulators</source>
        <extracomment>Sidebar title of the category of iOS simulator devices and runtimes</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="98"/>
        <source>Android</source>
        <extracomment>Sidebar title of the category of Android SDK and Gradle data</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="100"/>
        <source>Package Caches</source>
        <extracomment>Sidebar title of the category of package-manager download caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="102"/>
        <source>Editors</source>
        <extracomment>Sidebar title of the category of code editor caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="104"/>
        <source>Docker</source>
        <extracomment>Sidebar title of the category of Docker objects (product name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="106"/>
        <source>AI Models</source>
        <extracomment>Sidebar title of the category of local AI model files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="108"/>
        <source>AI Agents</source>
        <extracomment>Sidebar title of the category of AI coding agents&apos; data</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="110"/>
        <source>Applications</source>
        <extracomment>Sidebar title of the category of installed applications (the uninstaller)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="112"/>
        <source>Removed Apps&apos; Leftovers</source>
        <extracomment>Sidebar title of the category of data left behind by apps that were removed</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="114"/>
        <source>App Caches</source>
        <extracomment>Sidebar title of the category of application caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="116"/>
        <source>Logs</source>
        <extracomment>Sidebar title of the category of log files and crash reports</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="118"/>
        <source>Browser Caches</source>
        <extracomment>Sidebar title of the category of web browser caches</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="120"/>
        <source>Installers</source>
        <extracomment>Sidebar title of the category of disk images and installer packages</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="122"/>
        <source>Old Downloads</source>
        <extracomment>Sidebar title of the category of files that sat in Downloads for a long time</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="124"/>
        <source>Temporary Files</source>
        <extracomment>Sidebar title of the category of temporary files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="126"/>
        <source>Large Files</source>
        <extracomment>Sidebar title of the category of very large files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="128"/>
        <source>Duplicates</source>
        <extracomment>Sidebar title of the category of files with exact copies</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="130"/>
        <source>iPhone &amp; iPad</source>
        <extracomment>Sidebar title of the category of iPhone and iPad backups and updates</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="132"/>
        <source>Trash</source>
        <extracomment>Sidebar title of the Trash category</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="143"/>
        <source>node_modules, build outputs and virtual environments inside your projects. npm, Gradle, Xcode or SwiftPM rebuild them on the next build, which takes time and sometimes internet. Each row shows when its project last changed.</source>
        <extracomment>Explanation above the Project Builds list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="146"/>
        <source>Extra working copies of your git repositories, grouped by repository, often left by AI agents and parallel branches. Removing one moves its folder to the Trash; its branch and commits stay in the repository. Changes not committed in it, and files git ignores there (like .env), go with it. The main copy of a repository is never listed.</source>
        <extracomment>Explanation above the Git Worktrees list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="149"/>
        <source>DerivedData, caches, previews and device support files are rebuilt automatically. Archives hold your uploaded builds and the symbols that make their crash reports readable. An old archive&apos;s build comes back from its git tag, but not its crash symbols; the newest archive of each app is marked Risky.</source>
        <extracomment>Explanation above the Xcode list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="152"/>
        <source>Device: one virtual iPhone or iPad with its apps and data. Removing it keeps its iOS; a new one is created in seconds (agents and Xcode do it themselves). Runtime: an iOS version itself, shared by its devices. Removing it stops those devices until you download that iOS again. Xcode removes both for good, they don&apos;t go to the Trash. Running simulators can&apos;t be removed.</source>
        <extracomment>Explanation above the Simulators list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="155"/>
        <source>Gradle caches and downloads come back on the next build. Emulators and system images are kept unless you select them.</source>
        <extracomment>Explanation above the Android list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="158"/>
        <source>Download caches of npm, Yarn, Homebrew, pip, CocoaPods and other tools. They are downloaded again when needed. The Maven repository, pnpm store and browser test downloads take longer to get back.</source>
        <extracomment>Explanation above the Package Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="161"/>
        <source>Caches of VS Code, Cursor and JetBrains IDEs. Settings, extensions and projects stay.</source>
        <extracomment>Explanation above the Editors list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="164"/>
        <source>Stopped containers, images no running container uses, build cache and volumes no container uses. Docker removes them for good, they don&apos;t go to the Trash. Check volumes carefully: they can hold databases.</source>
        <extracomment>Explanation above the Docker list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="167"/>
        <source>Local AI models from Ollama, LM Studio and Hugging Face. They are often many gigabytes to download again, so keep the ones you still use.</source>
        <extracomment>Explanation above the AI Models list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="170"/>
        <source>What AI coding agents keep on this Mac: Claude, ChatGPT and Codex, Cursor, Antigravity and Gemini, Qwen, Windsurf, Kiro, Trae, Cline and others. Session histories are what &quot;resume&quot; uses; anything changed in the last day is locked. Live databases and settings are never offered.</source>
        <extracomment>Explanation above the AI Agents list; &quot;resume&quot; is the agents&apos; command to continue a session</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="173"/>
        <source>Remove an app together with its own data in your Library: settings, history, caches and login agents, matched by the app&apos;s identifier. That data is what the app works with, so removing it resets the app. Hover a row to see every path. Apple apps and running apps aren&apos;t offered; apps installed for all users may need Finder to remove.</source>
        <extracomment>Explanation above the Applications list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="176"/>
        <source>Settings, caches and data in your Library from apps that are no longer installed, grouped by app identifier. If you plan to install an app again and want its settings back, keep its row. Not shown: leftovers of a vendor whose other apps are still installed (vendors share helpers) and anything changed in the last %1 days (something still uses it).</source>
        <extracomment>Explanation above the leftovers list; %1 is a number of days</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="180"/>
        <source>Temporary data apps keep to work faster. Apps recreate it; quit them before cleaning. Leave Apple system caches (com.apple.…) unless you know what they hold.</source>
        <extracomment>Explanation above the App Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="183"/>
        <source>Diagnostic logs and crash reports of apps.</source>
        <extracomment>Explanation above the Logs list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="186"/>
        <source>Cached pages and images. Cookies, history, passwords and open tabs are not touched.</source>
        <extracomment>Explanation above the Browser Caches list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="189"/>
        <source>Disk images and installer packages in Downloads and Desktop. Keep the ones you need offline.</source>
        <extracomment>Explanation above the Installers list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="192"/>
        <source>Files and folders that have been in Downloads for %1 days or more. Installers and files of %2+ are listed in their own categories.</source>
        <extracomment>Explanation above the Old Downloads list; %1 is a number of days, %2 a size such as &quot;200 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="197"/>
        <source>Temporary files apps and tools left in /tmp and your macOS temp folder, plus your own temp folders (~/tmp, ~/temp). Only items where nothing changed for days are shown, so running builds and agent sessions stay out.</source>
        <extracomment>Explanation above the Temporary Files list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="200"/>
        <source>Files of %1 or more in your home folder. Review each one before you select it.</source>
        <extracomment>Explanation above the Large Files list; %1 is a size such as &quot;200 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="204"/>
        <source>Files of %1 or more that have exact copies in your home folder. Open a file to see every copy and choose which to remove; one copy always stays. Copies that already share space on the disk aren&apos;t shown, since removing them frees nothing.</source>
        <extracomment>Explanation above the Duplicates list; %1 is a size such as &quot;1 MB&quot;</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="208"/>
        <source>iPhone and iPad backups made by Finder, and downloaded iOS updates. A backup may be the only copy of a device&apos;s data: remove it only if you have a newer one or iCloud Backup.</source>
        <extracomment>Explanation above the iPhone &amp; iPad list</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="211"/>
        <source>Files in the Trash still take space until the Trash is emptied.</source>
        <extracomment>Explanation above the Trash list</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryPage</name>
    <message>
        <location filename="../src/ui/CategoryPage.cpp" line="18"/>
        <source>Scan to see what&apos;s here.</source>
        <extracomment>Empty state of a category that was never scanned</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CleanerGroup</name>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="240"/>
        <source>Developer</source>
        <extracomment>Sidebar heading of the developer categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="242"/>
        <source>Everyday</source>
        <extracomment>Sidebar heading of the everyday categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="249"/>
        <source>Developer Cleaner</source>
        <extracomment>Overview heading of the developer categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/CategoryID.cpp" line="251"/>
        <source>Everyday Cleaner</source>
        <extracomment>Overview heading of the everyday categories</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="16"/>
        <source>Dustlark</source>
        <extracomment>Window title (the app&apos;s name)</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="18"/>
        <source>Overview</source>
        <extracomment>Heading of the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/MainWindow.cpp" line="20"/>
        <source>A scan only reads. You choose what goes to the Trash.</source>
        <extracomment>The promise on the overview screen</extracomment>
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
    <name>Safety</name>
    <message>
        <location filename="../src/model/Safety.cpp" line="11"/>
        <source>Safe</source>
        <extracomment>Safety label of a row: it comes back on its own</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="13"/>
        <source>Ask AI</source>
        <extracomment>Safety label of a row: ask an AI assistant whether to remove it</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="15"/>
        <source>Risky</source>
        <extracomment>Safety label of a row: may hold data that exists nowhere else</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="24"/>
        <source>comes back on its own</source>
        <extracomment>Legend of the Safe label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="26"/>
        <source>depends on how you use it</source>
        <extracomment>Legend of the Ask AI label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="28"/>
        <source>may hold data you can&apos;t get back</source>
        <extracomment>Legend of the Risky label, lower case</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="37"/>
        <source>Safe to remove: it comes back on its own when needed; you only lose the time to rebuild or download it.</source>
        <extracomment>Tooltip of the Safe label</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="39"/>
        <source>Depends on how you use it. Click to copy a description for an AI assistant (Claude, Codex, ChatGPT) and ask.</source>
        <extracomment>Tooltip of the Ask AI label; clicking it copies a question</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/model/Safety.cpp" line="41"/>
        <source>Risky: you can lose data that exists nowhere else. Remove only if you&apos;re sure.</source>
        <extracomment>Tooltip of the Risky label</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="41"/>
        <source>Overview</source>
        <extracomment>Sidebar entry of the overview screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="43"/>
        <source>Storage</source>
        <extracomment>Sidebar entry of the storage breakdown screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="45"/>
        <source>Large Folders</source>
        <extracomment>Sidebar entry of the screen of folders that are large because of many small files</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="47"/>
        <source>Safe List</source>
        <extracomment>Sidebar entry of the Safe List screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location filename="../src/ui/Sidebar.cpp" line="61"/>
        <source>About</source>
        <extracomment>Sidebar entry of the About screen</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
