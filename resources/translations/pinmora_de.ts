<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Wizard</name>
    <message>
        <source>There is no log to set the clock by</source>
        <translation>Es gibt kein Log, nach dem sich die Uhr stellen ließe</translation>
    </message>
    <message>
        <source>Go back to load one, or choose the map and put your photos where they were taken.</source>
        <translation>Gehen Sie zurück, um eines zu laden, oder wählen Sie die Karte und setzen Sie Ihre Fotos dorthin, wo sie aufgenommen wurden.</translation>
    </message>
    <message>
        <source>Was the camera’s clock right?</source>
        <translation>Ging die Kamerauhr richtig?</translation>
    </message>
    <message>
        <source>A photo gets the position that the log has for the moment it was taken. If the camera’s clock was off, say here how to find by how much.</source>
        <translation>Ein Foto erhält die Position, die das Log für den Moment der Aufnahme hat. Ging die Kamerauhr falsch, sagen Sie hier, wie sich herausfinden lässt, um wie viel.</translation>
    </message>
    <message>
        <source>Put your photos where they were taken</source>
        <translation>Setzen Sie Ihre Fotos dorthin, wo sie aufgenommen wurden</translation>
    </message>
    <message>
        <source>Select one photo or several, and click the map where they were taken. Press Next when all have their place.</source>
        <translation>Wählen Sie ein Foto oder mehrere aus und klicken Sie auf der Karte dorthin, wo sie aufgenommen wurden. Haben alle ihren Platz, drücken Sie „Weiter“.</translation>
    </message>
    <message>
        <source>Put one photo where it was taken</source>
        <translation>Setzen Sie ein Foto dorthin, wo es aufgenommen wurde</translation>
    </message>
    <message>
        <source>Choose a photo whose place you recognise and click the map there. Then press “Set From This Position”: the clock follows from the log.</source>
        <translation>Wählen Sie ein Foto, dessen Ort Sie erkennen, und klicken Sie auf der Karte dorthin. Drücken Sie dann „Nach dieser Position stellen“: Die Uhr ergibt sich aus dem Log.</translation>
    </message>
    <message>
        <source>Add the photos first: the step “Photos” leads there.</source>
        <translation>Fügen Sie zuerst die Fotos hinzu: Der Schritt „Fotos“ führt dorthin.</translation>
    </message>
    <message>
        <source>Save Photos writes tagged copies into a folder of your choice. The originals stay as they are.</source>
        <translation>„Fotos speichern“ schreibt Kopien mit ihren Positionen in einen Ordner Ihrer Wahl. Die Originale bleiben, wie sie sind.</translation>
    </message>
    <message>
        <source>Apply the log to all photos</source>
        <translation>Wenden Sie das Log auf alle Fotos an</translation>
    </message>
    <message>
        <source>Every photo gets the position that the log has for its corrected time. Look at a few on the map, then save.</source>
        <translation>Jedes Foto erhält die Position, die das Log für seine korrigierte Zeit hat. Sehen Sie sich einige auf der Karte an, dann speichern Sie.</translation>
    </message>
    <message>
        <source>Every photo has its place</source>
        <translation>Jedes Foto hat seinen Platz</translation>
    </message>
    <message>
        <source>Put your photos on the map</source>
        <translation>Bringen Sie Ihre Fotos auf die Karte</translation>
    </message>
    <message>
        <source>In a few steps they get the places where they were taken. You can go back at any time.</source>
        <translation>In wenigen Schritten erhalten sie die Orte, an denen sie aufgenommen wurden. Sie können jederzeit zurückgehen.</translation>
    </message>
    <message>
        <source>Which photos?</source>
        <translation>Welche Fotos?</translation>
    </message>
    <message>
        <source>Add the photos of one outing, or a whole folder. They are only read, never changed.</source>
        <translation>Fügen Sie die Fotos eines Ausflugs hinzu oder einen ganzen Ordner. Sie werden nur gelesen, nie verändert.</translation>
    </message>
    <message>
        <source>Is there a GPS log?</source>
        <translation>Gibt es ein GPS-Log?</translation>
    </message>
    <message>
        <source>A log of a GPS receiver or a phone knows where you were, and when. No log? Press Next: you can put photos on the map by hand.</source>
        <translation>Das Log eines GPS-Empfängers oder Telefons weiß, wo Sie wann waren. Kein Log? Drücken Sie „Weiter“: Sie können Fotos von Hand auf die Karte setzen.</translation>
    </message>
    <message>
        <source>A log of a GPS receiver or a phone knows where you were, and when. Load all logs of these photos, then press Next.</source>
        <translation>Das Log eines GPS-Empfängers oder Telefons weiß, wo Sie wann waren. Laden Sie alle Logs dieser Fotos und drücken Sie dann „Weiter“.</translation>
    </message>
    <message>
        <source>Say where one photo was taken</source>
        <translation>Sagen Sie, wo ein Foto aufgenommen wurde</translation>
    </message>
    <message>
        <source>Choose a photo and type the latitude and longitude of its place. Pinmora finds the time the log passed there, and sets the clock by it.</source>
        <translation>Wählen Sie ein Foto und geben Sie Breite und Länge seines Ortes ein. Pinmora findet die Zeit, zu der das Log dort vorbeikam, und stellt die Uhr danach.</translation>
    </message>
    <message>
        <source>How far was the clock off?</source>
        <translation>Um wie viel ging die Uhr falsch?</translation>
    </message>
    <message>
        <source>Choose a photo and set hours, minutes and seconds: its place on the map follows. Add where the clock was slow, subtract where it was fast.</source>
        <translation>Wählen Sie ein Foto und stellen Sie Stunden, Minuten und Sekunden ein: Sein Platz auf der Karte folgt. Ging die Uhr nach, wird addiert; ging sie vor, wird subtrahiert.</translation>
    </message>
    <message>
        <source>There are no photos yet</source>
        <translation>Es gibt noch keine Fotos</translation>
    </message>
</context>
<context>
    <name>app</name>
    <message>
        <source>files cannot be handed over to this program by later starts.</source>
        <translation>Spätere Starts können diesem Programm keine Dateien übergeben.</translation>
    </message>
    <message>
        <source>another Pinmora has this library open and does not answer.</source>
        <translation>Ein anderes Pinmora hat diese Bibliothek geöffnet und antwortet nicht.</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Opens Pinmora and loads photos, folders of photos and GPS logs.</source>
        <translation>Öffnet Pinmora und lädt Fotos, Ordner mit Fotos und GPS-Logs.</translation>
    </message>
    <message>
        <source>A Pinmora that runs already gets them.</source>
        <translation>Läuft Pinmora schon, erhält es sie.</translation>
    </message>
    <message>
        <source>this text</source>
        <translation>dieser Text</translation>
    </message>
    <message>
        <source>the version</source>
        <translation>die Version</translation>
    </message>
    <message>
        <source>pinmora-tag does the same job without windows.</source>
        <translation>pinmora-tag erledigt die gleiche Arbeit ohne Fenster.</translation>
    </message>
    <message>
        <source>there is no option %1</source>
        <translation>es gibt keine Option %1</translation>
    </message>
    <message>
        <source>files that came while the program ended were not loaded.</source>
        <translation>Dateien, die beim Beenden des Programms kamen, wurden nicht geladen.</translation>
    </message>
</context>
<context>
    <name>coords</name>
    <message>
        <source>Minutes are a number from 0 to below 60, such as 22.95.</source>
        <translation>Minuten sind eine Zahl von 0 bis unter 60, etwa 22.95.</translation>
    </message>
    <message>
        <source>Minutes are a whole number from 0 to 59.</source>
        <translation>Minuten sind eine ganze Zahl von 0 bis 59.</translation>
    </message>
    <message>
        <source>Seconds are a number from 0 to below 60, such as 57.5.</source>
        <translation>Sekunden sind eine Zahl von 0 bis unter 60, etwa 57.5.</translation>
    </message>
    <message>
        <source>Type Position</source>
        <translation>Position eingeben</translation>
    </message>
    <message>
        <source>The latitude is a number from -90 to 90, such as 47.3825.</source>
        <translation>Die Breite ist eine Zahl von -90 bis 90, etwa 47.3825.</translation>
    </message>
    <message>
        <source>Degrees of latitude are a whole number from 0 to 90.</source>
        <translation>Breitengrade sind eine ganze Zahl von 0 bis 90.</translation>
    </message>
    <message>
        <source>The latitude ends at 90 degrees.</source>
        <translation>Die Breite endet bei 90 Grad.</translation>
    </message>
    <message>
        <source>The longitude is a number from -180 to 180, such as 8.5417.</source>
        <translation>Die Länge ist eine Zahl von -180 bis 180, etwa 8.5417.</translation>
    </message>
    <message>
        <source>Degrees of longitude are a whole number from 0 to 180.</source>
        <translation>Längengrade sind eine ganze Zahl von 0 bis 180.</translation>
    </message>
    <message>
        <source>The longitude ends at 180 degrees.</source>
        <translation>Die Länge endet bei 180 Grad.</translation>
    </message>
</context>
<context>
    <name>gps</name>
    <message>
        <source>Load GPS Data</source>
        <translation>GPS-Daten laden</translation>
    </message>
    <message>
        <source>%1 could not be read: %2.</source>
        <translation>%1 konnte nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Error!</source>
        <translation>Fehler!</translation>
    </message>
    <message>
        <source>GPS logs</source>
        <translation>GPS-Logs</translation>
    </message>
    <message>
        <source>Loading GPS data</source>
        <translation>GPS-Daten werden geladen</translation>
    </message>
    <message>
        <source>Loading %1 of %2</source>
        <translation>%1 von %2 wird geladen</translation>
    </message>
    <message>
        <source>point without time</source>
        <translation>Punkt ohne Zeit</translation>
    </message>
    <message>
        <source>point with an empty time</source>
        <translation>Punkt mit leerer Zeit</translation>
    </message>
    <message>
        <source>There was an error parsing the GPX file.</source>
        <translation>Die GPX-Datei konnte nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n points or sentences could not be used, the first in line %1: %2</source>
        <comment>%n point or sentence could not be used, in line %1: %2</comment>
        <extracomment>%1 is the number of the line, %2 the line&apos;s text</extracomment>
        <translation>
            <numerusform>%n Punkt oder Satz in Zeile %1 war nicht zu verwenden: %2</numerusform>
            <numerusform>%n Punkte oder Sätze waren nicht zu verwenden, der erste in Zeile %1: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>There was an error parsing the GPS data file. File is not GPX or NMEA</source>
        <translation>Die Datei mit GPS-Daten konnte nicht gelesen werden. Sie ist weder GPX noch NMEA</translation>
    </message>
</context>
<context>
    <name>map</name>
    <message>
        <source>Place on Map</source>
        <translation>Auf die Karte setzen</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Markierung setzen</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Markierung entfernen</translation>
    </message>
    <message>
        <source>Remove Markers</source>
        <translation>Markierungen entfernen</translation>
    </message>
    <message>
        <source>Add Markers</source>
        <translation>Markierungen setzen</translation>
    </message>
</context>
<context>
    <name>matching</name>
    <message>
        <source>Step Clock Offset</source>
        <translation>Kamerauhr schrittweise stellen</translation>
    </message>
    <message>
        <source>Change Sign of Clock Offset</source>
        <translation>Vorzeichen der Uhrkorrektur ändern</translation>
    </message>
    <message>
        <source>Set Camera Clock</source>
        <translation>Kamerauhr stellen</translation>
    </message>
    <message>
        <source>Give Camera Its Own Clock</source>
        <translation>Kamera eine eigene Uhr geben</translation>
    </message>
    <message>
        <source>Use Common Clock</source>
        <translation>Gemeinsame Uhr verwenden</translation>
    </message>
    <message>
        <source>Turn Camera Clock</source>
        <translation>Kamerauhr drehen</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Markierung entfernen</translation>
    </message>
    <message>
        <source>Match Photo</source>
        <translation>Foto abgleichen</translation>
    </message>
    <message>
        <source>Apply GPS Data to Photos</source>
        <translation>GPS-Daten auf Fotos anwenden</translation>
    </message>
    <message>
        <source>Applying to GPS data to photos</source>
        <translation>GPS-Daten werden auf die Fotos angewendet</translation>
    </message>
    <message>
        <source>Processing %1 of %2</source>
        <translation>%1 von %2 wird bearbeitet</translation>
    </message>
    <message>
        <source>Place Between Neighbours</source>
        <translation>Zwischen Nachbarn setzen</translation>
    </message>
    <message>
        <source>Place at Nearest Point</source>
        <translation>An den nächsten Punkt setzen</translation>
    </message>
</context>
<context>
    <name>persistence</name>
    <message>
        <source>there is no kind of record called %1</source>
        <translation>es gibt keine Art von Eintrag mit dem Namen %1</translation>
    </message>
    <message>
        <source>%1 has no id</source>
        <translation>%1 hat keine Kennung</translation>
    </message>
    <message>
        <source>%1 is no id</source>
        <translation>%1 ist keine Kennung</translation>
    </message>
    <message>
        <source>%1 is no value of %2</source>
        <translation>%1 ist kein Wert von %2</translation>
    </message>
    <message>
        <source>%1 is no id for %2</source>
        <translation>%1 ist keine Kennung für %2</translation>
    </message>
    <message>
        <source>%1 is there twice</source>
        <translation>%1 ist zweimal vorhanden</translation>
    </message>
    <message>
        <source>%1 has no key %2</source>
        <translation>%1 hat keinen Schlüssel %2</translation>
    </message>
    <message>
        <source>there is a record within a record</source>
        <translation>in einem Eintrag steht ein weiterer</translation>
    </message>
    <message>
        <source>there is text between the records</source>
        <translation>zwischen den Einträgen steht Text</translation>
    </message>
    <message>
        <source>this is no library but %1</source>
        <translation>dies ist keine Bibliothek, sondern %1</translation>
    </message>
    <message>
        <source>the library has the format version %1, this program reads %2</source>
        <translation>die Bibliothek hat die Formatversion %1, dieses Programm liest %2</translation>
    </message>
    <message>
        <source>a library says its version, state, next id and number of records</source>
        <translation>eine Bibliothek nennt Version, Zustand, nächste Kennung und Zahl der Einträge</translation>
    </message>
    <message>
        <source>the id %1 comes after %2 and before %3</source>
        <translation>die Kennung %1 kommt nach %2 und vor %3</translation>
    </message>
    <message>
        <source>%1.%2 leads to %3, which is no such record</source>
        <translation>%1.%2 führt zu %3, und das ist kein solcher Eintrag</translation>
    </message>
    <message>
        <source>there are %1 records, there should be %2</source>
        <translation>es gibt %1 Einträge, es sollten %2 sein</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>%1, line %2: %3.</source>
        <translation>%1, Zeile %2: %3.</translation>
    </message>
</context>
<context>
    <name>photos</name>
    <message>
        <source>No Selection</source>
        <translation>Keine Auswahl</translation>
    </message>
    <message>
        <source>Multiple Selection</source>
        <translation>Mehrere ausgewählt</translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>Typ: </translation>
    </message>
    <message>
        <source>Directory</source>
        <extracomment>what an entry of the file system is</extracomment>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Non-Directory</source>
        <translation>Kein Ordner</translation>
    </message>
    <message>
        <source>not readable as an image</source>
        <translation>nicht als Bild lesbar</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>no permission to read it</source>
        <translation>keine Berechtigung, sie zu lesen</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>neither a photo nor a GPS log by its name</source>
        <translation>dem Namen nach weder ein Foto noch ein GPS-Log</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Loading files</source>
        <translation>Dateien werden geladen</translation>
    </message>
    <message>
        <source>Load GPS Data</source>
        <translation>GPS-Daten laden</translation>
    </message>
    <message>
        <source>Loading photo %1 of %2</source>
        <translation>Foto %1 von %2 wird geladen</translation>
    </message>
</context>
<context>
    <name>pinmora::BrowserColumn</name>
    <message>
        <source>Empty</source>
        <extracomment>in the place of a folder&apos;s files</extracomment>
        <translation>Leer</translation>
    </message>
    <message>
        <source>You may not look into this folder</source>
        <translation>Sie dürfen in diesen Ordner nicht hineinsehen</translation>
    </message>
    <message>
        <source>This folder is no longer there</source>
        <translation>Diesen Ordner gibt es nicht mehr</translation>
    </message>
    <message>
        <source>This folder cannot be read</source>
        <translation>Dieser Ordner kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>pinmora::BrowserModel</name>
    <message>
        <source>%1, link to a folder</source>
        <translation>%1, Verweis auf einen Ordner</translation>
    </message>
    <message>
        <source>%1, link</source>
        <translation>%1, Verweis</translation>
    </message>
    <message>
        <source>%1, folder</source>
        <translation>%1, Ordner</translation>
    </message>
</context>
<context>
    <name>pinmora::CameraRow</name>
    <message>
        <source>%1, %2</source>
        <extracomment>how many photos, and when they were taken</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
    <message>
        <source>Common clock</source>
        <translation>Gemeinsame Uhr</translation>
    </message>
    <message>
        <source>Common clock, %1</source>
        <translation>Gemeinsame Uhr, %1</translation>
    </message>
    <message>
        <source>Own clock</source>
        <translation>Eigene Uhr</translation>
    </message>
    <message>
        <source>(not told)</source>
        <translation>(nicht angegeben)</translation>
    </message>
    <message>
        <source>%1 has its own clock</source>
        <translation>%1 hat eine eigene Uhr</translation>
    </message>
    <message>
        <source>These photos do not tell what camera took them</source>
        <translation>Diese Fotos sagen nicht, welche Kamera sie aufgenommen hat</translation>
    </message>
    <message>
        <source>Sets the clock of this camera alone, and remembers it</source>
        <translation>Stellt nur die Uhr dieser Kamera und merkt es sich</translation>
    </message>
</context>
<context>
    <name>pinmora::CamerasDialog</name>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>All go by one clock unless a camera has its own, which is remembered for the next outing.</source>
        <translation>Alle richten sich nach einer Uhr, sofern eine Kamera keine eigene hat. Eine eigene bleibt für den nächsten Ausflug gemerkt.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>pinmora::ClockPage</name>
    <message>
        <source>I know where one of the photos was taken: show me the map</source>
        <translation>Ich weiß, wo eines der Fotos aufgenommen wurde: Zeige mir die Karte</translation>
    </message>
    <message>
        <source>Choose a photo, put the marker where it was taken. Pinmora finds the time the log passed there.</source>
        <translation>Wählen Sie ein Foto und setzen Sie die Markierung dorthin, wo es aufgenommen wurde. Pinmora findet die Zeit, zu der das Log dort vorbeikam.</translation>
    </message>
    <message>
        <source>I know its latitude and longitude</source>
        <translation>Ich kenne Breite und Länge eines Fotos</translation>
    </message>
    <message>
        <source>Type the position of one photo, for example from a signpost or another device.</source>
        <translation>Geben Sie die Position eines Fotos ein, etwa von einem Wegweiser oder einem anderen Gerät.</translation>
    </message>
    <message>
        <source>I know how far the camera’s clock was off</source>
        <translation>Ich weiß, um wie viel die Kamerauhr falsch ging</translation>
    </message>
    <message>
        <source>Hours, minutes and seconds; for example one hour for a forgotten summer time.</source>
        <translation>Stunden, Minuten und Sekunden; zum Beispiel eine Stunde für eine vergessene Sommerzeit.</translation>
    </message>
    <message>
        <source>The clock was right</source>
        <translation>Die Uhr ging richtig</translation>
    </message>
    <message>
        <source>Go on and apply the log to all photos.</source>
        <translation>Weitergehen und das Log auf alle Fotos anwenden.</translation>
    </message>
</context>
<context>
    <name>pinmora::ClockPanel</name>
    <message>
        <source>Choose a photo first.</source>
        <translation>Wählen Sie zuerst ein Foto.</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>Korrigiert</translation>
    </message>
    <message>
        <source>Corrected time</source>
        <translation>Korrigierte Zeit</translation>
    </message>
    <message>
        <source>Set From This Position</source>
        <translation>Nach dieser Position stellen</translation>
    </message>
    <message>
        <source>Finds the track point nearest to the photo&apos;s position and sets the clock by its time</source>
        <translation>Findet den Trackpunkt, der der Position des Fotos am nächsten liegt, und stellt die Uhr nach dessen Zeit</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>More ways to set the clock by a log</source>
        <translation>Weitere Wege, die Uhr nach einem Log zu stellen</translation>
    </message>
    <message>
        <source>Match by Time</source>
        <translation>Nach Zeit abgleichen</translation>
    </message>
    <message>
        <source>Takes the track point nearest in time and sets the clock by it</source>
        <translation>Nimmt den zeitlich nächsten Trackpunkt und stellt die Uhr danach</translation>
    </message>
    <message>
        <source>Or where the photo is known to be:</source>
        <translation>Oder bekannter Ort des Fotos:</translation>
    </message>
    <message>
        <source>Find</source>
        <extracomment>button: find the track point nearest to a position, and set the clock by it</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>not told by the photo</source>
        <translation>vom Foto nicht angegeben</translation>
    </message>
</context>
<context>
    <name>pinmora::ClockWords</name>
    <message>
        <source>Correction of the camera clock</source>
        <translation>Korrektur der Kamerauhr</translation>
    </message>
</context>
<context>
    <name>pinmora::ColumnBrowser</name>
    <message>
        <source>Folders and files in your home folder</source>
        <translation>Ordner und Dateien in Ihrem persönlichen Ordner</translation>
    </message>
</context>
<context>
    <name>pinmora::CoordinatePanel</name>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>%1, decimal degrees</source>
        <translation>%1, Dezimalgrad</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Markierung setzen</translation>
    </message>
    <message>
        <source>Puts a marker on the map for the selected photos, or takes it away with their position</source>
        <translation>Setzt für die ausgewählten Fotos eine Markierung auf die Karte oder nimmt sie mit deren Position weg</translation>
    </message>
    <message>
        <source>Deg, min</source>
        <translation>Grad, Min</translation>
    </message>
    <message>
        <source>Deg, min, sec</source>
        <translation>Grad, Min, Sek</translation>
    </message>
    <message>
        <source>%1, degrees</source>
        <translation>%1, Grad</translation>
    </message>
    <message>
        <source>%1, minutes</source>
        <translation>%1, Minuten</translation>
    </message>
    <message>
        <source>%1, whole degrees</source>
        <translation>%1, ganze Grad</translation>
    </message>
    <message>
        <source>%1, whole minutes</source>
        <translation>%1, ganze Minuten</translation>
    </message>
    <message>
        <source>%1, seconds</source>
        <translation>%1, Sekunden</translation>
    </message>
    <message>
        <source>%1, hemisphere</source>
        <translation>%1, Halbkugel</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>%1, hemisphere, by the seconds</source>
        <translation>%1, Halbkugel, bei den Sekunden</translation>
    </message>
</context>
<context>
    <name>pinmora::DetailsColumn</name>
    <message>
        <source>Choose a photo</source>
        <translation>Wählen Sie ein Foto</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>Corrected</source>
        <translation>Korrigiert</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Picture of the selected photo</source>
        <translation>Bild des ausgewählten Fotos</translation>
    </message>
    <message>
        <source>Double-click to see it at full size</source>
        <translation>Doppelklicken, um es in voller Größe zu sehen</translation>
    </message>
    <message>
        <source>The selected photo</source>
        <translation>Das ausgewählte Foto</translation>
    </message>
</context>
<context>
    <name>pinmora::DetailsTab</name>
    <message>
        <source>Picture of the selected photo</source>
        <translation>Bild des ausgewählten Fotos</translation>
    </message>
    <message>
        <source>Double-click to see it at full size</source>
        <translation>Doppelklicken, um es in voller Größe zu sehen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Province or state</source>
        <translation>Provinz oder Bundesland</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen…</translation>
    </message>
    <message>
        <source>Gives the selected photos, or all, new names for saving</source>
        <translation>Gibt den ausgewählten Fotos oder allen neue Namen für das Speichern</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Distance to the city</source>
        <translation>Entfernung zur Stadt</translation>
    </message>
    <message>
        <source>From the photo to the place of this name</source>
        <translation>Vom Foto zum Ort dieses Namens</translation>
    </message>
    <message>
        <source>Altitude in metres</source>
        <translation>Höhe in Metern</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>m</source>
        <extracomment>metres</extracomment>
        <translation>m</translation>
    </message>
    <message>
        <source>%1 begins another line</source>
        <extracomment>%1: keys, &quot;Shift+Return&quot;</extracomment>
        <translation>%1 beginnt eine neue Zeile</translation>
    </message>
</context>
<context>
    <name>pinmora::DownloadDialog</name>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Was gerade geschieht</translation>
    </message>
    <message>
        <source>How far it has come</source>
        <translation>Wie weit es gekommen ist</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Ends the download; nothing is written</source>
        <translation>Beendet das Herunterladen; nichts wird geschrieben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>pinmora::EmptyPhotos</name>
    <message>
        <source>Drop photos or a folder here</source>
        <translation>Legen Sie Fotos oder einen Ordner hier ab</translation>
    </message>
    <message>
        <source>and the GPS log of the same outing with them</source>
        <translation>und das GPS-Log desselben Ausflugs dazu</translation>
    </message>
    <message>
        <source>Add Photos…</source>
        <translation>Fotos hinzufügen…</translation>
    </message>
    <message>
        <source>Load GPS Data…</source>
        <translation>GPS-Daten laden…</translation>
    </message>
    <message>
        <source>Try it with the sample outing</source>
        <translation>Mit dem Beispielausflug ausprobieren</translation>
    </message>
</context>
<context>
    <name>pinmora::EndTool</name>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Gives every photo the position of the track point nearest in time</source>
        <translation>Gibt jedem Foto die Position des zeitlich nächsten Trackpunkts</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>New name, if you want one</source>
        <translation>Neuer Name, falls gewünscht</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Alle umbenennen</translation>
    </message>
    <message>
        <source>Numbers all photos by the time when they were taken</source>
        <translation>Nummeriert alle Fotos nach der Zeit ihrer Aufnahme</translation>
    </message>
    <message>
        <source>The copies are then called %1_1, %1_2, …</source>
        <translation>Die Kopien heißen dann %1_1, %1_2, …</translation>
    </message>
    <message>
        <source>trip</source>
        <extracomment>an example of a name: trip_1, trip_2</extracomment>
        <translation>ausflug</translation>
    </message>
</context>
<context>
    <name>pinmora::ErrorDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>pinmora::FullViewWindow</name>
    <message>
        <source>Picture at full size</source>
        <translation>Bild in voller Größe</translation>
    </message>
</context>
<context>
    <name>pinmora::GeneralPreferences</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Begin with the wizard</source>
        <translation>Mit dem Assistenten beginnen</translation>
    </message>
    <message>
        <source>From the next start on, the wizard comes up first, one question at a time; else the main window does.</source>
        <translation>Ab dem nächsten Start kommt zuerst der Assistent, der eine Frage nach der anderen stellt; sonst kommt das Hauptfenster.</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Light or dark, as the desktop is now.</source>
        <translation>Hell oder dunkel, wie der Desktop gerade ist.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark writing on a light ground, at all times.</source>
        <translation>Dunkle Schrift auf hellem Grund, zu jeder Zeit.</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light writing on a dark ground, at all times.</source>
        <translation>Helle Schrift auf dunklem Grund, zu jeder Zeit.</translation>
    </message>
    <message>
        <source>Newer versions</source>
        <translation>Neuere Versionen</translation>
    </message>
    <message>
        <source>Look for a newer version at start</source>
        <translation>Beim Start nach einer neueren Version suchen</translation>
    </message>
    <message>
        <source>Once a day, a start asks the address below, which learns that a Pinmora asks, and from which network address; nothing is fetched unless you say so.</source>
        <translation>Einmal am Tag fragt ein Start bei der Adresse unten nach, die dabei erfährt, dass ein Pinmora fragt, und von welcher Netzadresse aus; geladen wird nur, was Sie wollen.</translation>
    </message>
    <message>
        <source>The makers’ address</source>
        <translation>Adresse der Hersteller</translation>
    </message>
    <message>
        <source>This Pinmora was built without one: nobody is asked.</source>
        <translation>Dieses Pinmora wurde ohne eine gebaut: Niemand wird gefragt.</translation>
    </message>
    <message>
        <source>Pinmora’s makers are asked, at %1.</source>
        <translation>Gefragt werden die Hersteller von Pinmora unter %1.</translation>
    </message>
    <message>
        <source>Another address</source>
        <translation>Eine andere Adresse</translation>
    </message>
    <message>
        <source>The server at this address is asked in their place.</source>
        <translation>An ihrer Stelle wird der Server unter dieser Adresse gefragt.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Who is asked for the newest version</source>
        <translation>Wer nach der neuesten Version gefragt wird</translation>
    </message>
</context>
<context>
    <name>pinmora::HemisphereBox</name>
    <message>
        <source>N</source>
        <extracomment>the letters of the four winds, as positions are written</extracomment>
        <translation>N</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>north</source>
        <translation>Nord</translation>
    </message>
    <message>
        <source>east</source>
        <translation>Ost</translation>
    </message>
    <message>
        <source>south</source>
        <translation>Süd</translation>
    </message>
    <message>
        <source>west</source>
        <translation>West</translation>
    </message>
    <message>
        <source>North or south of the equator</source>
        <translation>Nördlich oder südlich des Äquators</translation>
    </message>
    <message>
        <source>East or west of Greenwich</source>
        <translation>Östlich oder westlich von Greenwich</translation>
    </message>
</context>
<context>
    <name>pinmora::KnownPosition</name>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Known latitude, decimal degrees</source>
        <translation>Bekannte Breite, Dezimalgrad</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Known longitude, decimal degrees</source>
        <translation>Bekannte Länge, Dezimalgrad</translation>
    </message>
    <message>
        <source>Finds the track point nearest to this position and sets the clock by its time</source>
        <translation>Findet den Trackpunkt, der dieser Position am nächsten liegt, und stellt die Uhr nach dessen Zeit</translation>
    </message>
</context>
<context>
    <name>pinmora::LibraryStatus</name>
    <message>
        <source>What the library holds</source>
        <translation>Was die Bibliothek enthält</translation>
    </message>
    <message>
        <source>What is going on</source>
        <translation>Was gerade geschieht</translation>
    </message>
    <message>
        <source>Place names that are still to come</source>
        <translation>Ortsnamen, die noch fehlen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>No photos</source>
        <translation>Keine Fotos</translation>
    </message>
</context>
<context>
    <name>pinmora::LogPreferences</name>
    <message>
        <source>GPS Logs</source>
        <translation>GPS-Logs</translation>
    </message>
    <message>
        <source>How logs are read</source>
        <translation>Wie Logs gelesen werden</translation>
    </message>
    <message>
        <source>Exactly</source>
        <translation>Genau</translation>
    </message>
    <message>
        <source>Takes whole-second times, and reads those of a GPX file as clock time, as they stand.</source>
        <translation>Nimmt Zeiten in ganzen Sekunden und liest die einer GPX-Datei als Ortszeit, so wie sie dastehen.</translation>
    </message>
    <message>
        <source>Tolerantly</source>
        <translation>Tolerant</translation>
    </message>
    <message>
        <source>Takes times as universal time, with fractions and zones, and copes with what modern receivers and phones write.</source>
        <translation>Nimmt Zeiten als Weltzeit, mit Bruchteilen und Zonen, und kommt mit dem zurecht, was heutige Empfänger und Telefone schreiben.</translation>
    </message>
    <message>
        <source>Holds for logs that you load from now on; those in the list stay as they were read.</source>
        <translation>Gilt für Logs, die Sie ab jetzt laden; die in der Liste bleiben so, wie sie gelesen wurden.</translation>
    </message>
</context>
<context>
    <name>pinmora::LogWindow</name>
    <message>
        <source>Pinmora - Log</source>
        <translation>Pinmora - Protokoll</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Opens the folder in which the log is kept</source>
        <translation>Öffnet den Ordner, in dem das Protokoll liegt</translation>
    </message>
    <message>
        <source>What has gone wrong</source>
        <translation>Was nicht geklappt hat</translation>
    </message>
    <message>
        <source>Nothing has gone wrong so far. When photos are saved, what cannot be written is told here.</source>
        <translation>Bisher hat alles geklappt. Was sich beim Speichern der Fotos nicht schreiben lässt, steht dann hier.</translation>
    </message>
</context>
<context>
    <name>pinmora::MainWindow</name>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>pinmora::ManualPage</name>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
</context>
<context>
    <name>pinmora::ManualWindow</name>
    <message>
        <source>Pinmora - Manual</source>
        <translation>Pinmora - Handbuch</translation>
    </message>
    <message>
        <source>Contents of the manual</source>
        <translation>Inhalt des Handbuchs</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Find on this page</source>
        <translation>Auf dieser Seite suchen</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Nicht auf dieser Seite</translation>
    </message>
</context>
<context>
    <name>pinmora::MapPane</name>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>The map appears here.</source>
        <translation>Hier erscheint die Karte.</translation>
    </message>
    <message>
        <source>The map is loading…</source>
        <translation>Die Karte wird geladen…</translation>
    </message>
    <message>
        <source>The map could not be loaded. Photos can still be placed by coordinates and by logs.</source>
        <translation>Die Karte konnte nicht geladen werden. Fotos lassen sich trotzdem nach Koordinaten und nach Logs platzieren.</translation>
    </message>
</context>
<context>
    <name>pinmora::MapPreferences</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Streets and names everywhere; OpenStreetMap learns which part of the map you look at, and from which network address.</source>
        <translation>Straßen und Namen überall; OpenStreetMap erfährt, welchen Teil der Karte Sie ansehen, und von welcher Netzadresse aus.</translation>
    </message>
    <message>
        <source>No tiles</source>
        <translation>Keine Kacheln</translation>
    </message>
    <message>
        <source>The map is Pinmora’s own, with coasts, borders and places, and nothing is fetched.</source>
        <translation>Die Karte ist die von Pinmora, mit Küsten, Grenzen und Orten; geladen wird nichts.</translation>
    </message>
    <message>
        <source>Another tile server</source>
        <translation>Ein anderer Kachelserver</translation>
    </message>
    <message>
        <source>The server at this address learns which part of the map you look at, and from which network address.</source>
        <translation>Der Server unter dieser Adresse erfährt, welchen Teil der Karte Sie ansehen, und von welcher Netzadresse aus.</translation>
    </message>
    <message>
        <source>Address of the tiles</source>
        <translation>Adresse der Kacheln</translation>
    </message>
    <message>
        <source>Page of the map</source>
        <translation>Seite der Karte</translation>
    </message>
    <message>
        <source>Pinmora’s own</source>
        <translation>Die von Pinmora</translation>
    </message>
    <message>
        <source>It is served on this machine, and no other can reach it.</source>
        <translation>Sie kommt von diesem Rechner, und kein anderer erreicht sie.</translation>
    </message>
    <message>
        <source>A page from another server</source>
        <translation>Eine Seite von einem anderen Server</translation>
    </message>
    <message>
        <source>It comes from this server with tiles of its own, and is told the positions of your photos and tracks so that it can draw them.</source>
        <translation>Sie kommt mit eigenen Kacheln von diesem Server und erfährt die Positionen Ihrer Fotos und Tracks, damit sie sie zeichnen kann.</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Adresse des Servers</translation>
    </message>
</context>
<context>
    <name>pinmora::MissingDialog</name>
    <message>
        <source>Missing Photos</source>
        <translation>Fehlende Fotos</translation>
    </message>
    <message>
        <source>No photo is missing any more</source>
        <translation>Es fehlt kein Foto mehr</translation>
    </message>
    <message>
        <source>All photos can be saved now.</source>
        <translation>Jetzt können alle Fotos gespeichert werden.</translation>
    </message>
    <message>
        <source>Every photo of the list has its file.</source>
        <translation>Jedes Foto der Liste hat seine Datei.</translation>
    </message>
    <message>
        <source>Find in Folder…</source>
        <translation>In Ordner suchen…</translation>
    </message>
    <message>
        <source>Looks for all of these photos by their names, in a folder and all below it</source>
        <translation>Sucht alle diese Fotos nach ihren Namen, in einem Ordner und allen darunter</translation>
    </message>
    <message>
        <source>What the search has found</source>
        <translation>Was die Suche gefunden hat</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes the selected photos out of the library; Undo brings them back</source>
        <translation>Nimmt die ausgewählten Fotos aus der Bibliothek; „Rückgängig“ bringt sie zurück</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Takes all photos of this list out of the library; Undo brings them back</source>
        <translation>Nimmt alle Fotos dieser Liste aus der Bibliothek; „Rückgängig“ bringt sie zurück</translation>
    </message>
    <message>
        <source>Picture of the chosen file</source>
        <translation>Bild der gewählten Datei</translation>
    </message>
    <message>
        <source>Use This File</source>
        <translation>Diese Datei verwenden</translation>
    </message>
    <message>
        <source>Gives the selected photo the JPEG file that is chosen on the left; raw files are found with Find in Folder</source>
        <translation>Gibt dem ausgewählten Foto die links gewählte JPEG-Datei; Raw-Dateien findet „In Ordner suchen“</translation>
    </message>
    <message>
        <source>Save Anyway</source>
        <translation>Trotzdem speichern</translation>
    </message>
    <message>
        <source>Saves all other photos</source>
        <translation>Speichert alle anderen Fotos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Choose a photo, then show where it is now. What cannot be found can be left out of this save or removed from the list; nothing else is lost.</source>
        <translation>Wählen Sie ein Foto und zeigen Sie, wo es jetzt ist. Was sich nicht findet, kann beim Speichern ausgelassen oder aus der Liste entfernt werden; sonst geht nichts verloren.</translation>
    </message>
    <message>
        <source>Choose a photo, then show where it is now. What cannot be found can be removed from the list; nothing else is lost.</source>
        <translation>Wählen Sie ein Foto und zeigen Sie, wo es jetzt ist. Was sich nicht findet, kann aus der Liste entfernt werden; sonst geht nichts verloren.</translation>
    </message>
</context>
<context>
    <name>pinmora::MissingList</name>
    <message>
        <source>Photos that are no longer where they were</source>
        <translation>Fotos, die nicht mehr dort sind, wo sie waren</translation>
    </message>
</context>
<context>
    <name>pinmora::MissingTableModel</name>
    <message>
        <source>%1, was in %2</source>
        <translation>%1, war in %2</translation>
    </message>
    <message>
        <source>Photo</source>
        <extracomment>two columns: a missing photo, and the folder it was in</extracomment>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Was in</source>
        <translation>War in</translation>
    </message>
</context>
<context>
    <name>pinmora::OffsetSteppers</name>
    <message>
        <source>Add to the camera&apos;s time</source>
        <translation>Zur Zeit der Kamera addieren</translation>
    </message>
    <message>
        <source>Subtract from the camera&apos;s time</source>
        <translation>Von der Zeit der Kamera subtrahieren</translation>
    </message>
    <message>
        <source>h</source>
        <extracomment>hours, minutes and seconds in one letter or a few</extracomment>
        <translation>h</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>%1 that the camera&apos;s clock is off</source>
        <translation>%1, um die die Kamerauhr falsch geht</translation>
    </message>
</context>
<context>
    <name>pinmora::OpenPanelDialog</name>
    <message>
        <source>Add Whole Folder</source>
        <translation>Ganzen Ordner hinzufügen</translation>
    </message>
    <message>
        <source>Adds the photos and logs in the marked folders, or in the one that is seen</source>
        <translation>Fügt die Fotos und Logs der markierten Ordner hinzu, oder des Ordners, der zu sehen ist</translation>
    </message>
</context>
<context>
    <name>pinmora::PhotoHeader</name>
    <message>
        <source>Sort the photos</source>
        <translation>Fotos sortieren</translation>
    </message>
</context>
<context>
    <name>pinmora::PhotoPanel</name>
    <message>
        <source>Only Without Position</source>
        <translation>Nur ohne Position</translation>
    </message>
    <message>
        <source>Drop to add photos and logs</source>
        <translation>Ablegen, um Fotos und Logs hinzuzufügen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Only without position</source>
        <translation>Nur ohne Position</translation>
    </message>
    <message>
        <source>Hides the photos that have a position; Apply to All still works on them</source>
        <translation>Blendet Fotos aus, die eine Position haben; „Auf alle anwenden“ gilt weiterhin auch für sie</translation>
    </message>
    <message>
        <source>Every photo has a position.</source>
        <translation>Jedes Foto hat eine Position.</translation>
    </message>
    <message>
        <source>Show All Photos</source>
        <translation>Alle Fotos zeigen</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Foto entfernen</translation>
    </message>
    <message>
        <source>Takes the selected photos out of the list; their files stay</source>
        <translation>Nimmt die ausgewählten Fotos aus der Liste; ihre Dateien bleiben</translation>
    </message>
    <message>
        <source>Full Size</source>
        <translation>Volle Größe</translation>
    </message>
    <message>
        <source>Shows the first selected photo as large as it is</source>
        <translation>Zeigt das erste ausgewählte Foto so groß, wie es ist</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <extracomment>photos that are seen, of all</extracomment>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>pinmora::PhotoTable</name>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
</context>
<context>
    <name>pinmora::PhotoTableModel</name>
    <message>
        <source>no position</source>
        <translation>keine Position</translation>
    </message>
    <message>
        <source>no capture time</source>
        <translation>keine Aufnahmezeit</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Gap</source>
        <extracomment>time between a photo and the nearest point of a log</extracomment>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Time from the photo to the nearest point of a track, with the camera clock as it is set</source>
        <translation>Zeit vom Foto zum nächsten Punkt eines Tracks, so wie die Kamerauhr gestellt ist</translation>
    </message>
    <message>
        <source>%1, could not be written: %2</source>
        <translation>%1, konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Could not be written.&lt;/b&gt; %1&lt;/p&gt;&lt;p&gt;%2&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Konnte nicht geschrieben werden.&lt;/b&gt; %1&lt;/p&gt;&lt;p&gt;%2&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>pinmora::PictureView</name>
    <message>
        <source>%1 by %2 pixels</source>
        <translation>%1 mal %2 Pixel</translation>
    </message>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen…</translation>
    </message>
</context>
<context>
    <name>pinmora::PlacePreferences</name>
    <message>
        <source>Place Names</source>
        <translation>Ortsnamen</translation>
    </message>
    <message>
        <source>Look up place names</source>
        <translation>Ortsnamen suchen</translation>
    </message>
    <message>
        <source>Each new position brings city, province or state, and country along; else you type them yourself.</source>
        <translation>Jede neue Position bringt Stadt, Provinz oder Bundesland und Land mit; sonst tippen Sie sie selbst.</translation>
    </message>
    <message>
        <source>Who is asked</source>
        <translation>Wer gefragt wird</translation>
    </message>
    <message>
        <source>Pinmora’s gazetteer</source>
        <translation>Das Ortsverzeichnis von Pinmora</translation>
    </message>
    <message>
        <source>It lies on this machine, with 171,000 places: no position leaves it.</source>
        <translation>Es liegt mit 171.000 Orten auf diesem Rechner: Keine Position verlässt ihn.</translation>
    </message>
    <message>
        <source>A place-name service (SOAP)</source>
        <translation>Ein Dienst für Ortsnamen (SOAP)</translation>
    </message>
    <message>
        <source>The position of each photo is sent to this server, which learns your network address as well.</source>
        <translation>Die Position jedes Fotos geht an diesen Server, der auch Ihre Netzadresse erfährt.</translation>
    </message>
    <message>
        <source>Address of the service</source>
        <translation>Adresse des Dienstes</translation>
    </message>
    <message>
        <source>Host name that it expects</source>
        <translation>Servername, den er erwartet</translation>
    </message>
    <message>
        <source>that of the address</source>
        <translation>der in der Adresse</translation>
    </message>
    <message>
        <source>Stands in the head of each request, where it is not that of the address.</source>
        <translation>Steht im Kopf jeder Anfrage, wenn es nicht der in der Adresse ist.</translation>
    </message>
    <message>
        <source>Namespace of its names</source>
        <translation>Namensraum seiner Namen</translation>
    </message>
    <message>
        <source>Stands in each request; it ends in a slash.</source>
        <translation>Steht in jeder Anfrage; er endet mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>Names of new positions</source>
        <translation>Namen neuer Positionen</translation>
    </message>
</context>
<context>
    <name>pinmora::PositionTool</name>
    <message>
        <source>Set From This Position</source>
        <translation>Nach dieser Position stellen</translation>
    </message>
</context>
<context>
    <name>pinmora::PreferencesWindow</name>
    <message>
        <source>Pinmora - Preferences</source>
        <translation>Pinmora - Einstellungen</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>This is not stored yet. Correct it, or press Escape in the field to keep what was set before.</source>
        <translation>Das ist noch nicht gespeichert. Berichtigen Sie es, oder drücken Sie im Feld Escape, um zu behalten, was vorher galt.</translation>
    </message>
</context>
<context>
    <name>pinmora::ProgramActions</name>
    <message>
        <source>Library saved</source>
        <translation>Bibliothek gespeichert</translation>
    </message>
    <message>
        <source>About Pinmora</source>
        <translation>Über Pinmora</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Pinmora&lt;/h3&gt;&lt;p&gt;Puts photographs on the map.&lt;/p&gt;&lt;p&gt;Your photos are only ever read; what Pinmora writes are copies.&lt;/p&gt;&lt;p&gt;Place names: GeoNames, CC BY 4.0. Bundled map: Natural Earth.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Pinmora&lt;/h3&gt;&lt;p&gt;Bringt Fotos auf die Karte.&lt;/p&gt;&lt;p&gt;Ihre Fotos werden immer nur gelesen; was Pinmora schreibt, sind Kopien.&lt;/p&gt;&lt;p&gt;Ortsnamen: GeoNames, CC BY 4.0. Mitgelieferte Karte: Natural Earth.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>pinmora::QuietBarWidget</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>Message: %1 %2</source>
        <translation>Meldung: %1 %2</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>1 weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>pinmora::QuitDialog</name>
    <message>
        <source>Some photos have changes that are not saved</source>
        <translation>Einige Fotos haben Änderungen, die nicht gespeichert sind</translation>
    </message>
    <message>
        <source>Save Library keeps the list of photos, with all that you have done to them, for the next time.</source>
        <translation>„Bibliothek speichern“ behält die Liste der Fotos mit allem, was Sie daran getan haben, für das nächste Mal.</translation>
    </message>
    <message>
        <source>Save Photos writes it into copies of the photos.</source>
        <translation>„Fotos speichern“ schreibt es in Kopien der Fotos.</translation>
    </message>
    <message>
        <source>Then quit again.</source>
        <translation>Beenden Sie danach noch einmal.</translation>
    </message>
    <message>
        <source>Quit Without Saving</source>
        <translation>Beenden, ohne zu speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save Photos…</source>
        <translation>Fotos speichern…</translation>
    </message>
    <message>
        <source>Save Library</source>
        <translation>Bibliothek speichern</translation>
    </message>
</context>
<context>
    <name>pinmora::RemoveAllDialog</name>
    <message>
        <source>The photo files stay where they are; GPS tracks stay in the library. What you have done to the photos goes with them, and the library is saved without them. Until you quit, Undo brings them back.</source>
        <translation>Die Fotodateien bleiben, wo sie sind; GPS-Tracks bleiben in der Bibliothek. Was Sie an den Fotos getan haben, geht mit ihnen, und die Bibliothek wird ohne sie gespeichert. Bis Sie beenden, bringt „Rückgängig“ sie zurück.</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>pinmora::RenameDialog</name>
    <message>
        <source>Rename Selected</source>
        <translation>Ausgewählte umbenennen</translation>
    </message>
    <message>
        <source>Rename All</source>
        <translation>Alle umbenennen</translation>
    </message>
    <message>
        <source>Rename photos</source>
        <translation>Fotos umbenennen</translation>
    </message>
    <message>
        <source>They get these names when they are saved. The files that were loaded keep theirs.</source>
        <translation>Diese Namen erhalten sie beim Speichern. Die geladenen Dateien behalten die ihren.</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>New name, without a number</source>
        <translation>Neuer Name, ohne Nummer</translation>
    </message>
    <message>
        <source>Use Original Names</source>
        <translation>Originalnamen verwenden</translation>
    </message>
    <message>
        <source>Gives all photos the names that they were loaded with</source>
        <translation>Gibt allen Fotos die Namen, mit denen sie geladen wurden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Numbers all photos by the time when they were taken</source>
        <translation>Nummeriert alle Fotos nach der Zeit ihrer Aufnahme</translation>
    </message>
    <message>
        <source>A number is added to the name: trip becomes trip_1, trip_2, …</source>
        <translation>An den Namen wird eine Nummer gehängt: Aus „ausflug“ wird ausflug_1, ausflug_2, …</translation>
    </message>
    <message>
        <source>They become %1_1, %1_2, … Numbers that are taken are left out.</source>
        <translation>Sie heißen dann %1_1, %1_2, … Vergebene Nummern werden ausgelassen.</translation>
    </message>
</context>
<context>
    <name>pinmora::SaveDialog</name>
    <message>
        <source>Save Photos</source>
        <translation>Fotos speichern</translation>
    </message>
    <message>
        <source>What is being done</source>
        <translation>Was gerade geschieht</translation>
    </message>
    <message>
        <source>How far it has come</source>
        <translation>Wie weit es gekommen ist</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Begins no further photo; the copies that are made stay</source>
        <translation>Beginnt kein weiteres Foto; fertige Kopien bleiben</translation>
    </message>
</context>
<context>
    <name>pinmora::SavingPreferences</name>
    <message>
        <source>Photos and Saving</source>
        <translation>Fotos und Speichern</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Load more types of photos</source>
        <translation>Weitere Arten von Fotos laden</translation>
    </message>
    <message>
        <source>HEIC, PNG, WebP and further raw formats are taken for photos as well, from the next load on.</source>
        <translation>Vom nächsten Laden an gelten auch HEIC, PNG, WebP und weitere Rohformate als Fotos.</translation>
    </message>
    <message>
        <source>Writing positions with ExifTool</source>
        <translation>Positionen schreiben mit ExifTool</translation>
    </message>
    <message>
        <source>Start it for each photo</source>
        <translation>Für jedes Foto starten</translation>
    </message>
    <message>
        <source>Keep it open</source>
        <translation>Offen halten</translation>
    </message>
    <message>
        <source>ExifTool stays open while photos are saved, which is many times faster.</source>
        <translation>ExifTool bleibt offen, solange Fotos gespeichert werden; das geht um ein Vielfaches schneller.</translation>
    </message>
    <message>
        <source>Both hold from the next time that you save photos.</source>
        <translation>Beides gilt, wenn Sie das nächste Mal Fotos speichern.</translation>
    </message>
    <message>
        <source>End it after a silence of</source>
        <translation>Beenden, wenn es schweigt, nach</translation>
    </message>
    <message>
        <source>When ExifTool has not written for so long, it is ended, and the copy of that photo stays without its position.</source>
        <translation>Wenn ExifTool so lange nichts geschrieben hat, wird es beendet, und die Kopie dieses Fotos bleibt ohne Position.</translation>
    </message>
    <message>
        <source>Seconds of silence after which ExifTool is ended</source>
        <translation>Sekunden Stille, nach denen ExifTool beendet wird</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>ExifTool is begun anew for every photo, as it is at first.</source>
        <translation>ExifTool wird für jedes Foto neu gestartet, so wie es anfangs eingestellt ist.</translation>
    </message>
</context>
<context>
    <name>pinmora::SortMenu</name>
    <message>
        <source>Sort By</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Order of Loading</source>
        <translation>Reihenfolge des Ladens</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Aufsteigend</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Absteigend</translation>
    </message>
</context>
<context>
    <name>pinmora::StepList</name>
    <message>
        <source>Steps</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>Main Window</source>
        <translation>Hauptfenster</translation>
    </message>
    <message>
        <source>The same work, everything on one surface</source>
        <translation>Die gleiche Arbeit, alles auf einer Fläche</translation>
    </message>
    <message>
        <source>On the map</source>
        <translation>Auf der Karte</translation>
    </message>
    <message>
        <source>By position</source>
        <translation>Nach Position</translation>
    </message>
    <message>
        <source>Known offset</source>
        <translation>Bekannte Abweichung</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>Willkommen</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>GPS data</source>
        <translation>GPS-Daten</translation>
    </message>
    <message>
        <source>Camera clock</source>
        <translation>Kamerauhr</translation>
    </message>
    <message>
        <source>Apply and save</source>
        <translation>Anwenden und speichern</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <source>This step is shown</source>
        <translation>Dieser Schritt ist zu sehen</translation>
    </message>
</context>
<context>
    <name>pinmora::TimeStripWidget</name>
    <message>
        <source>Track %1</source>
        <translation>Track %1</translation>
    </message>
    <message>
        <source>Time strip</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>This Is When the Photo Was Taken</source>
        <translation>Zu dieser Zeit wurde das Foto aufgenommen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alles zeigen</translation>
    </message>
    <message>
        <source>Show Tracks</source>
        <translation>Tracks zeigen</translation>
    </message>
    <message>
        <source>%1 from the log</source>
        <translation>%1 vom Log entfernt</translation>
    </message>
    <message>
        <source>%1, %2, %3 of them far from any log. The arrow keys turn the camera’s clock by a second, with Shift by a minute, with Ctrl by an hour.</source>
        <extracomment>%1: how many tracks, %2: how many photos, in words; %3: how many of the photos</extracomment>
        <translation>%1, %2, davon %3 fern von jedem Log. Die Pfeiltasten drehen die Kamerauhr um eine Sekunde, mit Umschalt um eine Minute, mit Strg um eine Stunde.</translation>
    </message>
</context>
<context>
    <name>pinmora::TrackPanel</name>
    <message>
        <source>Remove All GPS Data</source>
        <translation>Alle GPS-Daten entfernen</translation>
    </message>
    <message>
        <source>No log yet. Without one, photos can be placed on the map by hand.</source>
        <translation>Noch kein Log. Auch ohne lassen sich Fotos von Hand auf die Karte setzen.</translation>
    </message>
    <message>
        <source>GPS Tracks</source>
        <translation>GPS-Tracks</translation>
    </message>
    <message>
        <source>Takes all tracks out of the list; the log files stay</source>
        <translation>Nimmt alle Tracks aus der Liste; die Logdateien bleiben</translation>
    </message>
    <message>
        <source>GPS tracks</source>
        <translation>GPS-Tracks</translation>
    </message>
</context>
<context>
    <name>pinmora::TrackTableModel</name>
    <message>
        <source>%1, from %2 to %3</source>
        <extracomment>a track with its number of points, and the times of its first and last one</extracomment>
        <translation>%1, von %2 bis %3</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>From</source>
        <extracomment>when a track begins</extracomment>
        <translation>Von</translation>
    </message>
    <message>
        <source>To</source>
        <extracomment>when a track ends</extracomment>
        <translation>Bis</translation>
    </message>
</context>
<context>
    <name>pinmora::TracksPage</name>
    <message>
        <source>Drop GPS logs here</source>
        <translation>Legen Sie GPS-Logs hier ab</translation>
    </message>
    <message>
        <source>GPX files, or NMEA logs of a receiver</source>
        <translation>GPX-Dateien oder NMEA-Logs eines Empfängers</translation>
    </message>
    <message>
        <source>Load GPS Data…</source>
        <translation>GPS-Daten laden…</translation>
    </message>
</context>
<context>
    <name>pinmora::TrueTimeDialog</name>
    <message>
        <source>This photo was taken at…</source>
        <translation>Dieses Foto wurde aufgenommen um…</translation>
    </message>
    <message>
        <source>If the photo shows a clock, or you know the time otherwise, enter it. The camera clock is set by it.</source>
        <translation>Zeigt das Foto eine Uhr oder kennen Sie die Zeit anderswoher, geben Sie sie ein. Die Kamerauhr wird danach gestellt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set Clock</source>
        <translation>Uhr stellen</translation>
    </message>
    <message>
        <source>The photo</source>
        <translation>Das Foto</translation>
    </message>
    <message>
        <source>When the photo was taken</source>
        <translation>Wann das Foto aufgenommen wurde</translation>
    </message>
    <message>
        <source>The camera says</source>
        <translation>Die Kamera sagt</translation>
    </message>
    <message>
        <source>True time</source>
        <translation>Wahre Zeit</translation>
    </message>
</context>
<context>
    <name>pinmora::UpdateWindow</name>
    <message>
        <source>Outcome</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>What is going on</source>
        <translation>Was gerade geschieht</translation>
    </message>
    <message>
        <source>Do not check at start</source>
        <translation>Beim Start nicht suchen</translation>
    </message>
    <message>
        <source>Newer versions are looked for only when you ask</source>
        <translation>Nach neueren Versionen wird nur auf Wunsch gesucht</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Download</source>
        <translation>Herunterladen</translation>
    </message>
    <message>
        <source>Asks for a file, and fetches the newer version into it</source>
        <translation>Fragt nach einer Datei und holt die neuere Version hinein</translation>
    </message>
</context>
<context>
    <name>pinmora::WebMapView</name>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>pinmora::WelcomePage</name>
    <message>
        <source>Add your photos, and the GPS log of the outing</source>
        <translation>Fügen Sie Ihre Fotos und das GPS-Log des Ausflugs hinzu</translation>
    </message>
    <message>
        <source>No log? You can put photos on the map by hand.</source>
        <translation>Kein Log? Sie können Fotos von Hand auf die Karte setzen.</translation>
    </message>
    <message>
        <source>Say whether the camera’s clock was right</source>
        <translation>Sagen Sie, ob die Kamerauhr richtig ging</translation>
    </message>
    <message>
        <source>A photo gets the position that the log has for the moment it was taken.</source>
        <translation>Ein Foto erhält die Position, die das Log für den Moment der Aufnahme hat.</translation>
    </message>
    <message>
        <source>Save tagged copies</source>
        <translation>Speichern Sie Kopien mit Positionen</translation>
    </message>
    <message>
        <source>The original photos are never touched.</source>
        <translation>Die Originalfotos werden nie angetastet.</translation>
    </message>
    <message>
        <source>Try It With the Sample Outing</source>
        <translation>Mit dem Beispielausflug ausprobieren</translation>
    </message>
    <message>
        <source>Loads eight photos and the logs of an outing</source>
        <translation>Lädt acht Fotos und die Logs eines Ausflugs</translation>
    </message>
</context>
<context>
    <name>pinmora::WizardBar</name>
    <message>
        <source>Do not show the wizard at start</source>
        <translation>Den Assistenten beim Start nicht zeigen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Save Photos…</source>
        <translation>Fotos &amp;speichern…</translation>
    </message>
    <message>
        <source>Saves tagged copies of the photos; the originals stay as they are</source>
        <translation>Speichert Kopien der Fotos mit ihren Positionen; die Originale bleiben, wie sie sind</translation>
    </message>
</context>
<context>
    <name>pinmora::WizardWindow</name>
    <message>
        <source>Add More Photos…</source>
        <translation>Weitere Fotos hinzufügen…</translation>
    </message>
    <message>
        <source>Load More GPS Data…</source>
        <translation>Weitere GPS-Daten laden…</translation>
    </message>
    <message>
        <source>Load a GPS log instead</source>
        <translation>Stattdessen ein GPS-Log laden</translation>
    </message>
    <message>
        <source>Set From This Position</source>
        <translation>Nach dieser Position stellen</translation>
    </message>
    <message>
        <source>Finds the track point nearest to the photo&apos;s position and sets the clock by its time</source>
        <translation>Findet den Trackpunkt, der der Position des Fotos am nächsten liegt, und stellt die Uhr nach dessen Zeit</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Markierung setzen</translation>
    </message>
    <message>
        <source>What this page is for</source>
        <translation>Wozu diese Seite da ist</translation>
    </message>
    <message>
        <source>Drop to add photos and logs</source>
        <translation>Ablegen, um Fotos und Logs hinzuzufügen</translation>
    </message>
</context>
<context>
    <name>platform</name>
    <message>
        <source>The request timed out.</source>
        <translation>Die Anfrage wurde nicht rechtzeitig beantwortet.</translation>
    </message>
</context>
<context>
    <name>recovery</name>
    <message>
        <source>the journal has a record numbered %1</source>
        <translation>das Journal hat einen Eintrag mit der Nummer %1</translation>
    </message>
    <message>
        <source>the journal has changed while it was read</source>
        <translation>das Journal hat sich geändert, während es gelesen wurde</translation>
    </message>
    <message>
        <source>the journal has a part that does not belong where it is</source>
        <translation>das Journal hat einen Teil, der nicht dorthin gehört</translation>
    </message>
    <message>
        <source>the journal has a part that is no list of records</source>
        <translation>das Journal hat einen Teil, der keine Liste von Einträgen ist</translation>
    </message>
    <message>
        <source>the journal has record %1 twice</source>
        <translation>das Journal hat den Eintrag %1 zweimal</translation>
    </message>
    <message>
        <source>the journal changes record %1, which is not there</source>
        <translation>das Journal ändert den Eintrag %1, den es nicht gibt</translation>
    </message>
    <message>
        <source>the journal has a part that is no list of serials</source>
        <translation>das Journal hat einen Teil, der keine Liste von Nummern ist</translation>
    </message>
    <message>
        <source>the journal has a log of which it does not say how to read it</source>
        <translation>das Journal hat ein Log, zu dem es nicht sagt, wie es zu lesen ist</translation>
    </message>
    <message>
        <source>the log %1 cannot be read as it was read before</source>
        <translation>das Log %1 lässt sich nicht so lesen wie zuvor</translation>
    </message>
    <message>
        <source>the journal leads to record %1, which is not there</source>
        <translation>das Journal führt zum Eintrag %1, den es nicht gibt</translation>
    </message>
    <message>
        <source>it is no journal that this version can read</source>
        <translation>es ist kein Journal, das diese Version lesen kann</translation>
    </message>
    <message>
        <source>the journal is damaged from its start on</source>
        <translation>das Journal ist von Anfang an beschädigt</translation>
    </message>
    <message>
        <source>the library that it goes on from is not there any more</source>
        <translation>die Bibliothek, auf der es aufbaut, gibt es nicht mehr</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>Bring Back Unsaved Work</source>
        <translation>Ungespeicherte Arbeit zurückholen</translation>
    </message>
    <message>
        <source>Unsaved work cannot be kept on the disk: %1</source>
        <translation>Ungespeicherte Arbeit lässt sich nicht auf dem Datenträger festhalten: %1</translation>
    </message>
</context>
<context>
    <name>saving</name>
    <message>
        <source>A long text could not be handed to ExifTool: %1</source>
        <translation>Ein langer Text konnte nicht an ExifTool übergeben werden: %1</translation>
    </message>
    <message>
        <source>ExifTool, which writes the data into the copies, is not installed. On Debian and Ubuntu, install it with: sudo apt install libimage-exiftool-perl</source>
        <translation>ExifTool, das die Daten in die Kopien schreibt, ist nicht installiert. Unter Debian und Ubuntu installieren Sie es mit: sudo apt install libimage-exiftool-perl</translation>
    </message>
    <message>
        <source>Choose the Folder to Search</source>
        <translation>Zu durchsuchenden Ordner wählen</translation>
    </message>
    <message>
        <source>Search</source>
        <extracomment>the button that takes the chosen folder</extracomment>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Relink Photo</source>
        <translation>Foto neu verknüpfen</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Foto entfernen</translation>
    </message>
    <message>
        <source>Remove Pictures</source>
        <translation>Fotos entfernen</translation>
    </message>
    <message>
        <source>Relink Photos</source>
        <translation>Fotos neu verknüpfen</translation>
    </message>
    <message>
        <source>Searching %1…</source>
        <translation>%1 wird durchsucht…</translation>
    </message>
    <message numerus="yes">
        <source>None of the %n was found there.</source>
        <comment>The photo was not found there.</comment>
        <translation>
            <numerusform>Das Foto wurde dort nicht gefunden.</numerusform>
            <numerusform>Keines der %n wurde dort gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 found.</source>
        <comment>%n of %1 found.</comment>
        <translation>
            <numerusform>%n von %1 gefunden.</numerusform>
            <numerusform>%n von %1 gefunden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n found.</source>
        <comment>The photo was found.</comment>
        <translation>
            <numerusform>Das Foto wurde gefunden.</numerusform>
            <numerusform>Alle %n gefunden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not copied: the original is missing</source>
        <translation>Nicht kopiert: Das Original fehlt</translation>
    </message>
    <message>
        <source>Not copied: %1</source>
        <translation>Nicht kopiert: %1</translation>
    </message>
    <message>
        <source>the copy may be damaged, and the original is missing</source>
        <translation>die Kopie ist vielleicht beschädigt, und das Original fehlt</translation>
    </message>
    <message>
        <source>the copy may be damaged, and cannot be made again: %1</source>
        <translation>die Kopie ist vielleicht beschädigt und lässt sich nicht neu anlegen: %1</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n photos from the library?</source>
        <comment>Remove the photo from the library?</comment>
        <translation>
            <numerusform>Das Foto aus der Bibliothek entfernen?</numerusform>
            <numerusform>Alle %n Fotos aus der Bibliothek entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Use Original Names</source>
        <translation>Originalnamen verwenden</translation>
    </message>
    <message>
        <source>Rename Photos</source>
        <translation>Fotos umbenennen</translation>
    </message>
    <message>
        <source>Choose a Folder for the Copies of Your Photos</source>
        <translation>Ordner für die Kopien Ihrer Fotos wählen</translation>
    </message>
    <message>
        <source>Save Here</source>
        <extracomment>the button that takes the chosen folder</extracomment>
        <translation>Hier speichern</translation>
    </message>
    <message>
        <source>Remove the position that a photo&apos;s file has when the photo has none here</source>
        <translation>Position in der Datei eines Fotos entfernen, wenn das Foto hier keine hat</translation>
    </message>
    <message>
        <source>Photos cannot be saved yet.</source>
        <translation>Die Fotos können noch nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was saved.</source>
        <translation>Abgebrochen: Nichts wurde gespeichert.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show</source>
        <extracomment>a button: shows the log of what went wrong</extracomment>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Pinmora has not quit.</source>
        <translation>Pinmora wurde nicht beendet.</translation>
    </message>
    <message>
        <source>Copying files and adding data</source>
        <translation>Dateien werden kopiert und Daten hinzugefügt</translation>
    </message>
    <message>
        <source>Cancelling</source>
        <translation>Wird abgebrochen</translation>
    </message>
    <message>
        <source>Updating icons</source>
        <translation>Symbole werden aktualisiert</translation>
    </message>
    <message>
        <source>Copied, but not tagged: %1</source>
        <translation>Kopiert, aber ohne neue Daten: %1</translation>
    </message>
    <message>
        <source>Not copied: the run was stopped</source>
        <translation>Nicht kopiert: Der Vorgang wurde angehalten</translation>
    </message>
    <message>
        <source>No photos were saved: there are none.</source>
        <translation>Es wurden keine Fotos gespeichert: Es gibt keine.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos saved in %1.</source>
        <comment>%n photo saved in %1.</comment>
        <translation>
            <numerusform>%n Foto in %1 gespeichert.</numerusform>
            <numerusform>%n Fotos in %1 gespeichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Cancelled: %n of %1 saved.</source>
        <comment>Cancelled: %n of %1 saved.</comment>
        <translation>
            <numerusform>Abgebrochen: %n von %1 gespeichert.</numerusform>
            <numerusform>Abgebrochen: %n von %1 gespeichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 saved.</source>
        <comment>%n of %1 saved.</comment>
        <translation>
            <numerusform>%n von %1 gespeichert.</numerusform>
            <numerusform>%n von %1 gespeichert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n could not be written.</source>
        <comment>%n could not be written.</comment>
        <translation>
            <numerusform>%n konnte nicht geschrieben werden.</numerusform>
            <numerusform>%n konnten nicht geschrieben werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were left out: their files are missing.</source>
        <comment>%n was left out: its file is missing.</comment>
        <translation>
            <numerusform>%n wurde ausgelassen: Die Datei fehlt.</numerusform>
            <numerusform>%n wurden ausgelassen: Die Dateien fehlen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The copies may not all be on the disk: %1.</source>
        <translation>Vielleicht sind nicht alle Kopien auf dem Datenträger: %1.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for place names: %n to go</source>
        <comment>Waiting for place names: %n to go</comment>
        <translation>
            <numerusform>Warten auf Ortsnamen: noch %n</numerusform>
            <numerusform>Warten auf Ortsnamen: noch %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Writing positions: %1 of %2</source>
        <translation>Positionen werden geschrieben: %1 von %2</translation>
    </message>
    <message>
        <source>Pinmora quits when the copies are written: %1 of %2</source>
        <translation>Pinmora beendet sich, wenn die Kopien geschrieben sind: %1 von %2</translation>
    </message>
    <message>
        <source>%1, saved as %2: %3</source>
        <translation>%1, gespeichert als %2: %3</translation>
    </message>
    <message>
        <source>ExifTool ended with status %1</source>
        <translation>ExifTool endete mit dem Status %1</translation>
    </message>
    <message>
        <source>ExifTool ended before it was done</source>
        <translation>ExifTool endete, bevor es fertig war</translation>
    </message>
    <message>
        <source>ExifTool was ended by signal %1</source>
        <translation>ExifTool wurde durch das Signal %1 beendet</translation>
    </message>
    <message>
        <source>ExifTool took too long and was ended</source>
        <translation>ExifTool brauchte zu lange und wurde beendet</translation>
    </message>
    <message>
        <source>ExifTool could not be started: %1</source>
        <translation>ExifTool konnte nicht gestartet werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>The copies got no position.</source>
        <comment>The copy got no position.</comment>
        <translation>
            <numerusform>Die Kopie hat keine Position erhalten.</numerusform>
            <numerusform>Die Kopien haben keine Position erhalten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of the copies got no position.</source>
        <comment>%n of the copies got no position.</comment>
        <translation>
            <numerusform>%n der Kopien hat keine Position erhalten.</numerusform>
            <numerusform>%n der Kopien haben keine Position erhalten.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>services</name>
    <message>
        <source>en-GB</source>
        <extracomment>The language of the translation as web pages name it, for dates and numbers: &quot;de&quot;</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>View</source>
        <extracomment>name of the group of buttons beneath: zoom in, zoom out, fit to track</extracomment>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit to track</source>
        <translation>Auf den Track einpassen</translation>
    </message>
    <message>
        <source>Fit to photos</source>
        <translation>Auf die Fotos einpassen</translation>
    </message>
    <message>
        <source>Find a place</source>
        <translation>Ort suchen</translation>
    </message>
    <message>
        <source>Places found</source>
        <translation>Gefundene Orte</translation>
    </message>
    <message>
        <source>No place of that name is known.</source>
        <translation>Ein Ort dieses Namens ist nicht bekannt.</translation>
    </message>
    <message>
        <source>That is not clearly one position.</source>
        <translation>Das ist nicht eindeutig eine Position.</translation>
    </message>
    <message>
        <source>That is no place on Earth.</source>
        <translation>Das ist kein Ort auf der Erde.</translation>
    </message>
    <message>
        <source>What was pasted is no position.</source>
        <translation>Das Eingefügte ist keine Position.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <extracomment>photos that lie at one place: %1 is the name of the first, %2 the number of the others</extracomment>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Position</source>
        <extracomment>name of the pin on the map</extracomment>
        <translation>Position</translation>
    </message>
    <message>
        <source>New position</source>
        <extracomment>name of the pin that is still to be put in its place</extracomment>
        <translation>Neue Position</translation>
    </message>
    <message>
        <source>Select photos first, then add the marker</source>
        <translation>Wählen Sie zuerst Fotos aus, dann setzen Sie die Markierung</translation>
    </message>
    <message>
        <source>Drag the pin or click the map to place the photo</source>
        <translation>Ziehen Sie die Nadel oder klicken Sie auf die Karte, um das Foto zu platzieren</translation>
    </message>
    <message>
        <source>Drag the pin or click the map to place the photos</source>
        <translation>Ziehen Sie die Nadel oder klicken Sie auf die Karte, um die Fotos zu platzieren</translation>
    </message>
    <message>
        <source>Use This Point</source>
        <extracomment>button: the selected photos are to be at this point of the track</extracomment>
        <translation>Diesen Punkt verwenden</translation>
    </message>
    <message>
        <source>Select photos first</source>
        <translation>Wählen Sie zuerst Fotos aus</translation>
    </message>
    <message>
        <source>Click the point of the track where the photo was taken.</source>
        <translation>Klicken Sie auf den Punkt des Tracks, an dem das Foto aufgenommen wurde.</translation>
    </message>
    <message>
        <source>There is no track here. Click on the track, or press Escape.</source>
        <translation>Hier ist kein Track. Klicken Sie auf den Track oder drücken Sie Esc.</translation>
    </message>
    <message>
        <source>Online map</source>
        <translation>Online-Karte</translation>
    </message>
    <message>
        <source>Bundled map</source>
        <translation>Mitgelieferte Karte</translation>
    </message>
    <message>
        <source>Offline map.</source>
        <extracomment>the online map does not come; &quot;Try again&quot; follows</extracomment>
        <translation>Offline-Karte.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>© OpenStreetMap contributors</source>
        <translation>© OpenStreetMap-Mitwirkende</translation>
    </message>
</context>
<context>
    <name>shell</name>
    <message>
        <source>No photo has got a position.</source>
        <translation>Kein Foto hat eine Position erhalten.</translation>
    </message>
    <message numerus="yes">
        <source>%n photos have got their positions.</source>
        <comment>%n photo has got its position.</comment>
        <translation>
            <numerusform>%n Foto hat seine Position erhalten.</numerusform>
            <numerusform>%n Fotos haben ihre Positionen erhalten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n were taken more than 5 minutes from any point of the log</source>
        <comment>%n was taken more than 5 minutes from any point of the log</comment>
        <extracomment>Of photos; the start of a sentence.</extracomment>
        <translation>
            <numerusform>%n wurde mehr als 5 Minuten von jedem Punkt des Logs entfernt aufgenommen</numerusform>
            <numerusform>%n wurden mehr als 5 Minuten von jedem Punkt des Logs entfernt aufgenommen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n do not say when they were taken</source>
        <comment>%n does not say when it was taken</comment>
        <extracomment>Of photos; the end of a sentence.</extracomment>
        <translation>
            <numerusform>%n sagt nicht, wann es aufgenommen wurde</numerusform>
            <numerusform>%n sagen nicht, wann sie aufgenommen wurden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1; %2.</source>
        <extracomment>Two halves of a sentence on photos, each complete.</extracomment>
        <translation>%1; %2.</translation>
    </message>
    <message numerus="yes">
        <source>%n have no neighbours in time with a position, or no capture time.</source>
        <comment>%n has no neighbours in time with a position, or no capture time.</comment>
        <translation>
            <numerusform>%n hat keine zeitlichen Nachbarn mit Position oder keine Aufnahmezeit.</numerusform>
            <numerusform>%n haben keine zeitlichen Nachbarn mit Position oder keine Aufnahmezeit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>With %1, %n of %2 photos lie on the track.</source>
        <comment>With %1, %n of %2 photos lie on the track.</comment>
        <extracomment>%1: an offset of the camera&apos;s clock</extracomment>
        <translation>
            <numerusform>Mit %1 liegt %n von %2 Fotos auf dem Track.</numerusform>
            <numerusform>Mit %1 liegen %n von %2 Fotos auf dem Track.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>With %1, %n of %2 photos of %3 lie on the track.</source>
        <comment>With %1, %n of %2 photos of %3 lie on the track.</comment>
        <translation>
            <numerusform>Mit %1 liegt %n von %2 Fotos der %3 auf dem Track.</numerusform>
            <numerusform>Mit %1 liegen %n von %2 Fotos der %3 auf dem Track.</numerusform>
        </translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Set Camera Clock</source>
        <translation>Kamerauhr stellen</translation>
    </message>
    <message>
        <source>That is corrected now. Applying the log gives the photos their positions.</source>
        <translation>Das ist jetzt korrigiert. Das Anwenden des Logs gibt den Fotos ihre Positionen.</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Camera clock</source>
        <translation>Kamerauhr</translation>
    </message>
    <message>
        <source>Camera clock · %1</source>
        <translation>Kamerauhr · %1</translation>
    </message>
    <message>
        <source>The altitude is a number of metres, such as 412.5.</source>
        <translation>Die Höhe ist eine Zahl in Metern, etwa 412.5.</translation>
    </message>
    <message>
        <source>Change Description</source>
        <translation>Beschreibung ändern</translation>
    </message>
    <message>
        <source>Change Comment</source>
        <translation>Kommentar ändern</translation>
    </message>
    <message>
        <source>Change City</source>
        <translation>Stadt ändern</translation>
    </message>
    <message>
        <source>Change Province</source>
        <translation>Provinz ändern</translation>
    </message>
    <message>
        <source>Change Country</source>
        <translation>Land ändern</translation>
    </message>
    <message>
        <source>Change Altitude</source>
        <translation>Höhe ändern</translation>
    </message>
    <message>
        <source>Remove Picture</source>
        <translation>Foto entfernen</translation>
    </message>
    <message>
        <source>Remove Pictures</source>
        <translation>Fotos entfernen</translation>
    </message>
    <message>
        <source>Add Marker</source>
        <translation>Markierung setzen</translation>
    </message>
    <message>
        <source>Remove Markers</source>
        <translation>Markierungen entfernen</translation>
    </message>
    <message>
        <source>Add Markers</source>
        <translation>Markierungen setzen</translation>
    </message>
    <message>
        <source>Remove Marker</source>
        <translation>Markierung entfernen</translation>
    </message>
    <message>
        <source>Left out:</source>
        <translation>Ausgelassen:</translation>
    </message>
    <message>
        <source>Load Them Too</source>
        <translation>Ebenfalls laden</translation>
    </message>
    <message numerus="yes">
        <source>Open Folders</source>
        <comment>Open Folder</comment>
        <translation>
            <numerusform>Ordner öffnen</numerusform>
            <numerusform>Ordner öffnen</numerusform>
        </translation>
    </message>
    <message>
        <source>Load Logs</source>
        <translation>Logs laden</translation>
    </message>
    <message>
        <source>Not loaded:</source>
        <translation>Nicht geladen:</translation>
    </message>
    <message numerus="yes">
        <source>They are in the list more than once now.</source>
        <comment>It is in the list more than once now.</comment>
        <translation>
            <numerusform>Es steht jetzt mehr als einmal in der Liste.</numerusform>
            <numerusform>Sie stehen jetzt mehr als einmal in der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Remove Doubles</source>
        <translation>Doppelte entfernen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>A file or folder, and why it could not be loaded.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>damaged GPX</source>
        <extracomment>Why a log could not be loaded; follows its name and a colon, as the next four do.</extracomment>
        <translation>beschädigtes GPX</translation>
    </message>
    <message numerus="yes">
        <source>damaged GPX; %n points before the damage came in</source>
        <comment>damaged GPX; %n point before the damage came in</comment>
        <translation>
            <numerusform>beschädigtes GPX; %n Punkt vor dem Schaden wurde geladen</numerusform>
            <numerusform>beschädigtes GPX; %n Punkte vor dem Schaden wurden geladen</numerusform>
        </translation>
    </message>
    <message>
        <source>neither GPX nor NMEA</source>
        <translation>weder GPX noch NMEA</translation>
    </message>
    <message>
        <source>not to be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message numerus="yes">
        <source>%1, and %n more</source>
        <comment>%1, and %n more</comment>
        <extracomment>%1: names of files with commas between them</extracomment>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1; and %n more</source>
        <comment>%1; and %n more</comment>
        <extracomment>%1: names of files and reasons with semicolons between them</extracomment>
        <translation>
            <numerusform>%1; und %n weitere</numerusform>
            <numerusform>%1; und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <comment>%n file</comment>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other files</source>
        <comment>%n other file</comment>
        <translation>
            <numerusform>%n andere Datei</numerusform>
            <numerusform>%n andere Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders inside</source>
        <comment>%n folder inside</comment>
        <extracomment>Folders inside of the one that was loaded; their files were not.</extracomment>
        <translation>
            <numerusform>%n Ordner darin</numerusform>
            <numerusform>%n Ordner darin</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %1 photos were there already.</source>
        <comment>%n of %1 photos was there already.</comment>
        <translation>
            <numerusform>%n von %1 Fotos war schon da.</numerusform>
            <numerusform>%n von %1 Fotos waren schon da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %n photos were there already.</source>
        <comment>The photo was there already.</comment>
        <translation>
            <numerusform>Das Foto war schon da.</numerusform>
            <numerusform>Alle %n Fotos waren schon da.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read Logs Again</source>
        <translation>Logs erneut lesen</translation>
    </message>
    <message>
        <source>Reading logs again</source>
        <translation>Logs werden erneut gelesen</translation>
    </message>
    <message>
        <source>Reading %1 of %2</source>
        <translation>%1 von %2 wird gelesen</translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>A span of days, as short as can be.</extracomment>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <extracomment>A span of hours, as short as can be.</extracomment>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <extracomment>A span of minutes, as short as can be.</extracomment>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>A span of seconds, as short as can be.</extracomment>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>The camera’s clock was right.</source>
        <translation>Die Kamerauhr ging richtig.</translation>
    </message>
    <message>
        <source>The camera was %1 slow.</source>
        <translation>Die Kamerauhr ging %1 nach.</translation>
    </message>
    <message>
        <source>The camera was %1 fast.</source>
        <translation>Die Kamerauhr ging %1 vor.</translation>
    </message>
    <message>
        <source>%1: its clock was right</source>
        <translation>%1: Die Uhr ging richtig</translation>
    </message>
    <message>
        <source>%1: %2 slow</source>
        <extracomment>%1: the name of a camera, %2: a span of time; no full stop</extracomment>
        <translation>%1: Die Uhr ging %2 nach</translation>
    </message>
    <message>
        <source>%1: %2 fast</source>
        <translation>%1: Die Uhr ging %2 vor</translation>
    </message>
    <message>
        <source>The saved copy of %1 would still carry the position that is in its file.</source>
        <translation>Die gespeicherte Kopie von %1 würde noch die Position tragen, die in der Datei steht.</translation>
    </message>
    <message numerus="yes">
        <source>The saved copies of %n photos would still carry the positions that are in their files.</source>
        <comment>The saved copy of %n photo would still carry the position that is in its file.</comment>
        <translation>
            <numerusform>Die gespeicherte Kopie von %n Foto würde noch die Position tragen, die in der Datei steht.</numerusform>
            <numerusform>Die gespeicherten Kopien von %n Fotos würden noch die Positionen tragen, die in den Dateien stehen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Remove Them There</source>
        <comment>Remove It There</comment>
        <translation>
            <numerusform>Dort entfernen</numerusform>
            <numerusform>Dort entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Beibehalten</translation>
    </message>
    <message>
        <source>%1 could not be read again.</source>
        <translation>%1 konnte nicht erneut gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n logs could not be read again.</source>
        <comment>%n log could not be read again.</comment>
        <translation>
            <numerusform>%n Log konnte nicht erneut gelesen werden.</numerusform>
            <numerusform>%n Logs konnten nicht erneut gelesen werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Its points stay as they are.</source>
        <translation>Seine Punkte bleiben, wie sie sind.</translation>
    </message>
    <message numerus="yes">
        <source>Their points stay as they are: %1 and %n others.</source>
        <comment>Their points stay as they are: %1 and %n other.</comment>
        <translation>
            <numerusform>Ihre Punkte bleiben, wie sie sind: %1 und %n weiteres.</numerusform>
            <numerusform>Ihre Punkte bleiben, wie sie sind: %1 und %n weitere.</numerusform>
        </translation>
    </message>
    <message>
        <source>exact</source>
        <extracomment>The name of a way to read logs; stands in for &quot;%1&quot; in &quot;The %1 reading&quot;.</extracomment>
        <translation>exakt</translation>
    </message>
    <message>
        <source>tolerant</source>
        <translation>tolerant</translation>
    </message>
    <message>
        <source>%1 gives its times in universal time.</source>
        <translation>%1 gibt seine Zeiten in Weltzeit an.</translation>
    </message>
    <message>
        <source>%1 gives its times in clock time.</source>
        <translation>%1 gibt seine Zeiten in Ortszeit an.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other logs give their times in universal time.</source>
        <comment>%1 and %n other log give their times in universal time.</comment>
        <translation>
            <numerusform>%1 und %n weiteres Log geben ihre Zeiten in Weltzeit an.</numerusform>
            <numerusform>%1 und %n weitere Logs geben ihre Zeiten in Weltzeit an.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other logs give their times in clock time.</source>
        <comment>%1 and %n other log give their times in clock time.</comment>
        <translation>
            <numerusform>%1 und %n weiteres Log geben ihre Zeiten in Ortszeit an.</numerusform>
            <numerusform>%1 und %n weitere Logs geben ihre Zeiten in Ortszeit an.</numerusform>
        </translation>
    </message>
    <message>
        <source>Read as clock time they miss your photos by %1.</source>
        <translation>Als Ortszeit gelesen, verfehlen sie Ihre Fotos um %1.</translation>
    </message>
    <message>
        <source>Read as universal time they miss your photos by %1.</source>
        <translation>Als Weltzeit gelesen, verfehlen sie Ihre Fotos um %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n sentences in %1 are left out by the %2 reading.</source>
        <comment>%n sentence in %1 is left out by the %2 reading.</comment>
        <extracomment>%1: the name of a log, %2: &quot;exact&quot; or &quot;tolerant&quot;</extracomment>
        <translation>
            <numerusform>%n Satz in %1 wird von der Lesart „%2“ ausgelassen.</numerusform>
            <numerusform>%n Sätze in %1 werden von der Lesart „%2“ ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %3 times in %1 are left out by the %2 reading.</source>
        <comment>%n of %3 times in %1 is left out by the %2 reading.</comment>
        <translation>
            <numerusform>%n von %3 Zeiten in %1 wird von der Lesart „%2“ ausgelassen.</numerusform>
            <numerusform>%n von %3 Zeiten in %1 werden von der Lesart „%2“ ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sentences in %1 are left out by the %2 reading, and some in %4.</source>
        <comment>%n sentence in %1 is left out by the %2 reading, and some in %4.</comment>
        <extracomment>%1: the name of a log, %2: &quot;exact&quot; or &quot;tolerant&quot;, %4: &quot;2 other logs&quot;</extracomment>
        <translation>
            <numerusform>%n Satz in %1 wird von der Lesart „%2“ ausgelassen, dazu einige in %4.</numerusform>
            <numerusform>%n Sätze in %1 werden von der Lesart „%2“ ausgelassen, dazu einige in %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n of %3 times in %1 are left out by the %2 reading, and some in %4.</source>
        <comment>%n of %3 times in %1 is left out by the %2 reading, and some in %4.</comment>
        <translation>
            <numerusform>%n von %3 Zeiten in %1 wird von der Lesart „%2“ ausgelassen, dazu einige in %4.</numerusform>
            <numerusform>%n von %3 Zeiten in %1 werden von der Lesart „%2“ ausgelassen, dazu einige in %4.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n other logs</source>
        <comment>%n other log</comment>
        <extracomment>Follows &quot;and some in&quot;.</extracomment>
        <translation>
            <numerusform>%n weiteren Log</numerusform>
            <numerusform>%n weiteren Logs</numerusform>
        </translation>
    </message>
    <message>
        <source>The tolerant one takes them, and all times as universal time.</source>
        <translation>Die Lesart „tolerant“ nimmt sie an, und alle Zeiten als Weltzeit.</translation>
    </message>
    <message>
        <source>The %1 one takes them.</source>
        <translation>Die Lesart „%1“ nimmt sie an.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <translation>%1 konnte nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>The %1 reading makes nothing of it; the %2 one finds %n points in it.</source>
        <comment>The %1 reading makes nothing of it; the %2 one finds %n point in it.</comment>
        <extracomment>%1, %2: &quot;exact&quot; or &quot;tolerant&quot;</extracomment>
        <translation>
            <numerusform>Die Lesart „%1“ kann nichts damit anfangen; die Lesart „%2“ findet %n Punkt darin.</numerusform>
            <numerusform>Die Lesart „%1“ kann nichts damit anfangen; die Lesart „%2“ findet %n Punkte darin.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 fits more of your photos.</source>
        <translation>%1 passt zu mehr von Ihren Fotos.</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n other logs fit more of your photos.</source>
        <comment>%1 and %n other log fit more of your photos.</comment>
        <translation>
            <numerusform>%1 und %n weiteres Log passen zu mehr von Ihren Fotos.</numerusform>
            <numerusform>%1 und %n weitere Logs passen zu mehr von Ihren Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>With the %1 reading, %n more lie within 5 minutes of a point.</source>
        <comment>With the %1 reading, %n more lies within 5 minutes of a point.</comment>
        <extracomment>Of photos. %1: &quot;exact&quot; or &quot;tolerant&quot;</extracomment>
        <translation>
            <numerusform>Mit der Lesart „%1“ liegt %n weiteres höchstens 5 Minuten von einem Punkt entfernt.</numerusform>
            <numerusform>Mit der Lesart „%1“ liegen %n weitere höchstens 5 Minuten von einem Punkt entfernt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Then check the camera clock: it is corrected by an offset.</source>
        <translation>Prüfen Sie dann die Kamerauhr: Sie ist um eine Abweichung korrigiert.</translation>
    </message>
    <message>
        <source>Use Universal Time</source>
        <translation>Weltzeit verwenden</translation>
    </message>
    <message>
        <source>Use Clock Time</source>
        <translation>Ortszeit verwenden</translation>
    </message>
    <message numerus="yes">
        <source>Read Them Too</source>
        <comment>Read It Too</comment>
        <translation>
            <numerusform>Ebenfalls lesen</numerusform>
            <numerusform>Ebenfalls lesen</numerusform>
        </translation>
    </message>
    <message>
        <source>Read Tolerantly</source>
        <translation>Tolerant lesen</translation>
    </message>
    <message>
        <source>Read Exactly</source>
        <translation>Exakt lesen</translation>
    </message>
    <message>
        <source>from %1.</source>
        <extracomment>After &quot;Unsaved work&quot;. %1: date and time</extracomment>
        <translation>vom %1.</translation>
    </message>
    <message numerus="yes">
        <source>from %1, with %n photos.</source>
        <comment>from %1, with %n photo.</comment>
        <translation>
            <numerusform>vom %1, mit %n Foto.</numerusform>
            <numerusform>vom %1, mit %n Fotos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>from %1, with %n points.</source>
        <comment>from %1, with %n point.</comment>
        <translation>
            <numerusform>vom %1, mit %n Punkt.</numerusform>
            <numerusform>vom %1, mit %n Punkten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>from %1, with %2 and %n points.</source>
        <comment>from %1, with %2 and %n point.</comment>
        <extracomment>%2: &quot;12 photos&quot;</extracomment>
        <translation>
            <numerusform>vom %1, mit %2 und %n Punkt.</numerusform>
            <numerusform>vom %1, mit %2 und %n Punkten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <comment>%n photo</comment>
        <extracomment>Follows &quot;with&quot;.</extracomment>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>It cannot be brought back: %1</source>
        <translation>Sie lässt sich nicht zurückholen: %1</translation>
    </message>
    <message>
        <source>Unsaved work is not being kept.</source>
        <translation>Ungespeicherte Arbeit wird nicht festgehalten.</translation>
    </message>
    <message>
        <source>%1. Save the library (File menu) to keep what you have done.</source>
        <extracomment>%1: the reason, with a capital letter and without a full stop</extracomment>
        <translation>%1. Speichern Sie die Bibliothek (Menü „Datei“), um zu behalten, was Sie getan haben.</translation>
    </message>
    <message>
        <source>Unsaved work</source>
        <translation>Ungespeicherte Arbeit</translation>
    </message>
    <message>
        <source>Bring Back</source>
        <translation>Zurückholen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Bringing back unsaved work</source>
        <translation>Ungespeicherte Arbeit wird zurückgeholt</translation>
    </message>
    <message>
        <source>Not all unsaved work could be brought back.</source>
        <translation>Nicht alle ungespeicherte Arbeit ließ sich zurückholen.</translation>
    </message>
    <message>
        <source>It will be removed when you quit.</source>
        <translation>Sie wird entfernt, wenn Sie Pinmora beenden.</translation>
    </message>
    <message>
        <source>Keep It</source>
        <translation>Doch behalten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <extracomment>%1: what is taken back, such as &quot;Load GPS Data&quot;</extracomment>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <extracomment>%1: what is done again, such as &quot;Load GPS Data&quot;</extracomment>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>First correct what you typed, or press Escape in it:</source>
        <translation>Korrigieren Sie zuerst Ihre Eingabe, oder drücken Sie darin Esc:</translation>
    </message>
    <message>
        <source>An address is needed that begins with http:// or https:// and goes on with the name of a server.</source>
        <translation>Nötig ist eine Adresse, die mit http:// oder https:// beginnt und mit dem Namen eines Servers weitergeht.</translation>
    </message>
    <message>
        <source>%1 is missing: the address needs {z}, {x} and {y}, where zoom, column and row of a tile go.</source>
        <translation>%1 fehlt: Die Adresse braucht {z}, {x} und {y}, wo Zoomstufe, Spalte und Zeile einer Kachel hingehören.</translation>
    </message>
    <message>
        <source>The name of a server is needed, without http:// and without blanks, or nothing.</source>
        <translation>Nötig ist der Name eines Servers, ohne http:// und ohne Leerzeichen, oder nichts.</translation>
    </message>
    <message>
        <source>A name that ends in a slash is needed, without blanks, or nothing.</source>
        <translation>Nötig ist ein Name, der mit einem Schrägstrich endet, ohne Leerzeichen, oder nichts.</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a span of time, or an offset of the camera&apos;s clock; within a sentence</extracomment>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>It had another position before; Undo brings it back.</source>
        <extracomment>Of the only photo that has been placed.</extracomment>
        <translation>Vorher hatte es eine andere Position; „Rückgängig“ bringt sie zurück.</translation>
    </message>
    <message numerus="yes">
        <source>%n had other positions before; Undo brings them back.</source>
        <comment>%n had another position before; Undo brings it back.</comment>
        <translation>
            <numerusform>%n hatte vorher eine andere Position; „Rückgängig“ bringt sie zurück.</numerusform>
            <numerusform>%n hatten vorher andere Positionen; „Rückgängig“ bringt sie zurück.</numerusform>
        </translation>
    </message>
    <message>
        <source>To make it exact, put one photo where it belongs, or use “Photo Was Taken At…”.</source>
        <translation>Genauer: ein Foto an seinen Ort setzen, oder „Foto wurde aufgenommen um…“.</translation>
    </message>
    <message>
        <source>Cameras have clocks of their own: GPS &gt; Cameras</source>
        <translation>Kameras haben eigene Uhren: GPS &gt; Kameras</translation>
    </message>
    <message>
        <source>There are no photos and no logs in “%1”.</source>
        <translation>In „%1“ sind keine Fotos und keine Logs.</translation>
    </message>
    <message numerus="yes">
        <source>There are no photos and no logs in %n folders.</source>
        <comment>There are no photos and no logs in %n folder.</comment>
        <translation>
            <numerusform>In %n Ordner sind keine Fotos und keine Logs.</numerusform>
            <numerusform>In %n Ordnern sind keine Fotos und keine Logs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cameras have the clocks that you gave them last time.</source>
        <comment>%n camera has the clock that you gave it last time.</comment>
        <translation>
            <numerusform>%n Kamera hat die Uhr, die Sie ihr zuletzt gegeben haben.</numerusform>
            <numerusform>%n Kameras haben die Uhren, die Sie ihnen zuletzt gegeben haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, as you set it last time.</source>
        <translation>%1, wie zuletzt eingestellt.</translation>
    </message>
    <message>
        <source>Cameras…</source>
        <translation>Kameras…</translation>
    </message>
</context>
<context>
    <name>store</name>
    <message>
        <source>Map zoom level %1</source>
        <translation>Zoomstufe der Karte %1</translation>
    </message>
    <message>
        <source>Your library could not be opened.</source>
        <translation>Ihre Bibliothek konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Remove All GPS Data</source>
        <translation>Alle GPS-Daten entfernen</translation>
    </message>
    <message>
        <source>Your library could not be saved.</source>
        <translation>Ihre Bibliothek konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Remove All Photos</source>
        <translation>Alle Fotos entfernen</translation>
    </message>
    <message>
        <source>another Pinmora has this library open</source>
        <translation>ein anderes Pinmora hat diese Bibliothek geöffnet</translation>
    </message>
    <message>
        <source>it could not be opened when Pinmora started, so nothing is written to it</source>
        <translation>sie konnte beim Start von Pinmora nicht geöffnet werden, darum wird nichts in sie geschrieben</translation>
    </message>
</context>
<context>
    <name>tag</name>
    <message>
        <source>a GPS log: GPX or NMEA; may be given several times</source>
        <translation>ein GPS-Log: GPX oder NMEA; darf mehrmals stehen</translation>
    </message>
    <message>
        <source>what the camera&apos;s clock lacks; added to the photos&apos; times
(or with - taken off) before they are compared</source>
        <translation>was der Kamerauhr fehlt; wird zu den Zeiten der Fotos
addiert (mit - abgezogen), bevor sie verglichen werden</translation>
    </message>
    <message>
        <source>save the copies as BASE_1, BASE_2, ... in order of time</source>
        <translation>die Kopien als BASE_1, BASE_2, ... nach der Zeit geordnet
speichern</translation>
    </message>
    <message>
        <source>how logs are read. exact: whole-second times, read as
clock time; tolerant: any time form, universal time,
modern receivers, gaps in the log. auto (the default)
takes your setting, and tolerant where only that fits</source>
        <translation>wie Logs gelesen werden. exact: Zeiten in ganzen Sekunden,
als Ortszeit; tolerant: jede Form der Zeit, Weltzeit,
moderne Empfänger, Lücken im Log. auto (Vorgabe) nimmt
Ihre Einstellung, und tolerant, wo nur das passt</translation>
    </message>
    <message>
        <source>how ExifTool is run. process: anew for each photo; shared:
a few that are kept open, which is much faster. Without
it your setting holds, which is process at first</source>
        <translation>wie ExifTool läuft. process: für jedes Foto neu; shared:
einige wenige, die offen bleiben, und viel schneller. Ohne
Angabe gilt Ihre Einstellung, anfangs process</translation>
    </message>
    <message>
        <source>do not look up city, province and country of the new
positions; your setting may say so too</source>
        <translation>Stadt, Provinz und Land der neuen Positionen nicht
suchen; auch Ihre Einstellung kann das sagen</translation>
    </message>
    <message>
        <source>the folder for the copies; made if it is missing.
Nothing in it is ever replaced</source>
        <translation>der Ordner für die Kopien; wird angelegt, wenn er fehlt.
Nichts darin wird je ersetzt</translation>
    </message>
    <message>
        <source>print one JSON document instead of the table</source>
        <translation>ein JSON-Dokument statt der Tabelle ausgeben</translation>
    </message>
    <message>
        <source>Usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>Gives every photo the position of the GPS track point nearest in time and the
names of the place there, and saves tagged copies. The photos themselves are never changed.</source>
        <translation>Gibt jedem Foto die Position des zeitlich nächsten GPS-Trackpunkts und die
Ortsnamen dazu und speichert Kopien damit. Die Fotos selbst werden nie verändert.</translation>
    </message>
    <message>
        <source>PATHs are photos, folders of photos (one level deep) and GPS logs; logs found in
a folder are read too.</source>
        <translation>PFADe sind Fotos, Ordner mit Fotos (eine Ebene tief) und GPS-Logs; Logs, die in
einem Ordner liegen, werden auch gelesen.</translation>
    </message>
    <message>
        <source>Exit status: 0 all done; 1 a photo failed or found no track point, or something
that was named could not be read; 2 wrong usage.</source>
        <translation>Rückgabewert: 0 alles getan; 1 ein Foto schlug fehl oder fand keinen Trackpunkt,
oder etwas Genanntes war nicht zu lesen; 2 falscher Aufruf.</translation>
    </message>
    <message>
        <source>Reading photo %1</source>
        <translation>Foto %1 wird gelesen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: there is no such file or folder</source>
        <translation>%1: es gibt keine solche Datei und keinen solchen Ordner</translation>
    </message>
    <message>
        <source>%1: left out: %2</source>
        <translation>%1: ausgelassen: %2</translation>
    </message>
    <message>
        <source>%1: this folder cannot be read: %2</source>
        <translation>%1: dieser Ordner kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: passed over, it is no GPS log</source>
        <translation>%1: übergangen, es ist kein GPS-Log</translation>
    </message>
    <message>
        <source>the logs are read as tolerant: as exact, they place no photo within 5 minutes of a point</source>
        <translation>die Logs werden als „tolerant“ gelesen: als „exact“ bringen sie kein Foto näher als 5 Minuten an einen Punkt</translation>
    </message>
    <message>
        <source>%1: Error! %2</source>
        <translation>%1: Fehler! %2</translation>
    </message>
    <message>
        <source>Reading log %1 of %2</source>
        <translation>Log %1 von %2 wird gelesen</translation>
    </message>
    <message>
        <source>the report could not be written</source>
        <translation>der Bericht konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Try &apos;pinmora-tag --help&apos;.</source>
        <translation>Hilfe: „pinmora-tag --help“.</translation>
    </message>
    <message>
        <source>--offset wants [+|-]H:M:S, not &quot;%1&quot;</source>
        <translation>--offset verlangt [+|-]H:M:S, nicht „%1“</translation>
    </message>
    <message>
        <source>--name wants a file name, without &quot;/&quot;</source>
        <translation>--name verlangt einen Dateinamen ohne „/“</translation>
    </message>
    <message>
        <source>--logs wants auto, exact or tolerant, not &quot;%1&quot;</source>
        <translation>--logs verlangt auto, exact oder tolerant, nicht „%1“</translation>
    </message>
    <message>
        <source>--lane wants process or shared, not &quot;%1&quot;</source>
        <translation>--lane verlangt process oder shared, nicht „%1“</translation>
    </message>
    <message>
        <source>there is no such option, or its value is missing</source>
        <translation>es gibt keine solche Option, oder ihr Wert fehlt</translation>
    </message>
    <message>
        <source>%1 wants a value</source>
        <translation>%1 verlangt einen Wert</translation>
    </message>
    <message>
        <source>no such option: %1</source>
        <translation>keine solche Option: %1</translation>
    </message>
    <message>
        <source>which photos? Give their files or a folder</source>
        <translation>welche Fotos? Nennen Sie Dateien oder einen Ordner</translation>
    </message>
    <message>
        <source>where to? Give a folder with --out</source>
        <translation>wohin? Nennen Sie einen Ordner mit --out</translation>
    </message>
    <message>
        <source>Looking up places %1 of %2</source>
        <translation>Orte werden gesucht: %1 von %2</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Taken</source>
        <extracomment>heading: when a photo was taken</extracomment>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>Corrected</source>
        <extracomment>heading: when a photo was taken by a clock that is right</extracomment>
        <translation>Korrigiert</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Place</source>
        <extracomment>heading: the names of the place where a photo was taken</extracomment>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Apart</source>
        <extracomment>heading: how far a photo and its track point are apart in time</extracomment>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Saved as</source>
        <extracomment>heading: the copy&apos;s file name</extracomment>
        <translation>Gespeichert als</translation>
    </message>
    <message>
        <source>no capture time</source>
        <translation>keine Aufnahmezeit</translation>
    </message>
    <message numerus="yes">
        <source>%n saved</source>
        <comment>%n saved</comment>
        <translation>
            <numerusform>%n gespeichert</numerusform>
            <numerusform>%n gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n matched</source>
        <comment>%n matched</comment>
        <translation>
            <numerusform>%n zugeordnet</numerusform>
            <numerusform>%n zugeordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unmatched</source>
        <comment>%n unmatched</comment>
        <translation>
            <numerusform>%n nicht zugeordnet</numerusform>
            <numerusform>%n nicht zugeordnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n failed</source>
        <comment>%n failed</comment>
        <translation>
            <numerusform>%n fehlgeschlagen</numerusform>
            <numerusform>%n fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photos</source>
        <comment>%n photo</comment>
        <translation>
            <numerusform>%n Foto</numerusform>
            <numerusform>%n Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1. %2, %3.</source>
        <extracomment>%1 counts the photos, %2 the tracks, %3 the points, each with its word</extracomment>
        <translation>%1. %2, %3.</translation>
    </message>
    <message numerus="yes">
        <source>%n tracks</source>
        <comment>%n track</comment>
        <translation>
            <numerusform>%n Track</numerusform>
            <numerusform>%n Tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n points</source>
        <comment>%n point</comment>
        <translation>
            <numerusform>%n Punkt</numerusform>
            <numerusform>%n Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>unmatched: %1</source>
        <translation>nicht zugeordnet: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>no capture time: placed by the time of loading</source>
        <translation>keine Aufnahmezeit: nach der Zeit des Ladens platziert</translation>
    </message>
    <message>
        <source>there is no track point with a time and a position</source>
        <translation>es gibt keinen Trackpunkt mit Zeit und Position</translation>
    </message>
    <message>
        <source>its capture time cannot be read</source>
        <translation>seine Aufnahmezeit lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>the point has no altitude: the copy keeps the photo&apos;s own</source>
        <translation>der Punkt hat keine Höhe: Die Kopie behält die des Fotos</translation>
    </message>
    <message>
        <source>%1: the copies cannot go there: %2</source>
        <translation>%1: dorthin können die Kopien nicht: %2</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>%1 von %2 wird gespeichert</translation>
    </message>
    <message>
        <source>%1: the copies may not be on the disk: %2</source>
        <translation>%1: die Kopien sind vielleicht nicht auf dem Datenträger: %2</translation>
    </message>
    <message>
        <source>there is no photo to save</source>
        <translation>es gibt kein Foto zu speichern</translation>
    </message>
    <message>
        <source>not copied</source>
        <translation>nicht kopiert</translation>
    </message>
    <message>
        <source>the logs are read as exact, which places %1 of %2 photos within 5 minutes of a point; --logs tolerant would place %3</source>
        <extracomment>&quot;exact&quot;, &quot;tolerant&quot; and &quot;--logs tolerant&quot; stay as they are</extracomment>
        <translation>die Logs werden als „exact“ gelesen, was %1 von %2 Fotos näher als 5 Minuten an einen Punkt bringt; --logs tolerant brächte %3 so nahe</translation>
    </message>
    <message>
        <source>say what would be done, and save nothing; needs no
--out</source>
        <translation>nur sagen, was geschähe, und nichts speichern;
braucht kein --out</translation>
    </message>
    <message>
        <source>there is no GPS log: the photos keep the positions that they have</source>
        <translation>es gibt kein GPS-Log: Die Fotos behalten die Positionen, die sie haben</translation>
    </message>
</context>
<context>
    <name>ui</name>
    <message>
        <source>&amp;Add Photos…</source>
        <translation>Fotos &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Add photos or a folder of photos</source>
        <translation>Fotos oder einen Ordner mit Fotos hinzufügen</translation>
    </message>
    <message>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Load GPS Data…</source>
        <translation>GPS-Daten &amp;laden…</translation>
    </message>
    <message>
        <source>Load GPS logs (GPX or NMEA)</source>
        <translation>GPS-Logs laden (GPX oder NMEA)</translation>
    </message>
    <message>
        <source>Load GPS Data</source>
        <translation>GPS-Daten laden</translation>
    </message>
    <message>
        <source>&amp;Save Library</source>
        <translation>B&amp;ibliothek speichern</translation>
    </message>
    <message>
        <source>Keep photos, tracks and positions as they are for the next start</source>
        <translation>Fotos, Tracks und Positionen so für den nächsten Start behalten</translation>
    </message>
    <message>
        <source>Save &amp;Photos…</source>
        <translation>&amp;Fotos speichern…</translation>
    </message>
    <message>
        <source>Save tagged copies of the photos; the originals stay as they are</source>
        <translation>Kopien der Fotos mit ihren Positionen speichern; die Originale bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Save Photos</source>
        <translation>Fotos speichern</translation>
    </message>
    <message>
        <source>&amp;Remove All Photos…</source>
        <translation>Alle Fotos &amp;entfernen…</translation>
    </message>
    <message>
        <source>Empty the list; the photo files stay</source>
        <translation>Die Liste leeren; die Fotodateien bleiben</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>End Pinmora</source>
        <translation>Pinmora beenden</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Take back the last step</source>
        <translation>Den letzten Schritt zurücknehmen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Do again what was taken back</source>
        <translation>Noch einmal tun, was zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Select &amp;All Photos</source>
        <translation>&amp;Alle Fotos auswählen</translation>
    </message>
    <message>
        <source>Select all photos that are seen</source>
        <translation>Alle sichtbaren Fotos auswählen</translation>
    </message>
    <message>
        <source>&amp;Full Size</source>
        <translation>&amp;Volle Größe</translation>
    </message>
    <message>
        <source>Show the selected photo in a window of its own</source>
        <translation>Das ausgewählte Foto in einem eigenen Fenster zeigen</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>Give the copies of the photos other names</source>
        <translation>Den Kopien der Fotos andere Namen geben</translation>
    </message>
    <message>
        <source>Use &amp;Original Names</source>
        <translation>&amp;Originalnamen verwenden</translation>
    </message>
    <message>
        <source>Give all photos the names of their files again</source>
        <translation>Allen Fotos wieder die Namen ihrer Dateien geben</translation>
    </message>
    <message>
        <source>Look &amp;Up Place Names</source>
        <translation>Orts&amp;namen suchen</translation>
    </message>
    <message>
        <source>Find city, province and country of each new position</source>
        <translation>Stadt, Provinz und Land jeder neuen Position suchen</translation>
    </message>
    <message>
        <source>&amp;Remove Picture</source>
        <translation>Foto &amp;entfernen</translation>
    </message>
    <message>
        <source>Take the selected photos off the list; their files stay</source>
        <translation>Die ausgewählten Fotos aus der Liste nehmen; ihre Dateien bleiben</translation>
    </message>
    <message>
        <source>&amp;Apply to All</source>
        <translation>Auf &amp;alle anwenden</translation>
    </message>
    <message>
        <source>Give every photo the position of the track point nearest in time</source>
        <translation>Jedem Foto die Position des zeitlich nächsten Trackpunkts geben</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Apply to Se&amp;lected</source>
        <translation>Auf aus&amp;gewählte anwenden</translation>
    </message>
    <message>
        <source>Give the selected photos the positions of the track points nearest in time</source>
        <translation>Den ausgewählten Fotos die Positionen der zeitlich nächsten Trackpunkte geben</translation>
    </message>
    <message>
        <source>Apply to Photos &amp;Without Position</source>
        <translation>Auf Fotos &amp;ohne Position anwenden</translation>
    </message>
    <message>
        <source>The same for photos that have no position yet; the others stay where they are</source>
        <translation>Das Gleiche für Fotos, die noch keine Position haben; die anderen bleiben, wo sie sind</translation>
    </message>
    <message>
        <source>&amp;Match Photo</source>
        <translation>&amp;Foto abgleichen</translation>
    </message>
    <message>
        <source>Give the selected photo the position of the track point nearest in time</source>
        <translation>Dem ausgewählten Foto die Position des zeitlich nächsten Trackpunkts geben</translation>
    </message>
    <message>
        <source>&amp;Nearest Point of the Log</source>
        <translation>&amp;Nächster Punkt des Logs</translation>
    </message>
    <message>
        <source>Put the selected photo at the track point nearest in time; the clock stays</source>
        <translation>Das ausgewählte Foto an den zeitlich nächsten Trackpunkt setzen; die Uhr bleibt</translation>
    </message>
    <message>
        <source>Place &amp;Between Neighbours</source>
        <translation>&amp;Zwischen Nachbarn setzen</translation>
    </message>
    <message>
        <source>Put the selected photos between the track points, or the photos, before and after them</source>
        <translation>Die ausgewählten Fotos zwischen die Trackpunkte oder die Fotos davor und danach setzen</translation>
    </message>
    <message>
        <source>Add Mar&amp;ker</source>
        <translation>Mar&amp;kierung setzen</translation>
    </message>
    <message>
        <source>Place the selected photos on the map, or take their position away</source>
        <translation>Die ausgewählten Fotos auf die Karte setzen oder ihnen die Position nehmen</translation>
    </message>
    <message>
        <source>&amp;Set Clock From This Position</source>
        <translation>&amp;Uhr nach dieser Position stellen</translation>
    </message>
    <message>
        <source>Set the camera clock by the track point nearest to the photo&apos;s position</source>
        <translation>Die Kamerauhr nach dem Trackpunkt stellen, der der Position des Fotos am nächsten liegt</translation>
    </message>
    <message>
        <source>Set Clock by a &amp;Track Point on the Map…</source>
        <translation>Uhr nach einem &amp;Trackpunkt auf der Karte stellen…</translation>
    </message>
    <message>
        <source>Click on the map where one selected photo was taken; the clock is set by the nearest track point</source>
        <translation>Auf der Karte dorthin klicken, wo das eine ausgewählte Foto aufgenommen wurde; die Uhr wird nach dem nächsten Trackpunkt gestellt</translation>
    </message>
    <message>
        <source>&amp;Photo Was Taken At…</source>
        <translation>Foto &amp;wurde aufgenommen um…</translation>
    </message>
    <message>
        <source>Set the camera clock by one selected photo whose true time is known: it shows a clock, for example</source>
        <translation>Die Kamerauhr nach einem ausgewählten Foto stellen, dessen wahre Zeit bekannt ist: Es zeigt zum Beispiel eine Uhr</translation>
    </message>
    <message>
        <source>&amp;Cameras…</source>
        <translation>Ka&amp;meras…</translation>
    </message>
    <message>
        <source>Which cameras took the photos, and which have a clock of their own</source>
        <translation>Welche Kameras die Fotos aufgenommen haben und welche eine eigene Uhr haben</translation>
    </message>
    <message>
        <source>Remove All &amp;GPS Data</source>
        <translation>Alle GPS-&amp;Daten entfernen</translation>
    </message>
    <message>
        <source>Remove all tracks from the library; the log files stay</source>
        <translation>Alle Tracks aus der Bibliothek entfernen; die Logdateien bleiben</translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation>&amp;Position</translation>
    </message>
    <message>
        <source>Map, coordinates and camera clock</source>
        <translation>Karte, Koordinaten und Kamerauhr</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>Large picture, description and place names</source>
        <translation>Großes Bild, Beschreibung und Ortsnamen</translation>
    </message>
    <message>
        <source>Only &amp;Without Position</source>
        <translation>Nur &amp;ohne Position</translation>
    </message>
    <message>
        <source>Show only photos that have no position yet</source>
        <translation>Nur Fotos zeigen, die noch keine Position haben</translation>
    </message>
    <message>
        <source>Look of the D&amp;esktop</source>
        <translation>Aussehen des D&amp;esktops</translation>
    </message>
    <message>
        <source>Light or dark, as the desktop is</source>
        <translation>Hell oder dunkel, wie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Light Look</source>
        <translation>&amp;Helles Aussehen</translation>
    </message>
    <message>
        <source>Always light</source>
        <translation>Immer hell</translation>
    </message>
    <message>
        <source>Dar&amp;k Look</source>
        <translation>Dun&amp;kles Aussehen</translation>
    </message>
    <message>
        <source>Always dark</source>
        <translation>Immer dunkel</translation>
    </message>
    <message>
        <source>Wi&amp;zard</source>
        <translation>&amp;Assistent</translation>
    </message>
    <message>
        <source>The same work, one question at a time</source>
        <translation>Die gleiche Arbeit, eine Frage nach der anderen</translation>
    </message>
    <message>
        <source>Wizard</source>
        <translation>Assistent</translation>
    </message>
    <message>
        <source>&amp;Main Window</source>
        <translation>Haupt&amp;fenster</translation>
    </message>
    <message>
        <source>The same work, everything on one surface</source>
        <translation>Die gleiche Arbeit, alles auf einer Fläche</translation>
    </message>
    <message>
        <source>&amp;Try It With the Sample Outing</source>
        <translation>&amp;Mit dem Beispielausflug ausprobieren</translation>
    </message>
    <message>
        <source>Load eight photos and the logs of an outing to try Pinmora with</source>
        <translation>Acht Fotos und die Logs eines Ausflugs laden, um Pinmora auszuprobieren</translation>
    </message>
    <message>
        <source>Show &amp;Log</source>
        <translation>&amp;Protokoll anzeigen</translation>
    </message>
    <message>
        <source>What could not be saved, and why</source>
        <translation>Was nicht gespeichert werden konnte, und warum</translation>
    </message>
    <message>
        <source>Check for a &amp;New Version…</source>
        <translation>Nach &amp;neuer Version suchen…</translation>
    </message>
    <message>
        <source>Ask whether there is a newer Pinmora, and fetch it</source>
        <translation>Fragen, ob es ein neueres Pinmora gibt, und es holen</translation>
    </message>
    <message>
        <source>&amp;Web Site</source>
        <translation>&amp;Website</translation>
    </message>
    <message>
        <source>Open Pinmora&apos;s web site in the browser</source>
        <translation>Die Website von Pinmora im Browser öffnen</translation>
    </message>
    <message>
        <source>&amp;Report a Problem…</source>
        <translation>P&amp;roblem melden…</translation>
    </message>
    <message>
        <source>Tell the makers of Pinmora what went wrong</source>
        <translation>Den Machern von Pinmora sagen, was nicht geklappt hat</translation>
    </message>
    <message>
        <source>&amp;About Pinmora</source>
        <translation>Ü&amp;ber Pinmora</translation>
    </message>
    <message>
        <source>Version and licence</source>
        <translation>Version und Lizenz</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Photo</source>
        <translation>&amp;Foto</translation>
    </message>
    <message>
        <source>&amp;GPS</source>
        <translation>&amp;GPS</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photos</source>
        <comment>%Ln photo</comment>
        <translation>
            <numerusform>%Ln Foto</numerusform>
            <numerusform>%Ln Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>several</source>
        <extracomment>in a field: the selected photos have several values</extracomment>
        <translation>mehrere</translation>
    </message>
    <message numerus="yes">
        <source>Looking up %Ln place names…</source>
        <comment>Looking up %Ln place name…</comment>
        <translation>
            <numerusform>%Ln Ortsname wird gesucht…</numerusform>
            <numerusform>%Ln Ortsnamen werden gesucht…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln with a position</source>
        <comment>%Ln with a position</comment>
        <extracomment>so many of the photos</extracomment>
        <translation>
            <numerusform>%Ln mit Position</numerusform>
            <numerusform>%Ln mit Position</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tracks</source>
        <comment>%Ln track</comment>
        <translation>
            <numerusform>%Ln Track</numerusform>
            <numerusform>%Ln Tracks</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln points</source>
        <comment>%Ln point</comment>
        <extracomment>of the tracks</extracomment>
        <translation>
            <numerusform>%Ln Punkt</numerusform>
            <numerusform>%Ln Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>%1 km</source>
        <translation>%1 km</translation>
    </message>
    <message>
        <source>%1 d</source>
        <extracomment>days</extracomment>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>no capture time</source>
        <translation>keine Aufnahmezeit</translation>
    </message>
    <message>
        <source>taken %1</source>
        <translation>aufgenommen %1</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>keine Position</translation>
    </message>
    <message>
        <source>%1 from the nearest track point</source>
        <translation>%1 vom nächsten Trackpunkt</translation>
    </message>
    <message>
        <source>From the log</source>
        <translation>Aus dem Log</translation>
    </message>
    <message>
        <source>Placed on the map</source>
        <translation>Auf die Karte gesetzt</translation>
    </message>
    <message>
        <source>Typed</source>
        <translation>Eingegeben</translation>
    </message>
    <message>
        <source>From the photo’s file</source>
        <translation>Aus der Datei des Fotos</translation>
    </message>
    <message>
        <source>Estimated between its neighbours</source>
        <translation>Zwischen den Nachbarn geschätzt</translation>
    </message>
    <message>
        <source>%1, %2 from the nearest point</source>
        <extracomment>where a position is from, and how far in time: &quot;From the log, 3 s from the nearest point&quot;</extracomment>
        <translation>%1, %2 vom nächsten Punkt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln photos later ›</source>
        <comment>%Ln photo later ›</comment>
        <translation>
            <numerusform>%Ln Foto später ›</numerusform>
            <numerusform>%Ln Fotos später ›</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>‹ %Ln photos earlier</source>
        <comment>‹ %Ln photo earlier</comment>
        <translation>
            <numerusform>‹ %Ln Foto früher</numerusform>
            <numerusform>‹ %Ln Fotos früher</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Track %1, %n points</source>
        <comment>Track %1, %n point</comment>
        <translation>
            <numerusform>Track %1, %n Punkt</numerusform>
            <numerusform>Track %1, %n Punkte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln photos have their place</source>
        <comment>%1 of %Ln photo has its place</comment>
        <translation>
            <numerusform>%1 von %Ln Foto hat seinen Platz</numerusform>
            <numerusform>%1 von %Ln Fotos haben ihren Platz</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>what the library holds, &quot;8 photos&quot; and &quot;2 tracks&quot;</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are here already. Next goes on with them.</source>
        <comment>%1 is here already. Next goes on with it.</comment>
        <translation>
            <numerusform>%1 ist schon hier. „Weiter“ geht damit weiter.</numerusform>
            <numerusform>%1 sind schon hier. „Weiter“ geht damit weiter.</numerusform>
        </translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>How Pinmora is used</source>
        <translation>Wie Pinmora benutzt wird</translation>
    </message>
    <message>
        <source>Pr&amp;eferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>What Pinmora does by itself, and whom it asks</source>
        <translation>Was Pinmora von selbst tut, und wen es fragt</translation>
    </message>
</context>
<context>
    <name>update</name>
    <message>
        <source>%1 - version check</source>
        <translation>%1 - Versionsprüfung</translation>
    </message>
    <message>
        <source>Checking...</source>
        <translation>Wird geprüft...</translation>
    </message>
    <message>
        <source>The address of the version information is not one on the web.</source>
        <translation>Die Adresse der Versionsangaben liegt nicht im Web.</translation>
    </message>
    <message>
        <source>The error reported was!  Sorry about that.  The error is a  &quot;%1&quot;, whatever that means!  Please try again later or report the error to Velder.</source>
        <translation>Es ist ein Fehler aufgetreten, das tut uns leid. Der Fehler lautet „%1“, was auch immer das heißt! Bitte versuchen Sie es später noch einmal oder melden Sie den Fehler an Velder.</translation>
    </message>
    <message>
        <source>The version information is longer than a megabyte.</source>
        <translation>Die Versionsangaben sind länger als ein Megabyte.</translation>
    </message>
    <message>
        <source>Receiving data....</source>
        <translation>Daten werden empfangen...</translation>
    </message>
    <message>
        <source>The error reported was: &quot;%1&quot;.</source>
        <translation>Der gemeldete Fehler lautet: „%1“.</translation>
    </message>
    <message>
        <source>%1 - version check complete</source>
        <translation>%1 - Versionsprüfung abgeschlossen</translation>
    </message>
    <message>
        <source>You are using version %1, which is the most up-to-date version of %2.</source>
        <translation>Sie verwenden Version %1, die aktuellste Version von %2.</translation>
    </message>
    <message>
        <source>%1 is up-to-date</source>
        <translation>%1 ist aktuell</translation>
    </message>
    <message>
        <source>%1 - version %2 now available</source>
        <translation>%1 - Version %2 ist jetzt verfügbar</translation>
    </message>
    <message>
        <source>Version %1 is now available for download from Velder.  To download just click on the download button below.</source>
        <translation>Version %1 kann jetzt bei Velder heruntergeladen werden. Klicken Sie dazu unten auf „Herunterladen“.</translation>
    </message>
    <message>
        <source>%1 update available</source>
        <translation>Aktualisierung für %1 verfügbar</translation>
    </message>
    <message>
        <source>%1 - version check failed</source>
        <translation>%1 - Versionsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 version check failed</source>
        <translation>%1: Versionsprüfung fehlgeschlagen</translation>
    </message>
    <message>
        <source>Download %1</source>
        <translation>%1 herunterladen</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>The address of the download is not one on the web.</source>
        <translation>Die Adresse des Herunterladens liegt nicht im Web.</translation>
    </message>
    <message>
        <source>Receiving data.... (%1 kb of %2 kb)</source>
        <translation>Daten werden empfangen... (%1 kB von %2 kB)</translation>
    </message>
    <message>
        <source>Writing to disk!</source>
        <translation>Wird auf den Datenträger geschrieben!</translation>
    </message>
    <message>
        <source>Error writing to disk!</source>
        <translation>Fehler beim Schreiben auf den Datenträger!</translation>
    </message>
    <message>
        <source>No address for version information is set. The preferences take one.</source>
        <translation>Für die Versionsangaben ist keine Adresse eingestellt. Die Einstellungen nehmen eine an.</translation>
    </message>
</context>
</TS>
