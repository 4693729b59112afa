<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>BotCommands</name>
    <message>
        <source>New bot, all zeros</source>
        <translation>Neuer Bot, lauter Nullen</translation>
    </message>
    <message>
        <source>New bot, average</source>
        <translation>Neuer Bot, Durchschnitt</translation>
    </message>
    <message>
        <source>%1: drawn with the seed %2.</source>
        <translation>%1: ausgelost mit dem Startwert %2.</translation>
    </message>
    <message>
        <source>Restore it</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Load %1</source>
        <translation>%1 laden</translation>
    </message>
    <message>
        <source>Load a file</source>
        <translation>Eine Datei laden</translation>
    </message>
    <message>
        <source>%1 is no bot: give a folder, a *_c.c file or a *.pk3 package.</source>
        <translation>%1 ist kein Bot: Geben Sie einen Ordner, eine Datei *_c.c oder ein Paket *.pk3 an.</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>There is no bot in %1.</source>
        <translation>In %1 ist kein Bot.</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>The bot was not saved.</source>
        <translation>Der Bot wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Take the values as the game reads them</source>
        <translation>Die Werte so übernehmen, wie das Spiel sie liest</translation>
    </message>
    <message>
        <source>New bot, %1</source>
        <translation>Neuer Bot, %1</translation>
    </message>
    <message>
        <source>%1 was not loaded.</source>
        <translation>%1 wurde nicht geladen.</translation>
    </message>
    <message>
        <source>%1 was not loaded: %2.</source>
        <translation>%1 wurde nicht geladen: %2.</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
</context>
<context>
    <name>BotListBox</name>
    <message>
        <source>Bots of the game: Bot, Pk3-file, Botfile</source>
        <translation>Bots des Spiels: Bot, Pk3-file, Botfile</translation>
    </message>
</context>
<context>
    <name>BotLoader</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Loading %1...</source>
        <translation>%1 wird geladen...</translation>
    </message>
</context>
<context>
    <name>ChatPage</name>
    <message>
        <source>MATCH</source>
        <translation>MATCH</translation>
    </message>
    <message>
        <source>HITS</source>
        <translation>TREFFER</translation>
    </message>
    <message>
        <source>DEATHS</source>
        <translation>TODE</translation>
    </message>
    <message>
        <source>KILLS</source>
        <translation>ABSCHÜSSE</translation>
    </message>
    <message>
        <source>CHATTER</source>
        <translation>GEPLAUDER</translation>
    </message>
    <message>
        <source> &quot;%1&quot; on the page &quot;Chat characteristics&quot; sets the chance. Bots speak in free-for-all games only, and at most one line in 25 seconds.</source>
        <translation> „%1“ auf der Seite „Chat characteristics“ bestimmt die Wahrscheinlichkeit. Bots sprechen nur in Free-for-all-Spielen und höchstens eine Zeile in 25 Sekunden.</translation>
    </message>
    <message>
        <source>Inserts %1: in the game %2.</source>
        <translation>Fügt %1 ein: im Spiel %2.</translation>
    </message>
    <message>
        <source>The game does not fill %1 here: it speaks %2.</source>
        <translation>Das Spiel füllt %1 hier nicht: Es spricht %2.</translation>
    </message>
    <message>
        <source>not filled here: the game speaks %1</source>
        <translation>hier nicht gefüllt: das Spiel spricht %1</translation>
    </message>
    <message>
        <source>belongs to other occasions</source>
        <translation>gehört zu anderen Anlässen</translation>
    </message>
    <message>
        <source>not in this game</source>
        <translation>nicht in diesem Spiel</translation>
    </message>
    <message>
        <source>some %1</source>
        <translation>Wörter aus %1</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>every %1 s</source>
        <translation>alle %1 s</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 is %2</source>
        <translation>%1 ist %2</translation>
    </message>
    <message>
        <source>Chat line</source>
        <translation>Chatzeile</translation>
    </message>
    <message>
        <source>Adds an empty line to be written.</source>
        <translation>Fügt eine leere Zeile zum Schreiben hinzu.</translation>
    </message>
    <message>
        <source>Removes the selected line. In the list of lines the Delete key does the same.</source>
        <translation>Entfernt die ausgewählte Zeile. In der Liste der Zeilen tut die Taste Entf dasselbe.</translation>
    </message>
    <message>
        <source>Adds a ready-made line of the game that suits the selected chat group, picked at random.</source>
        <translation>Fügt eine zufällig gewählte fertige Zeile des Spiels hinzu, die zum ausgewählten Anlass passt.</translation>
    </message>
    <message>
        <source>Move line</source>
        <translation>Zeile verschieben</translation>
    </message>
    <message>
        <source>Duplicate line</source>
        <translation>Zeile duplizieren</translation>
    </message>
    <message>
        <source>%1 becomes a random word of the game&apos;s list %2. Not all game data have it.</source>
        <translation>%1 wird zu einem zufälligen Wort aus der Liste %2 des Spiels. Nicht alle Spieldaten haben sie.</translation>
    </message>
    <message>
        <source>Inserts the word list at the cursor of the line box. With the cursor at the very start it takes the place of the whole text.</source>
        <translation>Fügt die Wortliste an der Schreibmarke im Zeilenfeld ein. Steht sie ganz am Anfang, ersetzt die Wortliste den ganzen Text.</translation>
    </message>
    <message>
        <source>Puts ~ in front of each word of the line that is in the synonym list. The game may swap words for others of the same meaning; a word with ~ stays as it is.</source>
        <translation>Setzt ~ vor jedes Wort der Zeile, das in der Synonymliste steht. Das Spiel kann Wörter gegen andere gleicher Bedeutung tauschen; ein Wort mit ~ bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Done whenever the line box is left or Enter is pressed in it.</source>
        <translation>Geschieht immer, wenn das Zeilenfeld verlassen oder darin die Eingabetaste gedrückt wird.</translation>
    </message>
    <message>
        <source>Text of the selected line</source>
        <translation>Text der ausgewählten Zeile</translation>
    </message>
    <message>
        <source>The selected line. Words in braces are filled by the game. On the screen there is room for some 125 letters; letters beyond plain English become gaps, and a double quote breaks the file for the game.</source>
        <translation>Die ausgewählte Zeile. Wörter in geschweiften Klammern füllt das Spiel. Auf dem Bildschirm ist Platz für etwa 125 Buchstaben; Umlaute und andere Buchstaben, die es im Englischen nicht gibt, werden zu Lücken, und ein doppeltes Anführungszeichen macht die Datei für das Spiel unlesbar.</translation>
    </message>
    <message>
        <source>(empty line)</source>
        <translation>(leere Zeile)</translation>
    </message>
    <message>
        <source>Lines: %1. Spoken: %2.</source>
        <translation>Zeilen: %1. Gesprochen: %2.</translation>
    </message>
</context>
<context>
    <name>CodePageValidator</name>
    <message>
        <source>The game&apos;s texts cannot hold this character.</source>
        <translation>Die Texte des Spiels können dieses Zeichen nicht enthalten.</translation>
    </message>
</context>
<context>
    <name>CompareGroups</name>
    <message>
        <source>Identity</source>
        <translation>Identität</translation>
    </message>
</context>
<context>
    <name>DifferenceRows</name>
    <message>
        <source>(none)</source>
        <translation>(nichts)</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
</context>
<context>
    <name>DifferencesModel</name>
    <message>
        <source>What</source>
        <translation>Was</translation>
    </message>
    <message>
        <source>This bot</source>
        <translation>Dieser Bot</translation>
    </message>
</context>
<context>
    <name>DirView</name>
    <message>
        <source>&amp;Drive:</source>
        <translation>Lau&amp;fwerk:</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Pfad</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>&amp;Path:</source>
        <translation>&amp;Pfad:</translation>
    </message>
    <message>
        <source>&amp;Folders (there is no such path)</source>
        <translation>&amp;Ordner (diesen Pfad gibt es nicht)</translation>
    </message>
    <message>
        <source>&amp;Folders</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>&amp;Folders (this one cannot be read)</source>
        <translation>&amp;Ordner (dieser ist nicht lesbar)</translation>
    </message>
    <message>
        <source>No f&amp;iles %1</source>
        <translation>Keine Date&amp;ien %1</translation>
    </message>
    <message>
        <source>F&amp;iles %1</source>
        <translation>Date&amp;ien %1</translation>
    </message>
</context>
<context>
    <name>DraftBar</name>
    <message>
        <source>Restore it</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard it</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>The bot %1 was not saved when Fragsmith last ended. It was kept on %2; it has no files yet.</source>
        <translation>Der Bot %1 war nicht gespeichert, als Fragsmith zuletzt endete. Er wurde am %2 aufbewahrt; er hat noch keine Dateien.</translation>
    </message>
    <message>
        <source>The bot %1 was not saved when Fragsmith last ended. It was kept on %2; it is from %3.</source>
        <translation>Der Bot %1 war nicht gespeichert, als Fragsmith zuletzt endete. Er wurde am %2 aufbewahrt; er stammt aus %3.</translation>
    </message>
</context>
<context>
    <name>EditCommands</name>
    <message>
        <source>Copy level %1 to level %2</source>
        <translation>Stufe %1 auf Stufe %2 kopieren</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederherstellen: %1</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>Re&amp;set %1 to %2</source>
        <translation>%1 auf %2 &amp;zurücksetzen</translation>
    </message>
</context>
<context>
    <name>EngineFields</name>
    <message>
        <source>Data folder</source>
        <translation>Datenordner</translation>
    </message>
    <message>
        <source>Game folder</source>
        <translation>Spielordner</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Engine</translation>
    </message>
    <message>
        <source>The game&apos;s program. With a dedicated server nothing is seen but its words.</source>
        <translation>Das Programm des Spiels. Bei einem dedizierten Server ist nichts zu sehen als das, was er schreibt.</translation>
    </message>
    <message>
        <source>The game&apos;s dedicated server, such as ioq3ded</source>
        <translation>Der dedizierte Server des Spiels, zum Beispiel ioq3ded</translation>
    </message>
    <message>
        <source>where the engine looks by itself</source>
        <translation>wo die Engine von selbst sucht</translation>
    </message>
    <message>
        <source>The folder above the game folder; empty for the one that the engine knows</source>
        <translation>Der Ordner über dem Spielordner; leer für den, den die Engine kennt</translation>
    </message>
    <message>
        <source>baseq3, or baseoa for OpenArena</source>
        <translation>baseq3, oder baseoa für OpenArena</translation>
    </message>
    <message>
        <source>&amp;Engine:</source>
        <translation>&amp;Engine:</translation>
    </message>
    <message>
        <source>&amp;Data folder:</source>
        <translation>&amp;Datenordner:</translation>
    </message>
    <message>
        <source>&amp;Game folder:</source>
        <translation>Spiel&amp;ordner:</translation>
    </message>
    <message>
        <source>&amp;Map:</source>
        <translation>&amp;Karte:</translation>
    </message>
</context>
<context>
    <name>FaceStore</name>
    <message>
        <source>Icons are off: set the game and WinZip folders in Program/Options</source>
        <translation>Die Bilder sind aus: Stellen Sie unter „Program/Options“ die Ordner von Spiel und WinZip ein</translation>
    </message>
    <message>
        <source>The package of this skin is not in the game</source>
        <translation>Das Paket dieses Skins ist nicht im Spiel</translation>
    </message>
    <message>
        <source>The icon of this skin was not found</source>
        <translation>Das Bild dieses Skins wurde nicht gefunden</translation>
    </message>
    <message>
        <source>A skin that you entered yourself</source>
        <translation>Ein Skin, den Sie selbst eingetragen haben</translation>
    </message>
    <message>
        <source>The icon of this skin</source>
        <translation>Das Bild dieses Skins</translation>
    </message>
</context>
<context>
    <name>FacesModel</name>
    <message>
        <source>%1, skin %2</source>
        <translation>%1, Skin %2</translation>
    </message>
</context>
<context>
    <name>FindingCounts</name>
    <message>
        <source>%1 error</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warning</source>
        <translation>%1 Warnung</translation>
    </message>
    <message>
        <source>%1 hint</source>
        <translation>%1 Hinweis</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1 hints</source>
        <translation>%1 Hinweise</translation>
    </message>
    <message>
        <source>Nothing to tell</source>
        <translation>Nichts zu melden</translation>
    </message>
</context>
<context>
    <name>FindingsDock</name>
    <message>
        <source>What the game will do</source>
        <translation>Was das Spiel daraus macht</translation>
    </message>
    <message>
        <source>What the game will do with this bot (F8)</source>
        <translation>Was das Spiel aus diesem Bot macht (F8)</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Alle %1 zeigen</translation>
    </message>
    <message>
        <source>Show as one</source>
        <translation>In einer Zeile zeigen</translation>
    </message>
    <message>
        <source>Make it ready for the game</source>
        <translation>Fertig fürs Spiel machen</translation>
    </message>
    <message>
        <source>Mends all that nobody has edited yet, chat lines that this game lacks included; one step of undo</source>
        <translation>Behebt alles, was noch niemand bearbeitet hat, auch Chatzeilen, die dieses Spiel nicht hat; in einem Schritt rückgängig zu machen</translation>
    </message>
    <message>
        <source>Mend all that is safe</source>
        <translation>Alles Sichere beheben</translation>
    </message>
    <message>
        <source>Mends what takes nothing away that you wrote and that the game would use; one step of undo</source>
        <translation>Behebt, was nichts wegnimmt, das Sie geschrieben haben und das Spiel nutzen würde; in einem Schritt rückgängig zu machen</translation>
    </message>
    <message>
        <source>On this page</source>
        <translation>Auf dieser Seite</translation>
    </message>
    <message>
        <source>The same for what stands on the page in sight</source>
        <translation>Dasselbe für das, was auf der sichtbaren Seite steht</translation>
    </message>
    <message>
        <source>Mend the selected one</source>
        <translation>Ausgewähltes beheben</translation>
    </message>
    <message>
        <source>Does what the button in its row does, as the space bar does in the list</source>
        <translation>Tut, was die Schaltfläche in der Zeile tut, wie die Leertaste in der Liste</translation>
    </message>
</context>
<context>
    <name>FindingsModel</name>
    <message>
        <source>In the files: %1</source>
        <translation>In den Dateien: %1</translation>
    </message>
    <message>
        <source>In the files, %1: %2</source>
        <translation>In den Dateien, %1: %2</translation>
    </message>
    <message>
        <source>%1 (And %2 more of this kind.)</source>
        <translation>%1 (Und %2 weitere dieser Art.)</translation>
    </message>
    <message>
        <source>The right arrow key or a double click unfolds what stands in one row, the left one folds it again.</source>
        <translation>Die rechte Pfeiltaste oder ein Doppelklick klappt auf, was in einer Zeile zusammensteht, die linke klappt es wieder zu.</translation>
    </message>
    <message>
        <source>Mend all %1</source>
        <translation>Alle %1 beheben</translation>
    </message>
    <message>
        <source>Mend...</source>
        <translation>Beheben...</translation>
    </message>
</context>
<context>
    <name>FindingsView</name>
    <message>
        <source>The space bar mends.</source>
        <translation>Die Leertaste behebt.</translation>
    </message>
</context>
<context>
    <name>FunNamePreview</name>
    <message>
        <source>Funname preview</source>
        <translation>Vorschau des Spielernamens</translation>
    </message>
</context>
<context>
    <name>HelpCommands</name>
    <message>
        <source>The versions of the program and the system are in the clipboard.</source>
        <translation>Die Versionen des Programms und des Systems sind in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>IconBox</name>
    <message>
        <source>Skin icon</source>
        <translation>Bild des Skins</translation>
    </message>
</context>
<context>
    <name>IdentityPanel</name>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Version, railgun color, arenalord and comment: the game reads none of them.</source>
        <translation>Version, Railgunfarbe, Arenalord und Kommentar: Das Spiel liest nichts davon.</translation>
    </message>
    <message>
        <source>Written into the description file. The game itself does not read it.</source>
        <translation>Wird in die Beschreibungsdatei geschrieben. Das Spiel selbst liest es nicht.</translation>
    </message>
    <message>
        <source>What the game&apos;s menus and addbot call the bot. No blanks; up to %1 letters show in the skirmish menu.</source>
        <translation>Wie die Menüs des Spiels und addbot den Bot nennen. Keine Leerzeichen; bis zu %1 Zeichen zeigt das Skirmish-Menü.</translation>
    </message>
    <message>
        <source>The name that players see, with colour codes such as ^1. The game cuts it at %1 characters.</source>
        <translation>Der Name, den die Spieler sehen, mit Farbcodes wie ^1. Das Spiel kürzt ihn auf %1 Zeichen.</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Written as &quot;color&quot;. The game reads color1 instead and keeps its red trail.</source>
        <translation>Wird als „color“ geschrieben. Das Spiel liest stattdessen color1 und bleibt bei seiner roten Spur.</translation>
    </message>
</context>
<context>
    <name>InstallCommands</name>
    <message>
        <source>Nothing was installed.</source>
        <translation>Es wurde nichts installiert.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
</context>
<context>
    <name>KillBars</name>
    <message>
        <source>Kills by weapon, in the order of its weights</source>
        <translation>Abschüsse je Waffe, in der Reihenfolge seiner Gewichte</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>tie</source>
        <translation>gleich</translation>
    </message>
    <message>
        <source>%1 %2: %3 of %4, %5 of %6</source>
        <translation>%1 %2: %3 von %4, %5 von %6</translation>
    </message>
</context>
<context>
    <name>LibraryCommands</name>
    <message>
        <source>%1 was not removed.</source>
        <translation>%1 wurde nicht entfernt.</translation>
    </message>
    <message>
        <source>%1 was removed from %2.</source>
        <translation>%1 wurde aus %2 entfernt.</translation>
    </message>
</context>
<context>
    <name>LibraryModel</name>
    <message>
        <source>Not looked at yet</source>
        <translation>Noch nicht geprüft</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Model and skin</source>
        <translation>Modell und Skin</translation>
    </message>
    <message>
        <source>What the game will do</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
</context>
<context>
    <name>LineOrder</name>
    <message>
        <source>Move line up</source>
        <translation>Zeile nach oben</translation>
    </message>
    <message>
        <source>Move line down</source>
        <translation>Zeile nach unten</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
</context>
<context>
    <name>ListBar</name>
    <message>
        <source>Show list</source>
        <translation>Liste zeigen</translation>
    </message>
    <message>
        <source>What was noticed in the files</source>
        <translation>Was in den Dateien aufgefallen ist</translation>
    </message>
    <message>
        <source>Also in these files</source>
        <translation>Auch in diesen Dateien</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Copy level</source>
        <translation>Stufe &amp;kopieren</translation>
    </message>
    <message>
        <source>Level &amp;1 to level 4</source>
        <translation>Stufe &amp;1 auf Stufe 4</translation>
    </message>
    <message>
        <source>Level 1 &amp;to level 5</source>
        <translation>Stufe 1 &amp;auf Stufe 5</translation>
    </message>
    <message>
        <source>Level &amp;4 to level 1</source>
        <translation>Stufe &amp;4 auf Stufe 1</translation>
    </message>
    <message>
        <source>&amp;Level 4 to level 5</source>
        <translation>&amp;Stufe 4 auf Stufe 5</translation>
    </message>
    <message>
        <source>Level &amp;5 to level 1</source>
        <translation>Stufe &amp;5 auf Stufe 1</translation>
    </message>
    <message>
        <source>Level 5 t&amp;o level 4</source>
        <translation>Stufe 5 au&amp;f Stufe 4</translation>
    </message>
    <message>
        <source>Re&amp;set value</source>
        <translation>Wert &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Does nothing; &quot;Surprise me&quot; below draws a bot by lot</source>
        <translation>Tut nichts; „Überraschung“ darunter lost einen Bot aus</translation>
    </message>
    <message>
        <source>&amp;Save again</source>
        <translation>&amp;Erneut speichern</translation>
    </message>
    <message>
        <source>Re&amp;cent bots</source>
        <translation>&amp;Zuletzt geöffnete Bots</translation>
    </message>
    <message>
        <source>&amp;Install into game</source>
        <translation>&amp;Im Spiel installieren</translation>
    </message>
    <message>
        <source>&amp;Show changes...</source>
        <translation>Ä&amp;nderungen zeigen...</translation>
    </message>
    <message>
        <source>&amp;What the game will do</source>
        <translation>&amp;Was das Spiel daraus macht</translation>
    </message>
    <message>
        <source>&amp;Try in game...</source>
        <translation>Im &amp;Spiel ausprobieren...</translation>
    </message>
    <message>
        <source>P&amp;lay it out...</source>
        <translation>&amp;Testmatches...</translation>
    </message>
    <message>
        <source>Matches in fast time: is it better now?</source>
        <translation>Matches im Zeitraffer: Ist er jetzt besser?</translation>
    </message>
    <message>
        <source>Check a bot&apos;s &amp;files...</source>
        <translation>&amp;Dateien eines Bots prüfen...</translation>
    </message>
    <message>
        <source>Com&amp;pare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
    <message>
        <source>With &amp;average values</source>
        <translation>Mit &amp;Durchschnittswerten</translation>
    </message>
    <message>
        <source>With all &amp;zeros</source>
        <translation>Mit lauter &amp;Nullen</translation>
    </message>
    <message>
        <source>With another &amp;bot...</source>
        <translation>Mit einem anderen &amp;Bot...</translation>
    </message>
    <message>
        <source>&amp;Bot library...</source>
        <translation>&amp;Bot-Bibliothek...</translation>
    </message>
    <message>
        <source>All bots that are known of: open, duplicate, compare, remove</source>
        <translation>Alle bekannten Bots: öffnen, duplizieren, vergleichen, entfernen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>&amp;Welcome</source>
        <translation>&amp;Willkommen</translation>
    </message>
    <message>
        <source>Games found, bots to begin with</source>
        <translation>Gefundene Spiele, Bots für den Anfang</translation>
    </message>
    <message>
        <source>&amp;Keyboard</source>
        <translation>&amp;Tastatur</translation>
    </message>
    <message>
        <source>What&apos;s &amp;new</source>
        <translation>Was ist &amp;neu</translation>
    </message>
    <message>
        <source>&amp;Report a fault</source>
        <translation>&amp;Fehler melden</translation>
    </message>
</context>
<context>
    <name>MainToolBar</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Save again</source>
        <translation>Erneut speichern</translation>
    </message>
    <message>
        <source>Make</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Try in game</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>Play it out</source>
        <translation>Testmatches</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
</context>
<context>
    <name>ManualWindow</name>
    <message>
        <source>Fragsmith manual</source>
        <translation>Fragsmith-Handbuch</translation>
    </message>
    <message>
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
</context>
<context>
    <name>MatchChoices</name>
    <message>
        <source>Minutes of a match</source>
        <translation>Minuten eines Matches</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Unti&amp;l it is sure</source>
        <translation>&amp;Bis es sicher ist</translation>
    </message>
    <message>
        <source>Wished share in a hundred</source>
        <translation>Gewünschter Anteil in Prozent</translation>
    </message>
    <message>
        <source>Matches side by side</source>
        <translation>Gleichzeitige Matches</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>How this bot was, or the name of a bot of the installed game</source>
        <translation>Wie dieser Bot war, oder der Name eines Bots des installierten Spiels</translation>
    </message>
    <message>
        <source>Aga&amp;inst:</source>
        <translation>Ge&amp;gen:</translation>
    </message>
    <message>
        <source>S&amp;kill:</source>
        <translation>S&amp;pielstärke:</translation>
    </message>
    <message>
        <source>Min&amp;utes:</source>
        <translation>&amp;Minuten:</translation>
    </message>
    <message>
        <source>Of game time: five pass in some seconds</source>
        <translation>Spielzeit: Fünf vergehen in einigen Sekunden</translation>
    </message>
    <message>
        <source>Matc&amp;hes:</source>
        <translation>Ma&amp;tches:</translation>
    </message>
    <message>
        <source>Plays until it is clear which of the two is better, or that they differ by less than 5 points in a hundred, %1 matches at most</source>
        <translation>Spielt, bis klar ist, welcher der beiden besser ist oder dass sie sich um weniger als 5 Prozentpunkte unterscheiden, höchstens %1 Matches</translation>
    </message>
    <message>
        <source>Of the points of the two, for &quot;Make it as strong&quot;: 50 is an equal of the opponent</source>
        <translation>An den Punkten beider, für „So stark machen“: Mit 50 ist er dem Gegner ebenbürtig</translation>
    </message>
    <message>
        <source>&amp;Wished share:</source>
        <translation>Ge&amp;wünschter Anteil:</translation>
    </message>
    <message>
        <source>Side &amp;by side:</source>
        <translation>&amp;Zugleich:</translation>
    </message>
    <message>
        <source>Several with commas between them take turns</source>
        <translation>Mehrere, durch Kommas getrennt, wechseln sich ab</translation>
    </message>
    <message>
        <source>The bot as it was loaded</source>
        <translation>Der Bot, wie er geladen wurde</translation>
    </message>
    <message>
        <source>The bot as it was last saved</source>
        <translation>Der Bot, wie er zuletzt gespeichert wurde</translation>
    </message>
</context>
<context>
    <name>MatchFindings</name>
    <message>
        <source>Findings and what the matches show</source>
        <translation>Befunde und was die Matches zeigen</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>What was seen</source>
        <translation>Was zu sehen war</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>confirm</source>
        <translation>bestätigen</translation>
    </message>
    <message>
        <source>contradict</source>
        <translation>widersprechen</translation>
    </message>
</context>
<context>
    <name>MatchResults</name>
    <message>
        <source>What it said</source>
        <translation>Was er sagte</translation>
    </message>
    <message>
        <source>Times</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Situation</source>
        <translation>Anlass</translation>
    </message>
    <message>
        <source>What it took</source>
        <translation>Was er einsammelte</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Gegenstand</translation>
    </message>
    <message>
        <source>Every so many seconds</source>
        <translation>Sekunden je Stück</translation>
    </message>
    <message>
        <source>Figures of both bots</source>
        <translation>Zahlen beider Bots</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Kills</source>
        <translation>Abschüsse</translation>
    </message>
    <message>
        <source>Deaths</source>
        <translation>Tode</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Selbst</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Gegenstände</translation>
    </message>
    <message>
        <source>Frags a minute</source>
        <translation>Frags/Min.</translation>
    </message>
    <message>
        <source>Deaths a minute</source>
        <translation>Tode/Min.</translation>
    </message>
    <message>
        <source>What it s&amp;aid</source>
        <translation>A&amp;ussprüche</translation>
    </message>
    <message>
        <source>What it &amp;took</source>
        <translation>E&amp;ingesammelt</translation>
    </message>
    <message>
        <source>&amp;Findings</source>
        <translation>Be&amp;funde</translation>
    </message>
    <message>
        <source>St&amp;rength</source>
        <translation>Stä&amp;rke</translation>
    </message>
    <message>
        <source>What was found in the bot, where the matches confirm or contradict it; double click or Enter leads to it</source>
        <translation>Was im Bot gefunden wurde, soweit die Matches es bestätigen oder ihm widersprechen; Doppelklick oder Eingabetaste führt dorthin</translation>
    </message>
    <message>
        <source>Double click or Enter leads to the line</source>
        <translation>Doppelklick oder Eingabetaste führt zur Zeile</translation>
    </message>
    <message>
        <source>never heard: %1</source>
        <translation>nie zu hören: %1</translation>
    </message>
    <message>
        <source>cannot be told: %1</source>
        <translation>nicht festzustellen: %1</translation>
    </message>
    <message>
        <source>a ready-made line, or a reply</source>
        <translation>eine fertige Zeile oder eine Antwort</translation>
    </message>
    <message>
        <source>none of its lines</source>
        <translation>keine seiner Zeilen</translation>
    </message>
</context>
<context>
    <name>MaxSelect</name>
    <message>
        <source>Scale from 0 to %1</source>
        <translation>Skala von 0 bis %1</translation>
    </message>
</context>
<context>
    <name>MendCommands</name>
    <message>
        <source>Mend all of a kind</source>
        <translation>Alle dieser Art beheben</translation>
    </message>
    <message>
        <source>Mend all that is safe</source>
        <translation>Alles Sichere beheben</translation>
    </message>
    <message>
        <source>Make it ready for the game</source>
        <translation>Fertig fürs Spiel machen</translation>
    </message>
    <message>
        <source>Mended: %1. Left: %2.</source>
        <translation>Behoben: %1. Übrig: %2.</translation>
    </message>
</context>
<context>
    <name>ModelListCommands</name>
    <message>
        <source>Not in the game any more, and dropped from the lists of models and bots: %1.</source>
        <translation>Nicht mehr im Spiel und aus den Listen der Modelle und Bots gestrichen: %1.</translation>
    </message>
</context>
<context>
    <name>ModelSelector</name>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>Choose a model and skin by its face</source>
        <translation>Modell und Skin nach dem Gesicht wählen</translation>
    </message>
    <message>
        <source>Shows the faces of all models and skins.</source>
        <translation>Zeigt die Gesichter aller Modelle und Skins.</translation>
    </message>
    <message>
        <source>%1 (not in the list)</source>
        <translation>%1 (nicht in der Liste)</translation>
    </message>
</context>
<context>
    <name>NewFolder</name>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Name des neuen Ordners</translation>
    </message>
    <message>
        <source>Can&apos;t make a folder &apos;%1&apos; in &apos;%2&apos;</source>
        <translation>Der Ordner „%1“ lässt sich in „%2“ nicht anlegen</translation>
    </message>
</context>
<context>
    <name>NotesBar</name>
    <message>
        <source>Take the values as the game reads them</source>
        <translation>Die Werte so übernehmen, wie das Spiel sie liest</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>One thing was noticed in the files.</source>
        <translation>In den Dateien ist eine Sache aufgefallen.</translation>
    </message>
    <message>
        <source>%1 things were noticed in the files.</source>
        <translation>In den Dateien sind %1 Sachen aufgefallen.</translation>
    </message>
</context>
<context>
    <name>PageTabs</name>
    <message>
        <source>PLAYS</source>
        <translation>SPIELT</translation>
    </message>
    <message>
        <source>WANTS</source>
        <translation>WILL</translation>
    </message>
    <message>
        <source>SAYS</source>
        <translation>SAGT</translation>
    </message>
    <message>
        <source>Parameter pages</source>
        <translation>Seiten der Parameter</translation>
    </message>
    <message>
        <source>Findings on this page: %1</source>
        <translation>Befunde auf dieser Seite: %1</translation>
    </message>
</context>
<context>
    <name>ParameterPage</name>
    <message>
        <source>Skill level %1, &quot;%2&quot;. The game mixes the levels between.</source>
        <translation>Stufe %1, „%2“. Die Spielstärken dazwischen mischt das Spiel.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skala</translation>
    </message>
    <message>
        <source>How far the sliders of this page reach. The values stay as they are; to the game only their proportions matter.</source>
        <translation>Wie weit die Schieberegler dieser Seite reichen. Die Werte bleiben, wie sie sind; für das Spiel zählen nur ihre Verhältnisse.</translation>
    </message>
    <message>
        <source>Scale up to</source>
        <translation>Skala bis</translation>
    </message>
    <message>
        <source>not read by the game</source>
        <translation>vom Spiel nicht gelesen</translation>
    </message>
    <message>
        <source>The game never reads this.</source>
        <translation>Das Spiel liest das nie.</translation>
    </message>
</context>
<context>
    <name>PlacesBar</name>
    <message>
        <source>Home</source>
        <translation>Persönlicher Ordner</translation>
    </message>
    <message>
        <source>Game folder</source>
        <translation>Spielordner</translation>
    </message>
    <message>
        <source>Working folder</source>
        <translation>Arbeitsordner</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
</context>
<context>
    <name>PointerButtons</name>
    <message>
        <source>Insert %1</source>
        <translation>%1 einfügen</translation>
    </message>
</context>
<context>
    <name>ReadyMadePicker</name>
    <message>
        <source>(not in this game)</source>
        <translation>(nicht in diesem Spiel)</translation>
    </message>
    <message>
        <source>Ready-made lines of the game, under the name %1. Which there are depends on its data.</source>
        <translation>Fertige Zeilen des Spiels, unter dem Namen %1. Welche es gibt, hängt von seinen Daten ab.</translation>
    </message>
    <message>
        <source>Number in the chat list</source>
        <translation>Nummer in der Chatliste</translation>
    </message>
    <message>
        <source>Puts the ready-made line into the selected line when that is empty, otherwise into a new one.</source>
        <translation>Setzt die fertige Zeile in die ausgewählte, wenn diese leer ist, sonst in eine neue.</translation>
    </message>
</context>
<context>
    <name>SharePlot</name>
    <message>
        <source>Share of the points by matches</source>
        <translation>Anteil an den Punkten nach Matches</translation>
    </message>
    <message>
        <source>After %1 match: %2</source>
        <translation>Nach %1 Match: %2</translation>
    </message>
    <message>
        <source>After %1 matches: %2</source>
        <translation>Nach %1 Matches: %2</translation>
    </message>
</context>
<context>
    <name>SkillBox</name>
    <message>
        <source>Skill</source>
        <translation>Spielstärke</translation>
    </message>
</context>
<context>
    <name>SkillPlot</name>
    <message>
        <source> (no value: a fraction below and a whole number above are not mixed)</source>
        <translation> (kein Wert: eine Kommazahl darunter und eine ganze Zahl darüber werden nicht gemischt)</translation>
    </message>
    <message>
        <source> (a text is no value)</source>
        <translation> (ein Text ist kein Wert)</translation>
    </message>
    <message>
        <source> (the game&apos;s default character decides)</source>
        <translation> (der Standardcharakter des Spiels entscheidet)</translation>
    </message>
    <message>
        <source> (whole numbers are not mixed)</source>
        <translation> (ganze Zahlen werden nicht gemischt)</translation>
    </message>
    <message>
        <source>%1 by skill</source>
        <translation>%1 nach Spielstärke</translation>
    </message>
    <message>
        <source>Skill %1: %2</source>
        <translation>Spielstärke %1: %2</translation>
    </message>
    <message>
        <source>At %1: %2</source>
        <translation>Bei %1: %2</translation>
    </message>
</context>
<context>
    <name>SpokenPreview</name>
    <message>
        <source>%1: %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1, too long&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1, zu lang&lt;/b&gt;</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1, nearly full&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1, fast voll&lt;/b&gt;</translation>
    </message>
    <message>
        <source> Chance: %1 % (%2).</source>
        <translation> Wahrscheinlichkeit: %1 % (%2).</translation>
    </message>
    <message>
        <source>What the game would say</source>
        <translation>Was das Spiel sagen würde</translation>
    </message>
    <message>
        <source>in the file: 000 of 255, nearly full </source>
        <translation>in der Datei: 000 von 255, fast voll </translation>
    </message>
    <message>
        <source>Say another</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Draws other words and says the line again.</source>
        <translation>Zieht andere Wörter und sagt die Zeile noch einmal.</translation>
    </message>
    <message>
        <source>In the game:</source>
        <translation>Im Spiel:</translation>
    </message>
    <message>
        <source>In a game (our sample words):</source>
        <translation>In einem Spiel (unsere Beispielwörter):</translation>
    </message>
    <message>
        <source>(the line breaks the chat file)</source>
        <translation>(die Zeile macht die Chatdatei unlesbar)</translation>
    </message>
    <message>
        <source>(the game has no list %1)</source>
        <translation>(das Spiel hat keine Liste %1)</translation>
    </message>
    <message>
        <source>in the file</source>
        <translation>in der Datei</translation>
    </message>
    <message>
        <source>spoken</source>
        <translation>gesprochen</translation>
    </message>
    <message>
        <source>(nothing)</source>
        <translation>(nichts)</translation>
    </message>
</context>
<context>
    <name>StrengthList</name>
    <message>
        <source>Values that make it weaker or stronger</source>
        <translation>Werte, die ihn schwächer oder stärker machen</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Weak end</source>
        <translation>Schwaches Ende</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Strong end</source>
        <translation>Starkes Ende</translation>
    </message>
</context>
<context>
    <name>ValueBox</name>
    <message>
        <source>%1, value</source>
        <translation>%1, Wert</translation>
    </message>
</context>
<context>
    <name>ValueControl</name>
    <message>
        <source>Put back to %1.</source>
        <translation>Auf %1 zurücksetzen.</translation>
    </message>
    <message>
        <source>Put %1 back to %2</source>
        <translation>%1 auf %2 zurücksetzen</translation>
    </message>
    <message>
        <source>%1, level %2</source>
        <translation>%1, Stufe %2</translation>
    </message>
</context>
<context>
    <name>VariableCompletion</name>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
</context>
<context>
    <name>WeaponBars</name>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source> (tie)</source>
        <translation> (gleich)</translation>
    </message>
    <message>
        <source>Weapons in the order of their weights</source>
        <translation>Waffen in der Reihenfolge ihrer Gewichte</translation>
    </message>
    <message>
        <source>Distance to the enemy</source>
        <translation>Entfernung zum Gegner</translation>
    </message>
    <message>
        <source>at any distance</source>
        <translation>bei jeder Entfernung</translation>
    </message>
    <message>
        <source>at %1 units, OpenArena&apos;s data</source>
        <translation>bei %1 Einheiten, Daten von OpenArena</translation>
    </message>
    <message>
        <source>Weapons</source>
        <translation>Waffen</translation>
    </message>
    <message>
        <source>%1: %2, a tie: drawn only without the one before it</source>
        <translation>%1: %2, Gleichstand: wird nur ohne die davor gezogen</translation>
    </message>
</context>
<context>
    <name>WelcomeCommands</name>
    <message>
        <source>Not scanned yet</source>
        <translation>Noch nicht durchsucht</translation>
    </message>
    <message>
        <source>%1 models, %2 skins, %3 bots</source>
        <translation>%1 Modelle, %2 Skins, %3 Bots</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Make a bot of your own</source>
        <translation>Einen eigenen Bot machen</translation>
    </message>
    <message>
        <source>Go to the bot</source>
        <translation>Zum Bot</translation>
    </message>
    <message>
        <source>Shows the pages of the bot (Esc). This page is under Help.</source>
        <translation>Zeigt die Seiten des Bots (Esc). Diese Seite steht unter „Hilfe“.</translation>
    </message>
    <message>
        <source>Or go on with a recent one</source>
        <translation>Oder mit einem der letzten weitermachen</translation>
    </message>
    <message>
        <source>Or change one of the game&apos;s</source>
        <translation>Oder einen des Spiels ändern</translation>
    </message>
    <message>
        <source>Bots of the game</source>
        <translation>Bots des Spiels</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>Scan again</source>
        <translation>Erneut durchsuchen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>Looks through the game&apos;s packages for models, skins and bots</source>
        <translation>Durchsucht die Pakete des Spiels nach Modellen, Skins und Bots</translation>
    </message>
    <message>
        <source>Use this game</source>
        <translation>Dieses Spiel nutzen</translation>
    </message>
    <message>
        <source>Sets the game&apos;s folder and looks through its packages for models, skins and bots</source>
        <translation>Stellt den Spielordner ein und durchsucht die Pakete nach Modellen, Skins und Bots</translation>
    </message>
    <message>
        <source>No game was found. Bots can be made without one; with it there are its models and its lines.</source>
        <translation>Es wurde kein Spiel gefunden. Bots lassen sich auch ohne Spiel machen; mit ihm stehen seine Modelle und Zeilen zur Auswahl.</translation>
    </message>
    <message>
        <source>With its folder set there are the game&apos;s models, bots and lines.</source>
        <translation>Ist der Ordner eingestellt, stehen Modelle, Bots und Zeilen des Spiels zur Auswahl.</translation>
    </message>
    <message>
        <source>Another folder...</source>
        <translation>Anderer Ordner...</translation>
    </message>
    <message>
        <source>%1, package %2</source>
        <translation>%1, Paket %2</translation>
    </message>
    <message>
        <source>Search %1 bots</source>
        <translation>In %1 Bots suchen</translation>
    </message>
</context>
<context>
    <name>frmChanges</name>
    <message>
        <source>Show changes</source>
        <translation>Änderungen zeigen</translation>
    </message>
    <message>
        <source>&amp;What Save again changes in the files of this bot:</source>
        <translation>&amp;Was „Erneut speichern“ in den Dateien dieses Bots ändert:</translation>
    </message>
    <message>
        <source>Changes in the files</source>
        <translation>Änderungen in den Dateien</translation>
    </message>
    <message>
        <source>Nothing: the files say all of it.</source>
        <translation>Nichts: Alles steht schon so in den Dateien.</translation>
    </message>
</context>
<context>
    <name>frmCheck</name>
    <message>
        <source>There are errors: the game does not take this bot as it is meant, or takes it at some skills only.</source>
        <translation>Es gibt Fehler: Das Spiel nimmt diesen Bot nicht so, wie er gemeint ist, oder nur bei manchen Spielstärken.</translation>
    </message>
    <message>
        <source>The game takes this bot, but not all of it as it is meant.</source>
        <translation>Das Spiel nimmt diesen Bot, aber nicht alles an ihm so, wie es gemeint ist.</translation>
    </message>
    <message>
        <source>The game takes this bot as it is.</source>
        <translation>Das Spiel nimmt diesen Bot, wie er ist.</translation>
    </message>
    <message>
        <source>Check a bot&apos;s files</source>
        <translation>Dateien eines Bots prüfen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>of bots</source>
        <translation>von Bots</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>&amp;Bot:</source>
        <translation>&amp;Bot:</translation>
    </message>
    <message>
        <source>What the &amp;game will do:</source>
        <translation>Was das Spiel daraus &amp;macht:</translation>
    </message>
    <message>
        <source>What the game will do</source>
        <translation>Was das Spiel daraus macht</translation>
    </message>
    <message>
        <source>The files of a bot end in _c.c, _w.c, _i.c, _t.c and .bot; of many packages choose one.</source>
        <translation>Die Dateien eines Bots enden auf _c.c, _w.c, _i.c, _t.c und .bot; sind es viele Pakete, wählen Sie eines aus.</translation>
    </message>
    <message>
        <source>There is no bot in %1.</source>
        <translation>In %1 ist kein Bot.</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft...</translation>
    </message>
</context>
<context>
    <name>frmCompare</name>
    <message>
        <source>&amp;All of &quot;%1&quot;</source>
        <translation>&amp;Alles aus „%1“</translation>
    </message>
    <message>
        <source>Only &amp;differences</source>
        <translation>Nur &amp;Unterschiede</translation>
    </message>
    <message>
        <source>Compare with %1</source>
        <translation>Mit %1 vergleichen</translation>
    </message>
    <message>
        <source>Copy from %1 to this bot:</source>
        <translation>Von %1 in diesen Bot übernehmen:</translation>
    </message>
    <message>
        <source>This bot and %1</source>
        <translation>Dieser Bot und %1</translation>
    </message>
    <message>
        <source>&amp;Selected rows</source>
        <translation>Aus&amp;gewählte Zeilen</translation>
    </message>
    <message>
        <source>Level &amp;%1</source>
        <translation>Stufe &amp;%1</translation>
    </message>
    <message>
        <source>level %1</source>
        <translation>Stufe %1</translation>
    </message>
    <message>
        <source>All &amp;chats</source>
        <translation>Alle &amp;Chatzeilen</translation>
    </message>
    <message>
        <source>all chats</source>
        <translation>alle Chatzeilen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No differences</source>
        <translation>Keine Unterschiede</translation>
    </message>
    <message>
        <source>1 difference</source>
        <translation>1 Unterschied</translation>
    </message>
    <message>
        <source>%1 differences</source>
        <translation>%1 Unterschiede</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>Copy from %1: %2</source>
        <translation>Übernehmen von %1: %2</translation>
    </message>
</context>
<context>
    <name>frmFaces</name>
    <message>
        <source>Choose a model and skin</source>
        <translation>Modell und Skin wählen</translation>
    </message>
    <message>
        <source>Part of a name</source>
        <translation>Teil eines Namens</translation>
    </message>
    <message>
        <source>Models and skins</source>
        <translation>Modelle und Skins</translation>
    </message>
    <message>
        <source>No model or skin has this in its name.</source>
        <translation>Kein Modell oder Skin hat das im Namen.</translation>
    </message>
    <message>
        <source>%1 of %2 skins. Grey ones have no icon in the game.</source>
        <translation>%1 von %2 Skins. Graue haben im Spiel kein Bild.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmFind</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>&amp;Words of a parameter&apos;s name or of a chat line:</source>
        <translation>&amp;Wörter aus dem Namen eines Parameters oder aus einer Chatzeile:</translation>
    </message>
    <message>
        <source>Words to find</source>
        <translation>Gesuchte Wörter</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>No parameter and no chat line has this.</source>
        <translation>Kein Parameter und keine Chatzeile enthält das.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmLibrary</name>
    <message>
        <source>Bot library</source>
        <translation>Bot-Bibliothek</translation>
    </message>
    <message>
        <source>Part of a name, model or place</source>
        <translation>Teil eines Namens, Modells oder Ortes</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Duplicate as new</source>
        <translation>Als neu &amp;duplizieren</translation>
    </message>
    <message>
        <source>Com&amp;pare with</source>
        <translation>&amp;Vergleichen mit</translation>
    </message>
    <message>
        <source>&amp;Remove...</source>
        <translation>&amp;Entfernen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Bots</source>
        <translation>Bots</translation>
    </message>
    <message>
        <source>No bots are known: set the game&apos;s folder in Program/Options, then choose Tools/Check baseq3.</source>
        <translation>Es sind keine Bots bekannt: Stellen Sie unter „Program/Options“ den Ordner des Spiels ein und wählen Sie dann „Tools/Check baseq3“.</translation>
    </message>
    <message>
        <source>No bot has this.</source>
        <translation>Kein Bot enthält das.</translation>
    </message>
    <message>
        <source>%1 of %2 bots.</source>
        <translation>%1 von %2 Bots.</translation>
    </message>
</context>
<context>
    <name>frmMain</name>
    <message>
        <source>No draft of this bot can be kept: save it. </source>
        <translation>Von diesem Bot lässt sich kein Entwurf aufbewahren: Speichern Sie ihn. </translation>
    </message>
    <message>
        <source>Options and lists cannot be written. </source>
        <translation>Optionen und Listen lassen sich nicht schreiben. </translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschnitt</translation>
    </message>
    <message>
        <source>All zeros</source>
        <translation>Nullen</translation>
    </message>
</context>
<context>
    <name>frmMatch</name>
    <message>
        <source>&amp;Make it as strong</source>
        <translation>So stark m&amp;achen</translation>
    </message>
    <message>
        <source>Take the stren&amp;gth</source>
        <translation>Stärke über&amp;nehmen</translation>
    </message>
    <message>
        <source>E&amp;xport</source>
        <translation>E&amp;xportieren</translation>
    </message>
    <message>
        <source>Play it out</source>
        <translation>Testmatches</translation>
    </message>
    <message>
        <source>Change a value and press Start: the bot as it stands plays against how it was, at some fifty times the speed of the game. You can go on editing meanwhile.</source>
        <translation>Ändern Sie einen Wert und drücken Sie „Starten“: Der Bot, wie er jetzt ist, spielt gegen sich selbst, wie er war, etwa fünfzigmal so schnell wie im Spiel. Sie können ihn währenddessen weiter bearbeiten.</translation>
    </message>
    <message>
        <source>Moves the levels between a weak and a strong end until the bot takes the wished share. Nothing changes before you take the result.</source>
        <translation>Verschiebt die Stufen zwischen einem schwachen und einem starken Ende, bis der Bot den gewünschten Anteil holt. Nichts ändert sich, bevor Sie das Ergebnis übernehmen.</translation>
    </message>
    <message>
        <source>Gives the bot the values of the list &quot;Strength&quot;, as one step that can be undone</source>
        <translation>Gibt dem Bot die Werte der Liste „Stärke“, in einem Schritt, der sich rückgängig machen lässt</translation>
    </message>
    <message>
        <source>&amp;Runs of this session:</source>
        <translation>&amp;Läufe dieser Sitzung:</translation>
    </message>
    <message>
        <source>Runs of this session</source>
        <translation>Läufe dieser Sitzung</translation>
    </message>
    <message>
        <source>Bot</source>
        <translation>Bot</translation>
    </message>
    <message>
        <source>Against</source>
        <translation>Gegen</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Matches</translation>
    </message>
    <message>
        <source>Skill, map</source>
        <translation>Spielstärke, Karte</translation>
    </message>
    <message>
        <source>Those that are selected stand in one picture</source>
        <translation>Die ausgewählten stehen in einem Bild</translation>
    </message>
    <message>
        <source>&amp;Table of the matches (CSV)</source>
        <translation>&amp;Tabelle der Matches (CSV)</translation>
    </message>
    <message>
        <source>&amp;All that happened (JSON)</source>
        <translation>&amp;Alles, was geschah (JSON)</translation>
    </message>
    <message>
        <source>&amp;Picture of the results (PNG)</source>
        <translation>&amp;Bild der Ergebnisse (PNG)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>Strength</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>The bot has that strength now; Undo takes it back.</source>
        <translation>Der Bot hat jetzt diese Stärke; „Rückgängig“ nimmt sie zurück.</translation>
    </message>
    <message>
        <source>Another bot is in the window now. Load %1 again first.</source>
        <translation>Im Fenster ist jetzt ein anderer Bot. Laden Sie zuerst wieder %1.</translation>
    </message>
    <message>
        <source>What you changed since the run began stays: %1.</source>
        <translation>Was Sie seit Beginn des Laufs geändert haben, bleibt: %1.</translation>
    </message>
    <message>
        <source>What you changed since the run began stays: %1 values.</source>
        <translation>Was Sie seit Beginn des Laufs geändert haben, bleibt: %1 Werte.</translation>
    </message>
    <message>
        <source>%1 as it was loaded</source>
        <translation>%1 (wie geladen)</translation>
    </message>
    <message>
        <source>%1 as it was saved</source>
        <translation>%1 (wie gespeichert)</translation>
    </message>
    <message>
        <source>There is no dedicated server to play on.</source>
        <translation>Es gibt keinen dedizierten Server, auf dem gespielt werden könnte.</translation>
    </message>
    <message>
        <source>Install one, such as ioq3ded, and choose it as the engine.</source>
        <translation>Installieren Sie einen, zum Beispiel ioq3ded, und wählen Sie ihn als Engine.</translation>
    </message>
    <message>
        <source>There is no map to play on.</source>
        <translation>Es gibt keine Karte, auf der gespielt werden könnte.</translation>
    </message>
    <message>
        <source>Enter its name.</source>
        <translation>Geben Sie ihren Namen ein.</translation>
    </message>
    <message>
        <source>There is nobody to play against.</source>
        <translation>Es gibt niemanden, gegen den er spielen könnte.</translation>
    </message>
    <message>
        <source>Choose an opponent.</source>
        <translation>Wählen Sie einen Gegner.</translation>
    </message>
    <message>
        <source>Nothing is different: it plays against itself.</source>
        <translation>Es gibt keinen Unterschied: Er spielt gegen sich selbst.</translation>
    </message>
    <message>
        <source>%1 of at most %2 matches played, %3 running, minute %4</source>
        <translation>%1 von höchstens %2 Matches gespielt, %3 laufen, Minute %4</translation>
    </message>
    <message>
        <source>%1 of %2 matches played, %3 running, minute %4</source>
        <translation>%1 von %2 Matches gespielt, %3 laufen, Minute %4</translation>
    </message>
</context>
<context>
    <name>frmModelDialog</name>
    <message>
        <source>Name of the model</source>
        <translation>Name des Modells</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmOpen</name>
    <message>
        <source>&amp;Keep the files as their author wrote them</source>
        <translation>Dateien so lassen, wie ihr &amp;Autor sie schrieb</translation>
    </message>
    <message>
        <source>&amp;Write the game&apos;s own macros as well</source>
        <translation>Auc&amp;h die eigenen Makros des Spiels schreiben</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>There is no folder &apos;%1&apos;.</source>
        <translation>Es gibt keinen Ordner „%1“.</translation>
    </message>
</context>
<context>
    <name>frmOptions</name>
    <message>
        <source>Search %1</source>
        <translation>Suchen: %1</translation>
    </message>
    <message>
        <source>Without a name neither email nor web page is written to the bot files.</source>
        <translation>Ohne Namen werden weder E-Mail-Adresse noch Webseite in die Botdateien geschrieben.</translation>
    </message>
    <message>
        <source>%1: the settings file cuts a value at its first comma, and the settings behind it move out of place at the next start.</source>
        <translation>%1: Die Einstellungsdatei schneidet einen Wert am ersten Komma ab, und die Einstellungen dahinter verrutschen beim nächsten Start.</translation>
    </message>
</context>
<context>
    <name>frmSearchBaseQ3</name>
    <message>
        <source>Packages searched</source>
        <translation>Durchsuchte Pakete</translation>
    </message>
    <message>
        <source>%1 of %2 packages</source>
        <translation>%1 von %2 Paketen</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen...</translation>
    </message>
</context>
<context>
    <name>frmTry</name>
    <message>
        <source>Try %1 in game</source>
        <translation>%1 im Spiel ausprobieren</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Ausprobieren</translation>
    </message>
    <message>
        <source>The bot as it is in the window</source>
        <translation>Den Bot, wie er im Fenster steht</translation>
    </message>
    <message>
        <source>Its files as they are on disk</source>
        <translation>Seine Dateien, wie sie auf der Platte liegen</translation>
    </message>
    <message>
        <source>Opponents</source>
        <translation>Gegner</translation>
    </message>
    <message>
        <source>&amp;Opponents:</source>
        <translation>&amp;Gegner:</translation>
    </message>
    <message>
        <source>names of bots, with blanks between</source>
        <translation>Namen von Bots, durch Leerzeichen getrennt</translation>
    </message>
    <message>
        <source>&amp;What the game says:</source>
        <translation>&amp;Was das Spiel sagt:</translation>
    </message>
    <message>
        <source>What our c&amp;hecks say:</source>
        <translation>Was unsere Prüfungen s&amp;agen:</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>There is no map to play on. Enter its name.</source>
        <translation>Es gibt keine Karte, auf der gespielt werden könnte. Geben Sie ihren Namen ein.</translation>
    </message>
    <message>
        <source>The engine ended before the bot was added. %1 Look at the data folder and the game folder.</source>
        <translation>Die Engine endete, bevor der Bot hinzugefügt wurde. %1 Prüfen Sie den Datenordner und den Spielordner.</translation>
    </message>
    <message>
        <source>What it printed last:</source>
        <translation>Was sie zuletzt schrieb:</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>T&amp;ry:</source>
        <translation>Auspro&amp;bieren:</translation>
    </message>
    <message>
        <source>S&amp;kill:</source>
        <translation>S&amp;pielstärke:</translation>
    </message>
    <message>
        <source>The engine prints without end. It was ended.</source>
        <translation>Die Engine schreibt ohne Ende. Sie wurde beendet.</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>An&amp;halten</translation>
    </message>
</context>
<context>
    <name>libraries</name>
    <message>
        <source> A comment in this line has another inside, and ends at the first */. Remove the comment inside it.</source>
        <translation> Ein Kommentar in dieser Zeile enthält einen weiteren und endet am ersten */. Entfernen Sie den Kommentar darin.</translation>
    </message>
    <message>
        <source> The \ at the end of this line joins the next one to it. Remove it.</source>
        <translation> Das \ am Ende dieser Zeile hängt die nächste an sie an. Entfernen Sie es.</translation>
    </message>
    <message>
        <source> There are curly quotation marks (“ ”) in this line, which the game does not see. Type straight ones (&quot;).</source>
        <translation> In dieser Zeile stehen typografische Anführungszeichen (“ ”), die das Spiel nicht erkennt. Tippen Sie gerade (&quot;).</translation>
    </message>
    <message>
        <source>%1 %2 does not survive saving and loading, because of the way in which the files are read: %3 then is %4. Choose another.</source>
        <translation>%1 %2 übersteht das Speichern und Laden nicht, weil die Dateien auf diese Weise gelesen werden: %3 ist danach %4. Wählen Sie etwas anderes.</translation>
    </message>
    <message>
        <source>%1 %2 does not survive saving and loading, because of the way in which the files are read: there then are chat lines that nobody wrote. Choose another.</source>
        <translation>%1 %2 übersteht das Speichern und Laden nicht, weil die Dateien auf diese Weise gelesen werden: Danach gibt es Chatzeilen, die niemand geschrieben hat. Wählen Sie etwas anderes.</translation>
    </message>
    <message>
        <source>%1 (%2 to %3)</source>
        <translation>%1 (%2 bis %3)</translation>
    </message>
    <message>
        <source>%1 (line %2)</source>
        <translation>%1 (Zeile %2)</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; (line %3)</source>
        <translation>%1 „%2“ (Zeile %3)</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; becomes &quot;%3&quot;</source>
        <translation>%1: „%2“ wird zu „%3“</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; has a blank or a letter with an accent, and the game reads no further than that. Use plain letters without blanks.</source>
        <translation>%1 „%2“ enthält ein Leerzeichen oder einen Buchstaben mit Akzent, und das Spiel liest nicht weiter als bis dorthin. Nehmen Sie einfache Buchstaben ohne Leerzeichen.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; has a semicolon, a backslash or a double quote: the game throws the line away and shows the bot as another model. Take it out.</source>
        <translation>%1 „%2“ enthält ein Semikolon, einen Backslash oder ein doppeltes Anführungszeichen: Das Spiel verwirft die Zeile und zeigt den Bot als anderes Modell. Nehmen Sie das Zeichen heraus.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 and %2 differ by less than %5 points in a hundred, which was clear after %4 matches: %3 of their points.</source>
        <translation>%1 und %2 unterscheiden sich um weniger als %5 Prozentpunkte, was nach %4 Matches klar war: %3 ihrer Punkte.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 and more (lines %2)</source>
        <translation>%1 und mehr (Zeilen %2)</translation>
    </message>
    <message>
        <source>%1 are never read: the game takes its own, out of a package whose name comes later. What the bot needs belongs into a file of another name. In the player&apos;s own folder, such as ~/.q3a/baseq3, this package comes before the game&apos;s, whatever its name.</source>
        <translation>%1 werden nie gelesen: Das Spiel nimmt seine eigenen, aus einem Paket, dessen Name später kommt. Was der Bot braucht, gehört in eine Datei mit anderem Namen. Im eigenen Ordner des Spielers, etwa ~/.q3a/baseq3, kommt dieses Paket vor denen des Spiels, ganz gleich, wie es heißt.</translation>
    </message>
    <message>
        <source>%1 are packed %2, and the game can unpack no such file.</source>
        <translation>%1 sind %2 gepackt, und das Spiel kann solche Dateien nicht entpacken.</translation>
    </message>
    <message>
        <source>%1 at level %2</source>
        <translation>%1 auf Stufe %2</translation>
    </message>
    <message>
        <source>%1 begins with &quot;%2&quot;, which the game takes for a comment. The game calls the bot &quot;&lt;NULL&gt;&quot;. Write a name there, or leave it empty to show the bot under its own.</source>
        <translation>%1 beginnt mit „%2“, was das Spiel für einen Kommentar hält. Das Spiel nennt den Bot „&lt;NULL&gt;“. Schreiben Sie dort einen Namen, oder lassen Sie es leer, um den Bot unter seinem eigenen zu zeigen.</translation>
    </message>
    <message>
        <source>%1 bot</source>
        <translation>%1 Bot</translation>
    </message>
    <message>
        <source>%1 bots</source>
        <translation>%1 Bots</translation>
    </message>
    <message>
        <source>%1 cannot be changed in place. %2</source>
        <translation>%1 kann nicht an Ort und Stelle geändert werden. %2</translation>
    </message>
    <message>
        <source>%1 entered the game, but with files of another bot. Correct their names in the character file, the one that ends in _c.c.</source>
        <translation>%1 ist ins Spiel gekommen, aber mit Dateien eines anderen Bots. Berichtigen Sie deren Namen in der Charakterdatei, die auf _c.c endet.</translation>
    </message>
    <message>
        <source>%1 entered the game, but with the character of another bot. Either the game has a bot of this name already, which wins: take another name. Or the description names that file behind aifile: write the bot&apos;s own.</source>
        <translation>%1 ist ins Spiel gekommen, aber mit dem Charakter eines anderen Bots. Entweder hat das Spiel schon einen Bot dieses Namens, der dann gewinnt: Nehmen Sie einen anderen Namen. Oder die Beschreibung nennt jene Datei hinter aifile: Schreiben Sie die des Bots dorthin.</translation>
    </message>
    <message>
        <source>%1 entered the game, but with the game&apos;s default character in place of its own.</source>
        <translation>%1 ist ins Spiel gekommen, aber mit dem Standardcharakter des Spiels statt dem eigenen.</translation>
    </message>
    <message>
        <source>%1 entered the game.</source>
        <translation>%1 ist ins Spiel gekommen.</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 aus %2</translation>
    </message>
    <message>
        <source>%1 has %2 characters, colour codes included; the game has no room for so many and throws it away. Shorten it.</source>
        <translation>%1 hat %2 Zeichen, Farbcodes eingeschlossen; das Spiel hat keinen Platz für so viele und verwirft den Text. Kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>%1 has %2 characters, colour codes included; the game shows the first %3 of them and cuts the rest. Shorten it.</source>
        <translation>%1 hat %2 Zeichen, Farbcodes eingeschlossen; das Spiel zeigt die ersten %3 davon und schneidet den Rest ab. Kürzen Sie den Text.</translation>
    </message>
    <message>
        <source>%1 has %2 characters, which leave the game no room for the path of the bot&apos;s files: the game does not add the bot, or adds another one. Shorten it to %3 characters.</source>
        <translation>%1 hat %2 Zeichen, die dem Spiel keinen Platz für den Pfad der Dateien des Bots lassen: Das Spiel fügt den Bot nicht hinzu oder fügt einen anderen hinzu. Kürzen Sie auf %3 Zeichen.</translation>
    </message>
    <message>
        <source>%1 has %2 names in brackets. The game takes no more than %3: it stops where such a macro is used. Take the line out.</source>
        <translation>%1 hat %2 Namen in Klammern. Das Spiel nimmt nicht mehr als %3: Es hält dort an, wo ein solches Makro benutzt wird. Nehmen Sie die Zeile heraus.</translation>
    </message>
    <message>
        <source>%1 has a semicolon, a backslash or a double quote in it: the game reads it as %2. Take the character out.</source>
        <translation>%1 enthält ein Semikolon, einen Backslash oder ein doppeltes Anführungszeichen: Das Spiel liest es als %2. Nehmen Sie das Zeichen heraus.</translation>
    </message>
    <message>
        <source>%1 has a semicolon, a backslash or a double quote in it: the game throws it away and shows the bot under its name. Take the character out.</source>
        <translation>%1 enthält ein Semikolon, einen Backslash oder ein doppeltes Anführungszeichen: Das Spiel verwirft den Text und zeigt den Bot unter seinem Namen. Nehmen Sie das Zeichen heraus.</translation>
    </message>
    <message>
        <source>%1 has colours but no letters: the game calls the bot &quot;UnnamedPlayer&quot;.</source>
        <translation>%1 enthält Farben, aber keine Buchstaben: Das Spiel nennt den Bot „UnnamedPlayer“.</translation>
    </message>
    <message>
        <source>%1 has no place in the author&apos;s files.</source>
        <translation>%1 hat in den Dateien des Autors keinen Platz.</translation>
    </message>
    <message>
        <source>%1 has other numbers too that stay as they are. The next load shows the largest of them, %2, and not the %3 that is written now.</source>
        <translation>%1 hat noch andere Zahlen, die bleiben, wie sie sind. Das nächste Laden zeigt die größte davon, %2, und nicht die jetzt geschriebene %3.</translation>
    </message>
    <message>
        <source>%1 has the colour code &quot;%2&quot;, which stands for black. The game takes black out of names: the letters behind it keep the colour before it. Choose another colour.</source>
        <translation>%1 enthält den Farbcode „%2“, der für Schwarz steht. Das Spiel nimmt Schwarz aus Namen heraus: Die Buchstaben dahinter behalten die Farbe davor. Wählen Sie eine andere Farbe.</translation>
    </message>
    <message>
        <source>%1 is %2, but the game takes everything above %3 as %3.</source>
        <translation>%1 ist %2, aber das Spiel nimmt alles über %3 als %3.</translation>
    </message>
    <message>
        <source>%1 is %2, but the game takes everything above %3 second as %3 second.</source>
        <translation>%1 ist %2, aber das Spiel nimmt alles über %3 Sekunde als %3 Sekunde.</translation>
    </message>
    <message>
        <source>%1 is %2, but the game takes everything above %3 seconds as %3 seconds.</source>
        <translation>%1 ist %2, aber das Spiel nimmt alles über %3 Sekunden als %3 Sekunden.</translation>
    </message>
    <message>
        <source>%1 is %2, but the game takes everything below %3 degrees per second as %3.</source>
        <translation>%1 ist %2, aber das Spiel nimmt alles unter %3 Grad pro Sekunde als %3.</translation>
    </message>
    <message>
        <source>%1 is %2, but the game&apos;s files have no negative numbers: the game will read %3. Use 0 or more.</source>
        <translation>%1 ist %2, aber in den Dateien des Spiels gibt es keine negativen Zahlen: Das Spiel wird %3 lesen. Nehmen Sie 0 oder mehr.</translation>
    </message>
    <message>
        <source>%1 is %2. So low a value does not make the bot fire slowly: up to 0.1 it never pauses, just as with 1. From 0.3 to 0.9 it pauses most.</source>
        <translation>%1 ist %2. Ein so kleiner Wert lässt den Bot nicht langsam feuern: Bis 0.1 macht er nie Pause, genau wie bei 1. Von 0.3 bis 0.9 macht er die meisten Pausen.</translation>
    </message>
    <message>
        <source>%1 is a whole number at skill %2 but has a point at skill %3, so at the skills between the bot has no value at all and the game takes 0. Write a point and a 0 behind the whole number.</source>
        <translation>%1 ist auf Stufe %2 eine ganze Zahl, hat aber auf Stufe %3 einen Punkt, daher hat der Bot bei den Spielstärken dazwischen gar keinen Wert und das Spiel nimmt 0. Schreiben Sie einen Punkt und eine 0 hinter die ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is better than %2, which was clear after %4 matches: %3 of their points.</source>
        <translation>%1 ist besser als %2, was nach %4 Matches klar war: %3 ihrer Punkte.</translation>
    </message>
    <message>
        <source>%1 is better than %2: %3 of their points in %4 match.</source>
        <translation>%1 ist besser als %2: %3 ihrer Punkte in %4 Match.</translation>
    </message>
    <message>
        <source>%1 is better than %2: %3 of their points in %4 matches.</source>
        <translation>%1 ist besser als %2: %3 ihrer Punkte in %4 Matches.</translation>
    </message>
    <message>
        <source>%1 is changed alone. The file sets other macros too (%2), and the game may take the weight from one of them: the weight code that the file includes is not there to tell. Give the folder of its game.</source>
        <translation>Nur %1 wird geändert. Die Datei setzt auch andere Makros (%2), und das Spiel nimmt das Gewicht vielleicht aus einem davon: Der Gewichtscode, den die Datei einbindet, fehlt, um es zu klären. Geben Sie den Ordner seines Spiels an.</translation>
    </message>
    <message>
        <source>%1 is defined a second time; the game takes the last value. Remove one of the lines.</source>
        <translation>%1 wird ein zweites Mal definiert; das Spiel nimmt den letzten Wert. Entfernen Sie eine der Zeilen.</translation>
    </message>
    <message>
        <source>%1 is defined by itself, and so has no value. Write a number in the place of the second.</source>
        <translation>%1 wird durch sich selbst definiert und hat deshalb keinen Wert. Schreiben Sie anstelle des zweiten eine Zahl.</translation>
    </message>
    <message>
        <source>%1 is defined by itself; the game leaves that out of its value. Write its value in its place.</source>
        <translation>%1 wird durch sich selbst definiert; das Spiel lässt das aus dem Wert weg. Schreiben Sie stattdessen den Wert hin.</translation>
    </message>
    <message>
        <source>%1 is high, but %2 is 0: the bot never goes to fetch this weapon and has it by chance only. Raise it unless that is meant.</source>
        <translation>%1 ist hoch, aber %2 ist 0: Der Bot geht diese Waffe nie holen und hat sie nur durch Zufall. Erhöhen Sie den Wert, wenn das nicht gewollt ist.</translation>
    </message>
    <message>
        <source>%1 is in %2, in the place of the one before.</source>
        <translation>%1 liegt jetzt in %2, an Stelle des bisherigen.</translation>
    </message>
    <message>
        <source>%1 is in %2.</source>
        <translation>%1 liegt jetzt in %2.</translation>
    </message>
    <message>
        <source>%1 is never read: the game takes its own, out of a package whose name comes later. What the bot needs belongs into a file of another name. In the player&apos;s own folder, such as ~/.q3a/baseq3, this package comes before the game&apos;s, whatever its name.</source>
        <translation>%1 wird nie gelesen: Das Spiel nimmt seine eigene, aus einem Paket, dessen Name später kommt. Was der Bot braucht, gehört in eine Datei mit anderem Namen. Im eigenen Ordner des Spielers, etwa ~/.q3a/baseq3, kommt dieses Paket vor denen des Spiels, ganz gleich, wie es heißt.</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>%1 is not in the list; the bot has %2 instead.</source>
        <translation>%1 steht nicht in der Liste; der Bot hat stattdessen %2.</translation>
    </message>
    <message>
        <source>%1 is not there any more. Do you want to make it anew?</source>
        <translation>%1 ist nicht mehr da. Möchten Sie die Datei neu anlegen?</translation>
    </message>
    <message>
        <source>%1 is nothing but blanks. The game calls the bot &quot;&lt;NULL&gt;&quot;. Write a name there, or leave it empty to show the bot under its own.</source>
        <translation>%1 besteht nur aus Leerzeichen. Das Spiel nennt den Bot „&lt;NULL&gt;“. Schreiben Sie dort einen Namen, oder lassen Sie es leer, um den Bot unter seinem eigenen zu zeigen.</translation>
    </message>
    <message>
        <source>%1 is now %2 for the game, but a load reads &quot;%3&quot; from line %4. Put the comment in a line of its own.</source>
        <translation>%1 ist für das Spiel jetzt %2, das Laden liest aus Zeile %4 aber „%3“. Setzen Sie den Kommentar in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>%1 is one value for all levels here. The file had %2; now each of them has the new one.</source>
        <translation>%1 ist hier ein Wert für alle Stufen. In der Datei stand %2; jetzt hat jede Stufe den neuen.</translation>
    </message>
    <message>
        <source>%1 is packed %2, and the game can unpack no such file.</source>
        <translation>%1 ist %2 gepackt, und das Spiel kann eine solche Datei nicht entpacken.</translation>
    </message>
    <message>
        <source>%1 is skipped: the lists cannot hold a double quote.</source>
        <translation>%1 wird übersprungen: Die Listen können kein Anführungszeichen aufnehmen.</translation>
    </message>
    <message>
        <source>%1 is so long that the game forgets the path of the character file. Shorten it.</source>
        <translation>%1 ist so lang, dass das Spiel den Pfad der Charakterdatei vergisst. Kürzen Sie den Text.</translation>
    </message>
    <message>
        <source>%1 is the text %2, not a number. The game takes 0 in its place and complains again and again. Give a number.</source>
        <translation>%1 ist der Text %2, keine Zahl. Das Spiel nimmt stattdessen 0 und beschwert sich immer wieder. Geben Sie eine Zahl an.</translation>
    </message>
    <message>
        <source>%1 is the text %2, not a number: the game cannot read the file of weights and does not add the bot. Give a number.</source>
        <translation>%1 ist der Text %2, keine Zahl: Das Spiel kann die Gewichtsdatei nicht lesen und fügt den Bot nicht hinzu. Geben Sie eine Zahl an.</translation>
    </message>
    <message>
        <source>%1 is the text %2, whose quotes, backslashes or control characters break the file: the game plays its default character in place of this bot. Give a plain text or a number.</source>
        <translation>%1 ist der Text %2, dessen Anführungszeichen, Backslashes oder Steuerzeichen die Datei unlesbar machen: Das Spiel spielt statt dieses Bots seinen Standardcharakter. Geben Sie einen einfachen Text oder eine Zahl an.</translation>
    </message>
    <message>
        <source>%1 is worse than %2, which was clear after %4 matches: %3 of their points.</source>
        <translation>%1 ist schlechter als %2, was nach %4 Matches klar war: %3 ihrer Punkte.</translation>
    </message>
    <message>
        <source>%1 is worse than %2: %3 of their points in %4 match.</source>
        <translation>%1 ist schlechter als %2: %3 ihrer Punkte in %4 Match.</translation>
    </message>
    <message>
        <source>%1 is worse than %2: %3 of their points in %4 matches.</source>
        <translation>%1 ist schlechter als %2: %3 ihrer Punkte in %4 Matches.</translation>
    </message>
    <message>
        <source>%1 keeps %3 lines that stand in the block &quot;%2&quot; and that the new list has not: no edit of a list takes anything from the block of another type. Remove them by hand where you want them gone.</source>
        <translation>%1 behält %3 Zeilen, die im Block „%2“ stehen und in der neuen Liste fehlen: Das Ändern einer Liste nimmt nichts aus dem Block eines anderen Typs. Entfernen Sie sie von Hand, wenn sie weg sollen.</translation>
    </message>
    <message>
        <source>%1 keeps a line that stands in the block &quot;%2&quot; and that the new list has not: no edit of a list takes anything from the block of another type. Remove them by hand where you want them gone.</source>
        <translation>%1 behält eine Zeile, die im Block „%2“ steht und in der neuen Liste fehlt: Das Ändern einer Liste nimmt nichts aus dem Block eines anderen Typs. Entfernen Sie sie von Hand, wenn sie weg soll.</translation>
    </message>
    <message>
        <source>%1 lies at the top of the package, where the game does not look. Make the package anew: the files that end in .c belong into its folder botfiles/bots, the one that ends in .bot into its folder scripts.</source>
        <translation>%1 liegt ganz oben im Paket, wo das Spiel nicht sucht. Erstellen Sie das Paket neu: Die Dateien, die auf .c enden, gehören in seinen Ordner botfiles/bots, die auf .bot endende in seinen Ordner scripts.</translation>
    </message>
    <message>
        <source>%1 lies in the folder %2 there: give that folder. For the game the files belong into %3.</source>
        <translation>%1 liegt dort im Ordner %2: Geben Sie diesen Ordner an. Für das Spiel gehören die Dateien nach %3.</translation>
    </message>
    <message>
        <source>%1 lies in the folder %2, where the game does not look. Make the package anew: the files that end in .c belong into its folder botfiles/bots, the one that ends in .bot into its folder scripts.</source>
        <translation>%1 liegt im Ordner %2, wo das Spiel nicht sucht. Erstellen Sie das Paket neu: Die Dateien, die auf .c enden, gehören in seinen Ordner botfiles/bots, die auf .bot endende in seinen Ordner scripts.</translation>
    </message>
    <message>
        <source>%1 match</source>
        <translation>%1 Match</translation>
    </message>
    <message>
        <source>%1 matches</source>
        <translation>%1 Matches</translation>
    </message>
    <message>
        <source>%1 model</source>
        <translation>%1 Modell</translation>
    </message>
    <message>
        <source>%1 models</source>
        <translation>%1 Modelle</translation>
    </message>
    <message>
        <source>%1 must be a text in quotation marks, and the game finds a number. Put it in quotation marks.</source>
        <translation>%1 muss ein Text in Anführungszeichen sein, das Spiel findet aber eine Zahl. Setzen Sie sie in Anführungszeichen.</translation>
    </message>
    <message>
        <source>%1 names %2, which is another file of this bot. Write %3.</source>
        <translation>%1 nennt %2, das ist eine andere Datei dieses Bots. Schreiben Sie %3.</translation>
    </message>
    <message>
        <source>%1 needs %2 value(s) in brackets behind it, with commas between them.</source>
        <translation>%1 braucht %2 Wert(e) in Klammern dahinter, mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>%1 of its %2 kills were with other weapons.</source>
        <translation>%1 seiner %2 Abschüsse gelangen ihm mit anderen Waffen.</translation>
    </message>
    <message>
        <source>%1 of level %2</source>
        <translation>%1 der Stufe %2</translation>
    </message>
    <message>
        <source>%1 of skill %2 is the text %3, and a number belongs there: the game takes 0. Write the number without quotation marks.</source>
        <translation>%1 von Stufe %2 ist der Text %3, dort gehört aber eine Zahl hin: Das Spiel nimmt 0. Schreiben Sie die Zahl ohne Anführungszeichen.</translation>
    </message>
    <message>
        <source>%1 plays with the game&apos;s default character in place of its own.</source>
        <translation>%1 spielt mit dem Standardcharakter des Spiels statt mit dem eigenen.</translation>
    </message>
    <message>
        <source>%1 skin</source>
        <translation>%1 Skin</translation>
    </message>
    <message>
        <source>%1 skins</source>
        <translation>%1 Skins</translation>
    </message>
    <message>
        <source>%1 stands in none of the bot&apos;s files.</source>
        <translation>%1 steht in keiner der Dateien des Bots.</translation>
    </message>
    <message>
        <source>%1 stands twice in skill block %2 (first in line %3), and the game throws the whole block away. Remove one of the lines.</source>
        <translation>%1 steht zweimal im Skill-Block %2 (zuerst in Zeile %3), und das Spiel verwirft den ganzen Block. Entfernen Sie eine der Zeilen.</translation>
    </message>
    <message>
        <source>%1 stands twice in skill block %2, and the game throws the whole block away. Remove one of the lines.</source>
        <translation>%1 steht zweimal im Skill-Block %2, und das Spiel verwirft den ganzen Block. Entfernen Sie eine der Zeilen.</translation>
    </message>
    <message>
        <source>%1 swallows what stands behind it in the bot&apos;s description, also the path of the bot&apos;s files: the game does not add the bot, or adds another one. Take the double quote or the &quot;/*&quot; out.</source>
        <translation>%1 verschluckt, was in der Beschreibung des Bots dahinter steht, auch den Pfad der Dateien des Bots: Das Spiel fügt den Bot nicht hinzu oder fügt einen anderen hinzu. Nehmen Sie das doppelte Anführungszeichen oder „/*“ heraus.</translation>
    </message>
    <message>
        <source>%1 take the place of the game&apos;s own files, for all bots of the game. What this bot alone needs belongs into a file of another name.</source>
        <translation>%1 treten an die Stelle der eigenen Dateien des Spiels, für alle Bots des Spiels. Was nur dieser Bot braucht, gehört in eine Datei mit anderem Namen.</translation>
    </message>
    <message>
        <source>%1 takes the place of the game&apos;s own file, for all bots of the game. What this bot alone needs belongs into a file of another name.</source>
        <translation>%1 tritt an die Stelle der eigenen Datei des Spiels, für alle Bots des Spiels. Was nur dieser Bot braucht, gehört in eine Datei mit anderem Namen.</translation>
    </message>
    <message>
        <source>%1 was changed since the bot was read or saved here. Do you want to overwrite it?</source>
        <translation>%1 wurde geändert, seit der Bot hier gelesen oder gespeichert wurde. Möchten Sie die Datei überschreiben?</translation>
    </message>
    <message>
        <source>%1 was not read with this bot.</source>
        <translation>%1 wurde nicht mit diesem Bot gelesen.</translation>
    </message>
    <message>
        <source>%1, level %2</source>
        <translation>%1, Stufe %2</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Zeile %2</translation>
    </message>
    <message>
        <source>%1, line %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>%1: %2 The bot keeps its value.</source>
        <translation>%1: %2 Der Bot behält seinen Wert.</translation>
    </message>
    <message>
        <source>%1: %2 cannot have blanks here; it is read as %3.</source>
        <translation>%1: %2 darf hier keine Leerzeichen haben; gelesen wird %3.</translation>
    </message>
    <message>
        <source>%1: %2 gives way to %3</source>
        <translation>%1: %2 wird durch %3 ersetzt</translation>
    </message>
    <message>
        <source>%1: %2 is no number for the game as it is written; a save makes the number of it.</source>
        <translation>%1: %2 ist so, wie es geschrieben ist, für das Spiel keine Zahl; das Speichern macht eine daraus.</translation>
    </message>
    <message>
        <source>%1: %2 is not a number; it is kept as text, and a save puts quotes around it.</source>
        <translation>%1: %2 ist keine Zahl; es bleibt als Text erhalten, und das Speichern setzt Anführungszeichen darum.</translation>
    </message>
    <message>
        <source>%1: 0 in the file. A save leaves out what is 0 here, and the game then takes the value of its default character.</source>
        <translation>%1: 0 in der Datei. Das Speichern lässt weg, was hier 0 ist, und das Spiel nimmt dann den Wert seines Standardcharakters.</translation>
    </message>
    <message>
        <source>%1: &quot;%2&quot; is what a bot has without the line, and a save leaves it out.</source>
        <translation>%1: „%2“ hat ein Bot auch ohne die Zeile, und das Speichern lässt sie weg.</translation>
    </message>
    <message>
        <source>%1: a comment for the game, but read as a chat line.</source>
        <translation>%1: für das Spiel ein Kommentar, aber als Chatzeile gelesen.</translation>
    </message>
    <message>
        <source>%1: a file made anew has the name without its 0.</source>
        <translation>%1: Eine neu erstellte Datei hat den Namen ohne die 0.</translation>
    </message>
    <message>
        <source>%1: a save leaves it out.</source>
        <translation>%1: fällt beim Speichern weg.</translation>
    </message>
    <message>
        <source>%1: a save writes %2 for %3.</source>
        <translation>%1: Das Speichern schreibt %2 für %3.</translation>
    </message>
    <message>
        <source>%1: a text that is taken for the word list of that name.</source>
        <translation>%1: ein Text, der für die Wortliste dieses Namens gehalten wird.</translation>
    </message>
    <message>
        <source>%1: how a save writes a line that stands otherwise in the file.</source>
        <translation>%1: So wird beim Speichern eine Zeile geschrieben, die in der Datei anders steht.</translation>
    </message>
    <message>
        <source>%1: no value, so it counts as 0.</source>
        <translation>%1: kein Wert, zählt also als 0.</translation>
    </message>
    <message>
        <source>%1: none of the ready-made lines that the game is known to have; kept as it is.</source>
        <translation>%1: keine der fertigen Zeilen, die das Spiel bekanntlich hat; bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>%1: none of the word lists and groups known here; read as plain text, and a save writes it so.</source>
        <translation>%1: keine der hier bekannten Wortlisten und Gruppen; als einfacher Text gelesen und so gespeichert.</translation>
    </message>
    <message>
        <source>%1: not read from this line, where the game takes %2.</source>
        <translation>%1: nicht aus dieser Zeile gelesen, aus der das Spiel %2 nimmt.</translation>
    </message>
    <message>
        <source>%1: not understood; a save writes the line in another way.</source>
        <translation>%1: nicht verstanden; beim Speichern wird die Zeile anders geschrieben.</translation>
    </message>
    <message>
        <source>%1: not understood; stays as it is written.</source>
        <translation>%1: nicht verstanden; bleibt, wie es dasteht.</translation>
    </message>
    <message>
        <source>%1: of so long a number a save keeps the first digits, and writes %2.</source>
        <translation>%1: Von einer so langen Zahl behält das Speichern die ersten Stellen und schreibt %2.</translation>
    </message>
    <message>
        <source>%1: read as %2, but %3 stands behind the key.</source>
        <translation>%1: als %2 gelesen, hinter dem Schlüssel steht aber %3.</translation>
    </message>
    <message>
        <source>%1: read as %2, but the game takes %3 from line %4.</source>
        <translation>%1: als %2 gelesen, das Spiel nimmt aber %3 aus Zeile %4.</translation>
    </message>
    <message>
        <source>%1: read as %2, but the line does not set it for the game.</source>
        <translation>%1: als %2 gelesen, für das Spiel setzt die Zeile es aber nicht.</translation>
    </message>
    <message>
        <source>%1: read as %2, but the line is a comment for the game.</source>
        <translation>%1: als %2 gelesen, die Zeile ist für das Spiel aber ein Kommentar.</translation>
    </message>
    <message>
        <source>%1: read as &quot;%2&quot;, but the game takes &quot;%3&quot;.</source>
        <translation>%1: als „%2“ gelesen, das Spiel nimmt aber „%3“.</translation>
    </message>
    <message>
        <source>%1: read as a part of the same chat line.</source>
        <translation>%1: als Teil derselben Chatzeile gelesen.</translation>
    </message>
    <message>
        <source>%1: the game takes the line and the next for one. Here they are two, and a save writes them so.</source>
        <translation>%1: Das Spiel hält die Zeile und die nächste für eine. Hier sind es zwei, und so werden sie gespeichert.</translation>
    </message>
    <message>
        <source>%1
are not there any more. Do you want to make them anew?</source>
        <translation>%1
sind nicht mehr da. Möchten Sie die Dateien neu anlegen?</translation>
    </message>
    <message>
        <source>%1
were changed since the bot was read or saved here. Do you want to overwrite them?</source>
        <translation>%1
wurden geändert, seit der Bot hier gelesen oder gespeichert wurde. Möchten Sie die Dateien überschreiben?</translation>
    </message>
    <message>
        <source>%1
were not read with this bot.</source>
        <translation>%1
wurden nicht mit diesem Bot gelesen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be removed.</source>
        <translation>„%1“ lässt sich nicht entfernen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be removed: %2.</source>
        <translation>„%1“ lässt sich nicht entfernen: %2.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; describes a bot &quot;%2&quot; too.</source>
        <translation>„%1“ beschreibt ebenfalls einen Bot „%2“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; did not come to its end within %2 seconds.</source>
        <translation>„%1“ wurde innerhalb von %2 Sekunden nicht fertig.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; does not describe the bot any more. Do you want to make &apos;%2&apos;?</source>
        <translation>„%1“ beschreibt den Bot nicht mehr. Möchten Sie „%2“ anlegen?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has a character that the list cannot hold.</source>
        <translation>„%1“ enthält ein Zeichen, das die Liste nicht aufnehmen kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has other files than those of %2 in it, or cannot be read. Only packages that hold a bot and nothing else are removed here.</source>
        <translation>„%1“ enthält außer den Dateien von %2 noch andere oder ist nicht lesbar. Hier werden nur Pakete entfernt, die einen Bot und sonst nichts enthalten.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is there already.</source>
        <translation>„%1“ ist schon da.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; lies there too, and the game takes the bot out of it and not from the files. Do you want to make it anew?</source>
        <translation>Dort liegt auch „%1“, und das Spiel nimmt den Bot daraus und nicht aus den Dateien. Möchten Sie das Paket neu anlegen?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; then describes two bots &quot;%2&quot;: the game takes the first and passes over the other.</source>
        <translation>„%1“ beschreibt dann zwei Bots „%2“: Das Spiel nimmt den ersten und übergeht den anderen.</translation>
    </message>
    <message>
        <source>(Noticed in %1, line %2, which this line includes.)</source>
        <translation>(Aufgefallen in Zeile %2 von %1, einer Datei, die diese Zeile einbindet.)</translation>
    </message>
    <message>
        <source>(Noticed where %1, line %2 uses %3.)</source>
        <translation>(Aufgefallen, wo %1 in Zeile %2 %3 benutzt.)</translation>
    </message>
    <message>
        <source>400, 600 or 1000</source>
        <translation>400, 600 oder 1000</translation>
    </message>
    <message>
        <source>A # may only begin a command such as #include or #define; a comment begins with //.</source>
        <translation>Mit # darf nur ein Befehl wie #include oder #define beginnen; ein Kommentar beginnt mit //.</translation>
    </message>
    <message>
        <source>A # stands here without a command behind it, and the game stops at it. Delete it, or put the text it belongs to in quotation marks.</source>
        <translation>Hier steht ein # ohne Befehl dahinter, und das Spiel hält dort an. Löschen Sie es, oder setzen Sie den Text, zu dem es gehört, in Anführungszeichen.</translation>
    </message>
    <message>
        <source>A ## must stand between two words. Remove it.</source>
        <translation>Ein ## muss zwischen zwei Wörtern stehen. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>A $ stands here that belongs to no $evalint or $evalfloat, and the game stumbles over it. Delete it.</source>
        <translation>Hier steht ein $, das zu keinem $evalint oder $evalfloat gehört, und das Spiel stolpert darüber. Löschen Sie es.</translation>
    </message>
    <message>
        <source>A ; is missing at the end of this line: behind %1 the game finds %2 in line %3.</source>
        <translation>Am Ende dieser Zeile fehlt ein ;: Hinter %1 findet das Spiel %2 in Zeile %3.</translation>
    </message>
    <message>
        <source>A backslash stands where the game knows none. The text ends there.</source>
        <translation>Ein Backslash steht, wo das Spiel keinen kennt. Der Text endet dort.</translation>
    </message>
    <message>
        <source>A bit of everything, the right weapon for each distance.</source>
        <translation>Von allem etwas, für jede Entfernung die richtige Waffe.</translation>
    </message>
    <message>
        <source>A bot holds the levels 1, 4 and 5 only: the values of level %1 are passed over.</source>
        <translation>Ein Bot hat nur die Stufen 1, 4 und 5: Die Werte der Stufe %1 werden übergangen.</translation>
    </message>
    <message>
        <source>A bot of this name cannot be saved.</source>
        <translation>Ein Bot dieses Namens kann nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>A bot that was not saved cannot be read.</source>
        <translation>Ein nicht gespeicherter Bot lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>A chat line has a variable that the game does not know.</source>
        <translation>Eine Chatzeile hat eine Variable, die das Spiel nicht kennt.</translation>
    </message>
    <message>
        <source>A chat line is too long. The game does not add the bot.</source>
        <translation>Eine Chatzeile ist zu lang. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>A chat line leads from one word list to the next without end.</source>
        <translation>Eine Chatzeile führt ohne Ende von einer Wortliste zur nächsten.</translation>
    </message>
    <message>
        <source>A chat line takes words from a list that this game does not have. The line is garbled when it is spoken.</source>
        <translation>Eine Chatzeile nimmt Wörter aus einer Liste, die dieses Spiel nicht hat. Gesprochen kommt die Zeile verstümmelt an.</translation>
    </message>
    <message>
        <source>A chat type begins with one {, and a ready-made line is its bare name, such as HELLO0. Remove the brace.</source>
        <translation>Ein Chattyp beginnt mit einer einzigen {, und eine fertige Zeile ist nur ihr Name, zum Beispiel HELLO0. Entfernen Sie die Klammer.</translation>
    </message>
    <message>
        <source>A comment begins here with /* and never ends: the game passes over the rest of the file. Write */ where it should end.</source>
        <translation>Hier beginnt mit /* ein Kommentar, der nie endet: Das Spiel übergeht den Rest der Datei. Schreiben Sie */ dorthin, wo er enden soll.</translation>
    </message>
    <message>
        <source>A comment stands in its place.</source>
        <translation>An seiner Stelle steht ein Kommentar.</translation>
    </message>
    <message>
        <source>A double quote ends the text early, the game cannot read the chat file and does not add the bot. Use single quotes.</source>
        <translation>Ein doppeltes Anführungszeichen beendet den Text zu früh, das Spiel kann die Chatdatei nicht lesen und fügt den Bot nicht hinzu. Nehmen Sie einfache Anführungszeichen.</translation>
    </message>
    <message>
        <source>A file asks for another one that this game does not have.</source>
        <translation>Eine Datei verlangt eine andere, die dieses Spiel nicht hat.</translation>
    </message>
    <message>
        <source>A file written anew would lose or change:</source>
        <translation>Eine neu geschriebene Datei würde verlieren oder ändern:</translation>
    </message>
    <message>
        <source>A load reads line %1 otherwise than the game does, and takes that value. Take the line out, or write it as a file made here has it, first.</source>
        <translation>Das Laden liest Zeile %1 anders als das Spiel und nimmt diesen Wert. Entfernen Sie die Zeile zuerst, oder schreiben Sie sie so, wie sie in einer hier erstellten Datei steht.</translation>
    </message>
    <message>
        <source>A load reads three digits behind the point, no more, and %1 has more. Round it.</source>
        <translation>Das Laden liest höchstens drei Stellen hinter dem Punkt, und %1 hat mehr. Runden Sie die Zahl.</translation>
    </message>
    <message>
        <source>A load takes it from line %1 then, where its key stands in another word. Take that line out first.</source>
        <translation>Das Laden nimmt den Wert dann aus Zeile %1, wo der Schlüssel in einem anderen Wort steht. Entfernen Sie diese Zeile zuerst.</translation>
    </message>
    <message>
        <source>A load takes it from line %1, where its key stands in another word. Take that line out, or put it further up, first.</source>
        <translation>Das Laden nimmt den Wert aus Zeile %1, wo der Schlüssel in einem anderen Wort steht. Entfernen Sie diese Zeile zuerst, oder setzen Sie sie weiter nach oben.</translation>
    </message>
    <message>
        <source>A load takes the comment in its line for a part of it. Put that into a line of its own first.</source>
        <translation>Das Laden hält den Kommentar in der Zeile für einen Teil des Wertes. Setzen Sie ihn zuerst in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>A load takes the value from line %1, which the game passes over. Change that line, or take it out, first.</source>
        <translation>Das Laden nimmt den Wert aus Zeile %1, die das Spiel übergeht. Ändern oder entfernen Sie diese Zeile zuerst.</translation>
    </message>
    <message>
        <source>A name can&apos;t have a double quote in it.</source>
        <translation>Ein Name darf kein Anführungszeichen enthalten.</translation>
    </message>
    <message>
        <source>A name must stand behind #define, on the same line and without quotation marks.</source>
        <translation>Hinter #define muss ein Name stehen, in derselben Zeile und ohne Anführungszeichen.</translation>
    </message>
    <message>
        <source>A name must stand behind #ifdef and #ifndef, on the same line.</source>
        <translation>Hinter #ifdef und #ifndef muss ein Name stehen, in derselben Zeile.</translation>
    </message>
    <message>
        <source>A name must stand behind #undef, on the same line.</source>
        <translation>Hinter #undef muss ein Name stehen, in derselben Zeile.</translation>
    </message>
    <message>
        <source>A newer Fragsmith wrote this: it has format %1, and this one knows %2. What is known is read.</source>
        <translation>Das hat ein neueres Fragsmith geschrieben: Es hat Format %1, und dieses kennt %2. Was bekannt ist, wird gelesen.</translation>
    </message>
    <message>
        <source>A number is wanted here, such as 0.35 or 120.</source>
        <translation>Hier wird eine Zahl erwartet, etwa 0.35 oder 120.</translation>
    </message>
    <message>
        <source>A quotation mark (&quot; or &apos;) opens a text here that does not end on its line, and the game loses the line.</source>
        <translation>Ein Anführungszeichen (&quot; oder &apos;) öffnet hier einen Text, der nicht in seiner Zeile endet, und das Spiel verliert die Zeile.</translation>
    </message>
    <message>
        <source>A quotation mark (&quot; or &apos;) opens a text here that never ends. Close it.</source>
        <translation>Ein Anführungszeichen (&quot; oder &apos;) öffnet hier einen Text, der nie endet. Schließen Sie ihn.</translation>
    </message>
    <message>
        <source>A ready-made line such as %1 must stand alone, with nothing before or behind it: the bot speaks it as it stands there, braces and all. Take it out of the line.</source>
        <translation>Eine fertige Zeile wie %1 muss allein stehen, ohne etwas davor oder dahinter: Der Bot spricht sie, wie sie dasteht, samt den Klammern. Nehmen Sie sie aus der Zeile heraus.</translation>
    </message>
    <message>
        <source>A second after any other kill, when no enemy is in sight; &quot;Insult&quot; is the share of &quot;Bot kills (negative)&quot; against this type.</source>
        <translation>Eine Sekunde nach jedem anderen Abschuss, wenn kein Gegner in Sicht ist; „Insult“ ist der Anteil von „Bot kills (negative)“ gegenüber diesem Anlass.</translation>
    </message>
    <message>
        <source>A second after any other kill, when no enemy is in sight; &quot;Insult&quot; is the share of this type against &quot;Bot kills (positive)&quot;.</source>
        <translation>Eine Sekunde nach jedem anderen Abschuss, wenn kein Gegner in Sicht ist; „Insult“ ist der Anteil dieses Anlasses gegenüber „Bot kills (positive)“.</translation>
    </message>
    <message>
        <source>A switch: below {1} the bot never jumps by rocket, from {1} on it does to get about, with 3 rockets, no Quad damage and health 90 (or 60 with 40 armor), unless the server forbids it.</source>
        <translation>Ein Schalter: Unter {1} macht der Bot nie Raketensprünge, ab {1} nutzt er sie, um voranzukommen, mit 3 Raketen, ohne Quad Damage und mit Gesundheit 90 (oder 60 bei Rüstung 40), wenn der Server es nicht verbietet.</translation>
    </message>
    <message>
        <source>A switch: below {1} the bot spares players who are typing, from {1} on it shoots at them.</source>
        <translation>Ein Schalter: Unter {1} verschont der Bot Spieler, die gerade tippen, ab {1} schießt er auf sie.</translation>
    </message>
    <message>
        <source>A text does not end on the line on which it begins: a quote is missing.</source>
        <translation>Ein Text endet nicht in der Zeile, in der er beginnt: Ein Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>A text has no quote at its end. The game cannot read the file.</source>
        <translation>Einem Text fehlt das Anführungszeichen am Ende. Das Spiel kann die Datei nicht lesen.</translation>
    </message>
    <message>
        <source>A value in the description file has a ; or \ or &quot; in it. The game throws that line away.</source>
        <translation>In der Beschreibungsdatei enthält ein Wert ; oder \ oder &quot;. Das Spiel verwirft diese Zeile.</translation>
    </message>
    <message>
        <source>A weight is missing or is not a plain number. The game does not add the bot.</source>
        <translation>Ein Gewicht fehlt oder ist keine einfache Zahl. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>A weight stands twice in the file. The last one counts.</source>
        <translation>Ein Gewicht steht zweimal in der Datei. Das letzte zählt.</translation>
    </message>
    <message>
        <source>Add a line</source>
        <translation>Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Add a line for each</source>
        <translation>Für jeden eine Zeile hinzufügen</translation>
    </message>
    <message>
        <source>Add-ons: %1, %2, %3.</source>
        <translation>Add-ons: %1, %2, %3.</translation>
    </message>
    <message>
        <source>After %1 match of %2, %3 took %4 of the points.</source>
        <translation>Nach %1 Match von %2 hat %3 %4 der Punkte geholt.</translation>
    </message>
    <message>
        <source>After %1 match, %2 took %3 of the points.</source>
        <translation>Nach %1 Match hat %2 %3 der Punkte geholt.</translation>
    </message>
    <message>
        <source>After %1 matches of %2, %3 took %4 of the points.</source>
        <translation>Nach %1 Matches von %2 hat %3 %4 der Punkte geholt.</translation>
    </message>
    <message>
        <source>After %1 matches, %2 took %3 of the points.</source>
        <translation>Nach %1 Matches hat %2 %3 der Punkte geholt.</translation>
    </message>
    <message>
        <source>After any other death; &quot;Insult&quot; is the share of &quot;Bot dies (negative)&quot; against this type.</source>
        <translation>Nach jedem anderen Tod; „Insult“ ist der Anteil von „Bot dies (negative)“ gegenüber diesem Anlass.</translation>
    </message>
    <message>
        <source>After any other death; &quot;Insult&quot; is the share of this type against &quot;Bot dies (positive)&quot;.</source>
        <translation>Nach jedem anderen Tod; „Insult“ ist der Anteil dieses Anlasses gegenüber „Bot dies (positive)“.</translation>
    </message>
    <message>
        <source>All its kills were with the gauntlet, %1 in %2 match.</source>
        <translation>Alle seine Abschüsse gelangen ihm mit dem Gauntlet, %1 in %2 Match.</translation>
    </message>
    <message>
        <source>All its kills were with the gauntlet, %1 in %2 matches.</source>
        <translation>Alle seine Abschüsse gelangen ihm mit dem Gauntlet, %1 in %2 Matches.</translation>
    </message>
    <message>
        <source>All of them</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>All weapon weights are equal, and of equal ones the game takes the gauntlet: the bot fights with nothing else, whatever it carries. Give each weapon that it is to use a larger weight than %1.</source>
        <translation>Alle Waffengewichte sind gleich, und bei gleichen nimmt das Spiel den Gauntlet: Der Bot kämpft mit nichts anderem, ganz gleich, was er trägt. Geben Sie jeder Waffe, die er benutzen soll, ein größeres Gewicht als %1.</translation>
    </message>
    <message>
        <source>All weights of the pages &quot;Weapon pickup&quot; and &quot;Item pickup&quot; are 0: the bot never goes anywhere to fetch a weapon, health, armor or any other item.</source>
        <translation>Alle Gewichte der Seiten „Weapon pickup“ und „Item pickup“ sind 0: Der Bot geht nirgendwohin, um eine Waffe, Gesundheit, Rüstung oder einen anderen Gegenstand zu holen.</translation>
    </message>
    <message>
        <source>All-rounder</source>
        <translation>Allrounder</translation>
    </message>
    <message>
        <source>Also in this file, what a bot here has no place for (%1): %2. It stays when values are changed in place, and is left out of a file made anew.</source>
        <translation>Außerdem steht in dieser Datei, wofür ein Bot hier keinen Platz hat (%1): %2. Es bleibt, wenn Werte an Ort und Stelle geändert werden, und fehlt in einer neu erstellten Datei.</translation>
    </message>
    <message>
        <source>An empty chat line</source>
        <translation>Eine leere Chatzeile</translation>
    </message>
    <message>
        <source>An entry with a line end in its name is skipped.</source>
        <translation>Ein Eintrag mit einem Zeilenende im Namen wird übersprungen.</translation>
    </message>
    <message>
        <source>An invisible character with the code 0 stands in this line, and for the game the file ends there. Delete it, or type the line anew.</source>
        <translation>In dieser Zeile steht ein unsichtbares Zeichen mit dem Code 0, und für das Spiel endet die Datei dort. Löschen Sie es, oder tippen Sie die Zeile neu.</translation>
    </message>
    <message>
        <source>Another chat begins here. A save puts its lines into one with those above.</source>
        <translation>Hier beginnt ein weiterer Chat. Beim Speichern werden seine Zeilen mit denen darüber zu einem Chat vereint.</translation>
    </message>
    <message>
        <source>Another value would change with it.</source>
        <translation>Ein anderer Wert würde sich mit ändern.</translation>
    </message>
    <message>
        <source>Another value would change with it: %1.</source>
        <translation>Ein anderer Wert würde sich mit ändern: %1.</translation>
    </message>
    <message>
        <source>As in the game, level %1 begins here, though something stands in front of &quot;skill&quot;. A save leaves that out.</source>
        <translation>Wie im Spiel beginnt hier Stufe %1, obwohl etwas vor „skill“ steht. Das Speichern lässt das weg.</translation>
    </message>
    <message>
        <source>At level %1 the game reads %2, which stays as it is.</source>
        <translation>Auf Stufe %1 liest das Spiel %2; diese Datei bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>At level %1 the game takes the value from a file that is included.</source>
        <translation>Auf Stufe %1 nimmt das Spiel den Wert aus einer eingebundenen Datei.</translation>
    </message>
    <message>
        <source>At no skill it asks for block %1, which stands here: perhaps its number is wrong.</source>
        <translation>Bei keiner Spielstärke fragt es nach Block %1, der hier steht: Vielleicht ist seine Nummer falsch.</translation>
    </message>
    <message>
        <source>At skill %1 the bot plays, wholly or in part, as the game&apos;s default character under its own name.</source>
        <translation>Bei Spielstärke %1 spielt der Bot ganz oder zum Teil als Standardcharakter des Spiels unter seinem eigenen Namen.</translation>
    </message>
    <message>
        <source>At skill %1 the game does not add the bot.</source>
        <translation>Bei Spielstärke %1 fügt das Spiel den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>At skills between 4 and 5, such as 4.5, the bot has no &quot;%1&quot; at all (the game takes 0 and complains again and again):</source>
        <translation>Bei Spielstärken zwischen 4 und 5, etwa 4.5, hat der Bot für „%1“ gar keinen Wert (das Spiel nimmt 0 und beschwert sich immer wieder):</translation>
    </message>
    <message>
        <source>At skills between 4 and 5, such as 4.5, the bot has no &quot;%1&quot; at all, which makes it super-fast:</source>
        <translation>Bei Spielstärken zwischen 4 und 5, etwa 4.5, hat der Bot für „%1“ gar keinen Wert, was ihn blitzschnell macht:</translation>
    </message>
    <message>
        <source>At skills between the levels %1 and %2 the game would have no value: it mixes a number that has a point, as at level %1, with none that has not, as %3 at level %2. Write %3.0 there first.</source>
        <translation>Bei Spielstärken zwischen den Stufen %1 und %2 hätte das Spiel keinen Wert: Eine Zahl mit Punkt wie auf Stufe %1 mischt es mit keiner ohne wie %3 auf Stufe %2. Schreiben Sie dort zuerst %3.0.</translation>
    </message>
    <message>
        <source>At the skills 2 and 3 the bot has no &quot;%1&quot; at all (the game takes 0 and complains again and again):</source>
        <translation>Bei den Spielstärken 2 und 3 hat der Bot für „%1“ gar keinen Wert (das Spiel nimmt 0 und beschwert sich immer wieder):</translation>
    </message>
    <message>
        <source>At the skills 2 and 3 the bot has no &quot;%1&quot; at all, which makes it super-fast:</source>
        <translation>Bei den Spielstärken 2 und 3 hat der Bot für „%1“ gar keinen Wert, was ihn blitzschnell macht:</translation>
    </message>
    <message>
        <source>Behind the name of the file to include a text follows, in a line below, and the game makes one name of both: %1. Move the #include to where no text follows, in a chat file out of the chat type.</source>
        <translation>Hinter dem Namen der einzubindenden Datei folgt in einer Zeile darunter ein Text, und das Spiel macht aus beiden einen Namen: %1. Setzen Sie das #include dorthin, wo kein Text folgt, in einer Chatdatei außerhalb des Chattyps.</translation>
    </message>
    <message>
        <source>Best left at 0: none of the chat texts belongs to it, and in newer versions of the game a higher value only keeps the bot silent for 25 seconds.</source>
        <translation>Am besten bleibt es bei 0: Keine Chatzeile gehört dazu, und in neueren Fassungen des Spiels lässt ein höherer Wert den Bot nur 25 Sekunden lang schweigen.</translation>
    </message>
    <message>
        <source>Between chat types the game finds %1 where it expects type and a name in quotation marks.</source>
        <translation>Zwischen Chattypen findet das Spiel %1, wo es type und einen Namen in Anführungszeichen erwartet.</translation>
    </message>
    <message>
        <source>Between the two ends, the bot does not come to %1.</source>
        <translation>Zwischen den beiden Enden kommt der Bot nicht auf %1.</translation>
    </message>
    <message>
        <source>Bot name can&apos;t have any of these characters: %1</source>
        <translation>Der Name des Bots darf keines dieser Zeichen enthalten: %1</translation>
    </message>
    <message>
        <source>Call the bot %1</source>
        <translation>Den Bot %1 nennen</translation>
    </message>
    <message>
        <source>Camper</source>
        <translation>Camper</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Changed since the bot was read or saved here:</source>
        <translation>Geändert, seit der Bot hier gelesen oder gespeichert wurde:</translation>
    </message>
    <message>
        <source>Characteristic %1</source>
        <translation>Eigenschaft %1</translation>
    </message>
    <message>
        <source>Check its permissions.</source>
        <translation>Prüfen Sie ihre Zugriffsrechte.</translation>
    </message>
    <message>
        <source>Check that it is the right one.</source>
        <translation>Prüfen Sie, ob es die richtige Datei ist.</translation>
    </message>
    <message>
        <source>Check that it is there and may be run.</source>
        <translation>Prüfen Sie, ob es vorhanden ist und ausgeführt werden darf.</translation>
    </message>
    <message>
        <source>Check the folder, its permissions and the free space.</source>
        <translation>Prüfen Sie den Ordner, seine Zugriffsrechte und den freien Speicherplatz.</translation>
    </message>
    <message>
        <source>Check the name.</source>
        <translation>Prüfen Sie den Namen.</translation>
    </message>
    <message>
        <source>Check the spelling; capital letters count.</source>
        <translation>Prüfen Sie die Schreibweise; Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>Check the system&apos;s temporary folder (TMPDIR) and its free space.</source>
        <translation>Prüfen Sie den temporären Ordner des Systems (TMPDIR) und seinen freien Speicherplatz.</translation>
    </message>
    <message>
        <source>Choose a folder for the bot&apos;s files.</source>
        <translation>Wählen Sie einen Ordner für die Dateien des Bots.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close and fast: lightning, shotgun, rockets.</source>
        <translation>Nah und schnell: Lightning Gun, Shotgun, Raketen.</translation>
    </message>
    <message>
        <source>Close the text on the same line; for a quotation mark inside a text write &apos;, since the game never shows a &quot;.</source>
        <translation>Schließen Sie den Text in derselben Zeile; für ein Anführungszeichen innerhalb eines Textes schreiben Sie &apos;, denn ein &quot; zeigt das Spiel nie.</translation>
    </message>
    <message>
        <source>Comments and lines of its author&apos;s own are lost.</source>
        <translation>Kommentare und eigene Zeilen ihres Autors gehen verloren.</translation>
    </message>
    <message>
        <source>Comments and lines of their author&apos;s own are lost.</source>
        <translation>Kommentare und eigene Zeilen der Autoren gehen verloren.</translation>
    </message>
    <message>
        <source>Comments are not read, and a file made anew leaves them out (%1 line).</source>
        <translation>Kommentare werden nicht gelesen, und eine neu erstellte Datei lässt sie weg (%1 Zeile).</translation>
    </message>
    <message>
        <source>Comments are not read, and a file made anew leaves them out (%1 lines).</source>
        <translation>Kommentare werden nicht gelesen, und eine neu erstellte Datei lässt sie weg (%1 Zeilen).</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Correct it</source>
        <translation>Berichtigen</translation>
    </message>
    <message>
        <source>Correct the name, or remove the line.</source>
        <translation>Berichtigen Sie den Namen, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>Cut %1 after %2 characters</source>
        <translation>%1 nach %2 Zeichen abschneiden</translation>
    </message>
    <message>
        <source>Do you want to install it all the same?</source>
        <translation>Möchten Sie ihn trotzdem installieren?</translation>
    </message>
    <message>
        <source>Do you want to remove &apos;%1&apos; from the disk? %2 is then not in the game any more.</source>
        <translation>Möchten Sie „%1“ von der Festplatte entfernen? %2 ist dann nicht mehr im Spiel.</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>Do you want to replace them?</source>
        <translation>Möchten Sie die Dateien ersetzen?</translation>
    </message>
    <message>
        <source>Do you want to save it so?</source>
        <translation>Möchten Sie ihn so speichern?</translation>
    </message>
    <message>
        <source>Do you want to write what you changed all the same?</source>
        <translation>Möchten Sie Ihre Änderungen trotzdem schreiben?</translation>
    </message>
    <message>
        <source>Drawn by lot, always playable.</source>
        <translation>Ausgelost, immer spielbar.</translation>
    </message>
    <message>
        <source>Each bot needs the blocks skill 1, skill 4 and skill 5.</source>
        <translation>Jeder Bot braucht die Blöcke skill 1, skill 4 und skill 5.</translation>
    </message>
    <message>
        <source>Each key has one number, without a blank inside: write %1, or remove one of them.</source>
        <translation>Jeder Schlüssel hat eine einzige Zahl, ohne Leerzeichen darin: Schreiben Sie %1, oder entfernen Sie eine von beiden.</translation>
    </message>
    <message>
        <source>Each key has one number: remove one of them.</source>
        <translation>Jeder Schlüssel hat eine einzige Zahl: Entfernen Sie eine von beiden.</translation>
    </message>
    <message>
        <source>Each key has one value; a text of several words stands in quotation marks.</source>
        <translation>Jeder Schlüssel hat einen Wert; ein Text aus mehreren Wörtern steht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Edit it in place</source>
        <translation>An Ort und Stelle ändern</translation>
    </message>
    <message>
        <source>Empty %1</source>
        <translation>%1 leeren</translation>
    </message>
    <message>
        <source>Empty %1, so that the bot is shown under its name</source>
        <translation>%1 leeren, sodass der Bot unter seinem Namen erscheint</translation>
    </message>
    <message>
        <source>Every second time when the bot was killed with the BFG10K.</source>
        <translation>Jedes zweite Mal, wenn der Bot mit der BFG10K getötet wurde.</translation>
    </message>
    <message>
        <source>Every second time when the bot was killed with the gauntlet.</source>
        <translation>Jedes zweite Mal, wenn der Bot mit dem Gauntlet getötet wurde.</translation>
    </message>
    <message>
        <source>Every second time when the bot was killed with the railgun.</source>
        <translation>Jedes zweite Mal, wenn der Bot mit der Railgun getötet wurde.</translation>
    </message>
    <message>
        <source>Field %1: %2</source>
        <translation>Feld %1: %2</translation>
    </message>
    <message>
        <source>For the game this line is a comment, so %1 has no value. Remove what makes it a comment.</source>
        <translation>Für das Spiel ist diese Zeile ein Kommentar, deshalb hat %1 keinen Wert. Entfernen Sie, was sie zum Kommentar macht.</translation>
    </message>
    <message>
        <source>Fragsmith does not know where the game is. Set its folder with Program &gt; Options first.</source>
        <translation>Fragsmith weiß nicht, wo das Spiel ist. Stellen Sie zuerst unter „Program/Options“ seinen Ordner ein.</translation>
    </message>
    <message>
        <source>From 0 to %1 characters per minute in steps of %2.</source>
        <translation>Von 0 bis %1 Zeichen pro Minute in Schritten von %2.</translation>
    </message>
    <message>
        <source>From 0 to %1 degrees per second in steps of %2.</source>
        <translation>Von 0 bis %1 Grad pro Sekunde in Schritten von %2.</translation>
    </message>
    <message>
        <source>From 0 to %1 in steps of %2.</source>
        <translation>Von 0 bis %1 in Schritten von %2.</translation>
    </message>
    <message>
        <source>From 0 to %1 seconds in steps of %2.</source>
        <translation>Von 0 bis %1 Sekunden in Schritten von %2.</translation>
    </message>
    <message>
        <source>Give W_GAUNTLET or W_MACHINEGUN a weight above 0.</source>
        <translation>Geben Sie W_GAUNTLET oder W_MACHINEGUN ein Gewicht über 0.</translation>
    </message>
    <message>
        <source>Give the bot another name.</source>
        <translation>Geben Sie dem Bot einen anderen Namen.</translation>
    </message>
    <message>
        <source>Go on without</source>
        <translation>Ohne weitermachen</translation>
    </message>
    <message>
        <source>Gone: %1.</source>
        <translation>Nicht mehr da: %1.</translation>
    </message>
    <message>
        <source>Half of it is the chance to speak when the bot has hit in a fight and the enemy is out of sight.</source>
        <translation>Die Hälfte davon ist die Wahrscheinlichkeit, dass der Bot spricht, wenn er im Kampf getroffen hat und der Gegner außer Sicht ist.</translation>
    </message>
    <message>
        <source>Half of it is the chance to speak when the bot is hit while it types a reply.</source>
        <translation>Die Hälfte davon ist die Wahrscheinlichkeit, dass der Bot spricht, wenn er getroffen wird, während er eine Antwort tippt.</translation>
    </message>
    <message>
        <source>Half of it is the chance to speak when the bot was hit in a fight and the enemy is out of sight.</source>
        <translation>Die Hälfte davon ist die Wahrscheinlichkeit, dass der Bot spricht, wenn er im Kampf getroffen wurde und der Gegner außer Sicht ist.</translation>
    </message>
    <message>
        <source>Here the game wants a text in quotes, not a number.</source>
        <translation>Hier will das Spiel einen Text in Anführungszeichen, keine Zahl.</translation>
    </message>
    <message>
        <source>Here the next type begins, but the } of the type %1 above is missing. Write it in front of this line.</source>
        <translation>Hier beginnt der nächste Typ, aber die } des Typs %1 darüber fehlt. Schreiben Sie sie vor diese Zeile.</translation>
    </message>
    <message>
        <source>How clever the aim is with gauntlet, machinegun, shotgun, lightning gun and railgun; the other weapons have their own values on the page &quot;Weapon skills&quot;. Below {1} the accuracy falls to 70 % when the enemy turns back; above {2} the bot waits half its reaction time before it aims at all.</source>
        <translation>Wie klug der Bot mit Gauntlet, Machinegun, Shotgun, Lightning Gun und Railgun zielt; die anderen Waffen haben eigene Werte auf der Seite „Weapon skills“. Unter {1} fällt die Genauigkeit auf 70 %, wenn der Gegner umkehrt; über {2} wartet der Bot die halbe Reaktionszeit, bevor er überhaupt zielt.</translation>
    </message>
    <message>
        <source>How clever the aim is with this weapon, in place of the general aim skill. Above {1} the bot leads its target in a straight line, above {3} along its real path; above {2} it shoots at the floor for splash. Below {4} the accuracy falls to 70 % when the enemy turns back.</source>
        <translation>Wie klug der Bot mit dieser Waffe zielt, an Stelle des allgemeinen Werts. Über {1} hält er geradlinig vor, über {3} entlang des wirklichen Wegs; über {2} schießt er für Flächenschaden auf den Boden. Unter {4} fällt die Genauigkeit auf 70 %, wenn der Gegner umkehrt.</translation>
    </message>
    <message>
        <source>How clever the aim is with this weapon, in place of the general aim skill. Above {1} the bot leads its target in a straight line, above {4} along its real path; above {2} it shoots where the enemy will come out, above {3} at the floor for splash. Below {5} the accuracy falls to 70 % when the enemy turns back.</source>
        <translation>Wie klug der Bot mit dieser Waffe zielt, an Stelle des allgemeinen Werts. Über {1} hält er geradlinig vor, über {4} entlang des wirklichen Wegs; über {2} schießt er dorthin, wo der Gegner herauskommen wird, über {3} für Flächenschaden auf den Boden. Unter {5} fällt die Genauigkeit auf 70 %, wenn der Gegner umkehrt.</translation>
    </message>
    <message>
        <source>How far the bot notices enemies: 0 is 900 map units, 0.5 is 2900 and 1 is 4900. A player is 56 units tall.</source>
        <translation>Wie weit der Bot Gegner bemerkt: 0 sind 900 Karteneinheiten, 0.5 sind 2900 und 1 sind 4900. Ein Spieler ist 56 Einheiten groß.</translation>
    </message>
    <message>
        <source>How long the bot waits before it may shoot after it has seen an enemy or come out of a teleporter. The game takes everything above {1} as {1}. Beware of a level with a fraction next to a higher one without (1.5 and 2): the skills between them then have no reaction time at all.</source>
        <translation>Wie lange der Bot wartet, bevor er schießen darf, nachdem er einen Gegner gesehen hat oder aus einem Teleporter gekommen ist. Das Spiel nimmt alles über {1} als {1}. Vorsicht mit einer Kommazahl neben einer ganzen Zahl auf der höheren Stufe (1.5 und 2): Die Spielstärken dazwischen haben dann gar keine Reaktionszeit.</translation>
    </message>
    <message>
        <source>How much the bot wants armor, the more so the more it lacks. OpenArena&apos;s bots have 1 to 3.</source>
        <translation>Wie sehr der Bot Rüstung will, umso mehr, je mehr ihm fehlt. Die Bots von OpenArena haben 1 bis 3.</translation>
    </message>
    <message>
        <source>How much the bot wants flags that lie about, in team games. Stealing and guarding flags does not depend on it.</source>
        <translation>Wie sehr der Bot in Teamspielen herumliegende Flaggen will. Das Stehlen und Bewachen von Flaggen hängt nicht davon ab.</translation>
    </message>
    <message>
        <source>How much the bot wants health, the more so the more it lacks. OpenArena&apos;s bots have 2 to 5.</source>
        <translation>Wie sehr der Bot Gesundheit will, umso mehr, je mehr ihm fehlt. Die Bots von OpenArena haben 2 bis 5.</translation>
    </message>
    <message>
        <source>How much the bot wants this item. The weight is divided by the time to get there, and the best result becomes the bot&apos;s goal. 0 is never a goal.</source>
        <translation>Wie sehr der Bot diesen Gegenstand will. Das Gewicht wird durch die Zeit bis dorthin geteilt, und das beste Ergebnis wird zum Ziel des Bots. 0 ist nie ein Ziel.</translation>
    </message>
    <message>
        <source>How much the bot wants this weapon although it has it already. Some game data, such as OpenArena&apos;s, do not use this weight.</source>
        <translation>Wie sehr der Bot diese Waffe will, obwohl er sie schon hat. Manche Spieldaten, etwa die von OpenArena, nutzen dieses Gewicht nicht.</translation>
    </message>
    <message>
        <source>How much the bot wants this weapon while it does not have it. The weight is divided by the time to get there, and the best result becomes the bot&apos;s goal. 0 is never a goal.</source>
        <translation>Wie sehr der Bot diese Waffe will, solange er sie nicht hat. Das Gewicht wird durch die Zeit bis dorthin geteilt, und das beste Ergebnis wird zum Ziel des Bots. 0 ist nie ein Ziel.</translation>
    </message>
    <message>
        <source>How often the bot answers others: with one bot in the game the chance is 0.75 times the value, with five 0.25 times.</source>
        <translation>Wie oft der Bot anderen antwortet: Mit einem Bot im Spiel ist die Wahrscheinlichkeit das 0.75-Fache des Werts, mit fünf das 0.25-Fache.</translation>
    </message>
    <message>
        <source>How often the bot speaks while it roams: 1 is about one line in 40 seconds.</source>
        <translation>Wie oft der Bot spricht, während er umherstreift: 1 ist etwa eine Zeile in 40 Sekunden.</translation>
    </message>
    <message>
        <source>How quickly the view turns to the enemy; the higher, the less it overshoots. The game takes less than {lowest} as {lowest}, and always 0.05 while there is no enemy.</source>
        <translation>Wie schnell sich der Blick zum Gegner dreht; je höher der Wert, desto weniger schießt er über das Ziel hinaus. Das Spiel nimmt weniger als {lowest} als {lowest}, und ohne Gegner immer 0.05.</translation>
    </message>
    <message>
        <source>How steadily the bot aims with the gauntlet and the grapple. Every other weapon has a value of its own on the page &quot;Weapon skills&quot;, and this one does nothing for it.</source>
        <translation>Wie ruhig der Bot mit Gauntlet und Enterhaken zielt. Jede andere Waffe hat einen eigenen Wert auf der Seite „Weapon skills“, für sie bewirkt dieser hier nichts.</translation>
    </message>
    <message>
        <source>How steadily the bot aims with this weapon. At 0 it misses by up to 20 map units to the side and 10 in height, at 1 by none but the weapon&apos;s own spread. Below {1} it also errs in direction at random; above {2} the view snaps to the enemy when the server has bot_challenge on.</source>
        <translation>Wie ruhig der Bot mit dieser Waffe zielt. Bei 0 schießt er bis zu 20 Karteneinheiten zur Seite und 10 in der Höhe daneben, bei 1 nur um die Streuung der Waffe selbst. Unter {1} irrt er zudem zufällig in der Richtung; über {2} springt der Blick auf den Gegner, wenn auf dem Server bot_challenge an ist.</translation>
    </message>
    <message>
        <source>How the bot moves in a fight. Below {1} it stands still; up to {3} it only moves towards the enemy or away; above {3} it circles; above {4} it also changes its rhythm at random. Above {2} it keeps aiming while it retreats or fetches items.</source>
        <translation>Wie sich der Bot im Kampf bewegt. Unter {1} steht er still; bis {3} bewegt er sich nur auf den Gegner zu oder von ihm weg; über {3} umkreist er ihn; über {4} wechselt er dabei zufällig den Rhythmus. Über {2} zielt er weiter, während er sich zurückzieht oder Gegenstände holt.</translation>
    </message>
    <message>
        <source>In a fight, the chance to crouch at each decision (some ten a second), for 5 seconds times the value. While camping or escorting, the chance per second, for 5 to 20 seconds.</source>
        <translation>Im Kampf die Wahrscheinlichkeit, sich bei einer Entscheidung (etwa zehn pro Sekunde) zu ducken, für 5 Sekunden mal dem Wert. Beim Campen oder Begleiten die Wahrscheinlichkeit pro Sekunde, für 5 bis 20 Sekunden.</translation>
    </message>
    <message>
        <source>In a fight, the chance to jump at each decision, but at most once a second. Jumping is tried before crouching: with 1 the bot never crouches in a fight.</source>
        <translation>Im Kampf die Wahrscheinlichkeit, bei einer Entscheidung zu springen, aber höchstens einmal pro Sekunde. Springen geht vor Ducken: Mit 1 duckt sich der Bot im Kampf nie.</translation>
    </message>
    <message>
        <source>In the file a variable is a number outside the quotation marks, such as &quot;well done, &quot;, 0; and a word list its bare name. Write it without braces.</source>
        <translation>In der Datei ist eine Variable eine Zahl außerhalb der Anführungszeichen, zum Beispiel &quot;well done, &quot;, 0; und eine Wortliste nur ihr Name. Schreiben Sie beides ohne geschweifte Klammern.</translation>
    </message>
    <message>
        <source>In the file, level %1 lacks these, which a save writes as the bot has them: %2.</source>
        <translation>In der Datei fehlen auf Stufe %1 diese, die das Speichern so schreibt, wie der Bot sie hat: %2.</translation>
    </message>
    <message>
        <source>In the game the bot is called %1, not as its files are.</source>
        <translation>Im Spiel heißt der Bot %1, nicht so wie seine Dateien.</translation>
    </message>
    <message>
        <source>In the game, open the console and type</source>
        <translation>Öffnen Sie im Spiel die Konsole und geben Sie ein:</translation>
    </message>
    <message>
        <source>In this situation the game has nothing for %1: the bot leaves it out. Take it out of the line, or choose another.</source>
        <translation>Bei diesem Anlass hat das Spiel nichts für %1: Der Bot lässt es weg. Nehmen Sie es aus der Zeile heraus, oder wählen Sie etwas anderes.</translation>
    </message>
    <message>
        <source>In this situation the game has nothing for %1: the bot says &quot;[invalid var]&quot; in its place. Take it out of the line.</source>
        <translation>Bei diesem Anlass hat das Spiel nichts für %1: Der Bot sagt stattdessen „[invalid var]“. Nehmen Sie es aus der Zeile heraus.</translation>
    </message>
    <message>
        <source>Install the program anew.</source>
        <translation>Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>It begins in botfiles by itself: leave botfiles/ out.</source>
        <translation>Es beginnt von selbst in botfiles: Lassen Sie botfiles/ weg.</translation>
    </message>
    <message>
        <source>It comes out of the file that this #include brings in, which does not belong here. Move the #include to where it belongs, or remove it.</source>
        <translation>Das stammt aus der Datei, die dieses #include einbindet und die nicht hierher gehört. Setzen Sie das #include dorthin, wo es hingehört, oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>It has no effect on how the bot plays.</source>
        <translation>Es hat keine Wirkung darauf, wie der Bot spielt.</translation>
    </message>
    <message>
        <source>It is kept as &apos;%1&apos;.</source>
        <translation>Die Datei liegt jetzt als „%1“ daneben.</translation>
    </message>
    <message>
        <source>It is left out.</source>
        <translation>Es wird weggelassen.</translation>
    </message>
    <message>
        <source>It is not clear whether %1 and %2 differ after %4 match: %3 of their points.</source>
        <translation>Nach %4 Match ist nicht klar, ob sich %1 und %2 unterscheiden: %3 ihrer Punkte.</translation>
    </message>
    <message>
        <source>It is not clear whether %1 and %2 differ after %4 matches: %3 of their points.</source>
        <translation>Nach %4 Matches ist nicht klar, ob sich %1 und %2 unterscheiden: %3 ihrer Punkte.</translation>
    </message>
    <message>
        <source>It is not known what the game makes of %1.</source>
        <translation>Es ist nicht bekannt, was das Spiel aus %1 macht.</translation>
    </message>
    <message>
        <source>It is not known what the game makes of %1: a file that is included above was not looked at.</source>
        <translation>Was das Spiel aus %1 macht, ist nicht bekannt: Eine weiter oben eingebundene Datei wurde nicht angesehen.</translation>
    </message>
    <message>
        <source>It is one of the game&apos;s own, which the game folder does not have: perhaps that is another folder, or packages of the game are missing.</source>
        <translation>Sie ist eine der eigenen Dateien des Spiels, die im Spielordner fehlt: Vielleicht ist es der falsche Ordner, oder es fehlen Pakete des Spiels.</translation>
    </message>
    <message>
        <source>It killed nobody in %1 match.</source>
        <translation>In %1 Match gelang ihm kein Abschuss.</translation>
    </message>
    <message>
        <source>It killed nobody in %1 matches.</source>
        <translation>In %1 Matches gelang ihm kein Abschuss.</translation>
    </message>
    <message>
        <source>It printed last: %1</source>
        <translation>Zuletzt schrieb sie: %1</translation>
    </message>
    <message>
        <source>It refuses a path with &quot;..&quot;: write the whole way from botfiles.</source>
        <translation>Es lehnt einen Pfad mit „..“ ab: Schreiben Sie den ganzen Weg ab botfiles.</translation>
    </message>
    <message>
        <source>It was broken off.</source>
        <translation>Es wurde abgebrochen.</translation>
    </message>
    <message>
        <source>It was left there: it cannot be renamed.</source>
        <translation>Die Datei blieb, wo sie war: Sie lässt sich nicht umbenennen.</translation>
    </message>
    <message>
        <source>It would not be read from there when the bot is loaded.</source>
        <translation>Beim Laden des Bots würde es von dort nicht gelesen.</translation>
    </message>
    <message>
        <source>Its key stands in line %1, too, and that line would count then. Take it out first.</source>
        <translation>Der Schlüssel steht auch in Zeile %1, und diese Zeile würde dann zählen. Entfernen Sie sie zuerst.</translation>
    </message>
    <message>
        <source>Keep the one before</source>
        <translation>Den bisherigen behalten</translation>
    </message>
    <message>
        <source>Keeps its distance, railgun first.</source>
        <translation>Hält Abstand, am liebsten mit der Railgun.</translation>
    </message>
    <message>
        <source>Leave it out; a type without lines is [].</source>
        <translation>Lassen Sie sie weg; ein Typ ohne Zeilen ist [].</translation>
    </message>
    <message>
        <source>Leave the key out where nothing is to change.</source>
        <translation>Lassen Sie den Schlüssel weg, wo sich nichts ändern soll.</translation>
    </message>
    <message>
        <source>Leave this file</source>
        <translation>Datei so lassen</translation>
    </message>
    <message>
        <source>Left as it is: %1.</source>
        <translation>Unverändert gelassen: %1.</translation>
    </message>
    <message>
        <source>Let weight &quot;Gauntlet&quot; or weight &quot;Machinegun&quot; return more than 0.</source>
        <translation>Lassen Sie weight &quot;Gauntlet&quot; oder weight &quot;Machinegun&quot; mehr als 0 zurückgeben.</translation>
    </message>
    <message>
        <source>Letters were written in Windows-1252, in a file that was in UTF-8 so far. The game knows no UTF-8 and has each of its bytes as a letter. For letters as the file has them, give them as they are shown here, such as %1 for %2.</source>
        <translation>Buchstaben wurden in Windows-1252 geschrieben, in eine Datei, die bisher UTF-8 enthielt. Das Spiel kennt kein UTF-8 und liest jedes Byte davon als einen Buchstaben. Sollen Buchstaben wie die der Datei sein, geben Sie sie so ein, wie sie hier gezeigt werden, etwa %1 für %2.</translation>
    </message>
    <message>
        <source>Line %1 goes on in the next one, and a load reads no further than the line. Join the lines first.</source>
        <translation>Zeile %1 geht in der nächsten weiter, und das Laden liest nur bis zum Ende der Zeile. Fügen Sie die Zeilen zuerst zusammen.</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Looking for the strength that takes %1 %.</source>
        <translation>Gesucht wird die Stärke, die %1 % holt.</translation>
    </message>
    <message>
        <source>Made anew as it stands here: %1</source>
        <translation>Neu erstellt, wie es hier steht: %1</translation>
    </message>
    <message>
        <source>Make the package anew, by the method Deflate, which is the usual one of a .zip.</source>
        <translation>Erstellen Sie das Paket neu, mit der Methode Deflate, der üblichen einer .zip-Datei.</translation>
    </message>
    <message>
        <source>Make the package anew, without a password.</source>
        <translation>Erstellen Sie das Paket neu, ohne Passwort.</translation>
    </message>
    <message>
        <source>More than %1 switches stand in one another here. Such a file is not read any further; write it with fewer.</source>
        <translation>Hier stehen mehr als %1 switch ineinander. Eine solche Datei wird nicht weiter gelesen; schreiben Sie sie mit weniger.</translation>
    </message>
    <message>
        <source>More than this value stands in its line, and a load takes all up to the line&apos;s end for it. Put each key and each brace into a line of its own first.</source>
        <translation>In der Zeile steht mehr als dieser Wert, und das Laden nimmt alles bis zum Zeilenende dafür. Setzen Sie zuerst jeden Schlüssel und jede Klammer in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>Move %1 there.</source>
        <translation>Verschieben Sie %1 dorthin.</translation>
    </message>
    <message>
        <source>Move it away.</source>
        <translation>Verschieben Sie sie.</translation>
    </message>
    <message>
        <source>Name a folder without a &quot;.</source>
        <translation>Nennen Sie einen Ordner ohne &quot;.</translation>
    </message>
    <message>
        <source>Name another temporary folder.</source>
        <translation>Nennen Sie einen anderen temporären Ordner.</translation>
    </message>
    <message>
        <source>Name another with --program-folder.</source>
        <translation>Geben Sie mit --program-folder einen anderen an.</translation>
    </message>
    <message>
        <source>Name error!</source>
        <translation>Fehler im Namen!</translation>
    </message>
    <message>
        <source>Name this file there, or edit the one that it names.</source>
        <translation>Nennen Sie dort diese Datei, oder bearbeiten Sie die, die dort genannt ist.</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>New: %1.</source>
        <translation>Neu: %1.</translation>
    </message>
    <message>
        <source>No &quot;;&quot; at the end</source>
        <translation>Kein „;“ am Ende</translation>
    </message>
    <message>
        <source>No difference is shown between %1 and %2: %1 took %3 of their points in %4 match.</source>
        <translation>Zwischen %1 und %2 zeigt sich kein Unterschied: %1 holte %3 ihrer Punkte in %4 Match.</translation>
    </message>
    <message>
        <source>No difference is shown between %1 and %2: %1 took %3 of their points in %4 matches.</source>
        <translation>Zwischen %1 und %2 zeigt sich kein Unterschied: %1 holte %3 ihrer Punkte in %4 Matches.</translation>
    </message>
    <message>
        <source>No engine can be told of a path with a &quot; in it.</source>
        <translation>Keiner Engine lässt sich ein Pfad mit einem &quot; nennen.</translation>
    </message>
    <message>
        <source>No game folder is set, or there is no game in it, so nobody has looked whether the bot&apos;s name and model fit the installed game and which word lists it has. Set the folder of the game in the options.</source>
        <translation>Es ist kein Spielordner eingestellt, oder in ihm ist kein Spiel, daher wurde nicht geprüft, ob Name und Modell des Bots zum installierten Spiel passen und welche Wortlisten es hat. Stellen Sie den Ordner des Spiels in den Optionen ein.</translation>
    </message>
    <message>
        <source>No known version of the game reads %1. It does no harm.</source>
        <translation>Keine bekannte Version des Spiels liest %1. Es schadet nicht.</translation>
    </message>
    <message>
        <source>No known version of the game reads &quot;%1&quot;: whatever you set, the bot plays the same.</source>
        <translation>Keine bekannte Version des Spiels liest „%1“: Ganz gleich, was Sie einstellen, der Bot spielt wie zuvor.</translation>
    </message>
    <message>
        <source>No match was played to its end.</source>
        <translation>Kein Match wurde zu Ende gespielt.</translation>
    </message>
    <message>
        <source>No model and no skin of the game has a blank in its name. Take it out.</source>
        <translation>Kein Modell und kein Skin des Spiels hat ein Leerzeichen im Namen. Nehmen Sie es heraus.</translation>
    </message>
    <message>
        <source>No temporary folder can be made: %1.</source>
        <translation>Es kann kein temporärer Ordner angelegt werden: %1.</translation>
    </message>
    <message>
        <source>No weapon has a larger weight than the gauntlet: the bot fights with nothing else, whatever it carries. Give each weapon that it is to use a larger weight than %1.</source>
        <translation>Keine Waffe hat ein größeres Gewicht als der Gauntlet: Der Bot kämpft mit nichts anderem, ganz gleich, was er trägt. Geben Sie jeder Waffe, die er benutzen soll, ein größeres Gewicht als %1.</translation>
    </message>
    <message>
        <source>No weapon has a weight above 0 yet: the bot has none that it may draw, aims badly, and the game fills its console with errors. Give weights to the weapons that it is to use.</source>
        <translation>Noch hat keine Waffe ein Gewicht über 0: Der Bot hat keine, die er ziehen darf, zielt schlecht, und das Spiel füllt seine Konsole mit Fehlern. Geben Sie den Waffen Gewichte, die er benutzen soll.</translation>
    </message>
    <message>
        <source>No weapon has a weight then: the bot does not know what to fight with.</source>
        <translation>Dann hat keine Waffe ein Gewicht: Der Bot weiß nicht, womit er kämpfen soll.</translation>
    </message>
    <message>
        <source>Nobody hears the lines of %1: %2</source>
        <translation>Niemand hört die Zeilen von %1: %2</translation>
    </message>
    <message>
        <source>None of the weapons that the bot carries has a weight above 0. It aims badly.</source>
        <translation>Keine der Waffen, die der Bot trägt, hat ein Gewicht über 0. Er zielt schlecht.</translation>
    </message>
    <message>
        <source>Nothing was written.</source>
        <translation>Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Now %1; %2 match in all.</source>
        <translation>Zurzeit %1; insgesamt %2 Match.</translation>
    </message>
    <message>
        <source>Now %1; %2 matches in all.</source>
        <translation>Zurzeit %1; insgesamt %2 Matches.</translation>
    </message>
    <message>
        <source>Now and then while the bot roams and no enemy is in sight; &quot;Misc&quot; is the share of &quot;Random misc&quot; against this type.</source>
        <translation>Ab und zu, während der Bot umherstreift und kein Gegner in Sicht ist; „Misc“ ist der Anteil von „Random misc“ gegenüber diesem Anlass.</translation>
    </message>
    <message>
        <source>Now and then while the bot roams and no enemy is in sight; &quot;Misc&quot; is the share of this type against &quot;Random insult&quot;.</source>
        <translation>Ab und zu, während der Bot umherstreift und kein Gegner in Sicht ist; „Misc“ ist der Anteil dieses Anlasses gegenüber „Random insult“.</translation>
    </message>
    <message>
        <source>Of %1 the game reads only %2, and takes %3 behind it for a key.</source>
        <translation>Von %1 liest das Spiel nur %2 und hält %3 dahinter für einen Schlüssel.</translation>
    </message>
    <message>
        <source>Of %1 the game reads only %2, as a quotation mark inside a text ends it. Remove the quotation marks inside the text, or write &apos; for them.</source>
        <translation>Von %1 liest das Spiel nur %2, weil ein Anführungszeichen innerhalb eines Textes ihn beendet. Entfernen Sie die Anführungszeichen innerhalb des Textes, oder schreiben Sie &apos; dafür.</translation>
    </message>
    <message>
        <source>Of that one and the one of &apos;%1&apos; the game takes the one that it reads first, which may be either.</source>
        <translation>Von diesem und dem aus „%1“ nimmt das Spiel den, den es zuerst liest; das kann jeder von beiden sein.</translation>
    </message>
    <message>
        <source>Of the weapons that the bot carries, with ammunition, it draws the one with the largest weight. Only order and proportion count. 0 is never drawn, and every bot starts with gauntlet and machinegun: keep one of the two above 0.</source>
        <translation>Von den Waffen, die der Bot samt Munition trägt, zieht er die mit dem größten Gewicht. Nur Reihenfolge und Verhältnis zählen. 0 wird nie gezogen, und jeder Bot beginnt mit Gauntlet und Machinegun: Lassen Sie eine der beiden über 0.</translation>
    </message>
    <message>
        <source>Of the weapons that the bot carries, with ammunition, it draws the one with the largest weight. Only order and proportion count. 0 is never drawn.</source>
        <translation>Von den Waffen, die der Bot samt Munition trägt, zieht er die mit dem größten Gewicht. Nur Reihenfolge und Verhältnis zählen. 0 wird nie gezogen.</translation>
    </message>
    <message>
        <source>Of the weapons that the bot carries, with ammunition, it draws the one with the largest weight; of equal ones the gauntlet first. Only order and proportion count. 0 is never drawn, and every bot starts with gauntlet and machinegun: keep one of the two above 0.</source>
        <translation>Von den Waffen, die der Bot samt Munition trägt, zieht er die mit dem größten Gewicht; bei gleichen zuerst den Gauntlet. Nur Reihenfolge und Verhältnis zählen. 0 wird nie gezogen, und jeder Bot beginnt mit Gauntlet und Machinegun: Lassen Sie eine der beiden über 0.</translation>
    </message>
    <message>
        <source>Of these the weight code has several numbers, and the largest is shown: %1.</source>
        <translation>Hierfür hat der Gewichtscode mehrere Zahlen; gezeigt wird die größte: %1.</translation>
    </message>
    <message>
        <source>Of this line only the type %1 is read. A save leaves out the rest: %2</source>
        <translation>Von dieser Zeile wird nur der Typ %1 gelesen. Beim Speichern fällt der Rest weg: %2</translation>
    </message>
    <message>
        <source>Once the errors are mended: %1</source>
        <translation>Sobald die Fehler behoben sind: %1</translation>
    </message>
    <message>
        <source>Once, when the bot has just joined the game.</source>
        <translation>Einmal, wenn der Bot gerade ins Spiel gekommen ist.</translation>
    </message>
    <message>
        <source>Only characters of Windows-1252 can be used.</source>
        <translation>Nur Zeichen aus Windows-1252 sind möglich.</translation>
    </message>
    <message>
        <source>Other bots in it, which would go: %1.</source>
        <translation>Andere Bots darin, die verloren gingen: %1.</translation>
    </message>
    <message>
        <source>Other files in it, which would go: %1.</source>
        <translation>Andere Dateien darin, die verloren gingen: %1.</translation>
    </message>
    <message>
        <source>Perhaps %1 is meant, or there is a } too many above.</source>
        <translation>Vielleicht ist %1 gemeint, oder weiter oben steht eine } zu viel.</translation>
    </message>
    <message>
        <source>Perhaps %1 is meant.</source>
        <translation>Vielleicht ist %1 gemeint.</translation>
    </message>
    <message>
        <source>Perhaps a } is missing above.</source>
        <translation>Vielleicht fehlt weiter oben eine }.</translation>
    </message>
    <message>
        <source>Perhaps there is a } too many above.</source>
        <translation>Vielleicht steht weiter oben eine } zu viel.</translation>
    </message>
    <message>
        <source>Practically never</source>
        <translation>So gut wie nie</translation>
    </message>
    <message>
        <source>Put a blank in its place</source>
        <translation>Stattdessen ein Leerzeichen setzen</translation>
    </message>
    <message>
        <source>Put a text in quotation marks.</source>
        <translation>Setzen Sie einen Text in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Put a text of several words in quotation marks.</source>
        <translation>Setzen Sie einen Text aus mehreren Wörtern in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Put double quotes around %1</source>
        <translation>Doppelte Anführungszeichen um %1 setzen</translation>
    </message>
    <message>
        <source>Put the bot&apos;s files into a folder of their own.</source>
        <translation>Legen Sie die Dateien des Bots in einen eigenen Ordner.</translation>
    </message>
    <message>
        <source>Put the whole text in double quotation marks (&quot;).</source>
        <translation>Setzen Sie den ganzen Text in doppelte Anführungszeichen (&quot;).</translation>
    </message>
    <message>
        <source>Reading this file never ends: the game stands still for ever. Look for #define lines that name each other in a circle, or a file that is included over and over.</source>
        <translation>Das Lesen dieser Datei endet nie: Das Spiel bleibt für immer stehen. Suchen Sie nach #define-Zeilen, die sich im Kreis nennen, oder nach einer Datei, die immer wieder eingebunden wird.</translation>
    </message>
    <message>
        <source>Remove it.</source>
        <translation>Entfernen Sie das.</translation>
    </message>
    <message>
        <source>Remove it; a comment begins with //.</source>
        <translation>Entfernen Sie das; ein Kommentar beginnt mit //.</translation>
    </message>
    <message>
        <source>Remove the %1.</source>
        <translation>Entfernen Sie %1.</translation>
    </message>
    <message>
        <source>Remove the .txt from the name of %1.</source>
        <translation>Entfernen Sie das .txt aus dem Namen von %1.</translation>
    </message>
    <message>
        <source>Remove the quotation marks.</source>
        <translation>Entfernen Sie die Anführungszeichen.</translation>
    </message>
    <message>
        <source>Replace it</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace them</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Rusher</source>
        <translation>Rusher</translation>
    </message>
    <message>
        <source>Save the rest</source>
        <translation>Übrige speichern</translation>
    </message>
    <message>
        <source>Seldom</source>
        <translation>Selten</translation>
    </message>
    <message>
        <source>Set %1 or %2 above 0.</source>
        <translation>Setzen Sie %1 oder %2 über 0.</translation>
    </message>
    <message>
        <source>Set %1 to %2</source>
        <translation>Für %1 den Wert %2 setzen</translation>
    </message>
    <message>
        <source>Set %1 to %2, as the game reads it</source>
        <translation>Für %1 den Wert %2 setzen, wie das Spiel ihn liest</translation>
    </message>
    <message>
        <source>Set %1 to None</source>
        <translation>%1 auf „None“ setzen</translation>
    </message>
    <message>
        <source>Set %1 to no</source>
        <translation>%1 abwählen</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to %2 wherever it is less</source>
        <translation>Für „%1“ den Wert %2 setzen, wo er kleiner ist</translation>
    </message>
    <message>
        <source>Set &quot;%1&quot; to %2 wherever it is more</source>
        <translation>Für „%1“ den Wert %2 setzen, wo er größer ist</translation>
    </message>
    <message>
        <source>Set the gender to female</source>
        <translation>Geschlecht auf female setzen</translation>
    </message>
    <message>
        <source>Set the gender to male</source>
        <translation>Geschlecht auf male setzen</translation>
    </message>
    <message>
        <source>Several lines of the game stand in one line of the file.</source>
        <translation>Mehrere Zeilen des Spiels stehen in einer Zeile der Datei.</translation>
    </message>
    <message>
        <source>Shorten %1</source>
        <translation>%1 kürzen</translation>
    </message>
    <message>
        <source>Skill %1 takes %2, a file of another bot, and not %3, which is this bot&apos;s own. Correct the name in this line.</source>
        <translation>Stufe %1 nimmt %2, eine Datei eines anderen Bots, und nicht %3, die eigene dieses Bots. Berichtigen Sie den Namen in dieser Zeile.</translation>
    </message>
    <message>
        <source>Skill %1 takes %2, a file of another bot. If that is not meant, write the name of this bot&apos;s own file.</source>
        <translation>Stufe %1 nimmt %2, eine Datei eines anderen Bots. Wenn das nicht gemeint ist, schreiben Sie den Namen der eigenen Datei dieses Bots.</translation>
    </message>
    <message>
        <source>Skill block %1 has no %2, so the game takes what its default character has. Add what is missing.</source>
        <translation>Der Skill-Block %1 enthält %2 nicht, daher nimmt das Spiel, was sein Standardcharakter hat. Ergänzen Sie, was fehlt.</translation>
    </message>
    <message>
        <source>Skill block %1 has no %2: the game takes what its default character has. Write the lines to decide yourself.</source>
        <translation>Der Skill-Block %1 enthält %2 nicht: Das Spiel nimmt, was sein Standardcharakter hat. Schreiben Sie die Zeilen, um selbst zu entscheiden.</translation>
    </message>
    <message>
        <source>Skill block %1 stands twice, first in line %2: the game takes that one and passes over this. Remove the one that is not meant, or correct its number.</source>
        <translation>Den Skill-Block %1 gibt es zweimal, zuerst in Zeile %2: Das Spiel nimmt jenen und übergeht diesen. Entfernen Sie den, der nicht gemeint ist, oder berichtigen Sie seine Nummer.</translation>
    </message>
    <message>
        <source>Skill block %1 stands twice, here and in line %3. The game takes this one, which has no %2. Remove one of them.</source>
        <translation>Den Skill-Block %1 gibt es zweimal, hier und in Zeile %3. Das Spiel nimmt diesen, der %2 nicht enthält. Entfernen Sie einen davon.</translation>
    </message>
    <message>
        <source>Skill block %1 stands twice, here for the second time: correct its number.</source>
        <translation>Den Skill-Block %1 gibt es zweimal, hier zum zweiten Mal: Berichtigen Sie seine Nummer.</translation>
    </message>
    <message>
        <source>Skill block %1, which begins in line %2, has no } at its end, and the game throws it away. Write the } above this line.</source>
        <translation>Der Skill-Block %1, der in Zeile %2 beginnt, hat keine } am Ende, und das Spiel verwirft ihn. Schreiben Sie die } über diese Zeile.</translation>
    </message>
    <message>
        <source>Sniper</source>
        <translation>Sniper</translation>
    </message>
    <message>
        <source>Something is wrong in a chat line. The game does not add the bot.</source>
        <translation>In einer Chatzeile stimmt etwas nicht. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>Surprise me</source>
        <translation>Überraschung</translation>
    </message>
    <message>
        <source>Take %1 out of the line</source>
        <translation>%1 aus der Zeile herausnehmen</translation>
    </message>
    <message>
        <source>Take black out of %1</source>
        <translation>Schwarz aus %1 herausnehmen</translation>
    </message>
    <message>
        <source>Take it out of %1</source>
        <translation>Aus %1 herausnehmen</translation>
    </message>
    <message>
        <source>Take the backslashes out</source>
        <translation>Backslashes herausnehmen</translation>
    </message>
    <message>
        <source>Take the lines of %1 out</source>
        <translation>Zeilen von %1 herausnehmen</translation>
    </message>
    <message>
        <source>Take the pickup weights of an average bot</source>
        <translation>Die Pickup-Gewichte eines durchschnittlichen Bots nehmen</translation>
    </message>
    <message>
        <source>That is no result yet.</source>
        <translation>Das ist noch kein Ergebnis.</translation>
    </message>
    <message>
        <source>The #if, #ifdef or #ifndef in this line has no #endif. Put one where the part ends that it is about.</source>
        <translation>Das #if, #ifdef oder #ifndef in dieser Zeile hat kein #endif. Setzen Sie eines dorthin, wo der Teil endet, um den es geht.</translation>
    </message>
    <message>
        <source>The #if, #ifdef or #ifndef in this line has no #endif: the game passes over all that stands behind it, but for the texts. Put an #endif where the part ends that it is about.</source>
        <translation>Das #if, #ifdef oder #ifndef in dieser Zeile hat kein #endif: Das Spiel übergeht alles, was dahinter steht, außer den Texten. Setzen Sie ein #endif dorthin, wo der Teil endet, um den es geht.</translation>
    </message>
    <message>
        <source>The %1 %2 does not exist. Correct the path or add the file.</source>
        <translation>Die %1 %2 gibt es nicht. Berichtigen Sie den Pfad oder fügen Sie die Datei hinzu.</translation>
    </message>
    <message>
        <source>The %1 %2 does not exist. Correct the path or add the file; the bot&apos;s own is %3.</source>
        <translation>Die %1 %2 gibt es nicht. Berichtigen Sie den Pfad oder fügen Sie die Datei hinzu; die eigene des Bots ist %3.</translation>
    </message>
    <message>
        <source>The %1 %2 is not the bot&apos;s own. Whether the game has it was not looked at, as no game folder is set.</source>
        <translation>Die %1 %2 ist nicht die eigene des Bots. Ob das Spiel sie hat, wurde nicht geprüft, da kein Spielordner eingestellt ist.</translation>
    </message>
    <message>
        <source>The %2 lines were heard %3 time in %1 match.</source>
        <translation>Die %2 Zeilen waren in %1 Match %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The %2 lines were heard %3 time in %1 matches.</source>
        <translation>Die %2 Zeilen waren in %1 Matches %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The %2 lines were heard %3 times in %1 match.</source>
        <translation>Die %2 Zeilen waren in %1 Match %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The %2 lines were heard %3 times in %1 matches.</source>
        <translation>Die %2 Zeilen waren in %1 Matches %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The %2 lines were never heard in %1 match.</source>
        <translation>Die %2 Zeilen waren in %1 Match nie zu hören.</translation>
    </message>
    <message>
        <source>The %2 lines were never heard in %1 matches.</source>
        <translation>Die %2 Zeilen waren in %1 Matches nie zu hören.</translation>
    </message>
    <message>
        <source>The 0 of %1 is none of the bot&apos;s values: from its file the weight code of the game takes no number for it, or no single one.</source>
        <translation>Die 0 von %1 ist kein Wert des Bots: Der Gewichtscode des Spiels nimmt dafür aus der Datei des Bots keine Zahl oder nicht nur eine.</translation>
    </message>
    <message>
        <source>The \ in front of the last quotation mark makes that a part of the text. Remove the \.</source>
        <translation>Das \ vor dem letzten Anführungszeichen macht dieses zu einem Teil des Textes. Entfernen Sie das \.</translation>
    </message>
    <message>
        <source>The block before has no &quot;}&quot;.</source>
        <translation>Der Block davor hat keine „}“.</translation>
    </message>
    <message>
        <source>The bot %1 has no character file of its own.</source>
        <translation>Der Bot %1 hat keine eigene Charakterdatei.</translation>
    </message>
    <message>
        <source>The bot %1 stands twice in this file, first in line %2: the game takes that one and passes over this. Remove one of them, or give it another name.</source>
        <translation>Der Bot %1 steht zweimal in dieser Datei, zuerst in Zeile %2: Das Spiel nimmt jenen und übergeht diesen. Entfernen Sie einen davon, oder geben Sie ihm einen anderen Namen.</translation>
    </message>
    <message>
        <source>The bot %1 stands twice in this file, here and in line %2. The game takes this one, which names no character file with aifile. Remove it, or put all lines of the bot into one.</source>
        <translation>Der Bot %1 steht zweimal in dieser Datei, hier und in Zeile %2. Das Spiel nimmt diesen, der mit aifile keine Charakterdatei nennt. Entfernen Sie ihn, oder schreiben Sie alle Zeilen des Bots in einen Eintrag.</translation>
    </message>
    <message>
        <source>The bot does not come nearer to %1: what it takes leaps where its values hardly differ.</source>
        <translation>Der Bot kommt nicht näher an %1 heran: Was er holt, springt, wo sich seine Werte kaum unterscheiden.</translation>
    </message>
    <message>
        <source>The bot gets the game&apos;s default character in place of its own.</source>
        <translation>Der Bot bekommt den Standardcharakter des Spiels statt seines eigenen.</translation>
    </message>
    <message>
        <source>The bot has a second name here: the game takes the last and does not know %1. Remove one of the lines.</source>
        <translation>Der Bot hat hier einen zweiten Namen: Das Spiel nimmt den letzten und kennt %1 nicht. Entfernen Sie eine der Zeilen.</translation>
    </message>
    <message>
        <source>The bot has no description of its own; its model, fun name and the rest are those of this file.</source>
        <translation>Der Bot hat keine eigene Beschreibung; Modell, Funname und alles Übrige stammen aus dieser Datei.</translation>
    </message>
    <message>
        <source>The bot has no line that begins with aifile, or the game has thrown it away. Without one it does not add the bot. Write aifile and the path of the character file, such as bots/name_c.c.</source>
        <translation>Der Bot hat keine Zeile, die mit aifile beginnt, oder das Spiel hat sie verworfen. Ohne sie fügt es den Bot nicht hinzu. Schreiben Sie aifile und den Pfad der Charakterdatei, etwa bots/name_c.c.</translation>
    </message>
    <message>
        <source>The bot has no model: the game shows it as one of its own choice. Choose a model.</source>
        <translation>Der Bot hat kein Modell: Das Spiel zeigt ihn als eines seiner Wahl. Wählen Sie ein Modell.</translation>
    </message>
    <message>
        <source>The bot is saved in part only. New: %1. Not written: %2.</source>
        <translation>Der Bot ist nur zum Teil gespeichert. Neu: %1. Nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>The bot names its %1 %2, but it is called %3. Capitals count for files in a folder on Linux. Spell both alike.</source>
        <translation>Der Bot nennt seine %1 %2, sie heißt aber %3. Unter Linux kommt es bei Dateien in einem Ordner auf Groß- und Kleinschreibung an. Schreiben Sie beide gleich.</translation>
    </message>
    <message>
        <source>The bot never speaks the lines of %1: by the chat characteristics &quot;Insult&quot; and &quot;Misc&quot; it always takes the other type. Set that one between 0 and 1 to hear both.</source>
        <translation>Der Bot spricht die Zeilen von %1 nie: Nach den Chat-Eigenschaften „Insult“ und „Misc“ nimmt er immer den anderen Anlass. Setzen Sie diese auf einen Wert zwischen 0 und 1, um beide zu hören.</translation>
    </message>
    <message>
        <source>The bot plays, wholly or in part, as the game&apos;s default character under its own name.</source>
        <translation>Der Bot spielt ganz oder zum Teil als Standardcharakter des Spiels unter seinem eigenen Namen.</translation>
    </message>
    <message>
        <source>The bot starts with gauntlet and machinegun, and both have the weight 0: until it finds another weapon it has none that it may draw, aims badly, and the game fills its console with errors.</source>
        <translation>Der Bot beginnt mit Gauntlet und Machinegun, und beide haben das Gewicht 0: Bis er eine andere Waffe findet, hat er keine, die er ziehen darf, zielt schlecht, und das Spiel füllt seine Konsole mit Fehlern.</translation>
    </message>
    <message>
        <source>The bot takes %1, within the margin.</source>
        <translation>Der Bot holt %1, innerhalb der Toleranz.</translation>
    </message>
    <message>
        <source>The bot was written into %1.</source>
        <translation>Der Bot wurde in das Paket %1 geschrieben.</translation>
    </message>
    <message>
        <source>The bot was written to %1, with %2.</source>
        <translation>Der Bot wurde nach %1 geschrieben, mit %2.</translation>
    </message>
    <message>
        <source>The bot was written to %1.</source>
        <translation>Der Bot wurde nach %1 geschrieben.</translation>
    </message>
    <message>
        <source>The bot&apos;s files are called by its name, and a save writes that: %1.</source>
        <translation>Die Dateien des Bots heißen nach seinem Namen, und das Speichern schreibt diesen: %1.</translation>
    </message>
    <message>
        <source>The braces of this type stand in one line. Put each of them into a line of its own first.</source>
        <translation>Die Klammern dieses Typs stehen in einer Zeile. Setzen Sie zuerst jede in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>The chance to speak after a kill, when no other enemy is in sight.</source>
        <translation>Die Wahrscheinlichkeit, dass der Bot nach einem Abschuss spricht, wenn kein anderer Gegner in Sicht ist.</translation>
    </message>
    <message>
        <source>The chance to speak after the bot has died.</source>
        <translation>Die Wahrscheinlichkeit, dass der Bot nach seinem Tod spricht.</translation>
    </message>
    <message>
        <source>The chance to speak on joining the game. What the bot says on leaving is never heard.</source>
        <translation>Die Wahrscheinlichkeit, dass der Bot spricht, wenn er dem Spiel beitritt. Was er beim Verlassen sagt, ist nie zu hören.</translation>
    </message>
    <message>
        <source>The chance to speak when a level ends. The game practically never asks for a line at its start.</source>
        <translation>Die Wahrscheinlichkeit, dass der Bot am Ende eines Levels spricht. Zu seinem Beginn fragt das Spiel praktisch nie nach einer Zeile.</translation>
    </message>
    <message>
        <source>The character file has no block for this skill, or a mistake in it. The bot gets the game&apos;s default character.</source>
        <translation>Die Charakterdatei hat keinen Block für diese Spielstärke oder einen Fehler darin. Der Bot bekommt den Standardcharakter des Spiels.</translation>
    </message>
    <message>
        <source>The chat characteristic %1 is above 0, but there is no line for %2: the bot then stands still for 2 seconds, says nothing, and is silent for 25 seconds more.</source>
        <translation>Die Chat-Eigenschaft %1 ist über 0, aber es gibt keine Zeile für %2: Der Bot steht dann 2 Sekunden still, sagt nichts und schweigt weitere 25 Sekunden.</translation>
    </message>
    <message>
        <source>The chat characteristic %1 only makes the bot fall silent for 25 seconds when somebody commits suicide: there is no text for it that the game would send.</source>
        <translation>Die Chat-Eigenschaft %1 lässt den Bot nur 25 Sekunden schweigen, wenn jemand sich selbst tötet: Es gibt keinen Text dafür, den das Spiel senden würde.</translation>
    </message>
    <message>
        <source>The chat file has no chat of the name that the character file asks for.</source>
        <translation>Die Chatdatei hat keinen Chat mit dem Namen, den die Charakterdatei verlangt.</translation>
    </message>
    <message>
        <source>The chat file is not as the game wants it. The game does not add the bot.</source>
        <translation>Die Chatdatei ist nicht so, wie das Spiel sie will. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The comment behind %1 stays. A load here takes it for a part of the text, as before; the game does not.</source>
        <translation>Der Kommentar hinter %1 bleibt. Das Laden hält ihn hier wie bisher für einen Teil des Textes, das Spiel nicht.</translation>
    </message>
    <message>
        <source>The comment stands right behind %1, and the game takes %2 for the value of %3. Put a blank in front of the comment.</source>
        <translation>Der Kommentar steht direkt hinter %1, und das Spiel hält %2 für den Wert von %3. Setzen Sie ein Leerzeichen vor den Kommentar.</translation>
    </message>
    <message>
        <source>The damaged file cannot be kept: %1.</source>
        <translation>Die beschädigte Datei kann nicht aufbewahrt werden: %1.</translation>
    </message>
    <message>
        <source>The description file does not say where the bot&apos;s character is. The game does not add the bot.</source>
        <translation>Die Beschreibungsdatei sagt nicht, wo der Charakter des Bots ist. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The description file has something in front of its {. The game ignores the file from there on.</source>
        <translation>In der Beschreibungsdatei steht etwas vor der {. Das Spiel übergeht die Datei von da an.</translation>
    </message>
    <message>
        <source>The description file is too large for the game, which ignores it. Make it shorter.</source>
        <translation>Die Beschreibungsdatei ist zu groß für das Spiel, das sie übergeht. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>The description file lacks the } at its end. The game takes it all the same.</source>
        <translation>Der Beschreibungsdatei fehlt die } am Ende. Das Spiel nimmt sie trotzdem.</translation>
    </message>
    <message>
        <source>The description is too long. What does not fit is lost.</source>
        <translation>Die Beschreibung ist zu lang. Was nicht hineinpasst, geht verloren.</translation>
    </message>
    <message>
        <source>The description stands in one line. Put each key and each brace into a line of its own first.</source>
        <translation>Die Beschreibung steht in einer Zeile. Setzen Sie zuerst jeden Schlüssel und jede Klammer in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>The document is larger than %1 MiB.</source>
        <translation>Das Dokument ist größer als %1 MiB.</translation>
    </message>
    <message>
        <source>The document is nested too deeply.</source>
        <translation>Das Dokument ist zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>The document is no JSON object.</source>
        <translation>Das Dokument ist kein JSON-Objekt.</translation>
    </message>
    <message>
        <source>The edit changes other bots too, which have the same files by %1: %2.</source>
        <translation>Die Änderung betrifft auch andere Bots, die laut %1 dieselben Dateien haben: %2.</translation>
    </message>
    <message>
        <source>The edit changes other bots too, whose characteristic files name this file: %1.</source>
        <translation>Die Änderung betrifft auch andere Bots, deren Charakterdateien diese Datei nennen: %1.</translation>
    </message>
    <message>
        <source>The engine ended before the match was over.</source>
        <translation>Die Engine endete, bevor das Match vorbei war.</translation>
    </message>
    <message>
        <source>The engine finds no game there. Enter the data folder, the one above the game folder (with Debian&apos;s OpenArena /usr/lib/openarena-server), and the game folder, such as baseoa.</source>
        <translation>Die Engine findet dort kein Spiel. Geben Sie den Datenordner an, das ist der über dem Spielordner (bei Debians OpenArena /usr/lib/openarena-server), und den Spielordner, zum Beispiel baseoa.</translation>
    </message>
    <message>
        <source>The engine hangs.</source>
        <translation>Die Engine hängt.</translation>
    </message>
    <message>
        <source>The engine plays nothing: %1.</source>
        <translation>Die Engine spielt nichts: %1.</translation>
    </message>
    <message>
        <source>The engine prints without end.</source>
        <translation>Die Engine schreibt ohne Ende.</translation>
    </message>
    <message>
        <source>The fastest that the bot turns while it has an enemy; without one it is always 360. The game takes everything below {1} as {1}, so only higher values make a difference. The skills 2 and 3 turn like level 1, those between 4 and 5 like level 4.</source>
        <translation>Wie schnell sich der Bot höchstens dreht, solange er einen Gegner hat; ohne Gegner sind es immer 360. Das Spiel nimmt alles unter {1} als {1}, deshalb ändern nur höhere Werte etwas. Die Spielstärken 2 und 3 drehen wie Stufe 1, die zwischen 4 und 5 wie Stufe 4.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; is the game&apos;s. It was not looked at, as no game folder is set.</source>
        <translation>Die Datei „%1“ gehört dem Spiel. Sie wurde nicht angesehen, weil kein Spielordner eingestellt ist.</translation>
    </message>
    <message>
        <source>The file begins with a byte order mark. The game passes over it on PCs; a file made anew has none.</source>
        <translation>Die Datei beginnt mit einer Byte-Reihenfolge-Marke (BOM). Das Spiel übergeht sie auf PCs; eine neu erstellte Datei hat keine.</translation>
    </message>
    <message>
        <source>The file cannot be copied: %1.</source>
        <translation>Die Datei kann nicht kopiert werden: %1.</translation>
    </message>
    <message>
        <source>The file cannot be read to its end.</source>
        <translation>Die Datei kann nicht bis zum Ende gelesen werden.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file cannot be replaced: another program holds it open, or it is write-protected.</source>
        <translation>Die Datei kann nicht ersetzt werden: Ein anderes Programm hält sie offen, oder sie ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Die Datei kann nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>The file describes %1 as well. What is said here is about %2 alone: give the name of another bot to check that.</source>
        <translation>Die Datei beschreibt auch %1. Was hier gesagt wird, gilt nur für %2: Geben Sie den Namen eines anderen Bots an, um diesen zu prüfen.</translation>
    </message>
    <message>
        <source>The file describes several bots; this one is read from here. A save leaves out the others: %1.</source>
        <translation>Die Datei beschreibt mehrere Bots; dieser wird von hier gelesen. Das Speichern lässt die anderen weg: %1.</translation>
    </message>
    <message>
        <source>The file does not include %1, without which the game cannot use it or uses it in another way. A save does.</source>
        <translation>Die Datei bindet %1 nicht ein; ohne das kann das Spiel sie nicht oder nur anders verwenden. Das Speichern tut es.</translation>
    </message>
    <message>
        <source>The file does not set these weights, and a save writes 0: %1.</source>
        <translation>Die Datei setzt diese Gewichte nicht, und das Speichern schreibt 0: %1.</translation>
    </message>
    <message>
        <source>The file ends before the &quot;}&quot; of its last block.</source>
        <translation>Die Datei endet vor der „}“ ihres letzten Blocks.</translation>
    </message>
    <message>
        <source>The file ends here, but the game expects more.</source>
        <translation>Die Datei endet hier, aber das Spiel erwartet mehr.</translation>
    </message>
    <message>
        <source>The file ends too early, or an error above spoiled it.</source>
        <translation>Die Datei endet zu früh, oder ein Fehler weiter oben hat sie verdorben.</translation>
    </message>
    <message>
        <source>The file gives %1 its number in quotation marks, and so the game does not take it. Take them out first.</source>
        <translation>Die Datei gibt %1 die Zahl in Anführungszeichen, deshalb nimmt das Spiel sie nicht. Entfernen Sie zuerst die Anführungszeichen.</translation>
    </message>
    <message>
        <source>The file gives %1 no value. Write a number behind it first, such as 50.</source>
        <translation>Die Datei gibt %1 keinen Wert. Schreiben Sie zuerst eine Zahl dahinter, etwa 50.</translation>
    </message>
    <message>
        <source>The file gives %1 the value &quot;%2&quot;, and only a plain number can be changed. Write one there first, such as 50.</source>
        <translation>Die Datei gibt %1 den Wert „%2“, und nur eine einfache Zahl kann geändert werden. Schreiben Sie dort zuerst eine hin, etwa 50.</translation>
    </message>
    <message>
        <source>The file gives no item a weight: the bot picks nothing up on purpose. Write #include &quot;fw_items.c&quot; at its end.</source>
        <translation>Die Datei gibt keinem Gegenstand ein Gewicht: Der Bot hebt nichts mit Absicht auf. Schreiben Sie #include &quot;fw_items.c&quot; an ihr Ende.</translation>
    </message>
    <message>
        <source>The file gives no weapon a weight: the bot does not know what to fight with. Write #include &quot;fw_weap.c&quot; at its end.</source>
        <translation>Die Datei gibt keiner Waffe ein Gewicht: Der Bot weiß nicht, womit er kämpfen soll. Schreiben Sie #include &quot;fw_weap.c&quot; an ihr Ende.</translation>
    </message>
    <message>
        <source>The file gives the bot no name; the bot is called %1 after its file.</source>
        <translation>Die Datei gibt dem Bot keinen Namen; er heißt nach seiner Datei %1.</translation>
    </message>
    <message>
        <source>The file has %1 bytes or more, and the game does not read it at all. Shorten it, for example its comments.</source>
        <translation>Die Datei hat %1 Byte oder mehr, und das Spiel liest sie gar nicht. Kürzen Sie sie, zum Beispiel ihre Kommentare.</translation>
    </message>
    <message>
        <source>The file has no block for these types, and a save writes one without lines: %1.</source>
        <translation>Die Datei hat keinen Block für diese Typen, und das Speichern schreibt einen ohne Zeilen: %1.</translation>
    </message>
    <message>
        <source>The file has no block of this level that the game reads.</source>
        <translation>Die Datei hat keinen Block dieser Stufe, den das Spiel liest.</translation>
    </message>
    <message>
        <source>The file has no chat that the game reads.</source>
        <translation>Die Datei hat keinen Chat, den das Spiel liest.</translation>
    </message>
    <message>
        <source>The file has no level %1, so that its values are 0, and a save writes it so. The game plays its default bot there.</source>
        <translation>Die Datei hat keine Stufe %1, ihre Werte sind daher 0, und das Speichern schreibt sie so. Das Spiel nimmt dort seinen Standardcharakter.</translation>
    </message>
    <message>
        <source>The file has none of the lines beside which it belongs.</source>
        <translation>Die Datei hat keine der Zeilen, neben die es gehört.</translation>
    </message>
    <message>
        <source>The file has several values where a bot has one. The last one counts, and a save leaves out the others: %1.</source>
        <translation>Die Datei hat mehrere Werte, wo ein Bot einen hat. Der letzte zählt, und das Speichern lässt die anderen weg: %1.</translation>
    </message>
    <message>
        <source>The file has several values where a bot has one. The last one counts, and a save writes it everywhere: %1.</source>
        <translation>Die Datei hat mehrere Werte, wo ein Bot einen hat. Der letzte zählt, und das Speichern schreibt ihn überall: %1.</translation>
    </message>
    <message>
        <source>The file has the game calculate it, and only a plain number can be changed. Write one there first, such as 0.5.</source>
        <translation>Die Datei lässt das Spiel den Wert berechnen, und nur eine einfache Zahl kann geändert werden. Schreiben Sie dort zuerst eine hin, etwa 0.5.</translation>
    </message>
    <message>
        <source>The file in the package has another size than the package says.</source>
        <translation>Die Datei im Paket hat eine andere Größe, als das Paket angibt.</translation>
    </message>
    <message>
        <source>The file in the package is larger than %1 bytes, the most that is read of one like it: it has %2.</source>
        <translation>Die Datei im Paket ist größer als %1 Byte, und mehr wird von einer solchen nicht gelesen: Sie hat %2.</translation>
    </message>
    <message>
        <source>The file in the package is locked with a password.</source>
        <translation>Die Datei im Paket ist mit einem Passwort gesperrt.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MiB, the most that is read of one like it: it has %2 bytes.</source>
        <translation>Die Datei ist größer als %1 MiB, mehr wird von einer solchen nicht gelesen: Sie hat %2 Byte.</translation>
    </message>
    <message>
        <source>The file is not in the package.</source>
        <translation>Die Datei ist nicht im Paket.</translation>
    </message>
    <message>
        <source>The file is not there any more. &apos;%1&apos; was made without what its author wrote.</source>
        <translation>Die Datei ist nicht mehr da. „%1“ wurde ohne das angelegt, was ihr Autor geschrieben hat.</translation>
    </message>
    <message>
        <source>The file is too large: the game reads no description of %1 bytes or more. Shorten it.</source>
        <translation>Die Datei ist zu groß: Das Spiel liest keine Beschreibung ab %1 Byte. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>The file sets none of the weights that a bot has here. Writing it anew would lose what it says.</source>
        <translation>Die Datei setzt keines der Gewichte, die ein Bot hier hat. Neu geschrieben verlöre sie, was sie sagt.</translation>
    </message>
    <message>
        <source>The file that is included here asks for %1, which has no value. Write #define %1 and a plain number above this line, or correct the name of the file.</source>
        <translation>Die hier eingebundene Datei fragt nach %1, das keinen Wert hat. Schreiben Sie #define %1 und eine einfache Zahl über diese Zeile, oder berichtigen Sie den Namen der Datei.</translation>
    </message>
    <message>
        <source>The file that is included here has types of its own, and the type %1 has not ended. Move the #include out of the type.</source>
        <translation>Die hier eingebundene Datei hat eigene Typen, und der Typ %1 ist noch nicht zu Ende. Setzen Sie das #include außerhalb des Typs.</translation>
    </message>
    <message>
        <source>The file was written anew.</source>
        <translation>Die Datei wurde neu geschrieben.</translation>
    </message>
    <message>
        <source>The files are as their author wrote them, with your changes, but:</source>
        <translation>Die Dateien sind, wie ihr Autor sie schrieb, mit Ihren Änderungen, aber:</translation>
    </message>
    <message>
        <source>The files hold no number below 0.</source>
        <translation>Die Dateien nehmen keine Zahl unter 0 auf.</translation>
    </message>
    <message>
        <source>The files in it are as their author wrote them, but:</source>
        <translation>Die Dateien darin sind, wie ihr Autor sie schrieb, aber:</translation>
    </message>
    <message>
        <source>The files keep three digits behind the point, and seven digits of a number with a fraction.</source>
        <translation>Die Dateien behalten drei Stellen hinter dem Punkt und von einer Kommazahl sieben Stellen.</translation>
    </message>
    <message>
        <source>The files name their author (%1); a save names what stands in the options instead.</source>
        <translation>Die Dateien nennen ihren Autor (%1); das Speichern nennt stattdessen, was in den Optionen steht.</translation>
    </message>
    <message>
        <source>The files say all this already; nothing was written.</source>
        <translation>In den Dateien steht das alles schon; es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>The first matches are being played.</source>
        <translation>Die ersten Matches laufen.</translation>
    </message>
    <message>
        <source>The folder cannot be made: %1.</source>
        <translation>Der Ordner kann nicht angelegt werden: %1.</translation>
    </message>
    <message>
        <source>The folders botfiles and scripts lie inside a folder %1, and the game looks for them at the top alone. Put what is in %1 at the top, without that folder around it. The game does not add the bot.</source>
        <translation>Die Ordner botfiles und scripts liegen in einem Ordner %1, und das Spiel sucht sie nur ganz oben. Legen Sie, was in %1 ist, nach oben, ohne diesen Ordner darum. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game adds the bot with another bot&apos;s files, or not at all.</source>
        <translation>Das Spiel fügt den Bot mit den Dateien eines anderen Bots hinzu oder gar nicht.</translation>
    </message>
    <message>
        <source>The game adds the bot, but it may be with those files.</source>
        <translation>Das Spiel fügt den Bot hinzu, aber womöglich mit jenen Dateien.</translation>
    </message>
    <message>
        <source>The game adds the bot, but with the character and the files of that one.</source>
        <translation>Das Spiel fügt den Bot hinzu, aber mit dem Charakter und den Dateien von jenem.</translation>
    </message>
    <message>
        <source>The game can&apos;t show all of the characters in &apos;%1&apos;.</source>
        <translation>Das Spiel kann nicht alle Zeichen in „%1“ anzeigen.</translation>
    </message>
    <message>
        <source>The game cannot calculate with %1. A plain number must stand here.</source>
        <translation>Das Spiel kann mit %1 nicht rechnen. Hier muss eine einfache Zahl stehen.</translation>
    </message>
    <message>
        <source>The game cannot make one word of %1 and %2. Remove the ##, and write the word or the number itself.</source>
        <translation>Das Spiel kann aus %1 und %2 kein Wort machen. Entfernen Sie das ##, und schreiben Sie das Wort oder die Zahl selbst.</translation>
    </message>
    <message>
        <source>The game cannot make sense of the file from here on.</source>
        <translation>Von hier an wird das Spiel aus der Datei nicht schlau.</translation>
    </message>
    <message>
        <source>The game cannot open this package: what it takes for the end of the archive leads to no table of contents. A comment in the archive may be the reason, or that it was made in the form for very large ones. Make the package anew. The game does not add the bot.</source>
        <translation>Das Spiel kann dieses Paket nicht öffnen: Was es für das Ende des Archivs hält, führt zu keinem Inhaltsverzeichnis. Der Grund kann ein Kommentar im Archiv sein oder dass es in der Form für sehr große Archive erstellt wurde. Erstellen Sie das Paket neu. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game cannot read a character that stands here outside a text, and goes no further. Delete it.</source>
        <translation>Das Spiel kann ein Zeichen nicht lesen, das hier außerhalb eines Textes steht, und macht nicht weiter. Löschen Sie es.</translation>
    </message>
    <message>
        <source>The game cannot read this line and does not add the bot. Write it anew.</source>
        <translation>Das Spiel kann diese Zeile nicht lesen und fügt den Bot nicht hinzu. Schreiben Sie sie neu.</translation>
    </message>
    <message>
        <source>The game cannot work out this calculation. Write the result.</source>
        <translation>Das Spiel kann diese Rechnung nicht ausführen. Schreiben Sie das Ergebnis hin.</translation>
    </message>
    <message>
        <source>The game changes the line on its way to the screen: %1.</source>
        <translation>Das Spiel ändert die Zeile auf dem Weg zum Bildschirm: %1.</translation>
    </message>
    <message>
        <source>The game could not read the bot&apos;s chat and does not add the bot.</source>
        <translation>Das Spiel konnte den Chat des Bots nicht lesen und fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game could not read the weapon weights and does not add the bot.</source>
        <translation>Das Spiel konnte die Waffengewichte nicht lesen und fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game could not read the weights and does not add the bot.</source>
        <translation>Das Spiel konnte die Gewichte nicht lesen und fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game cuts the gender %1 at a backslash that it does not understand: &quot;%2&quot; is all that remains. Take the backslash out.</source>
        <translation>Das Spiel schneidet das Geschlecht %1 an einem Backslash ab, den es nicht versteht: „%2“ ist alles, was bleibt. Nehmen Sie den Backslash heraus.</translation>
    </message>
    <message>
        <source>The game cuts this text at a \ that it does not understand: %1 is all that remains. Write \\ for the sign itself, or remove it.</source>
        <translation>Das Spiel schneidet diesen Text an einem \ ab, das es nicht versteht: Übrig bleibt nur %1. Schreiben Sie \\ für das Zeichen selbst, oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>The game did not add %1.</source>
        <translation>Das Spiel hat %1 nicht hinzugefügt.</translation>
    </message>
    <message>
        <source>The game did not read the bot&apos;s description file.</source>
        <translation>Das Spiel hat die Beschreibungsdatei des Bots nicht gelesen.</translation>
    </message>
    <message>
        <source>The game does not add the bot, for the reasons above.</source>
        <translation>Das Spiel fügt den Bot aus den obigen Gründen nicht hinzu.</translation>
    </message>
    <message>
        <source>The game does not add the bot.</source>
        <translation>Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game does not expect %1 here.</source>
        <translation>Das Spiel erwartet hier %1 nicht.</translation>
    </message>
    <message>
        <source>The game does not find the %1 %2.</source>
        <translation>Das Spiel findet die %1 %2 nicht.</translation>
    </message>
    <message>
        <source>The game does not find this file.</source>
        <translation>Das Spiel findet diese Datei nicht.</translation>
    </message>
    <message>
        <source>The game does not know %1: the bot speaks it as it stands there, braces and all. Take it out of the line.</source>
        <translation>Das Spiel kennt %1 nicht: Der Bot spricht es, wie es dasteht, samt den Klammern. Nehmen Sie es aus der Zeile heraus.</translation>
    </message>
    <message>
        <source>The game does not know the key %1 and passes over this line. Remove the colon.</source>
        <translation>Das Spiel kennt den Schlüssel %1 nicht und übergeht diese Zeile. Entfernen Sie den Doppelpunkt.</translation>
    </message>
    <message>
        <source>The game does not know the key &quot;aifile:&quot;, so it does not find the bot&apos;s character. Remove the colon.</source>
        <translation>Das Spiel kennt den Schlüssel „aifile:“ nicht, daher findet es den Charakter des Bots nicht. Entfernen Sie den Doppelpunkt.</translation>
    </message>
    <message>
        <source>The game does not know the key &quot;name:&quot;, so this bot has no name. Remove the colon.</source>
        <translation>Das Spiel kennt den Schlüssel „name:“ nicht, daher hat dieser Bot keinen Namen. Entfernen Sie den Doppelpunkt.</translation>
    </message>
    <message>
        <source>The game does not know this characteristic. The bot gets the game&apos;s default character.</source>
        <translation>Das Spiel kennt diese Eigenschaft nicht. Der Bot bekommt den Standardcharakter des Spiels.</translation>
    </message>
    <message>
        <source>The game does not know this word. It ignores the file.</source>
        <translation>Das Spiel kennt dieses Wort nicht. Es übergeht die Datei.</translation>
    </message>
    <message>
        <source>The game does not know what the backslash in &quot;%1&quot; is to mean, complains and cuts the text there. Take it out, or write two of them.</source>
        <translation>Das Spiel weiß nicht, was der Backslash in „%1“ bedeuten soll, beschwert sich und schneidet den Text dort ab. Nehmen Sie ihn heraus, oder schreiben Sie zwei davon.</translation>
    </message>
    <message>
        <source>The game does not know what the backslash in this line is to mean, complains and cuts the text there. Take it out, or write two of them.</source>
        <translation>Das Spiel weiß nicht, was der Backslash in dieser Zeile bedeuten soll, beschwert sich und schneidet den Text dort ab. Nehmen Sie ihn heraus, oder schreiben Sie zwei davon.</translation>
    </message>
    <message>
        <source>The game does not read %1: it looks for the key &quot;color1&quot;, and the file has &quot;color&quot;. The bot&apos;s rail trail stays red.</source>
        <translation>Das Spiel liest %1 nicht: Es sucht den Schlüssel „color1“, und in der Datei steht „color“. Der Railgun-Strahl des Bots bleibt rot.</translation>
    </message>
    <message>
        <source>The game does not read the line as one of this type.</source>
        <translation>Das Spiel liest die Zeile nicht als eine dieses Typs.</translation>
    </message>
    <message>
        <source>The game does not read this file for the bot, whose characteristic file names %1.</source>
        <translation>Das Spiel liest diese Datei für den Bot nicht; seine Charakterdatei nennt %1.</translation>
    </message>
    <message>
        <source>The game does not see the } of the bot that begins in line %1 in %2, so the game makes one bot of two and does not know %3. Write } and a blank behind it.</source>
        <translation>Das Spiel erkennt die } des Bots, der in Zeile %1 beginnt, in %2 nicht, deshalb macht es aus zweien einen Bot und kennt %3 nicht. Schreiben Sie } und ein Leerzeichen dahinter.</translation>
    </message>
    <message>
        <source>The game does not see the } of the bot that begins in line %1 in %2. Write } and a blank behind it.</source>
        <translation>Das Spiel erkennt die } des Bots, der in Zeile %1 beginnt, in %2 nicht. Schreiben Sie } und ein Leerzeichen dahinter.</translation>
    </message>
    <message>
        <source>The game does not take it from this file, or takes it from one that is included.</source>
        <translation>Das Spiel nimmt es nicht aus dieser Datei oder aus einer eingebundenen.</translation>
    </message>
    <message>
        <source>The game does not take the file as it is, with this edit or without: %1</source>
        <translation>Das Spiel nimmt die Datei so nicht an, ob mit dieser Änderung oder ohne: %1</translation>
    </message>
    <message>
        <source>The game does not take this file as it is.</source>
        <translation>Das Spiel nimmt diese Datei so nicht an.</translation>
    </message>
    <message>
        <source>The game does not take this file as it is: %1</source>
        <translation>Das Spiel nimmt diese Datei so nicht an: %1</translation>
    </message>
    <message>
        <source>The game does not understand the number %1 and throws this whole skill block away. Write %2.</source>
        <translation>Das Spiel versteht die Zahl %1 nicht und verwirft diesen ganzen Skill-Block. Schreiben Sie %2.</translation>
    </message>
    <message>
        <source>The game does not understand what stands in the brackets behind %1: names with commas between them belong there.</source>
        <translation>Das Spiel versteht nicht, was in den Klammern hinter %1 steht: Dorthin gehören Namen mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>The game does nothing with #pragma. Remove the line.</source>
        <translation>Das Spiel fängt mit #pragma nichts an. Entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The game drops the minus sign of this weight and takes the number without it. Use 0 for a weapon or an item that the bot should leave alone.</source>
        <translation>Das Spiel lässt das Minuszeichen dieses Gewichts weg und nimmt die Zahl ohne es. Nehmen Sie 0 für eine Waffe oder einen Gegenstand, von dem der Bot die Finger lassen soll.</translation>
    </message>
    <message>
        <source>The game expects %1 here but finds %2. Write what is missing, or remove what does not belong here.</source>
        <translation>Das Spiel erwartet hier %1, findet aber %2. Schreiben Sie, was fehlt, oder entfernen Sie, was nicht hierher gehört.</translation>
    </message>
    <message>
        <source>The game expects a comma or a ; behind %1 but finds %2. Write a ; at the end of the line, and a comma between its parts.</source>
        <translation>Das Spiel erwartet hinter %1 ein Komma oder ein ;, findet aber %2. Schreiben Sie ein ; ans Ende der Zeile und ein Komma zwischen ihre Teile.</translation>
    </message>
    <message>
        <source>The game expects a number here but finds %1.</source>
        <translation>Das Spiel erwartet hier eine Zahl, findet aber %1.</translation>
    </message>
    <message>
        <source>The game expects a text in quotation marks here but finds %1. Put the text in quotation marks.</source>
        <translation>Das Spiel erwartet hier einen Text in Anführungszeichen, findet aber %1. Setzen Sie den Text in Anführungszeichen.</translation>
    </message>
    <message>
        <source>The game expects a { behind %1 but finds %2.</source>
        <translation>Das Spiel erwartet eine { hinter %1, findet aber %2.</translation>
    </message>
    <message>
        <source>The game expects { here but finds %1, and passes over the rest of the file. Each bot&apos;s lines stand between { and }.</source>
        <translation>Das Spiel erwartet hier {, findet aber %1 und übergeht den Rest der Datei. Die Zeilen jedes Bots stehen zwischen { und }.</translation>
    </message>
    <message>
        <source>The game finds %1 behind the value %2 and throws this whole skill block away.</source>
        <translation>Das Spiel findet %1 hinter dem Wert %2 und verwirft diesen ganzen Skill-Block.</translation>
    </message>
    <message>
        <source>The game finds %1 behind this key, which is neither a number nor a text, and throws this whole skill block away.</source>
        <translation>Das Spiel findet hinter diesem Schlüssel %1, was weder Zahl noch Text ist, und verwirft diesen ganzen Skill-Block.</translation>
    </message>
    <message>
        <source>The game finds %1 in front of a key and throws this whole skill block away. Remove it; a comment begins with //.</source>
        <translation>Das Spiel findet %1 vor einem Schlüssel und verwirft diesen ganzen Skill-Block. Entfernen Sie das; ein Kommentar beginnt mit //.</translation>
    </message>
    <message>
        <source>The game finds %1 outside a chat. Here it expects chat, a name in quotation marks and {.</source>
        <translation>Das Spiel findet %1 außerhalb eines Chats. Hier erwartet es chat, einen Namen in Anführungszeichen und {.</translation>
    </message>
    <message>
        <source>The game finds %1 outside a skill block and reads no further. Here it expects skill, a number and {.</source>
        <translation>Das Spiel findet %1 außerhalb eines Skill-Blocks und liest nicht weiter. Hier erwartet es skill, eine Zahl und {.</translation>
    </message>
    <message>
        <source>The game finds %1 where it expects a key or a } and throws this whole skill block away. Write } in its place.</source>
        <translation>Das Spiel findet %1, wo es einen Schlüssel oder eine } erwartet, und verwirft diesen ganzen Skill-Block. Schreiben Sie stattdessen }.</translation>
    </message>
    <message>
        <source>The game finds %1, which belongs to no key, and throws this whole skill block away. Write its key in front of it, or remove it.</source>
        <translation>Das Spiel findet %1, das zu keinem Schlüssel gehört, und verwirft diesen ganzen Skill-Block. Schreiben Sie den Schlüssel davor, oder entfernen Sie das.</translation>
    </message>
    <message>
        <source>The game finds no bot in this file, as nothing stands between { and }. A save writes one.</source>
        <translation>Das Spiel findet in dieser Datei keinen Bot, denn zwischen { und } steht nichts. Das Speichern schreibt einen.</translation>
    </message>
    <message>
        <source>The game finds no bot with a name in this file. It needs a line with name and the bot&apos;s name between { and }.</source>
        <translation>Das Spiel findet in dieser Datei keinen Bot mit einem Namen. Es braucht zwischen { und } eine Zeile mit name und dem Namen des Bots.</translation>
    </message>
    <message>
        <source>The game finds the number %1 in a chat line, and a variable has no point. Write a whole number from 0 to 5.</source>
        <translation>Das Spiel findet die Zahl %1 in einer Chatzeile, und eine Variable hat keinen Punkt. Schreiben Sie eine ganze Zahl von 0 bis 5.</translation>
    </message>
    <message>
        <source>The game found no character for this skill and does not add the bot.</source>
        <translation>Das Spiel hat keinen Charakter für diese Spielstärke gefunden und fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The game has a bot %1 already, in %2, and adds that one in place of this bot. Choose another name.</source>
        <translation>Das Spiel hat schon einen Bot %1, in %2, und fügt jenen anstelle dieses Bots hinzu. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>The game has a bot %1 already, in %2, and takes %3 and %4 from there. That bot plays with your files.</source>
        <translation>Das Spiel hat schon einen Bot %1, in %2, und nimmt %3 und %4 von dort. Dieser Bot spielt mit Ihren Dateien.</translation>
    </message>
    <message>
        <source>The game has a bot %1 of its own and keeps that one: this bot will not appear. Choose a new name.</source>
        <translation>Das Spiel hat selbst einen Bot %1 und behält diesen: Ihr Bot wird nicht erscheinen. Wählen Sie einen neuen Namen.</translation>
    </message>
    <message>
        <source>The game has no bot of this name to play against.</source>
        <translation>Das Spiel hat keinen Bot dieses Namens, gegen den gespielt werden könnte.</translation>
    </message>
    <message>
        <source>The game has no free place for another player.</source>
        <translation>Das Spiel hat keinen freien Platz für einen weiteren Spieler.</translation>
    </message>
    <message>
        <source>The game has no map of this name. Choose another one.</source>
        <translation>Das Spiel hat keine Karte dieses Namens. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>The game has no value for this characteristic at this skill and takes 0. Write it with a &quot;.&quot; at all levels, or at none.</source>
        <translation>Das Spiel hat bei dieser Spielstärke keinen Wert für diese Eigenschaft und nimmt 0. Schreiben Sie sie auf allen Stufen mit einem „.“ oder auf keiner.</translation>
    </message>
    <message>
        <source>The game has no weapon %1, and passes over this weight. It calls its weapons as Gauntlet, Machinegun, Rocket Launcher or Plasma Gun.</source>
        <translation>Das Spiel hat keine Waffe %1 und übergeht dieses Gewicht. Es nennt seine Waffen etwa Gauntlet, Machinegun, Rocket Launcher oder Plasma Gun.</translation>
    </message>
    <message>
        <source>The game has no weapon %1, and passes over this weight. Write %2, with these capitals and blanks.</source>
        <translation>Das Spiel hat keine Waffe %1 und übergeht dieses Gewicht. Schreiben Sie %2, mit diesen Großbuchstaben und Leerzeichen.</translation>
    </message>
    <message>
        <source>The game has room for %1 characters in a line, and this one takes %2, in a way that the game does not notice in time: it may crash. Shorten the line.</source>
        <translation>Das Spiel hat Platz für %1 Zeichen in einer Zeile, und diese braucht %2, und zwar so, dass das Spiel es nicht rechtzeitig bemerkt: Es kann abstürzen. Kürzen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The game has room for %1 characters in a line, and this one takes %2: the bot is not added. Shorten the line.</source>
        <translation>Das Spiel hat Platz für %1 Zeichen in einer Zeile, und diese braucht %2: Der Bot wird nicht hinzugefügt. Kürzen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The game has room for %1 characters in a line, and this one takes too many of them, in a way that the game does not notice in time: it may crash. Shorten the line.</source>
        <translation>Das Spiel hat Platz für %1 Zeichen in einer Zeile, und diese braucht zu viele, und zwar so, dass das Spiel es nicht rechtzeitig bemerkt: Es kann abstürzen. Kürzen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The game has room for %1 characters in a line, and this one takes too many of them: the bot is not added. Shorten the line.</source>
        <translation>Das Spiel hat Platz für %1 Zeichen in einer Zeile, und diese braucht zu viele: Der Bot wird nicht hinzugefügt. Kürzen Sie die Zeile.</translation>
    </message>
    <message>
        <source>The game ignores the sign of a weight.</source>
        <translation>Das Spiel übergeht das Vorzeichen eines Gewichts.</translation>
    </message>
    <message>
        <source>The game in your game folder does not use the weights of the rows &quot;With&quot; on the page &quot;Weapon pickup&quot;: for a weapon that the bot has already, the game decides itself. They do no harm.</source>
        <translation>Das Spiel in Ihrem Spielordner benutzt die Gewichte der Zeilen „With“ auf der Seite „Weapon pickup“ nicht: Bei einer Waffe, die der Bot schon hat, entscheidet das Spiel selbst. Sie schaden nicht.</translation>
    </message>
    <message>
        <source>The game knows as many bots as it can. The others are left out.</source>
        <translation>Das Spiel kennt schon so viele Bots, wie es fassen kann. Die übrigen bleiben weg.</translation>
    </message>
    <message>
        <source>The game knows no characteristic %1 and throws this whole skill block away.</source>
        <translation>Das Spiel kennt keine Eigenschaft %1 und verwirft diesen ganzen Skill-Block.</translation>
    </message>
    <message>
        <source>The game knows no command %1 and stops at it.</source>
        <translation>Das Spiel kennt keinen Befehl %1 und hält dort an.</translation>
    </message>
    <message>
        <source>The game knows no variable %1 and prints &quot;variable %1 out of range&quot;: the bot speaks what stands in front of it and the rest of an earlier line. Take a number from 0 to 5.</source>
        <translation>Das Spiel kennt keine Variable %1 und meldet „variable %1 out of range“: Der Bot spricht, was davor steht, und den Rest einer früheren Zeile. Nehmen Sie eine Zahl von 0 bis 5.</translation>
    </message>
    <message>
        <source>The game looks for %1 and finds %2 alone; capital letters count. Write %1.</source>
        <translation>Das Spiel sucht %1 und findet nur %2; Groß- und Kleinschreibung zählt. Schreiben Sie %1.</translation>
    </message>
    <message>
        <source>The game looks for a chat named %1 in this file and finds none.</source>
        <translation>Das Spiel sucht in dieser Datei einen Chat namens %1 und findet keinen.</translation>
    </message>
    <message>
        <source>The game looks for a chat named %1 in this file but finds one named %2.</source>
        <translation>Das Spiel sucht in dieser Datei einen Chat namens %1, findet aber einen namens %2.</translation>
    </message>
    <message>
        <source>The game looks for a value of %1 and finds none. Write #define %1 and a plain number in this file; capital letters count.</source>
        <translation>Das Spiel sucht einen Wert für %1 und findet keinen. Schreiben Sie #define %1 und eine einfache Zahl in diese Datei; Groß- und Kleinschreibung zählt.</translation>
    </message>
    <message>
        <source>The game needs a plain number but finds %1. Write a number.</source>
        <translation>Das Spiel braucht eine einfache Zahl, findet aber %1. Schreiben Sie eine Zahl.</translation>
    </message>
    <message>
        <source>The game never asks for a type %1, so nobody hears its lines. Perhaps &quot;%2&quot; is meant.</source>
        <translation>Das Spiel fragt nie nach einem Chattyp %1, daher hört niemand seine Zeilen. Vielleicht ist „%2“ gemeint.</translation>
    </message>
    <message>
        <source>The game never reads this value.</source>
        <translation>Das Spiel liest diesen Wert nie.</translation>
    </message>
    <message>
        <source>The game passes over what stands between this line and its #endif, but takes the texts there for a part of what follows. Make a comment of that part with /* and */, or delete it.</source>
        <translation>Das Spiel übergeht, was zwischen dieser Zeile und ihrem #endif steht, hält aber die Texte dort für einen Teil dessen, was folgt. Machen Sie aus diesem Teil mit /* und */ einen Kommentar, oder löschen Sie ihn.</translation>
    </message>
    <message>
        <source>The game reads %1 as %2. Put a digit behind the point.</source>
        <translation>Das Spiel liest %1 als %2. Setzen Sie eine Ziffer hinter den Punkt.</translation>
    </message>
    <message>
        <source>The game reads %1 as %2. Write one number, with one point at most.</source>
        <translation>Das Spiel liest %1 als %2. Schreiben Sie eine einzige Zahl mit höchstens einem Punkt.</translation>
    </message>
    <message>
        <source>The game reads %1 weights and passes over the rest. Remove those that the bot needs least.</source>
        <translation>Das Spiel liest %1 Gewichte und übergeht die übrigen. Entfernen Sie die, die der Bot am wenigsten braucht.</translation>
    </message>
    <message>
        <source>The game reads %1.</source>
        <translation>Das Spiel liest %1.</translation>
    </message>
    <message>
        <source>The game reads color1, of which a load here takes the 1 for a part of the value, as before.</source>
        <translation>Das Spiel liest color1; das Laden hält die 1 davon hier wie bisher für einen Teil des Wertes.</translation>
    </message>
    <message>
        <source>The game reads no description of this bot there that stands in lines of its own.</source>
        <translation>Das Spiel liest dort keine Beschreibung dieses Bots, die in eigenen Zeilen steht.</translation>
    </message>
    <message>
        <source>The game reads the name %1 only up to its first letter with an accent, looks for files of that shorter name and does not find them: it does not add the bot. Use the letters A to Z without accents.</source>
        <translation>Das Spiel liest den Namen %1 nur bis zu seinem ersten Buchstaben mit Akzent, sucht Dateien mit diesem kürzeren Namen und findet sie nicht: Es fügt den Bot nicht hinzu. Nehmen Sie die Buchstaben A bis Z ohne Akzent.</translation>
    </message>
    <message>
        <source>The game reads the path of the %1 only up to %2, where a letter with an accent follows. Call the bot and its files by letters without accents.</source>
        <translation>Das Spiel liest den Pfad der %1 nur bis %2, wo ein Buchstabe mit Akzent folgt. Benennen Sie den Bot und seine Dateien mit Buchstaben ohne Akzent.</translation>
    </message>
    <message>
        <source>The game shows letters with accents, other special signs and &quot;%&quot; in %1 as dots. Use plain letters.</source>
        <translation>Das Spiel zeigt Buchstaben mit Akzent, andere Sonderzeichen und „%“ in %1 als Punkte. Nehmen Sie einfache Buchstaben.</translation>
    </message>
    <message>
        <source>The game speaks what stands in braces as it is written: %1. In the file a variable is a number outside the quotation marks, such as &quot;well done, &quot;, 0;</source>
        <translation>Das Spiel spricht, was in geschweiften Klammern steht, wie es geschrieben ist: %1. In der Datei ist eine Variable eine Zahl außerhalb der Anführungszeichen, etwa &quot;well done, &quot;, 0;</translation>
    </message>
    <message>
        <source>The game takes %1 behind the name of the included file for a part of that file&apos;s last line. Remove it.</source>
        <translation>Das Spiel hält %1 hinter dem Namen der eingebundenen Datei für einen Teil von deren letzter Zeile. Entfernen Sie das.</translation>
    </message>
    <message>
        <source>The game takes %1 for one word. Write %2, a blank and the value, without a =.</source>
        <translation>Das Spiel hält %1 für ein einziges Wort. Schreiben Sie %2, ein Leerzeichen und den Wert, ohne =.</translation>
    </message>
    <message>
        <source>The game takes %1 for the name of a word list, as it stands outside quotation marks, and does not expect %2 behind it. Put the text in quotation marks (&quot;).</source>
        <translation>Das Spiel hält %1 für den Namen einer Wortliste, weil es nicht in Anführungszeichen steht, und erwartet %2 nicht dahinter. Setzen Sie den Text in Anführungszeichen (&quot;).</translation>
    </message>
    <message>
        <source>The game takes %1 for the name of a word list.</source>
        <translation>Das Spiel hält %1 für den Namen einer Wortliste.</translation>
    </message>
    <message>
        <source>The game takes %1 for the value of %2. Remove the =: the value stands behind its key, with a blank between them.</source>
        <translation>Das Spiel hält %1 für den Wert von %2. Entfernen Sie das =: Der Wert steht hinter seinem Schlüssel, mit einem Leerzeichen dazwischen.</translation>
    </message>
    <message>
        <source>The game takes a backslash in a text and the letter behind it for one sign. Take it out.</source>
        <translation>Das Spiel liest einen Backslash in einem Text und den Buchstaben dahinter als ein Zeichen. Nehmen Sie ihn heraus.</translation>
    </message>
    <message>
        <source>The game takes no %1 behind a value and throws this whole skill block away.</source>
        <translation>Das Spiel nimmt kein %1 hinter einem Wert an und verwirft diesen ganzen Skill-Block.</translation>
    </message>
    <message>
        <source>The game takes no %1 between a key and its value and throws this whole skill block away. Remove it.</source>
        <translation>Das Spiel nimmt kein %1 zwischen einem Schlüssel und seinem Wert an und verwirft diesen ganzen Skill-Block. Entfernen Sie das.</translation>
    </message>
    <message>
        <source>The game takes no %1 outside quotation marks. Remove it; a comment begins with //.</source>
        <translation>Das Spiel nimmt kein %1 außerhalb von Anführungszeichen an. Entfernen Sie das; ein Kommentar beginnt mit //.</translation>
    </message>
    <message>
        <source>The game takes no sign in front of a number and throws this whole skill block away. Write 0 or more, without a sign.</source>
        <translation>Das Spiel nimmt kein Vorzeichen vor einer Zahl an und verwirft diesen ganzen Skill-Block. Schreiben Sie 0 oder mehr, ohne Vorzeichen.</translation>
    </message>
    <message>
        <source>The game takes no text in single quotes (&apos;) and throws this whole skill block away. Put it in double ones (&quot;).</source>
        <translation>Das Spiel nimmt keinen Text in einfachen Anführungszeichen (&apos;) an und verwirft diesen ganzen Skill-Block. Setzen Sie ihn in doppelte (&quot;).</translation>
    </message>
    <message>
        <source>The game takes no text in single quotes (&apos;). Put it in double ones (&quot;).</source>
        <translation>Das Spiel nimmt keinen Text in einfachen Anführungszeichen (&apos;) an. Setzen Sie ihn in doppelte (&quot;).</translation>
    </message>
    <message>
        <source>The game takes other numbers than stand in the file, or those of another line: %1.</source>
        <translation>Das Spiel nimmt andere Zahlen, als in der Datei stehen, oder die einer anderen Zeile: %1.</translation>
    </message>
    <message>
        <source>The game takes that one, as it reads the list first, and never the one of &apos;%1&apos;.</source>
        <translation>Das Spiel nimmt diesen, da es die Liste zuerst liest, und nie den aus „%1“.</translation>
    </message>
    <message>
        <source>The game takes the brace behind the value for a part of it. Put the brace into a line of its own first.</source>
        <translation>Das Spiel hält die Klammer hinter dem Wert für einen Teil davon. Setzen Sie die Klammer zuerst in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>The game takes the gender &quot;%1&quot; as &quot;it&quot;. It knows male and female in small letters only: write one of them, or it.</source>
        <translation>Das Spiel nimmt das Geschlecht „%1“ als „it“. Es kennt male und female nur in Kleinbuchstaben: Schreiben Sie eines davon oder it.</translation>
    </message>
    <message>
        <source>The game takes the lines of this type from a file that is included here.</source>
        <translation>Das Spiel nimmt die Zeilen dieses Typs aus einer Datei, die hier eingebunden ist.</translation>
    </message>
    <message>
        <source>The game takes the value from line %1 of the file, and a load takes that of line %2. Remove one of them first.</source>
        <translation>Das Spiel nimmt den Wert aus Zeile %1 der Datei, das Laden den aus Zeile %2. Entfernen Sie zuerst einen von beiden.</translation>
    </message>
    <message>
        <source>The game takes the weight from another file or number, and would not read this one.</source>
        <translation>Das Spiel nimmt das Gewicht aus einer anderen Datei oder Zahl und würde diese nicht lesen.</translation>
    </message>
    <message>
        <source>The game takes the weights of items out of this file, and it has none but those of weapons. If %1 and %2 have been swapped, exchange their names; if not, write #include &quot;%3&quot; here.</source>
        <translation>Das Spiel nimmt die Gewichte der Gegenstände aus dieser Datei, und sie enthält nur die der Waffen. Wurden %1 und %2 vertauscht, tauschen Sie ihre Namen; wenn nicht, schreiben Sie hier #include &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The game takes the weights of weapons out of this file, and it has none but those of items. If %1 and %2 have been swapped, exchange their names; if not, write #include &quot;%3&quot; here.</source>
        <translation>Das Spiel nimmt die Gewichte der Waffen aus dieser Datei, und sie enthält nur die der Gegenstände. Wurden %1 und %2 vertauscht, tauschen Sie ihre Namen; wenn nicht, schreiben Sie hier #include &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>The game takes the word aifile for the value of %1. Put a text of several words in quotation marks, and each key on a line of its own.</source>
        <translation>Das Spiel hält das Wort aifile für den Wert von %1. Setzen Sie einen Text aus mehreren Wörtern in Anführungszeichen und jeden Schlüssel in eine eigene Zeile.</translation>
    </message>
    <message>
        <source>The game takes the words of this line for keys and values. A comment begins with //.</source>
        <translation>Das Spiel hält die Wörter dieser Zeile für Schlüssel und Werte. Ein Kommentar beginnt mit //.</translation>
    </message>
    <message>
        <source>The game throws away a line with %1 in its value. Take it out.</source>
        <translation>Das Spiel verwirft eine Zeile mit %1 im Wert. Nehmen Sie das Zeichen heraus.</translation>
    </message>
    <message>
        <source>The game throws this line away, because %1 or its value holds a ;, a \ or a &quot;. Remove the sign; in a path write / for \.</source>
        <translation>Das Spiel verwirft diese Zeile, weil %1 oder der Wert dazu ein ;, ein \ oder ein &quot; enthält. Entfernen Sie das Zeichen; in einem Pfad schreiben Sie / statt \.</translation>
    </message>
    <message>
        <source>The game will not take the bot as it is: %1</source>
        <translation>So, wie er ist, wird das Spiel den Bot nicht nehmen: %1</translation>
    </message>
    <message>
        <source>The game would find a fault in the file that it has not now.</source>
        <translation>Das Spiel fände in der Datei einen Fehler, den sie jetzt nicht hat.</translation>
    </message>
    <message>
        <source>The game would not read it from there.</source>
        <translation>Das Spiel würde es von dort nicht lesen.</translation>
    </message>
    <message>
        <source>The game would not read the new line.</source>
        <translation>Das Spiel würde die neue Zeile nicht lesen.</translation>
    </message>
    <message>
        <source>The game&apos;s files have no double quote within a text. Take it out.</source>
        <translation>Die Dateien des Spiels kennen kein Anführungszeichen innerhalb eines Textes. Nehmen Sie es heraus.</translation>
    </message>
    <message>
        <source>The game&apos;s files have no negative numbers. Use 0 or more.</source>
        <translation>Die Dateien des Spiels kennen keine negativen Zahlen. Nehmen Sie 0 oder mehr.</translation>
    </message>
    <message>
        <source>The game&apos;s files hold each text on one line.</source>
        <translation>In den Dateien des Spiels steht jeder Text in einer Zeile.</translation>
    </message>
    <message>
        <source>The game&apos;s module is missing. The data folder holds the game folder together with that; with Debian&apos;s OpenArena it is /usr/lib/openarena-server.</source>
        <translation>Das Modul des Spiels fehlt. Es liegt mit dem Spielordner zusammen im Datenordner; bei Debians OpenArena ist das /usr/lib/openarena-server.</translation>
    </message>
    <message>
        <source>The grappling hook as a weapon; few maps have it. Of the weapons that the bot carries it draws the one with the largest weight.</source>
        <translation>Der Enterhaken als Waffe; wenige Karten haben ihn. Von den Waffen, die der Bot trägt, zieht er die mit dem größten Gewicht.</translation>
    </message>
    <message>
        <source>The line &quot;%1&quot; goes, which was written as %2. Given again by a later edit it would be %3, which the game takes for something else.</source>
        <translation>Die Zeile „%1“ entfällt; sie war als %2 geschrieben. Eine spätere Änderung, die sie wieder angibt, schriebe %3, und das hält das Spiel für etwas anderes.</translation>
    </message>
    <message>
        <source>The line &quot;%1&quot; stands in a block that the game does not use, as another one of this type follows: it has to stay in the list.</source>
        <translation>Die Zeile „%1“ steht in einem Block, den das Spiel nicht verwendet, weil noch einer dieses Typs folgt: Sie muss in der Liste bleiben.</translation>
    </message>
    <message>
        <source>The line &quot;%1&quot; stands in the block of the type &quot;%2&quot;, and that is what the game takes it for: it has to stay in the list.</source>
        <translation>Die Zeile „%1“ steht im Block des Typs „%2“, und dafür hält sie das Spiel: Sie muss in der Liste bleiben.</translation>
    </message>
    <message>
        <source>The line does not give it in a plain way. Write it as key and number there first, without comments between them.</source>
        <translation>Die Zeile gibt es nicht in schlichter Form an. Schreiben Sie dort zuerst Schlüssel und Zahl, ohne Kommentare dazwischen.</translation>
    </message>
    <message>
        <source>The line ends in a comma. Remove the comma in front of the ;.</source>
        <translation>Die Zeile endet mit einem Komma. Entfernen Sie das Komma vor dem ;.</translation>
    </message>
    <message>
        <source>The line ends in a comma. Write a ; in place of the comma.</source>
        <translation>Die Zeile endet mit einem Komma. Schreiben Sie statt des Kommas ein ;.</translation>
    </message>
    <message>
        <source>The line ends with a backslash, which swallows the end of the text: the game cannot read the chat file and does not add the bot. Take it out, or write two of them.</source>
        <translation>Die Zeile endet mit einem Backslash, der das Ende des Textes verschluckt: Das Spiel kann die Chatdatei nicht lesen und fügt den Bot nicht hinzu. Nehmen Sie ihn heraus, oder schreiben Sie zwei davon.</translation>
    </message>
    <message>
        <source>The line has %1 characters; the screen shows some %2 and cuts the rest. Shorten it.</source>
        <translation>Die Zeile hat %1 Zeichen; der Bildschirm zeigt etwa %2 und schneidet den Rest ab. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>The line has a line end in it, which breaks the text off: the game cannot read the chat file and does not add the bot. Make two lines of it, or put a blank there.</source>
        <translation>Die Zeile enthält ein Zeilenende, an dem der Text abbricht: Das Spiel kann die Chatdatei nicht lesen und fügt den Bot nicht hinzu. Machen Sie zwei Zeilen daraus, oder setzen Sie dort ein Leerzeichen.</translation>
    </message>
    <message>
        <source>The line names no known chat type; what follows goes to %1. It says: %2</source>
        <translation>Die Zeile nennt keinen bekannten Chattyp; was folgt, kommt zu %1. Sie lautet: %2</translation>
    </message>
    <message>
        <source>The line was heard %3 time in %1 match.</source>
        <translation>Die Zeile war in %1 Match %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The line was heard %3 time in %1 matches.</source>
        <translation>Die Zeile war in %1 Matches %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The line was heard %3 times in %1 match.</source>
        <translation>Die Zeile war in %1 Match %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The line was heard %3 times in %1 matches.</source>
        <translation>Die Zeile war in %1 Matches %3-mal zu hören.</translation>
    </message>
    <message>
        <source>The line was never heard in %1 match.</source>
        <translation>Die Zeile war in %1 Match nie zu hören.</translation>
    </message>
    <message>
        <source>The line was never heard in %1 matches.</source>
        <translation>Die Zeile war in %1 Matches nie zu hören.</translation>
    </message>
    <message>
        <source>The lines end as on old Macintosh computers: for the game the file is all one line. A file made anew has the usual ends.</source>
        <translation>Die Zeilen enden wie auf alten Macintosh-Computern: Für das Spiel ist die ganze Datei eine Zeile. Eine neu erstellte Datei hat die üblichen Zeilenenden.</translation>
    </message>
    <message>
        <source>The lines of this file end as on old Macintosh computers, and for the game it is all one line: the first // or #define swallows the rest of the file. Save it with the line ends of Windows or Linux.</source>
        <translation>Die Zeilen dieser Datei enden wie auf alten Macintosh-Computern, und für das Spiel ist alles eine einzige Zeile: Das erste // oder #define verschluckt den Rest der Datei. Speichern Sie sie mit den Zeilenenden von Windows oder Linux.</translation>
    </message>
    <message>
        <source>The lines of this situation stand in several blocks of the file, and each stays in its own: they come back in another order than given.</source>
        <translation>Die Zeilen dieses Anlasses stehen in mehreren Blöcken der Datei, und jede bleibt in ihrem: Sie kommen in anderer Reihenfolge zurück als angegeben.</translation>
    </message>
    <message>
        <source>The lines of this type are not where they should be.</source>
        <translation>Die Zeilen dieses Typs sind nicht da, wo sie sein sollten.</translation>
    </message>
    <message>
        <source>The link to the data cannot be made: %1.</source>
        <translation>Die Verknüpfung zu den Daten lässt sich nicht anlegen: %1.</translation>
    </message>
    <message>
        <source>The load read %1 for %2, while the game has %3 from the file. Take that here, or all such values by &quot;Take the values as the game reads them&quot;.</source>
        <translation>Beim Laden wurde %1 für %2 gelesen, während das Spiel %3 aus der Datei hat. Übernehmen Sie das hier, oder alle solchen Werte mit „Die Werte so übernehmen, wie das Spiel sie liest“.</translation>
    </message>
    <message>
        <source>The map has no file by which bots find their way (.aas), so no bot can play there. Choose another map.</source>
        <translation>Die Karte hat keine Datei, nach der Bots ihren Weg finden (.aas), sodass dort kein Bot spielen kann. Wählen Sie eine andere Karte.</translation>
    </message>
    <message>
        <source>The matches did not suffice to settle it.</source>
        <translation>Die Matches reichten nicht aus, um es zu klären.</translation>
    </message>
    <message>
        <source>The model or skin of this bot is in no package any more; the bot keeps it.</source>
        <translation>Modell oder Skin dieses Bots ist in keinem Paket mehr; der Bot behält es.</translation>
    </message>
    <message>
        <source>The name %1 has a blank: the game&apos;s menus cannot add the bot, and the console needs quotation marks: /addbot &quot;%2&quot; 3. A name of one word is easier.</source>
        <translation>Der Name %1 enthält ein Leerzeichen: Die Menüs des Spiels können den Bot nicht hinzufügen, und die Konsole braucht Anführungszeichen: /addbot &quot;%2&quot; 3. Ein Name aus einem Wort ist einfacher.</translation>
    </message>
    <message>
        <source>The name %1 has a semicolon, a backslash or a double quote. The game throws such a name away and does not know the bot. Take the character out.</source>
        <translation>Der Name %1 enthält ein Semikolon, einen Backslash oder ein doppeltes Anführungszeichen. Das Spiel verwirft einen solchen Namen und kennt den Bot nicht. Nehmen Sie das Zeichen heraus.</translation>
    </message>
    <message>
        <source>The name %1 is a number, and the game wants text there: it does not find the bot&apos;s chats and does not add the bot. Put a letter into the name.</source>
        <translation>Der Name %1 ist eine Zahl, und das Spiel will dort Text: Es findet die Chats des Bots nicht und fügt den Bot nicht hinzu. Setzen Sie einen Buchstaben in den Namen.</translation>
    </message>
    <message>
        <source>The name behind #define begins with a digit, and the game takes it for the number %1. Begin the name with a letter.</source>
        <translation>Der Name hinter #define beginnt mit einer Ziffer, und das Spiel hält ihn für die Zahl %1. Beginnen Sie den Namen mit einem Buchstaben.</translation>
    </message>
    <message>
        <source>The name behind chat must equal %1 of the character file.</source>
        <translation>Der Name hinter chat muss derselbe sein wie %1 in der Charakterdatei.</translation>
    </message>
    <message>
        <source>The name has %1 characters, which is more than the menu of a skirmish and the menu &quot;add bots&quot; can hold: there the bot cannot be picked. The console&apos;s addbot command works. Up to %2 characters fit everywhere.</source>
        <translation>Der Name hat %1 Zeichen, mehr als das Menü „Skirmish“ und das Menü „add bots“ fassen: Dort kann der Bot nicht gewählt werden. Der Befehl addbot der Konsole geht. Bis zu %2 Zeichen passen überall.</translation>
    </message>
    <message>
        <source>The name has %1 characters, which is more than the menu of a skirmish can hold: there the bot cannot be picked. The console&apos;s addbot command works. Up to %2 characters fit everywhere.</source>
        <translation>Der Name hat %1 Zeichen, mehr als das Menü „Skirmish“ fasst: Dort kann der Bot nicht gewählt werden. Der Befehl addbot der Konsole geht. Bis zu %2 Zeichen passen überall.</translation>
    </message>
    <message>
        <source>The name has %1 characters. The game has room for %2 in the names of the bot&apos;s files and does not add a bot with more. Shorten it.</source>
        <translation>Der Name hat %1 Zeichen. Das Spiel hat in den Namen der Dateien des Bots Platz für %2 und fügt einen Bot mit mehr nicht hinzu. Kürzen Sie ihn.</translation>
    </message>
    <message>
        <source>The name of %1 ends in .txt, so the game does not take it for a file of a bot. Remove the .txt from the names of the bot&apos;s files.</source>
        <translation>Der Name von %1 endet auf .txt, daher hält das Spiel sie nicht für die Datei eines Bots. Entfernen Sie das .txt aus den Namen der Dateien des Bots.</translation>
    </message>
    <message>
        <source>The name of the file to include must stand behind #include, on the same line and in double quotation marks (&quot;).</source>
        <translation>Der Name der einzubindenden Datei muss hinter #include stehen, in derselben Zeile und in doppelten Anführungszeichen (&quot;).</translation>
    </message>
    <message>
        <source>The names in the package begin with %1, and the game does not find them. Make the package anew, without that in front of botfiles and scripts. The game does not add the bot.</source>
        <translation>Die Namen im Paket beginnen mit %1, und das Spiel findet sie nicht. Erstellen Sie das Paket neu, ohne dies vor botfiles und scripts. Das Spiel fügt den Bot nicht hinzu.</translation>
    </message>
    <message>
        <source>The new line &quot;%1&quot; is written as a text. The game has a list of that name, too; for a random line of it write the word there by hand, without the quotation marks.</source>
        <translation>Die neue Zeile „%1“ wird als Text geschrieben. Das Spiel hat auch eine Liste dieses Namens; für eine zufällige Zeile daraus schreiben Sie das Wort dort von Hand ohne Anführungszeichen.</translation>
    </message>
    <message>
        <source>The new line &quot;%1&quot; is written as a text. Where a list of the game is meant, give the folder of that game.</source>
        <translation>Die neue Zeile „%1“ wird als Text geschrieben. Ist eine Liste des Spiels gemeint, geben Sie den Ordner dieses Spiels an.</translation>
    </message>
    <message>
        <source>The new line &quot;%1&quot; is written as the game&apos;s list of that name, of which a random line is said. Where the word itself is to be said, write it there by hand, in quotation marks.</source>
        <translation>Die neue Zeile „%1“ wird als die Liste dieses Namens im Spiel geschrieben, aus der eine zufällige Zeile gesagt wird. Soll das Wort selbst gesagt werden, schreiben Sie es dort von Hand in Anführungszeichen.</translation>
    </message>
    <message>
        <source>The number is too large.</source>
        <translation>Die Zahl ist zu groß.</translation>
    </message>
    <message>
        <source>The old file is kept as NAME.bak when it is written anew.</source>
        <translation>Beim Neuschreiben bleibt die alte Datei als NAME.bak erhalten.</translation>
    </message>
    <message>
        <source>The one before was &apos;%1&apos;.</source>
        <translation>Der bisherige war „%1“.</translation>
    </message>
    <message>
        <source>The other files are as they were.</source>
        <translation>Die anderen Dateien sind, wie sie waren.</translation>
    </message>
    <message>
        <source>The package %1 of your game has bot files of the same names, and the game takes those before the ones of %2, since of several packages the last one by name counts. Choose a new name.</source>
        <translation>Das Paket %1 Ihres Spiels enthält Botdateien mit denselben Namen, und das Spiel nimmt diese vor denen aus %2, denn von mehreren Paketen zählt das dem Namen nach letzte. Wählen Sie einen neuen Namen.</translation>
    </message>
    <message>
        <source>The package has %1 twice, and the game takes the last. Remove the other.</source>
        <translation>Das Paket enthält %1 zweimal, und das Spiel nimmt jeweils die letzte Datei. Entfernen Sie die andere.</translation>
    </message>
    <message>
        <source>The package has the file several times.</source>
        <translation>Das Paket enthält die Datei mehrmals.</translation>
    </message>
    <message>
        <source>The package is damaged: %1 are not what their checksums say. The game does not look at that and reads what there is. Make the package anew.</source>
        <translation>Das Paket ist beschädigt: %1 stimmen nicht mit ihren Prüfsummen überein. Das Spiel achtet nicht darauf und liest, was da ist. Erstellen Sie das Paket neu.</translation>
    </message>
    <message>
        <source>The package is damaged: %1 is not what its checksum says. The game does not look at that and reads what there is. Make the package anew.</source>
        <translation>Das Paket ist beschädigt: %1 stimmt nicht mit der Prüfsumme überein. Das Spiel achtet nicht darauf und liest, was da ist. Erstellen Sie das Paket neu.</translation>
    </message>
    <message>
        <source>The package is not there any more.</source>
        <translation>Das Paket ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The package is skipped: its name has characters that the game&apos;s texts lack.</source>
        <translation>Das Paket wird übersprungen: Sein Name hat Zeichen, die es in den Texten des Spiels nicht gibt.</translation>
    </message>
    <message>
        <source>The package lies in &apos;%1&apos;, where the game does not look. Move it to &apos;%2&apos;.</source>
        <translation>Das Paket liegt in „%1“, wo das Spiel nicht sucht. Verschieben Sie es nach „%2“.</translation>
    </message>
    <message>
        <source>The packages of your game folder have no %1, which the bot&apos;s files ask for: with these packages alone the game adds no bot that was made here. Install the newest data of the game (for OpenArena, 0.8.8).</source>
        <translation>Die Pakete Ihres Spielordners enthalten nicht %1, was die Dateien des Bots verlangen: Mit diesen Paketen allein fügt das Spiel keinen Bot hinzu, der hier erstellt wurde. Installieren Sie die neuesten Daten des Spiels (für OpenArena 0.8.8).</translation>
    </message>
    <message>
        <source>The packages of your game have no model %1: the game shows the bot as another model. It plays all the same. Choose a model that your game has, or put its package there.</source>
        <translation>In den Paketen Ihres Spiels gibt es kein Modell %1: Das Spiel zeigt den Bot als anderes Modell. Spielen wird er trotzdem. Wählen Sie ein Modell, das Ihr Spiel hat, oder legen Sie sein Paket dorthin.</translation>
    </message>
    <message>
        <source>The packages of your game have no skin %1 for the model %2: the game shows the bot as another model. It plays all the same. Choose a skin that your game has.</source>
        <translation>In den Paketen Ihres Spiels gibt es keinen Skin %1 für das Modell %2: Das Spiel zeigt den Bot als anderes Modell. Spielen wird er trotzdem. Wählen Sie einen Skin, den Ihr Spiel hat.</translation>
    </message>
    <message>
        <source>The path %1 of the %2 is too long: the game can open %3 characters, botfiles/ included. Give the bot a shorter name.</source>
        <translation>Der Pfad %1 der %2 ist zu lang: Das Spiel kann %3 Zeichen öffnen, botfiles/ eingeschlossen. Geben Sie dem Bot einen kürzeren Namen.</translation>
    </message>
    <message>
        <source>The path %1 of the %2 works for files in a folder only. For a package write %3.</source>
        <translation>Der Pfad %1 der %2 gilt nur für Dateien in einem Ordner. Für ein Paket schreiben Sie %3.</translation>
    </message>
    <message>
        <source>The path of the %1 has a \ in this line, and the game takes that and the letter behind it for one sign. Write / in its place.</source>
        <translation>Der Pfad der %1 enthält in dieser Zeile ein \, und das Spiel hält dieses und den Buchstaben dahinter für ein einziges Zeichen. Schreiben Sie stattdessen /.</translation>
    </message>
    <message>
        <source>The picture is cut.</source>
        <translation>Das Bild ist abgeschnitten.</translation>
    </message>
    <message>
        <source>The picture is missing.</source>
        <translation>Das Bild fehlt.</translation>
    </message>
    <message>
        <source>The picture is too large.</source>
        <translation>Das Bild ist zu groß.</translation>
    </message>
    <message>
        <source>The picture&apos;s size is %1 x %2.</source>
        <translation>Das Bild ist %1 x %2 groß.</translation>
    </message>
    <message>
        <source>The program cannot be started: %1.</source>
        <translation>Das Programm kann nicht gestartet werden: %1.</translation>
    </message>
    <message>
        <source>The quotation mark in this line is never closed: the game takes the rest of the file for the value of %1, and goes on in another bot&apos;s description, whose files it may take. Close it.</source>
        <translation>Das Anführungszeichen in dieser Zeile wird nie geschlossen: Das Spiel hält den Rest der Datei für den Wert von %1 und macht in der Beschreibung eines anderen Bots weiter, dessen Dateien es dann vielleicht nimmt. Schließen Sie es.</translation>
    </message>
    <message>
        <source>The rhythm of fire. {2} never pauses, and neither do values up to {1}. From 0.3 to 0.9 the bot fires some 60 to 70 % of the time, with pauses that grow longer with the value.</source>
        <translation>Der Rhythmus des Feuerns. {2} macht nie Pausen, Werte bis {1} auch nicht. Von 0.3 bis 0.9 feuert der Bot etwa 60 bis 70 % der Zeit, mit Pausen, die mit dem Wert länger werden.</translation>
    </message>
    <message>
        <source>The same characteristic stands twice at one skill. The bot gets the game&apos;s default character.</source>
        <translation>Dieselbe Eigenschaft steht bei einer Spielstärke zweimal. Der Bot bekommt den Standardcharakter des Spiels.</translation>
    </message>
    <message>
        <source>The server&apos;s setting bot_grapple decides for all bots.</source>
        <translation>Die Einstellung bot_grapple des Servers entscheidet für alle Bots.</translation>
    </message>
    <message>
        <source>The share of &quot;Random misc&quot; in what the bot says at random; the rest is &quot;Random insult&quot;.</source>
        <translation>Der Anteil von „Random misc“ an dem, was der Bot zufällig sagt; der Rest ist „Random insult“.</translation>
    </message>
    <message>
        <source>The share of insults in what the bot says when it kills or dies: 0 takes only the positive texts, 1 only the negative ones.</source>
        <translation>Der Anteil der Beleidigungen an dem, was der Bot sagt, wenn er tötet oder stirbt: 0 nimmt nur die freundlichen Zeilen, 1 nur die beleidigenden.</translation>
    </message>
    <message>
        <source>The situation %2 has no %1: the bot speaks it as it stands there, braces and all. Take it out of the line.</source>
        <translation>Der Anlass %2 hat kein %1: Der Bot spricht es, wie es dasteht, samt den Klammern. Nehmen Sie es aus der Zeile heraus.</translation>
    </message>
    <message>
        <source>The skill blocks %1 have no %2: the game takes what its default character has. Write the lines to decide yourself.</source>
        <translation>Die Skill-Blöcke %1 enthalten %2 nicht: Das Spiel nimmt, was sein Standardcharakter hat. Schreiben Sie die Zeilen, um selbst zu entscheiden.</translation>
    </message>
    <message>
        <source>The table of contents is too large.</source>
        <translation>Das Inhaltsverzeichnis ist zu groß.</translation>
    </message>
    <message>
        <source>The text %1 ends at its second quotation mark, and the game throws this whole skill block away. Write &apos; for a quotation mark inside a text.</source>
        <translation>Der Text %1 endet an seinem zweiten Anführungszeichen, und das Spiel verwirft diesen ganzen Skill-Block. Schreiben Sie &apos; für ein Anführungszeichen innerhalb eines Textes.</translation>
    </message>
    <message>
        <source>The text %1 ends here, and the game does not expect %2 behind it. A quotation mark inside a text ends it: write &apos; in its place. Between two parts of a line stands a comma.</source>
        <translation>Der Text %1 endet hier, und das Spiel erwartet %2 nicht dahinter. Ein Anführungszeichen innerhalb eines Textes beendet ihn: Schreiben Sie stattdessen &apos;. Zwischen zwei Teilen einer Zeile steht ein Komma.</translation>
    </message>
    <message>
        <source>The type %1 stands here and again in a file that is included below. The game takes the last one alone, so nobody hears the lines here. Put all lines into one block.</source>
        <translation>Der Chattyp %1 steht hier und noch einmal in einer Datei, die weiter unten eingebunden wird. Das Spiel nimmt nur den letzten, daher hört niemand die Zeilen hier. Schreiben Sie alle Zeilen in einen Block.</translation>
    </message>
    <message>
        <source>The type %1 stands here and again in line %2. The game takes the last one alone, so nobody hears the lines here. Put all lines into one block.</source>
        <translation>Der Chattyp %1 steht hier und noch einmal in Zeile %2. Das Spiel nimmt nur den letzten, daher hört niemand die Zeilen hier. Schreiben Sie alle Zeilen in einen Block.</translation>
    </message>
    <message>
        <source>The type %1 stands without quotes, and so the game does not read the chats; a save puts them on.</source>
        <translation>Der Typ %1 steht ohne Anführungszeichen da, deshalb liest das Spiel die Chats nicht; beim Speichern werden sie gesetzt.</translation>
    </message>
    <message>
        <source>The type %1 was there before; the game uses the last block alone.</source>
        <translation>Den Typ %1 gab es schon; das Spiel benutzt nur den letzten Block.</translation>
    </message>
    <message>
        <source>The unzip tool did not take &apos;%1&apos; out of the package. If it is so with every bot, check the WinZip folder in Program/Options.</source>
        <translation>Das Entpackprogramm hat „%1“ nicht aus dem Paket geholt. Ist das bei jedem Bot so, prüfen Sie den WinZip-Ordner unter „Program/Options“.</translation>
    </message>
    <message>
        <source>The value of %1 must be one plain number, and not %2.</source>
        <translation>Der Wert von %1 muss eine einfache Zahl sein und nicht %2.</translation>
    </message>
    <message>
        <source>The value of %1 must be one plain number, without quotation marks.</source>
        <translation>Der Wert von %1 muss eine einfache Zahl sein, ohne Anführungszeichen.</translation>
    </message>
    <message>
        <source>The values from here on are read as those of level %1, but the game takes them for level %2.</source>
        <translation>Die Werte ab hier werden als die der Stufe %1 gelesen, das Spiel nimmt sie aber für Stufe %2.</translation>
    </message>
    <message>
        <source>The values from here on are read as those of level %1, but the game takes them for no level.</source>
        <translation>Die Werte ab hier werden als die der Stufe %1 gelesen, das Spiel nimmt sie aber für keine Stufe.</translation>
    </message>
    <message>
        <source>The values from here on are read as those of no level, but the game takes them for level %1.</source>
        <translation>Die Werte ab hier werden für keine Stufe gelesen, das Spiel nimmt sie aber für Stufe %1.</translation>
    </message>
    <message>
        <source>The version and the comment in the head of the file are not read back; type them in again before you save.</source>
        <translation>Version und Kommentar im Kopf der Datei werden nicht wieder eingelesen; geben Sie sie vor dem Speichern erneut ein.</translation>
    </message>
    <message>
        <source>The weight %1 stands twice, first in a file that is included above: the game takes that one and passes over this. Remove the one that is not meant.</source>
        <translation>Das Gewicht %1 steht zweimal da, zuerst in einer weiter oben eingebundenen Datei: Das Spiel nimmt jenes und übergeht dieses. Entfernen Sie das, das nicht gemeint ist.</translation>
    </message>
    <message>
        <source>The weight %1 stands twice, first in line %2: the game takes that one and passes over this. Remove the one that is not meant.</source>
        <translation>Das Gewicht %1 steht zweimal da, zuerst in Zeile %2: Das Spiel nimmt jenes und übergeht dieses. Entfernen Sie das, das nicht gemeint ist.</translation>
    </message>
    <message>
        <source>The weight code of the bot&apos;s file has several numbers for %1. Which one do you want to change?</source>
        <translation>Der Gewichtscode in der Datei des Bots hat mehrere Zahlen für %1. Welche möchten Sie ändern?</translation>
    </message>
    <message>
        <source>The weight code of the file has several numbers for it (%1), and nobody said which one is meant.</source>
        <translation>Der Gewichtscode der Datei hat mehrere Zahlen dafür (%1), und niemand hat gesagt, welche gemeint ist.</translation>
    </message>
    <message>
        <source>The weight code of your game, %1, asks for macros of its own and would not read the weights of files that are made here: tick &quot;Write the game&apos;s own macros as well&quot; when you make them. &quot;Install into game&quot; writes them.</source>
        <translation>Der Gewichtscode Ihres Spiels, %1, verlangt eigene Makros und würde die Gewichte der hier erstellten Dateien nicht lesen: Wählen Sie beim Erstellen „Auch die eigenen Makros des Spiels schreiben“. „Im Spiel installieren“ schreibt sie.</translation>
    </message>
    <message>
        <source>The weight code of your game, %1, asks for macros of its own such as %2 for %3 and would not read the weights of files that are made here: tick &quot;Write the game&apos;s own macros as well&quot; when you make them. &quot;Install into game&quot; writes them.</source>
        <translation>Der Gewichtscode Ihres Spiels, %1, verlangt eigene Makros wie %2 für %3 und würde die Gewichte der hier erstellten Dateien nicht lesen: Wählen Sie beim Erstellen „Auch die eigenen Makros des Spiels schreiben“. „Im Spiel installieren“ schreibt sie.</translation>
    </message>
    <message>
        <source>The weight code takes its number from another file, or makes it out of several.</source>
        <translation>Der Gewichtscode nimmt die Zahl dafür aus einer anderen Datei oder bildet sie aus mehreren.</translation>
    </message>
    <message>
        <source>The weight code takes no number of the file, or no single one, for %1. The 0 shown there is none of the bot&apos;s values.</source>
        <translation>Der Gewichtscode nimmt keine oder keine einzelne Zahl der Datei für %1. Die dort gezeigte 0 ist kein Wert des Bots.</translation>
    </message>
    <message>
        <source>The weight code that the file includes does not ask for it.</source>
        <translation>Der Gewichtscode, den die Datei einbindet, fragt nicht danach.</translation>
    </message>
    <message>
        <source>The { in line %1 has no }. Write one where that block ends.</source>
        <translation>Zu der { in Zeile %1 gibt es keine }. Schreiben Sie eine dorthin, wo dieser Block endet.</translation>
    </message>
    <message>
        <source>The } and the { between two bots are missing above this line, so the game makes one bot of two and does not know %1. Write } and { above this line.</source>
        <translation>Über dieser Zeile fehlen die } und die { zwischen zwei Bots, deshalb macht das Spiel aus zweien einen Bot und kennt %1 nicht. Schreiben Sie } und { über diese Zeile.</translation>
    </message>
    <message>
        <source>The } at the end is missing; the game does not mind.</source>
        <translation>Die } am Ende fehlt; das Spiel stört es nicht.</translation>
    </message>
    <message>
        <source>The } of the bot that begins in line %1 is missing above this line, so the game makes one bot of two and does not know %2. Write } in front of this line.</source>
        <translation>Die } des Bots, der in Zeile %1 beginnt, fehlt über dieser Zeile, deshalb macht das Spiel aus zweien einen Bot und kennt %2 nicht. Schreiben Sie } vor diese Zeile.</translation>
    </message>
    <message>
        <source>There are lines for %1, but the chat characteristic %2 is 0: the bot never speaks them.</source>
        <translation>Es gibt Zeilen für %1, aber die Chat-Eigenschaft %2 ist 0: Der Bot spricht sie nie.</translation>
    </message>
    <message>
        <source>There is a package %1 in %2 already.</source>
        <translation>Ein Paket %1 gibt es in %2 schon.</translation>
    </message>
    <message>
        <source>There is a { too many here. Remove it.</source>
        <translation>Hier steht eine { zu viel. Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>There is a } too many here or above. Remove it.</source>
        <translation>Hier oder weiter oben steht eine } zu viel. Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>There is no #if for this %1. Remove it.</source>
        <translation>Zu diesem %1 gibt es kein #if. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>There is no %1, without which the game cannot add the bot. A save writes it.</source>
        <translation>%1 fehlt, und ohne das kann das Spiel den Bot nicht hinzufügen. Das Speichern schreibt es.</translation>
    </message>
    <message>
        <source>There is no .bot file, so the game does not know this bot. It must lie in the folder scripts itself.</source>
        <translation>Es gibt keine .bot-Datei, daher kennt das Spiel diesen Bot nicht. Sie muss direkt im Ordner scripts liegen.</translation>
    </message>
    <message>
        <source>There is no ; between this text and the one on the next line, so the bot speaks both as one. Write a ; at the end of each line.</source>
        <translation>Zwischen diesem Text und dem in der nächsten Zeile steht kein ;, daher spricht der Bot beide als einen. Schreiben Sie ein ; an das Ende jeder Zeile.</translation>
    </message>
    <message>
        <source>There is no blank between %1 and its value, so the game does not know %1. Write a blank between them.</source>
        <translation>Zwischen %1 und dem Wert steht kein Leerzeichen, deshalb kennt das Spiel %1 nicht. Schreiben Sie ein Leerzeichen dazwischen.</translation>
    </message>
    <message>
        <source>There is no characteristic %1; the last one is number %2. The game throws this whole skill block away. Remove the line.</source>
        <translation>Es gibt keine Eigenschaft %1; die letzte hat die Nummer %2. Das Spiel verwirft diesen ganzen Skill-Block. Entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>There is no file botfiles/%1 to include. The game looks in botfiles, not beside this file.</source>
        <translation>Es gibt keine Datei botfiles/%1 zum Einbinden. Das Spiel sucht in botfiles, nicht neben dieser Datei.</translation>
    </message>
    <message>
        <source>There is no folder baseq3 in &apos;%1&apos;. The lists stay as they are.</source>
        <translation>In „%1“ gibt es keinen Ordner baseq3. Die Listen bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>There is no folder for the settings.</source>
        <translation>Es gibt keinen Ordner für die Einstellungen.</translation>
    </message>
    <message>
        <source>There is no folder of the game&apos;s packages, such as baseq3, in %1. Look at Program &gt; Options.</source>
        <translation>In %1 gibt es keinen Ordner mit den Paketen des Spiels, wie etwa baseq3. Sehen Sie unter „Program/Options“ nach.</translation>
    </message>
    <message>
        <source>There is no game folder now.</source>
        <translation>Jetzt ist kein Spielordner mehr eingestellt.</translation>
    </message>
    <message>
        <source>There is no line in front of this ;. Remove it.</source>
        <translation>Vor diesem ; steht keine Zeile. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>There is no model, so the game takes its own (visor, or sarge in OpenArena). A save writes &quot;%1&quot;.</source>
        <translation>Das Modell fehlt, deshalb nimmt das Spiel sein eigenes (visor, in OpenArena sarge). Das Speichern schreibt „%1“.</translation>
    </message>
    <message>
        <source>There is no path between the quotation marks in this line, and the game takes that for an empty file. Write the path of the bot&apos;s own file, %1.</source>
        <translation>Zwischen den Anführungszeichen in dieser Zeile steht kein Pfad, und das Spiel hält das für eine leere Datei. Schreiben Sie den Pfad der eigenen Datei des Bots, %1.</translation>
    </message>
    <message>
        <source>There is no path between the quotation marks in this line, and the game takes that for an empty file. Write the path of the bot&apos;s own file.</source>
        <translation>Zwischen den Anführungszeichen in dieser Zeile steht kein Pfad, und das Spiel hält das für eine leere Datei. Schreiben Sie den Pfad der eigenen Datei des Bots.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Es gibt keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>There is no unzip tool in &apos;%1&apos;.</source>
        <translation>In „%1“ gibt es kein Entpackprogramm.</translation>
    </message>
    <message>
        <source>There is no value behind %1 on its line, so the game takes &lt;NULL&gt; for it. Write the value behind it or remove the line.</source>
        <translation>Hinter %1 steht in der Zeile kein Wert, deshalb nimmt das Spiel &lt;NULL&gt; dafür. Schreiben Sie den Wert dahinter, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>There is no value behind %1, and the game throws this whole skill block away. Write a number behind it, or a text in quotation marks, or remove the line.</source>
        <translation>Hinter %1 steht kein Wert, und das Spiel verwirft diesen ganzen Skill-Block. Schreiben Sie eine Zahl dahinter oder einen Text in Anführungszeichen, oder entfernen Sie die Zeile.</translation>
    </message>
    <message>
        <source>There is no value behind %1. Write one behind its #define, on the same line.</source>
        <translation>Hinter %1 steht kein Wert. Schreiben Sie einen hinter das #define, in derselben Zeile.</translation>
    </message>
    <message>
        <source>There is no value behind &quot;name&quot; on its line, so this bot has no name. Write the name behind it, on the same line.</source>
        <translation>Hinter „name“ steht in der Zeile kein Wert, daher hat dieser Bot keinen Namen. Schreiben Sie den Namen dahinter, in dieselbe Zeile.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>There is nothing in front of this comma. Remove the comma.</source>
        <translation>Vor diesem Komma steht nichts. Entfernen Sie das Komma.</translation>
    </message>
    <message>
        <source>There is too much in this folder to try it.</source>
        <translation>In diesem Ordner ist zu viel, um ihn auszuprobieren.</translation>
    </message>
    <message>
        <source>There the game does not add the bot with it.</source>
        <translation>Dort fügt das Spiel den Bot damit nicht hinzu.</translation>
    </message>
    <message>
        <source>There was a block of level %1 before. The values of this one count here, but the game takes the first.</source>
        <translation>Einen Block der Stufe %1 gab es schon. Hier zählen die Werte dieses Blocks, das Spiel nimmt aber den ersten.</translation>
    </message>
    <message>
        <source>These files lie in a folder. A game that you start and play yourself passes over such files unless it was started with +set sv_pure 0. Pack the bot into a .pk3 package to be safe.</source>
        <translation>Diese Dateien liegen in einem Ordner. Ein Spiel, das Sie selbst starten und spielen, übergeht solche Dateien, wenn es nicht mit +set sv_pure 0 gestartet wurde. Packen Sie den Bot sicherheitshalber in ein .pk3-Paket.</translation>
    </message>
    <message>
        <source>This #include stands above the #define of %1 in line %2, and the game reads from top to bottom. Move the #include to the end of the file.</source>
        <translation>Dieses #include steht über dem #define von %1 in Zeile %2, und das Spiel liest von oben nach unten. Setzen Sie das #include ans Ende der Datei.</translation>
    </message>
    <message>
        <source>This chat line is too long, in a way that the game does not notice in time: it may crash. Shorten the line to %1 characters, counting 3 more for each word list.</source>
        <translation>Diese Chatzeile ist so lang, dass das Spiel es nicht rechtzeitig bemerkt: Es kann abstürzen. Kürzen Sie die Zeile auf %1 Zeichen; jede Wortliste zählt dabei 3 mehr.</translation>
    </message>
    <message>
        <source>This chat line is too long: the game has room for %1 characters, counting 4 for a variable and the name and 3 more for a word list, and each of these may begin behind %2 characters at most. Shorten it.</source>
        <translation>Diese Chatzeile ist zu lang: Das Spiel hat Platz für %1 Zeichen; dabei zählt eine Variable 4, eine Wortliste ihren Namen und 3 mehr, und jede davon darf höchstens hinter %2 Zeichen beginnen. Kürzen Sie die Zeile.</translation>
    </message>
    <message>
        <source>This file has no block for skill %1, and the game takes the default character&apos;s, or another block.</source>
        <translation>Diese Datei hat keinen Block für Stufe %1, und das Spiel nimmt den des Standardcharakters oder einen anderen Block.</translation>
    </message>
    <message>
        <source>This file holds chats, but the game looks in it for the bot&apos;s character, the blocks skill 1, skill 4 and skill 5. Put the bot&apos;s own character file in its place.</source>
        <translation>Diese Datei enthält Chats, aber das Spiel sucht in ihr den Charakter des Bots, die Blöcke skill 1, skill 4 und skill 5. Legen Sie die eigene Charakterdatei des Bots an ihre Stelle.</translation>
    </message>
    <message>
        <source>This file holds weights, but the game looks in it for the bot&apos;s character, the blocks skill 1, skill 4 and skill 5. Put the bot&apos;s own character file in its place.</source>
        <translation>Diese Datei enthält Gewichte, aber das Spiel sucht in ihr den Charakter des Bots, die Blöcke skill 1, skill 4 und skill 5. Legen Sie die eigene Charakterdatei des Bots an ihre Stelle.</translation>
    </message>
    <message>
        <source>This file includes itself, and the game passes over that line. Remove it.</source>
        <translation>Diese Datei bindet sich selbst ein, und das Spiel übergeht diese Zeile. Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>This file is far longer than any that a game comes with, and what stands behind this line was not looked at. Shorten it.</source>
        <translation>Diese Datei ist viel länger als jede, die ein Spiel mitbringt, und was hinter dieser Zeile steht, wurde nicht angesehen. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>This file was saved as Unicode (UTF-16), and the game sees nothing in it. Save it as plain text: in Notepad choose ANSI under Encoding.</source>
        <translation>Diese Datei wurde als Unicode (UTF-16) gespeichert, und das Spiel sieht nichts darin. Speichern Sie sie als reinen Text: Wählen Sie im Windows-Editor unter „Codierung“ ANSI.</translation>
    </message>
    <message>
        <source>This file was saved by a browser, as a web page, with much in it that is not the bot&apos;s. Save it as plain text, without formatting.</source>
        <translation>Diese Datei wurde mit einem Browser als Webseite gespeichert und enthält vieles, was nicht zum Bot gehört. Speichern Sie sie als reinen Text ohne Formatierung.</translation>
    </message>
    <message>
        <source>This file was saved by a word processor, with much in it that is not the bot&apos;s. Save it as plain text, without formatting.</source>
        <translation>Diese Datei wurde mit einer Textverarbeitung gespeichert und enthält vieles, was nicht zum Bot gehört. Speichern Sie sie als reinen Text ohne Formatierung.</translation>
    </message>
    <message>
        <source>This is a file of another bot. The character file, the one that ends in _c.c, names it.</source>
        <translation>Das ist eine Datei eines anderen Bots. Die Charakterdatei, die auf _c.c endet, nennt sie.</translation>
    </message>
    <message>
        <source>This is no Targa picture that can be decoded.</source>
        <translation>Das ist kein Targa-Bild, das gelesen werden kann.</translation>
    </message>
    <message>
        <source>This is no valid JSON: %1</source>
        <translation>Das ist kein gültiges JSON: %1</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>This is the character of another bot, which has the name or whose file the description names.</source>
        <translation>Das ist der Charakter eines anderen Bots, der den Namen hat oder dessen Datei die Beschreibung nennt.</translation>
    </message>
    <message>
        <source>This line asks for a chat named %1, but the one in %2 is named %3. Write that name here.</source>
        <translation>Diese Zeile verlangt einen Chat namens %1, aber der in %2 heißt %3. Schreiben Sie hier diesen Namen.</translation>
    </message>
    <message>
        <source>This line does not fit into the %1 characters that the game keeps of a bot, and is lost. Shorten the values.</source>
        <translation>Diese Zeile passt nicht in die %1 Zeichen, die das Spiel von einem Bot behält, und geht verloren. Kürzen Sie die Werte.</translation>
    </message>
    <message>
        <source>This line includes %1, the game&apos;s code for items, but the file is that of the weights of weapons. Write #include &quot;%2&quot;.</source>
        <translation>Diese Zeile bindet %1 ein, den Code des Spiels für Gegenstände, aber die Datei ist die der Gewichte der Waffen. Schreiben Sie #include &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>This line includes %1, the game&apos;s code for weapons, but the file is that of the weights of items. Write #include &quot;%2&quot;.</source>
        <translation>Diese Zeile bindet %1 ein, den Code des Spiels für Waffen, aber die Datei ist die der Gewichte der Gegenstände. Schreiben Sie #include &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>This line names %1 for the weights of items, and that file has none but those of weapons. Write %2 in each skill block.</source>
        <translation>Diese Zeile nennt %1 für die Gewichte der Gegenstände, und jene Datei enthält nur die der Waffen. Schreiben Sie %2 in jeden Skill-Block.</translation>
    </message>
    <message>
        <source>This line names %1 for the weights of weapons, and that file has none but those of items. Write %2 in each skill block.</source>
        <translation>Diese Zeile nennt %1 für die Gewichte der Waffen, und jene Datei enthält nur die der Gegenstände. Schreiben Sie %2 in jeden Skill-Block.</translation>
    </message>
    <message>
        <source>This line names %1, which holds chats and not the bot&apos;s character. Write %2.</source>
        <translation>Diese Zeile nennt %1, worin Chats stehen und nicht der Charakter des Bots. Schreiben Sie %2.</translation>
    </message>
    <message>
        <source>This line names %1, which holds weights and not the bot&apos;s character. Write %2.</source>
        <translation>Diese Zeile nennt %1, worin Gewichte stehen und nicht der Charakter des Bots. Schreiben Sie %2.</translation>
    </message>
    <message>
        <source>This line names the character file of another bot, %1, so the game never reads %2. Give your bot another name, and a .bot file of its own.</source>
        <translation>Diese Zeile nennt die Charakterdatei eines anderen Bots, %1, daher liest das Spiel %2 nie. Geben Sie Ihrem Bot einen anderen Namen und eine eigene .bot-Datei.</translation>
    </message>
    <message>
        <source>This line names the character file of another bot, %1, so the game never reads %2. Write the path of this bot&apos;s own file.</source>
        <translation>Diese Zeile nennt die Charakterdatei eines anderen Bots, %1, daher liest das Spiel %2 nie. Schreiben Sie den Pfad der eigenen Datei dieses Bots.</translation>
    </message>
    <message>
        <source>This line names the chat file of another bot, %1, which has no chat named %2. Write %3.</source>
        <translation>Diese Zeile nennt die Chatdatei eines anderen Bots, %1, in der es keinen Chat namens %2 gibt. Schreiben Sie %3.</translation>
    </message>
    <message>
        <source>This line names the chat file of another bot, %1, which has no chat named %2. Write the name of this bot&apos;s own file.</source>
        <translation>Diese Zeile nennt die Chatdatei eines anderen Bots, %1, in der es keinen Chat namens %2 gibt. Schreiben Sie den Namen der eigenen Datei dieses Bots.</translation>
    </message>
    <message>
        <source>This line takes away the #define of %1 below it.</source>
        <translation>Diese Zeile nimmt das #define von %1 darunter weg.</translation>
    </message>
    <message>
        <source>This line takes the value of %1 away. Remove it.</source>
        <translation>Diese Zeile nimmt %1 den Wert weg. Entfernen Sie sie.</translation>
    </message>
    <message>
        <source>This runs as root: what it writes belongs to root, and no one else can change it. Run it as yourself.</source>
        <translation>Das Programm läuft als root: Was es schreibt, gehört root, und niemand sonst kann es ändern. Starten Sie es unter Ihrem eigenen Konto.</translation>
    </message>
    <message>
        <source>This switch has a default already. Remove one.</source>
        <translation>Dieses switch hat schon ein default. Entfernen Sie eines.</translation>
    </message>
    <message>
        <source>This switch has no default: the weight is 0 where no case fits. Write a default: and a value unless that is meant.</source>
        <translation>Dieses switch hat kein default: Das Gewicht ist 0, wo kein case passt. Schreiben Sie default: und einen Wert, wenn das nicht so gemeint ist.</translation>
    </message>
    <message>
        <source>This text has more than the %1 characters that the game can hold. Texts that stand side by side count as one: perhaps a ; or a , is missing between them.</source>
        <translation>Dieser Text hat mehr als die %1 Zeichen, die das Spiel fassen kann. Texte, die nebeneinander stehen, zählen als einer: Vielleicht fehlt ein ; oder ein , dazwischen.</translation>
    </message>
    <message>
        <source>This value is neither a plain number nor a text in quotes. The bot gets the game&apos;s default character.</source>
        <translation>Dieser Wert ist weder eine einfache Zahl noch ein Text in Anführungszeichen. Der Bot bekommt den Standardcharakter des Spiels.</translation>
    </message>
    <message>
        <source>This word or number is too long for the game. Shorten it.</source>
        <translation>Dieses Wort oder diese Zahl ist zu lang für das Spiel. Kürzen Sie es.</translation>
    </message>
    <message>
        <source>To add the bot, type /addbot %1 3 in the game&apos;s console.</source>
        <translation>Um den Bot hinzuzufügen, geben Sie /addbot %1 3 in der Konsole des Spiels ein.</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Jetzt ausprobieren</translation>
    </message>
    <message>
        <source>Two bots are called %1, this one and the one in %2. The game adds one of them, and which is chance. Give one of them another name.</source>
        <translation>Zwei Bots heißen %1, dieser und der in %2. Das Spiel fügt einen davon hinzu; welchen, ist Zufall. Geben Sie einem davon einen anderen Namen.</translation>
    </message>
    <message>
        <source>Typing always takes it 2 seconds.</source>
        <translation>Zum Tippen braucht er immer 2 Sekunden.</translation>
    </message>
    <message>
        <source>Typing always takes the bot 2 seconds.</source>
        <translation>Zum Tippen braucht der Bot immer 2 Sekunden.</translation>
    </message>
    <message>
        <source>Under its new name it would say something else.</source>
        <translation>Unter dem neuen Namen würde sie etwas anderes sagen.</translation>
    </message>
    <message>
        <source>Use %1 in its place</source>
        <translation>Stattdessen %1 nehmen</translation>
    </message>
    <message>
        <source>Use plain letters and signs in the line</source>
        <translation>Einfache Buchstaben und Zeichen in der Zeile nehmen</translation>
    </message>
    <message>
        <source>Use plain letters in %1</source>
        <translation>Einfache Buchstaben in %1 nehmen</translation>
    </message>
    <message>
        <source>Use single quotes in the line</source>
        <translation>Einfache Anführungszeichen in der Zeile nehmen</translation>
    </message>
    <message>
        <source>Use the line %1</source>
        <translation>Die Zeile %1 nehmen</translation>
    </message>
    <message>
        <source>Values before the first &quot;skill&quot; line belong to no level and are passed over.</source>
        <translation>Werte vor der ersten „skill“-Zeile gehören zu keiner Stufe und werden übergangen.</translation>
    </message>
    <message>
        <source>Waits where the good things are.</source>
        <translation>Wartet dort, wo es Gutes zu holen gibt.</translation>
    </message>
    <message>
        <source>Weights that the file sets in its own way, as the game&apos;s weight code takes them: %1.</source>
        <translation>Gewichte, die die Datei auf ihre eigene Art setzt, so wie der Gewichtscode des Spiels sie nimmt: %1.</translation>
    </message>
    <message>
        <source>What follows is read as the type %1, but the line says: %2</source>
        <translation>Was folgt, wird als Typ %1 gelesen, aber die Zeile lautet: %2</translation>
    </message>
    <message>
        <source>What is nested too deeply is left out.</source>
        <translation>Was zu tief verschachtelt ist, wird weggelassen.</translation>
    </message>
    <message>
        <source>What stands behind the &quot;;&quot;</source>
        <translation>Was hinter dem „;“ steht</translation>
    </message>
    <message>
        <source>What the file says is only understood together with the weight code of the game that it was made for. Give the folder of that game in the options.</source>
        <translation>Was die Datei sagt, lässt sich nur zusammen mit dem Gewichtscode des Spiels verstehen, für das sie gemacht ist. Geben Sie den Ordner dieses Spiels in den Optionen an.</translation>
    </message>
    <message>
        <source>What the window looked like could not be written</source>
        <translation>Das Aussehen des Fensters ließ sich nicht speichern</translation>
    </message>
    <message>
        <source>When a level ends and the bot is first.</source>
        <translation>Wenn ein Level endet und der Bot Erster ist.</translation>
    </message>
    <message>
        <source>When a level ends and the bot is last.</source>
        <translation>Wenn ein Level endet und der Bot Letzter ist.</translation>
    </message>
    <message>
        <source>When a level ends and the bot is neither first nor last.</source>
        <translation>Wenn ein Level endet und der Bot weder Erster noch Letzter ist.</translation>
    </message>
    <message>
        <source>When it is restored, this file is kept with .bak behind its name.</source>
        <translation>Beim Wiederherstellen bleibt diese Datei mit .bak hinter ihrem Namen erhalten.</translation>
    </message>
    <message>
        <source>When somebody has telefragged the bot.</source>
        <translation>Wenn jemand den Bot per Telefrag erledigt hat.</translation>
    </message>
    <message>
        <source>When the bot has died in lava.</source>
        <translation>Wenn der Bot in Lava gestorben ist.</translation>
    </message>
    <message>
        <source>When the bot has died in slime.</source>
        <translation>Wenn der Bot in Schleim gestorben ist.</translation>
    </message>
    <message>
        <source>When the bot has drowned.</source>
        <translation>Wenn der Bot ertrunken ist.</translation>
    </message>
    <message>
        <source>When the bot has fallen to its death.</source>
        <translation>Wenn der Bot in den Tod gestürzt ist.</translation>
    </message>
    <message>
        <source>When the bot has killed itself or was crushed.</source>
        <translation>Wenn der Bot sich selbst getötet hat oder zerquetscht wurde.</translation>
    </message>
    <message>
        <source>Whether and how long the bot camps, on maps with camp spots. It needs good health and 10 rounds for rocket launcher, railgun or BFG10K, and no team order. Below {1} it never camps. It is tried every half second with this chance, so that even low values camp soon. The bot stays 120 to 300 seconds, above {2} for good.</source>
        <translation>Ob und wie lange der Bot campt, auf Karten mit Plätzen dafür. Er braucht gute Gesundheit und 10 Schuss für Rocket Launcher, Railgun oder BFG10K und darf keinen Teambefehl haben. Unter {1} campt er nie. Versucht wird es jede halbe Sekunde mit dieser Wahrscheinlichkeit, sodass er auch mit niedrigen Werten bald campt. Der Bot bleibt 120 bis 300 Sekunden, über {2} für immer.</translation>
    </message>
    <message>
        <source>Whether the bot fights or retreats follows from its health, armor, weapon and ammunition.</source>
        <translation>Ob der Bot kämpft oder sich zurückzieht, folgt aus seiner Gesundheit, Rüstung, Waffe und Munition.</translation>
    </message>
    <message>
        <source>With a zero in front the game reads %1 as %2, a number to the base 8. Remove the zero.</source>
        <translation>Mit einer Null davor liest das Spiel %1 als %2, eine Zahl zur Basis 8. Entfernen Sie die Null.</translation>
    </message>
    <message>
        <source>With that the file would be too large: the game reads no description of %1 bytes or more. Shorten it.</source>
        <translation>Damit würde die Datei zu groß: Das Spiel liest keine Beschreibung ab %1 Byte. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>With the longest names and words the line has %1 characters; the screen shows some %2 and cuts the rest. Shorten it.</source>
        <translation>Mit den längsten Namen und Wörtern hat die Zeile %1 Zeichen; der Bildschirm zeigt etwa %2 und schneidet den Rest ab. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>With the longest names and words the line has more than %1 characters; the screen shows some %2 and cuts the rest. Shorten it.</source>
        <translation>Mit den längsten Namen und Wörtern hat die Zeile mehr als %1 Zeichen; der Bildschirm zeigt etwa %2 und schneidet den Rest ab. Kürzen Sie sie.</translation>
    </message>
    <message>
        <source>Without chat texts for it, a value above 0 only makes the bot pause and fall silent.</source>
        <translation>Ohne Chatzeilen dafür lässt ein Wert über 0 den Bot nur innehalten und verstummen.</translation>
    </message>
    <message>
        <source>Without double quotes around it, the game reads %1 only up to &quot;%2&quot;. Put double quotes around it.</source>
        <translation>Ohne doppelte Anführungszeichen liest das Spiel %1 nur bis „%2“. Setzen Sie doppelte Anführungszeichen darum.</translation>
    </message>
    <message>
        <source>Without it this bot is good; with it the game stumbles in %1. Remove it.</source>
        <translation>Ohne dies ist der Bot in Ordnung; damit stolpert das Spiel in %1. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>Without it this bot is good; with it the game stumbles. Remove it.</source>
        <translation>Ohne dies ist der Bot in Ordnung; damit stolpert das Spiel. Entfernen Sie es.</translation>
    </message>
    <message>
        <source>Without quotes around these texts the game does not read the file; a save puts them on: %1.</source>
        <translation>Ohne Anführungszeichen um diese Texte liest das Spiel die Datei nicht; das Speichern setzt sie: %1.</translation>
    </message>
    <message>
        <source>Write #include &quot;%1&quot; at the top of the file.</source>
        <translation>Schreiben Sie #include &quot;%1&quot; an den Anfang der Datei.</translation>
    </message>
    <message>
        <source>Write %1 and nothing else.</source>
        <translation>Schreiben Sie %1 und sonst nichts.</translation>
    </message>
    <message>
        <source>Write %1 for %2 percent.</source>
        <translation>Schreiben Sie %1 für %2 Prozent.</translation>
    </message>
    <message>
        <source>Write %1 in front of it.</source>
        <translation>Schreiben Sie %1 davor.</translation>
    </message>
    <message>
        <source>Write %1, in digits alone.</source>
        <translation>Schreiben Sie %1, nur mit Ziffern.</translation>
    </message>
    <message>
        <source>Write %1.</source>
        <translation>Schreiben Sie %1.</translation>
    </message>
    <message>
        <source>Write 1 for yes or 0 for no.</source>
        <translation>Schreiben Sie 1 für ja oder 0 für nein.</translation>
    </message>
    <message>
        <source>Write a number behind it.</source>
        <translation>Schreiben Sie eine Zahl dahinter.</translation>
    </message>
    <message>
        <source>Write a number, such as 0.6.</source>
        <translation>Schreiben Sie eine Zahl, zum Beispiel 0.6.</translation>
    </message>
    <message>
        <source>Write a smaller one.</source>
        <translation>Schreiben Sie eine kleinere.</translation>
    </message>
    <message>
        <source>Write at least one line for each.</source>
        <translation>Schreiben Sie für jeden Anlass mindestens eine Zeile.</translation>
    </message>
    <message>
        <source>Write it anew</source>
        <translation>Neu schreiben</translation>
    </message>
    <message>
        <source>Write it as in JSON: %1.</source>
        <translation>Schreiben Sie sie wie in JSON: %1.</translation>
    </message>
    <message>
        <source>Write it with digits and a point, such as 0.5.</source>
        <translation>Schreiben Sie sie mit Ziffern und einem Punkt, etwa 0.5.</translation>
    </message>
    <message>
        <source>Write it without brackets.</source>
        <translation>Schreiben Sie das ohne Klammern.</translation>
    </message>
    <message>
        <source>Write lines, or set it to 0.</source>
        <translation>Schreiben Sie Zeilen, oder setzen Sie den Wert auf 0.</translation>
    </message>
    <message>
        <source>Write one number, such as 50.</source>
        <translation>Schreiben Sie eine einzige Zahl, zum Beispiel 50.</translation>
    </message>
    <message>
        <source>Write the result, such as 0.5.</source>
        <translation>Schreiben Sie das Ergebnis hin, zum Beispiel 0.5.</translation>
    </message>
    <message>
        <source>Write the { between them.</source>
        <translation>Schreiben Sie die { dazwischen.</translation>
    </message>
    <message>
        <source>Write two backslashes, of which the game speaks one</source>
        <translation>Zwei Backslashes schreiben, von denen das Spiel einen spricht</translation>
    </message>
    <message>
        <source>Write { in its place.</source>
        <translation>Schreiben Sie stattdessen {.</translation>
    </message>
    <message>
        <source>Write } in its place.</source>
        <translation>Schreiben Sie stattdessen }.</translation>
    </message>
    <message>
        <source>Written already, and not put back: %1.</source>
        <translation>Bereits geschrieben und nicht zurückgesetzt: %1.</translation>
    </message>
    <message>
        <source>Written anew: %1</source>
        <translation>Neu geschrieben: %1</translation>
    </message>
    <message>
        <source>Your game calls %1 %2, and a file made anew says %3, which it does not know. A file that says %2 already stays good.</source>
        <translation>Ihr Spiel nennt %1 %2, und in einer neu erstellten Datei steht %3, was es nicht kennt. Eine Datei, in der schon %2 steht, bleibt brauchbar.</translation>
    </message>
    <message>
        <source>Your game has no ready-made line %1: in its place the bot speaks the remains of an earlier line. Use another one or write a text.</source>
        <translation>Ihr Spiel hat keine fertige Zeile %1: Stattdessen spricht der Bot die Reste einer früheren Zeile. Nehmen Sie eine andere, oder schreiben Sie einen Text.</translation>
    </message>
    <message>
        <source>Your game has no word list %1: in its place the bot speaks the remains of an earlier line. Use another one or write a text.</source>
        <translation>Ihr Spiel hat keine Wortliste %1: Stattdessen spricht der Bot die Reste einer früheren Zeile. Nehmen Sie eine andere, oder schreiben Sie einen Text.</translation>
    </message>
    <message>
        <source>Your game has no word list or ready-made line %1: in its place the bot speaks the remains of an earlier line. Take the name of one that it has, or put the text in quotation marks (&quot;).</source>
        <translation>Ihr Spiel hat keine Wortliste oder fertige Zeile %1: Stattdessen spricht der Bot die Reste einer früheren Zeile. Nehmen Sie den Namen einer, die es hat, oder setzen Sie den Text in Anführungszeichen (&quot;).</translation>
    </message>
    <message>
        <source>Your game has so many bots that the names of their .bot files do not fit into the %1 characters that it has for them (%2 with this bot): some of them will be missing, maybe this one. Take packages of other bots away.</source>
        <translation>Ihr Spiel hat so viele Bots, dass die Namen ihrer .bot-Dateien nicht in die %1 Zeichen passen, die es für sie hat (%2 mit diesem Bot): Einige davon werden fehlen, vielleicht dieser. Nehmen Sie Pakete anderer Bots weg.</translation>
    </message>
    <message>
        <source>Your game has weight code of its own: the weights are in it under that code&apos;s names as well.</source>
        <translation>Ihr Spiel hat eigenen Code für die Gewichte: Sie stehen im Paket auch unter dessen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (lines %2-%3)</source>
        <translation>„%1“ (Zeilen %2-%3)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be a name; the bot is called %2 after its file.</source>
        <translation>„%1“ kann kein Name sein; der Bot heißt nach seiner Datei %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has the same files, and without the old name a load takes that one&apos;s description for this bot&apos;s. Give it files of its own first.</source>
        <translation>„%1“ hat dieselben Dateien, und ohne den alten Namen hält das Laden dessen Beschreibung für die dieses Bots. Geben Sie ihm zuerst eigene Dateien.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;No&quot; at level %2: there the game takes the value of its own default character, not the bot&apos;s general aim skill or aim accuracy. Set it above 0 to decide yourself.</source>
        <translation>„%1“ ist auf Stufe %2 „No“: Dort nimmt das Spiel den Wert seines eigenen Standardcharakters, nicht „Aim skill“ oder „Aim accuracy“ des Bots. Setzen Sie den Wert über 0, um selbst zu entscheiden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is &quot;No&quot; at level %2: there the game takes the value of its own default character.</source>
        <translation>„%1“ ist auf Stufe %2 „No“: Dort nimmt das Spiel den Wert seines eigenen Standardcharakters.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%&quot; becomes a dot</source>
        <translation>„%“ wird zu einem Punkt</translation>
    </message>
    <message>
        <source>&quot;/*&quot; takes away all up to &quot;*/&quot;</source>
        <translation>„/*“ nimmt alles bis „*/“ weg</translation>
    </message>
    <message>
        <source>&quot;No&quot; leaves it out of the file: then the game&apos;s default character decides.</source>
        <translation>„No“ lässt den Wert aus der Datei weg: Dann entscheidet der Standardcharakter des Spiels.</translation>
    </message>
    <message>
        <source>a bot has the levels 1, 4 and 5 only.</source>
        <translation>Ein Bot hat nur die Stufen 1, 4 und 5.</translation>
    </message>
    <message>
        <source>a chat line is empty.</source>
        <translation>Eine Chatzeile ist leer.</translation>
    </message>
    <message>
        <source>a list of texts is wanted here.</source>
        <translation>Hier wird eine Liste von Texten erwartet.</translation>
    </message>
    <message>
        <source>a number is wanted here.</source>
        <translation>Hier wird eine Zahl erwartet.</translation>
    </message>
    <message>
        <source>a number or a text is wanted here.</source>
        <translation>Hier wird eine Zahl oder ein Text erwartet.</translation>
    </message>
    <message>
        <source>a second after a kill with the gauntlet, when no enemy is in sight.</source>
        <translation>eine Sekunde nach einem Abschuss mit dem Gauntlet, wenn kein Gegner in Sicht ist.</translation>
    </message>
    <message>
        <source>a second after a kill with the railgun, when no enemy is in sight.</source>
        <translation>eine Sekunde nach einem Abschuss mit der Railgun, wenn kein Gegner in Sicht ist.</translation>
    </message>
    <message>
        <source>a second after the bot has telefragged somebody, when no enemy is in sight.</source>
        <translation>eine Sekunde nach einem Telefrag des Bots, wenn kein Gegner in Sicht ist.</translation>
    </message>
    <message>
        <source>a semicolon becomes a blank</source>
        <translation>ein Semikolon wird zu einem Leerzeichen</translation>
    </message>
    <message>
        <source>a text is wanted here.</source>
        <translation>Hier wird ein Text erwartet.</translation>
    </message>
    <message>
        <source>a whole number is wanted here.</source>
        <translation>Hier wird eine ganze Zahl erwartet.</translation>
    </message>
    <message>
        <source>an object is wanted here.</source>
        <translation>Hier wird ein Objekt erwartet.</translation>
    </message>
    <message>
        <source>and %1 more.</source>
        <translation>und %1 weitere.</translation>
    </message>
    <message>
        <source>arenaLord: %1 is neither 0 nor 1, and a save leaves it out.</source>
        <translation>arenaLord: %1 ist weder 0 noch 1, und das Speichern lässt es weg.</translation>
    </message>
    <message>
        <source>by a method of its own</source>
        <translation>mit einer eigenen Methode</translation>
    </message>
    <message>
        <source>by the method BZip2</source>
        <translation>mit der Methode BZip2</translation>
    </message>
    <message>
        <source>by the method Deflate64</source>
        <translation>mit der Methode Deflate64</translation>
    </message>
    <message>
        <source>by the method LZMA</source>
        <translation>mit der Methode LZMA</translation>
    </message>
    <message>
        <source>camps</source>
        <translation>campt</translation>
    </message>
    <message>
        <source>camps for good</source>
        <translation>campt auf Dauer</translation>
    </message>
    <message>
        <source>changes its rhythm at random</source>
        <translation>wechselt seinen Rhythmus zufällig</translation>
    </message>
    <message>
        <source>character file</source>
        <translation>Charakterdatei</translation>
    </message>
    <message>
        <source>chat file</source>
        <translation>Chatdatei</translation>
    </message>
    <message>
        <source>circles around the enemy</source>
        <translation>umkreist den Gegner</translation>
    </message>
    <message>
        <source>control characters become blanks</source>
        <translation>Steuerzeichen werden zu Leerzeichen</translation>
    </message>
    <message>
        <source>description file</source>
        <translation>Beschreibungsdatei</translation>
    </message>
    <message>
        <source>double quotes are dropped</source>
        <translation>doppelte Anführungszeichen entfallen</translation>
    </message>
    <message>
        <source>everything from &quot;//&quot; on is cut off</source>
        <translation>alles ab „//“ wird abgeschnitten</translation>
    </message>
    <message>
        <source>fragsmith-cli check tells what it lacks.</source>
        <translation>fragsmith-cli check sagt, was ihm fehlt.</translation>
    </message>
    <message>
        <source>fragsmith-cli try shows what the game makes of a bot.</source>
        <translation>fragsmith-cli try zeigt, was das Spiel aus einem Bot macht.</translation>
    </message>
    <message>
        <source>item weight file</source>
        <translation>Gewichtsdatei der Gegenstände</translation>
    </message>
    <message>
        <source>its name does not end as it should</source>
        <translation>Der Name endet nicht so, wie er müsste</translation>
    </message>
    <message>
        <source>its name has characters that the game does not have</source>
        <translation>Der Name hat Zeichen, die das Spiel nicht kennt</translation>
    </message>
    <message>
        <source>its own list of bots</source>
        <translation>seiner eigenen Botliste</translation>
    </message>
    <message>
        <source>jumps by rocket</source>
        <translation>macht Raketensprünge</translation>
    </message>
    <message>
        <source>keeps aiming while it retreats or fetches items</source>
        <translation>zielt auch bei Rückzug und Einsammeln</translation>
    </message>
    <message>
        <source>keeps its accuracy when the enemy turns back</source>
        <translation>bleibt bei Kehrtwenden genau</translation>
    </message>
    <message>
        <source>leads its target in a straight line</source>
        <translation>hält geradlinig vor</translation>
    </message>
    <message>
        <source>letters with accents and other special signs become blanks</source>
        <translation>Buchstaben mit Akzent und andere Sonderzeichen werden zu Leerzeichen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>moves towards the enemy and away</source>
        <translation>bewegt sich auf den Gegner zu und von ihm weg</translation>
    </message>
    <message>
        <source>never pauses</source>
        <translation>macht nie Pausen</translation>
    </message>
    <message>
        <source>no random error in direction</source>
        <translation>kein zufälliger Richtungsfehler</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>not among these files</source>
        <translation>nicht unter diesen Dateien</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>null is no value.</source>
        <translation>null ist kein Wert.</translation>
    </message>
    <message>
        <source>only a level that begins again without being loaded asks for it.</source>
        <translation>Nur ein Level, das neu beginnt, ohne geladen zu werden, fragt danach.</translation>
    </message>
    <message>
        <source>pauses between shots, longer with the value</source>
        <translation>macht Pausen zwischen Schüssen, mit dem Wert längere</translation>
    </message>
    <message>
        <source>predicts the target&apos;s real path</source>
        <translation>hält entlang des wirklichen Wegs vor</translation>
    </message>
    <message>
        <source>see the errors in the list of findings (F8).</source>
        <translation>siehe die Fehler in der Liste der Befunde (F8).</translation>
    </message>
    <message>
        <source>several blanks become one</source>
        <translation>mehrere Leerzeichen werden zu einem</translation>
    </message>
    <message>
        <source>shoots at players who are typing</source>
        <translation>schießt auf Spieler, die gerade tippen</translation>
    </message>
    <message>
        <source>shoots at the floor for splash</source>
        <translation>nutzt Flächenschaden am Boden</translation>
    </message>
    <message>
        <source>shoots where the enemy will come out</source>
        <translation>schießt dorthin, wo der Gegner auftaucht</translation>
    </message>
    <message>
        <source>slower makes no difference from here on</source>
        <translation>langsamer ändert von hier an nichts mehr</translation>
    </message>
    <message>
        <source>strength %1: %2 in %3 match</source>
        <translation>Stärke %1: %2 in %3 Match</translation>
    </message>
    <message>
        <source>strength %1: %2 in %3 matches</source>
        <translation>Stärke %1: %2 in %3 Matches</translation>
    </message>
    <message>
        <source>strength %1: no match yet</source>
        <translation>Stärke %1: noch kein Match</translation>
    </message>
    <message>
        <source>the bot&apos;s own name</source>
        <translation>der eigene Name des Bots</translation>
    </message>
    <message>
        <source>the control character with the code 1 goes away, and may take what follows along</source>
        <translation>das Steuerzeichen mit dem Code 1 fällt weg und reißt womöglich mit, was folgt</translation>
    </message>
    <message>
        <source>the document of a bot is wanted here.</source>
        <translation>Hier wird das Dokument eines Bots erwartet.</translation>
    </message>
    <message>
        <source>the file name of the map, not its title</source>
        <translation>der Dateiname der Karte, nicht ihr Titel</translation>
    </message>
    <message>
        <source>the game cannot mix the fraction of level %1 with the whole number %2 of level %3. Use fractions, or whole numbers from 2 on, for both.</source>
        <translation>Das Spiel kann die Kommazahl von Stufe %1 nicht mit der ganzen Zahl %2 von Stufe %3 mischen. Nehmen Sie für beide Werte Kommazahlen, oder ganze Zahlen ab 2.</translation>
    </message>
    <message>
        <source>the game does not ask for lines of this type.</source>
        <translation>Das Spiel fragt nach keinen Zeilen für diesen Anlass.</translation>
    </message>
    <message>
        <source>the game&apos;s</source>
        <translation>aus dem Spiel</translation>
    </message>
    <message>
        <source>the name of some opponent</source>
        <translation>der Name irgendeines Gegners</translation>
    </message>
    <message>
        <source>the name of some weapon</source>
        <translation>der Name irgendeiner Waffe</translation>
    </message>
    <message>
        <source>the name of the attacker</source>
        <translation>der Name des Angreifers</translation>
    </message>
    <message>
        <source>the name of the bot&apos;s last victim, or of anybody before its first kill</source>
        <translation>der Name seines letzten Opfers oder, vor seinem ersten Abschuss, irgendjemandes</translation>
    </message>
    <message>
        <source>the name of the enemy</source>
        <translation>der Name des Gegners</translation>
    </message>
    <message>
        <source>the name of the first in score</source>
        <translation>der Name des Punktbesten</translation>
    </message>
    <message>
        <source>the name of the killer</source>
        <translation>der Name dessen, der den Bot getötet hat</translation>
    </message>
    <message>
        <source>the name of the last in score</source>
        <translation>der Name des Letzten nach Punkten</translation>
    </message>
    <message>
        <source>the name of the victim</source>
        <translation>der Name des Opfers</translation>
    </message>
    <message>
        <source>the number in line %1</source>
        <translation>Zahl in Zeile %1</translation>
    </message>
    <message>
        <source>the text has a character that the game&apos;s code page lacks.</source>
        <translation>Der Text hat ein Zeichen, das der Zeichensatz des Spiels nicht enthält.</translation>
    </message>
    <message>
        <source>the text has a line break.</source>
        <translation>Der Text hat einen Zeilenumbruch.</translation>
    </message>
    <message>
        <source>the weapon that was used</source>
        <translation>die benutzte Waffe</translation>
    </message>
    <message>
        <source>the words &quot;[invalid var]&quot;</source>
        <translation>die Wörter „[invalid var]“</translation>
    </message>
    <message>
        <source>there is no such chat type.</source>
        <translation>Diesen Chattyp gibt es nicht.</translation>
    </message>
    <message>
        <source>there is no such key.</source>
        <translation>Diesen Schlüssel gibt es nicht.</translation>
    </message>
    <message>
        <source>there is no such kind.</source>
        <translation>Diese Art gibt es nicht.</translation>
    </message>
    <message>
        <source>there is no such parameter.</source>
        <translation>Diesen Parameter gibt es nicht.</translation>
    </message>
    <message>
        <source>this is no value of a bot.</source>
        <translation>Das ist kein Wert eines Bots.</translation>
    </message>
    <message>
        <source>this number has more digits than can be held.</source>
        <translation>Diese Zahl hat mehr Stellen, als aufgenommen werden können.</translation>
    </message>
    <message>
        <source>turns faster than the slowest bots</source>
        <translation>dreht sich schneller als die langsamsten Bots</translation>
    </message>
    <message>
        <source>variable %1</source>
        <translation>Variable %1</translation>
    </message>
    <message>
        <source>waits half its reaction time before it aims</source>
        <translation>wartet vor dem Zielen die halbe Reaktionszeit</translation>
    </message>
    <message>
        <source>weapon weight file</source>
        <translation>Gewichtsdatei der Waffen</translation>
    </message>
    <message>
        <source>when the bot has hit its enemy, who lives and is out of sight.</source>
        <translation>wenn der Bot seinen Gegner getroffen hat und dieser noch lebt und außer Sicht ist.</translation>
    </message>
    <message>
        <source>when the bot is hit in a fight and lives, and its enemy is out of sight and not the host of a local game.</source>
        <translation>wenn der Bot im Kampf getroffen wird und überlebt und sein Gegner außer Sicht und nicht der Gastgeber eines lokalen Spiels ist.</translation>
    </message>
    <message>
        <source>when the bot is hit while it types an answer, but not by the host of a local game.</source>
        <translation>wenn der Bot getroffen wird, während er eine Antwort tippt, aber nicht vom Gastgeber eines lokalen Spiels.</translation>
    </message>
    <message>
        <source>when the bot leaves, the game no longer counts it in.</source>
        <translation>Wenn der Bot geht, zählt ihn das Spiel schon nicht mehr mit.</translation>
    </message>
    <message>
        <source>with a password</source>
        <translation>mit einem Passwort</translation>
    </message>
    <message>
        <source>with bot_challenge on, the view snaps to the enemy</source>
        <translation>mit bot_challenge springt der Blick auf den Gegner</translation>
    </message>
    <message>
        <source>&apos;%1&apos;</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 was changed since the bot was read or saved here, and nothing that it holds was edited here. To write it takes that change away.</source>
        <translation>%1 wurde geändert, seit der Bot hier gelesen oder gespeichert wurde, und nichts von ihrem Inhalt wurde hier bearbeitet. Wird die Datei geschrieben, geht diese Änderung verloren.</translation>
    </message>
    <message>
        <source>%1
were changed since the bot was read or saved here, and nothing that they hold was edited here. To write them takes these changes away.</source>
        <translation>%1
wurden geändert, seit der Bot hier gelesen oder gespeichert wurde, und nichts von ihrem Inhalt wurde hier bearbeitet. Werden die Dateien geschrieben, gehen diese Änderungen verloren.</translation>
    </message>
    <message>
        <source>Close it there, then save again. This file was not changed.</source>
        <translation>Schließen Sie sie dort und speichern Sie dann erneut. Diese Datei wurde nicht geändert.</translation>
    </message>
    <message>
        <source>It stays open in the window, unsaved; what its author wrote in its files beside its values, such as comments, goes with them.</source>
        <translation>Er bleibt im Fenster offen, ungespeichert; was sein Autor in seinen Dateien außer den Werten geschrieben hat, etwa Kommentare, geht mit ihnen verloren.</translation>
    </message>
    <message>
        <source>Overwrite it</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Overwrite them</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>The old file is kept beside the package as NAME.bak when it is written anew.</source>
        <translation>Wird sie neu geschrieben, bleibt die alte Datei neben dem Paket als NAME.bak erhalten.</translation>
    </message>
    <message>
        <source>In line %1 a comment stands right behind the key, and the game takes both for one word, &quot;%2&quot;. Put a blank in front of the comment first.</source>
        <translation>In Zeile %1 steht ein Kommentar direkt hinter dem Schlüssel, und das Spiel nimmt beides für ein Wort, &quot;%2&quot;. Setzen Sie zuerst ein Leerzeichen vor den Kommentar.</translation>
    </message>
    <message>
        <source>By a link this file and %1 are one, and an edit would change both. Make two files of them first.</source>
        <translation>Durch eine Verknüpfung sind diese Datei und %1 ein und dieselbe, und eine Bearbeitung würde beide ändern. Machen Sie zuerst zwei Dateien daraus.</translation>
    </message>
    <message>
        <source>The game would not read the new line: %1</source>
        <translation>Das Spiel würde die neue Zeile nicht lesen: %1</translation>
    </message>
    <message>
        <source>The game&apos;s files end at a sign with the number 0. Take it out.</source>
        <translation>Die Dateien des Spiels enden an einem Zeichen mit der Nummer 0. Nehmen Sie es heraus.</translation>
    </message>
    <message>
        <source>The game does not read these lines for the bot, whose characteristic file asks for the chat &quot;%1&quot;: the file has the chat &quot;%2&quot;.</source>
        <translation>Das Spiel liest diese Zeilen für den Bot nicht, dessen Charakterdatei nach dem Chat &quot;%1&quot; fragt: Die Datei hat den Chat &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The game does not read this file for the bot: behind aifile %1 names %2.</source>
        <translation>Das Spiel liest diese Datei für den Bot nicht: Hinter aifile nennt %1 die Datei %2.</translation>
    </message>
</context>
</TS>
