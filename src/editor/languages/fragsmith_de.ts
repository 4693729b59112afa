<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BotCommands</name>
    <message>
        <source>New bot, all zeros</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bot, average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New bot, </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: drawn with the seed %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no bot: give a folder, a *_c.c file or a *.pk3 package.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no bot in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bot was not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the values as the game reads them</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChatPage</name>
    <message>
        <source>Remove line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MATCH</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HITS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DEATHS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KILLS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHATTER</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DraftBar</name>
    <message>
        <source>Restore it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no files yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bot %1 was not saved when Fragsmith last ended. It was kept on %2; %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FacesModel</name>
    <message>
        <source>%1, skin %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindingsDock</name>
    <message>
        <source>What the game will do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game will do with this bot (F8)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show as one</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InstallCommands</name>
    <message>
        <source>Nothing was installed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LibraryCommands</name>
    <message>
        <source>%1 was not removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was removed from %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>Not looked at yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model and skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game will do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineOrder</name>
    <message>
        <source>Move line up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move line down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListBar</name>
    <message>
        <source>Show list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was noticed in the files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Also in these files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MatchChoices</name>
    <message>
        <source>Minutes of a match</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unti&amp;l it is sure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wished share in a hundred</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matches side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Against</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How this bot was, or the name of a bot of the installed game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Aga&amp;inst:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;kill:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min&amp;utes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of game time: five pass in some seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matc&amp;hes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plays until it is clear which of the two is better, or that they differ by less than 5 points in a hundred, %1 matches at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of the points of the two, for &quot;Make it as strong&quot;: 50 is an equal of the opponent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wished share:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Side &amp;by side:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Several with commas between them take turns</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MatchFindings</name>
    <message>
        <source>Findings and what the matches show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contradict</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MatchResults</name>
    <message>
        <source>What it said</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Situation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every so many seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figures of both bots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kills</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deaths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frags a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deaths a minute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it s&amp;aid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it &amp;took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>St&amp;rength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found in the bot, where the matches confirm or contradict it; double click or Enter leads to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double click or Enter leads to the line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never heard: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot be told: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a ready-made line, or a reply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none of its lines</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelSelector</name>
    <message>
        <source>Choose...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a model and skin by its face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the faces of all models and skins.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NotesBar</name>
    <message>
        <source>Take the values as the game reads them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One thing was noticed in the files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 things were noticed in the files.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlacesBar</name>
    <message>
        <source>Home</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Working folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReadyMadePicker</name>
    <message>
        <source>(not in this game)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkillBox</name>
    <message>
        <source>Skill</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpokenPreview</name>
    <message>
        <source>%1: %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1, too long&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;%1, nearly full&lt;/b&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Chance: %1 % (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game would say</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the file: 000 of 255, nearly full </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draws other words and says the line again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the game:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In a game (our sample words):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(the line breaks the chat file)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(the game has no list %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>spoken</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StrengthList</name>
    <message>
        <source>Values that make it weaker or stronger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weak end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As it was</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strong end</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariableCompletion</name>
    <message>
        <source>Variables</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomeCommands</name>
    <message>
        <source>Not scanned yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 models, %2 skins, %3 bots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a bot of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the bot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the pages of the bot (Esc). This page is under Help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or go on with a recent one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or change one of the game&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bots of the game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks through the game&apos;s packages for models, skins and bots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use this game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the game&apos;s folder and looks through its packages for models, skins and bots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No game was found. Bots can be made without one; with it there are its models and its lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With its folder set there are the game&apos;s models, bots and lines.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, package %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search %1 bots</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCheck</name>
    <message>
        <source>There are errors: the game does not take this bot as it is meant, or takes it at some skills only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game takes this bot, but not all of it as it is meant.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game takes this bot as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check a bot&apos;s files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of bots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the &amp;game will do:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game will do</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no bot in %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files of a bot end in _c.c, _w.c, _i.c, _t.c and .bot; of many packages choose one.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmCompare</name>
    <message>
        <source>&amp;All of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only &amp;differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy from %1 to this bot:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This bot and %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Level &amp;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>level %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All &amp;chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all chats</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 difference</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy from %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmFaces</name>
    <message>
        <source>Choose a model and skin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models and skins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No model or skin has this in its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 skins. Grey ones have no icon in the game.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmLibrary</name>
    <message>
        <source>Bot library</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Part of a name, model or place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Duplicate as new</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Com&amp;pare with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bots are known: set the game&apos;s folder in Program/Options, then choose Tools/Check baseq3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bot has this.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bots.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>No draft of this bot can be kept: save it. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options and lists cannot be written. </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmMatch</name>
    <message>
        <source>&amp;Make it as strong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take the stren&amp;gth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play it out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change a value and press Start: the bot as it stands plays against how it was, at some fifty times the speed of the game. You can go on editing meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the levels between a weak and a strong end until the bot takes the wished share. Nothing changes before you take the result.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the bot the values of the list &quot;Strength&quot;, as one step that can be undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Runs of this session:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs of this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Against</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Share</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skill, map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Those that are selected stand in one picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Table of the matches (CSV)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All that happened (JSON)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Picture of the results (PNG)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2%3 matches played, %4 running, minute %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Strength</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bot has that strength now; Undo takes it back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> What you changed since the run began stays: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another bot is in the window now. Load %1 again first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>frmTry</name>
    <message>
        <source>Try %1 in game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bot as it is in the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its files as they are on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opponents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Opponents:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>names of bots, with blanks between</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;What the game says:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What our c&amp;hecks say:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no map to play on. Enter its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
The engine prints without end. It was ended.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The engine ended before the bot was added. %1 Look at the data folder and the game folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What it printed last:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
