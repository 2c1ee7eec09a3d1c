<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Orvanta</name>
    <message>
        <source>Show the axis cross</source>
        <translation>Achsenkreuz anzeigen</translation>
    </message>
    <message>
        <source>Show the view cube</source>
        <translation>Ansichtswürfel anzeigen</translation>
    </message>
    <message>
        <source>Open models in perspective</source>
        <translation>Modelle perspektivisch öffnen</translation>
    </message>
    <message>
        <source>Show the model tree</source>
        <translation>Modellbaum anzeigen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Other colour...</source>
        <translation>&amp;Andere Farbe...</translation>
    </message>
    <message>
        <source>&amp;As in the file</source>
        <translation>&amp;Wie in der Datei</translation>
    </message>
    <message>
        <source>&amp;Opaque</source>
        <translation>&amp;Undurchsichtig</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No model has been opened yet</source>
        <translation>Es wurde noch kein Modell geöffnet</translation>
    </message>
    <message>
        <source>Open a model</source>
        <translation>Modell öffnen</translation>
    </message>
    <message>
        <source>STEP, IGES, BREP, STL, OBJ or glTF. Drop a file here, or choose one.</source>
        <translation>STEP, IGES, BREP, STL, OBJ oder glTF. Legen Sie eine Datei hier ab, oder wählen Sie eine aus.</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open one of the models opened last</source>
        <translation>Eines der zuletzt geöffneten Modelle öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close the model</source>
        <translation>Das Modell schließen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Save the model in another format</source>
        <translation>Das Modell in einem anderen Format speichern</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Save a picture of the view</source>
        <translation>Ein Bild der Ansicht speichern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Show the whole model</source>
        <translation>Das ganze Modell zeigen</translation>
    </message>
    <message>
        <source>Fit selection</source>
        <translation>Auswahl einpassen</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <translation>Die ausgewählten Teile zeigen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Bring the model nearer</source>
        <translation>Das Modell näher holen</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Move the model away</source>
        <translation>Das Modell weiter weg rücken</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspektive</translation>
    </message>
    <message>
        <source>Change between perspective and parallel projection</source>
        <translation>Zwischen perspektivischer und paralleler Projektion wechseln</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorne</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <translation>Von vorne ansehen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <translation>Von hinten ansehen</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <translation>Von links ansehen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <translation>Von rechts ansehen</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Look from the top</source>
        <translation>Von oben ansehen</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Look from below</source>
        <translation>Von unten ansehen</translation>
    </message>
    <message>
        <source>Isometric</source>
        <translation>Isometrisch</translation>
    </message>
    <message>
        <source>Look from a corner</source>
        <translation>Von einer Ecke aus ansehen</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <translation>Die ausgewählten Teile ausblenden</translation>
    </message>
    <message>
        <source>Isolate</source>
        <translation>Isolieren</translation>
    </message>
    <message>
        <source>Show nothing but the selected parts</source>
        <translation>Nur die ausgewählten Teile zeigen</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <translation>Alle Teile anzeigen</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colour the selected parts</source>
        <translation>Die ausgewählten Teile einfärben</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Make the selected parts transparent</source>
        <translation>Die ausgewählten Teile durchsichtig machen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Move the selected parts</source>
        <translation>Die ausgewählten Teile verschieben</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Undo all hiding, colouring, transparency and moving</source>
        <translation>Ausblendungen, Farben, Transparenz und Verschiebungen zurücksetzen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select the whole model</source>
        <translation>Das ganze Modell auswählen</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <translation>Die Auswahl aufheben</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Change the options</source>
        <translation>Die Optionen ändern</translation>
    </message>
    <message>
        <source>Model tree</source>
        <translation>Modellbaum</translation>
    </message>
    <message>
        <source>Show or hide the model tree</source>
        <translation>Den Modellbaum ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Side bar</source>
        <translation>Seitenleiste</translation>
    </message>
    <message>
        <source>Show or hide the side bar</source>
        <translation>Die Seitenleiste ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Next pane</source>
        <translation>Nächster Bereich</translation>
    </message>
    <message>
        <source>Go round from the model tree to the view, the side bar and the ribbon</source>
        <translation>Reihum vom Modellbaum zur Ansicht, zur Seitenleiste und zum Menüband gehen</translation>
    </message>
    <message>
        <source>Previous pane</source>
        <translation>Vorheriger Bereich</translation>
    </message>
    <message>
        <source>Go round the other way</source>
        <translation>Reihum in der anderen Richtung gehen</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>&amp;Back to start</source>
        <translation>&amp;Zurück an den Anfang</translation>
    </message>
    <message>
        <source>Model view</source>
        <translation>Modellansicht</translation>
    </message>
    <message>
        <source>The model can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>Das Modell kann nicht gezeichnet werden: Es gibt keinen Bildschirm mit OpenGL.</translation>
    </message>
    <message>
        <source>Find a part</source>
        <translation>Teil suchen</translation>
    </message>
    <message>
        <source>No model</source>
        <translation>Kein Modell</translation>
    </message>
    <message>
        <source>This pane is shown in a window of its own. Close that window to bring it back.</source>
        <translation>Dieser Bereich steht in einem eigenen Fenster. Schließen Sie es, um ihn zurückzuholen.</translation>
    </message>
    <message>
        <source>Show this pane in a window of its own</source>
        <translation>Diesen Bereich in einem eigenen Fenster zeigen</translation>
    </message>
    <message>
        <source>Keep the side bar open</source>
        <translation>Die Seitenleiste offen halten</translation>
    </message>
    <message>
        <source>Hide the side bar while it is not used</source>
        <translation>Die Seitenleiste ausblenden, solange sie nicht gebraucht wird</translation>
    </message>
    <message>
        <source>Show the panels before</source>
        <translation>Die vorherigen Gruppen zeigen</translation>
    </message>
    <message>
        <source>Show the panels after</source>
        <translation>Die folgenden Gruppen zeigen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Standard views</source>
        <translation>Standardansichten</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>The picture can&apos;t be drawn: there is no display with OpenGL.</source>
        <translation>Das Bild kann nicht gezeichnet werden: Es gibt keinen Bildschirm mit OpenGL.</translation>
    </message>
    <message>
        <source>There is nothing to draw. Open a model first.</source>
        <translation>Es gibt nichts zu zeichnen. Öffnen Sie zuerst ein Modell.</translation>
    </message>
    <message>
        <source>No exporter is installed. Install Orvanta again and start it anew.</source>
        <translation>Es ist kein Exportmodul installiert. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The action was broken off by an unexpected error. Try again.</source>
        <translation>Der Vorgang wurde durch einen unerwarteten Fehler abgebrochen. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot;... Press Esc to stop.</source>
        <translation>„%1“ wird geöffnet... Esc bricht ab.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The system&apos;s language</source>
        <translation>Sprache des Systems</translation>
    </message>
    <message>
        <source>The new language is used when Orvanta is started again.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start von Orvanta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; doesn&apos;t exist. Check the path or choose another file.</source>
        <translation>„%1“ gibt es nicht. Prüfen Sie den Pfad, oder wählen Sie eine andere Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a folder. Choose a model file in it.</source>
        <translation>„%1“ ist ein Ordner. Wählen Sie darin eine Modelldatei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is of a type that can&apos;t be opened. Open STEP, IGES, BREP, STL, OBJ, glTF or Orvanta files.</source>
        <translation>„%1“ hat einen Dateityp, der nicht geöffnet werden kann. Öffnen Sie STEP-, IGES-, BREP-, STL-, OBJ-, glTF- oder Orvanta-Dateien.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read. Check that you may read it and that it isn&apos;t in use.</source>
        <translation>„%1“ kann nicht gelesen werden. Prüfen Sie, ob Sie die Datei lesen dürfen und ob sie in Gebrauch ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is empty. Export the model again and open the new file.</source>
        <translation>„%1“ ist leer. Exportieren Sie das Modell erneut, und öffnen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; ends too early: a part of it is missing. Copy or export the file again.</source>
        <translation>„%1“ endet zu früh: Ein Teil fehlt. Kopieren oder exportieren Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t what its ending says. Check the file, or export the model again.</source>
        <translation>„%1“ ist nicht, was die Endung sagt. Prüfen Sie die Datei, oder exportieren Sie das Modell erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be read: its content is damaged. Export the model again and open the new file.</source>
        <translation>„%1“ kann nicht gelesen werden: Der Inhalt ist beschädigt. Exportieren Sie das Modell erneut, und öffnen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t whole: entries that others refer to are missing. Copy or export the file again.</source>
        <translation>„%1“ ist nicht vollständig: Es fehlen Einträge, auf die andere verweisen. Kopieren oder exportieren Sie die Datei erneut.</translation>
    </message>
    <message>
        <source>Opening &quot;%1&quot; was stopped.</source>
        <translation>Das Öffnen von „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no part with surfaces. Export the model with its solids and open the new file.</source>
        <translation>„%1“ enthält kein Teil mit Flächen. Exportieren Sie das Modell mit seinen Volumenkörpern, und öffnen Sie die neue Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; needs more memory than there is. Close other programs and try again.</source>
        <translation>„%1“ braucht mehr Speicher, als vorhanden ist. Schließen Sie andere Programme, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be opened. Check the file and try again.</source>
        <translation>„%1“ kann nicht geöffnet werden. Prüfen Sie die Datei, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is open.</source>
        <translation>„%1“ ist geöffnet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was saved.</source>
        <translation>„%1“ wurde gespeichert.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is a folder. Choose a name for the file.</source>
        <translation>„%1“ kann nicht geschrieben werden: Es ist ein Ordner. Wählen Sie einen Namen für die Datei.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its folder doesn&apos;t exist. Choose another folder.</source>
        <translation>„%1“ kann nicht geschrieben werden: Den Ordner gibt es nicht. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: it is protected against writing. Choose another name.</source>
        <translation>„%1“ kann nicht geschrieben werden: Die Datei ist schreibgeschützt. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: you may not write to its folder. Choose another folder.</source>
        <translation>„%1“ kann nicht geschrieben werden: Sie dürfen nicht in den Ordner schreiben. Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the disk is full. Make room, or choose another disk.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger ist voll. Schaffen Sie Platz, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk is read-only. Choose another disk.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger lässt sich nur lesen. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: your quota is used up. Make room, or choose another disk.</source>
        <translation>„%1“ kann nicht geschrieben werden: Ihr Speicherkontingent ist aufgebraucht. Schaffen Sie Platz, oder wählen Sie einen anderen Datenträger.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its disk takes no file of this size. Choose another disk.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Datenträger nimmt keine Datei dieser Größe auf. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: its name is too long. Choose a shorter name.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Name ist zu lang. Wählen Sie einen kürzeren Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the path of its folder is too long. Choose a folder with a shorter path.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Pfad des Ordners ist zu lang. Wählen Sie einen Ordner mit kürzerem Pfad.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: the memory is full. Close other programs and try again.</source>
        <translation>„%1“ kann nicht geschrieben werden: Der Arbeitsspeicher ist voll. Schließen Sie andere Programme, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: the model is too large for this format. Choose another format.</source>
        <translation>„%1“ kann nicht gespeichert werden: Das Modell ist zu groß für dieses Format. Wählen Sie ein anderes Format.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and the free space, or choose another place.</source>
        <translation>„%1“ kann nicht geschrieben werden. Prüfen Sie den Ordner und den freien Platz, oder wählen Sie einen anderen Ort.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written. Check the folder and that the name ends in .png or .jpg.</source>
        <translation>„%1“ kann nicht geschrieben werden. Prüfen Sie den Ordner und ob der Name auf .png oder .jpg endet.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be saved: its exporter isn&apos;t installed. Choose another format.</source>
        <translation>„%1“ kann nicht gespeichert werden: Das Exportmodul ist nicht installiert. Wählen Sie ein anderes Format.</translation>
    </message>
    <message>
        <source>There is nothing to save in this format. Open a model with parts first.</source>
        <translation>In diesem Format gibt es nichts zu speichern. Öffnen Sie zuerst ein Modell mit Teilen.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is missing. Install Orvanta again and start it anew.</source>
        <translation>Die Bibliothek „%1“ fehlt. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; lacks the function &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Der Bibliothek „%1“ fehlt die Funktion „%2“. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no plug-in. The viewer works on without it; install the plug-in again to get it back.</source>
        <translation>Die Bibliothek „%1“ hat kein Zusatzmodul geliefert. Das Programm arbeitet ohne es weiter; installieren Sie es erneut, um es zurückzubekommen.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; made no object. Install Orvanta again and start it anew.</source>
        <translation>Die Bibliothek „%1“ hat kein Objekt geliefert. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The display offers no OpenGL. Install a graphics driver, or Mesa&apos;s software one.</source>
        <translation>Der Bildschirm bietet kein OpenGL. Installieren Sie einen Grafiktreiber oder den Softwaretreiber von Mesa.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Start the viewer from a desktop session.</source>
        <translation>Es gibt keinen Bildschirm zum Zeichnen. Starten Sie das Programm aus einer Desktopsitzung.</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Dark grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; can't be loaded: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Die Bibliothek „%1“ kann nicht geladen werden: „%2“. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start: &quot;%2&quot;. Install Orvanta again and start it anew.</source>
        <translation>Die Bibliothek „%1“ konnte nicht gestartet werden: „%2“. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to start. Install Orvanta again and start it anew.</source>
        <translation>Die Bibliothek „%1“ konnte nicht gestartet werden. Installieren Sie Orvanta erneut, und starten Sie es neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end: &quot;%2&quot;. Save your work and start Orvanta anew.</source>
        <translation>Die Bibliothek „%1“ wurde nicht richtig beendet: „%2“. Speichern Sie Ihre Arbeit, und starten Sie Orvanta neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; failed to end. Save your work and start Orvanta anew.</source>
        <translation>Die Bibliothek „%1“ wurde nicht richtig beendet. Speichern Sie Ihre Arbeit, und starten Sie Orvanta neu.</translation>
    </message>
    <message>
        <source>The library &quot;%1&quot; is no plug-in for the viewer's windows. Move it out of the folder &quot;%2&quot;.</source>
        <translation>Die Bibliothek „%1“ ist kein Zusatzmodul für die Fenster des Programms. Nehmen Sie sie aus dem Ordner „%2“.</translation>
    </message>
    <message>
        <source>The picture can't be drawn on this display. Check the graphics driver.</source>
        <translation>Das Bild kann auf diesem Bildschirm nicht gezeichnet werden. Prüfen Sie den Grafiktreiber.</translation>
    </message>
    <message>
        <source>The picture &quot;%1&quot; can't be written. Check the folder and that it ends in .png or .jpg.</source>
        <translation>Das Bild „%1“ kann nicht geschrieben werden. Prüfen Sie den Ordner und ob der Name auf .png oder .jpg endet.</translation>
    </message>
    <message>
        <source>There is no display to draw on. Install &quot;%1&quot; or start the viewer from a desktop session.</source>
        <translation>Es gibt keinen Bildschirm zum Zeichnen. Installieren Sie „%1“, oder starten Sie das Programm aus einer Desktopsitzung.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln part(s)</source>
        <translation>
            <numerusform>%Ln Teil</numerusform>
            <numerusform>%Ln Teile</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln triangle(s)</source>
        <translation>
            <numerusform>%Ln Dreieck</numerusform>
            <numerusform>%Ln Dreiecke</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln selected</source>
        <translation>
            <numerusform>%Ln ausgewählt</numerusform>
            <numerusform>%Ln ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Only one model can be opened at a time. Give one file.</source>
        <translation>Es kann nur ein Modell auf einmal geöffnet werden. Geben Sie eine Datei an.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; isn't known. Use --help to see all options.</source>
        <translation>Die Option „%1“ ist nicht bekannt. Mit --help werden alle Optionen angezeigt.</translation>
    </message>
    <message>
        <source>The option &quot;%1&quot; needs a value. Use --help to see all options.</source>
        <translation>Der Option „%1“ fehlt ein Wert. Mit --help werden alle Optionen angezeigt.</translation>
    </message>
    <message>
        <source>The language must be a code of two letters, such as &quot;%1&quot;.</source>
        <translation>Die Sprache muss ein Code aus zwei Buchstaben sein, zum Beispiel „%1“.</translation>
    </message>
    <message>
        <source>There is nothing to export or draw. Give a model file, too.</source>
        <translation>Es gibt nichts zu exportieren oder zu zeichnen. Geben Sie auch eine Modelldatei an.</translation>
    </message>
    <message>
        <source>There is no display to open a window on. Start it from a desktop session, or use --export or --screenshot.</source>
        <translation>Es gibt keinen Bildschirm für ein Fenster. Starten Sie das Programm aus einer Desktopsitzung, oder verwenden Sie --export oder --screenshot.</translation>
    </message>
    <message>
        <source>Usage: orvanta [FILE] [OPTION]...</source>
        <translation>Aufruf: orvanta [FILE] [OPTION]...</translation>
    </message>
    <message>
        <source>Views and reviews 3D CAD models: STEP, IGES, BREP, STL, OBJ and glTF.</source>
        <translation>Zeigt und prüft 3D-CAD-Modelle: STEP, IGES, BREP, STL, OBJ und glTF.</translation>
    </message>
    <message>
        <source>address of the cloud service</source>
        <translation>Adresse des Cloud-Dienstes</translation>
    </message>
    <message>
        <source>where the user's data lies</source>
        <translation>Ordner für die Daten des Benutzers</translation>
    </message>
    <message>
        <source>language, two letters: en, fr, de, ja, ko, zh, es or pt</source>
        <translation>Sprache, zwei Buchstaben: en, fr, de, ja, ko, zh, es oder pt</translation>
    </message>
    <message>
        <source>write FILE to OUT in the format of its ending and exit; may be repeated</source>
        <translation>FILE im Format der Endung nach OUT schreiben und beenden; mehrfach möglich</translation>
    </message>
    <message>
        <source>draw FILE to a picture (.png, .jpg) and exit</source>
        <translation>FILE als Bild (.png, .jpg) zeichnen und beenden</translation>
    </message>
    <message>
        <source>show this text and exit</source>
        <translation>diesen Text anzeigen und beenden</translation>
    </message>
    <message>
        <source>show the version and exit</source>
        <translation>die Version anzeigen und beenden</translation>
    </message>
</context>
</TS>
