<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>A model and animation editor for modders.</source>
        <translation>Ein Modell- und Animationseditor für Modder.</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>Über &amp;Qt</translation>
    </message>
    <message>
        <source>Show the version of Qt and its license</source>
        <translation>Die Version und die Lizenz von Qt anzeigen</translation>
    </message>
    <message>
        <source>MIT</source>
        <translation>MIT</translation>
    </message>
    <message>
        <source>LGPL version 3</source>
        <translation>LGPL Version 3</translation>
    </message>
    <message>
        <source>BSD, 3 clauses</source>
        <translation>BSD, 3 Klauseln</translation>
    </message>
    <message>
        <source>ISC, some icons MIT</source>
        <translation>ISC, einige Symbole MIT</translation>
    </message>
    <message>
        <source>Korvane v%1</source>
        <translation>Korvane v%1</translation>
    </message>
    <message>
        <source>Licenses of what is built in</source>
        <translation>Lizenzen der enthaltenen Teile</translation>
    </message>
    <message>
        <source>MIT or public domain</source>
        <translation>MIT oder gemeinfrei</translation>
    </message>
</context>
<context>
    <name>ActionTrack</name>
    <message>
        <source>Frame %1 → %2</source>
        <translation>Frame %1 → %2</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Part of the frames that is shown</source>
        <translation>Gezeigter Teil der Frames</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Blend</source>
        <translation>Überblenden</translation>
    </message>
    <message>
        <source>No loop frame: after the end it plays from the first frame. Drag the handle to where it is to go on instead.</source>
        <translation>Kein Schleifen-Frame: Nach dem Ende beginnt sie von vorn. Ziehen Sie den Griff dorthin, wo sie stattdessen weitergehen soll.</translation>
    </message>
    <message>
        <source>Loop frame %1: after the end it goes on there</source>
        <translation>Schleifen-Frame %1: Nach dem Ende geht es dort weiter</translation>
    </message>
    <message>
        <source>Blend start: frame %1</source>
        <translation>Überblendstart: Frame %1</translation>
    </message>
    <message>
        <source>Blend end: frame %1</source>
        <translation>Überblendende: Frame %1</translation>
    </message>
    <message>
        <source>Click or drag to show a frame. With Shift a drag selects frames, which then play alone. Ctrl and the wheel zoom.</source>
        <translation>Klicken oder ziehen Sie, um einen Frame zu zeigen. Mit Umschalt wählt das Ziehen Frames aus, die dann allein abgespielt werden. Strg und das Rad vergrößern.</translation>
    </message>
    <message>
        <source>Drag a mark to another frame. Ctrl, Shift or a frame that is drawn around them select several. A right click offers new ones.</source>
        <translation>Ziehen Sie eine Marke in einen anderen Frame. Strg, Umschalt oder ein Rahmen darum wählen mehrere aus. Ein Rechtsklick bietet neue an.</translation>
    </message>
</context>
<context>
    <name>AnimActionPage</name>
    <message>
        <source>Key Frame Action</source>
        <translation>Keyframe-Aktion</translation>
    </message>
    <message>
        <source>What happens</source>
        <translation>Was geschieht</translation>
    </message>
    <message>
        <source>which frame this event occurs on</source>
        <translation>in welchem Frame das Ereignis eintritt</translation>
    </message>
    <message>
        <source>&amp;Bone</source>
        <translation>&amp;Knochen</translation>
    </message>
    <message>
        <source>which bone this event is associated with</source>
        <translation>zu welchem Knochen das Ereignis gehört</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>&amp;Offset</source>
        <translation>&amp;Versatz</translation>
    </message>
    <message>
        <source>Where it happens, relative to the bone (or the model where there is no bone), in game units</source>
        <translation>Wo es geschieht, relativ zum Knochen (oder zum Modell, wo es keinen Knochen gibt), in Spieleinheiten</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>Versatz X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>Versatz Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Offset Z</source>
        <translation>Versatz Z</translation>
    </message>
    <message>
        <source>&amp;Position To Bone</source>
        <translation>&amp;Position auf den Knochen</translation>
    </message>
    <message>
        <source>Puts the position on the bone: an offset of 0, 0, 0</source>
        <translation>Setzt die Position auf den Knochen: ein Versatz von 0, 0, 0</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Arg 1</source>
        <translation>Arg 1</translation>
    </message>
    <message>
        <source>Argument 1; what it means depends on the event type</source>
        <translation>Argument 1; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 2</source>
        <translation>Arg 2</translation>
    </message>
    <message>
        <source>Argument 2; what it means depends on the event type</source>
        <translation>Argument 2; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 3</source>
        <translation>Arg 3</translation>
    </message>
    <message>
        <source>Argument 3; what it means depends on the event type</source>
        <translation>Argument 3; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 4</source>
        <translation>Arg 4</translation>
    </message>
    <message>
        <source>Argument 4; what it means depends on the event type</source>
        <translation>Argument 4; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 5</source>
        <translation>Arg 5</translation>
    </message>
    <message>
        <source>Argument 5; what it means depends on the event type</source>
        <translation>Argument 5; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 6</source>
        <translation>Arg 6</translation>
    </message>
    <message>
        <source>Argument 6; what it means depends on the event type</source>
        <translation>Argument 6; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 7</source>
        <translation>Arg 7</translation>
    </message>
    <message>
        <source>Argument 7; what it means depends on the event type</source>
        <translation>Argument 7; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Arg 8</source>
        <translation>Arg 8</translation>
    </message>
    <message>
        <source>Argument 8; what it means depends on the event type</source>
        <translation>Argument 8; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Anim %1 - Key Frame Action %2 Properties</source>
        <translation>Eigenschaften von Anim %1 - Keyframe-Aktion %2</translation>
    </message>
    <message>
        <source>Arg %1</source>
        <translation>Arg %1</translation>
    </message>
    <message>
        <source>Damage is this value / 256. Example: 64 damage = 16384
By default most enemies head have damage scaling of 10.
Which means head shots will take 640 damage.</source>
        <translation>Der Schaden ist dieser Wert / 256. Beispiel: 64 Schaden = 16384
Die Köpfe der meisten Gegner haben einen Schadensfaktor von 10.
Kopftreffer verursachen also 640 Schaden.</translation>
    </message>
    <message>
        <source>Argument %1; what it means depends on the event type</source>
        <translation>Argument %1; was es bedeutet, hängt vom Ereignistyp ab</translation>
    </message>
    <message>
        <source>Key Frame Action Position To Bone</source>
        <translation>Keyframe-Aktion: Position auf den Knochen</translation>
    </message>
    <message>
        <source>Event T&amp;ype</source>
        <translation>Ereignist&amp;yp</translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation>&amp;Frame</translation>
    </message>
</context>
<context>
    <name>AnimBlockPage</name>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>&amp;Anim ID</source>
        <translation>Anim-&amp;ID</translation>
    </message>
    <message>
        <source>Identifier by which the game starts this animation</source>
        <translation>Kennung, unter der das Spiel diese Animation startet</translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation>&amp;Geschwindigkeit</translation>
    </message>
    <message>
        <source>Frames per second; below 1 plays as 1</source>
        <translation>Frames pro Sekunde; unter 1 wird wie 1 abgespielt</translation>
    </message>
    <message>
        <source>&amp;Loop Frame</source>
        <translation>Sch&amp;leifen-Frame</translation>
    </message>
    <message>
        <source>Frame from which the animation repeats; beyond the last frame (65535) it repeats from frame 0</source>
        <translation>Frame, ab dem sich die Animation wiederholt; hinter dem letzten Frame (65535) wiederholt sie sich ab Frame 0</translation>
    </message>
    <message>
        <source>Scale of the animation&apos;s frames in the game; the view does not use it</source>
        <translation>Skalierung der Frames der Animation im Spiel; die Ansicht verwendet sie nicht</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>Überblendung</translation>
    </message>
    <message>
        <source>Frames over which the game blends into this animation</source>
        <translation>Frames, über die das Spiel in diese Animation überblendet</translation>
    </message>
    <message>
        <source>Frame at which blending starts</source>
        <translation>Frame, in dem die Überblendung beginnt</translation>
    </message>
    <message>
        <source>Blend E&amp;nd</source>
        <translation>Überblend&amp;ende</translation>
    </message>
    <message>
        <source>Frame at which blending ends</source>
        <translation>Frame, in dem die Überblendung endet</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Number of frames</source>
        <translation>Anzahl der Frames</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Playing time at the block&apos;s speed</source>
        <translation>Spieldauer bei der Geschwindigkeit des Blocks</translation>
    </message>
    <message>
        <source>Bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Number of bones that the block animates</source>
        <translation>Anzahl der Knochen, die der Block animiert</translation>
    </message>
    <message>
        <source>Anim %1 Properties</source>
        <translation>Eigenschaften von Anim %1</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>F&amp;rame Scale</source>
        <translation>Frame-&amp;Skalierung</translation>
    </message>
    <message>
        <source>Blend Len&amp;gth</source>
        <translation>Überble&amp;ndlänge</translation>
    </message>
    <message>
        <source>&amp;Blend Start</source>
        <translation>Überblendsta&amp;rt</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>Na&amp;me</translation>
    </message>
    <message>
        <source>Open the mesh to name it</source>
        <translation>Zum Benennen das Mesh öffnen</translation>
    </message>
    <message>
        <source>What you call all animations with this ID. It is kept in a file beside the mesh, which the game does not look at, and saved with the mesh (Save All). Ctrl+Z in this field is about names.</source>
        <translation>Wie Sie alle Animationen mit dieser ID nennen. Das steht in einer Datei neben dem Mesh, die das Spiel nicht beachtet, und wird mit dem Mesh gespeichert (Alle speichern). Strg+Z gilt in diesem Feld den Namen.</translation>
    </message>
    <message>
        <source>The name belongs to %1, and is saved with it (Save All).</source>
        <translation>Der Name gehört zu %1 und wird damit gespeichert (Alle speichern).</translation>
    </message>
    <message>
        <source>In this field undo and redo are about names, and the next step is none.</source>
        <translation>In diesem Feld geht es bei Rückgängig und Wiederholen um Namen, und der nächste Schritt ist keiner.</translation>
    </message>
</context>
<context>
    <name>AnimFilePage</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation>Formatversion, bleibt so, wie sie in der Datei steht</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Number of animations in the file</source>
        <translation>Anzahl der Animationen in der Datei</translation>
    </message>
    <message>
        <source>Animation File</source>
        <translation>Animationsdatei</translation>
    </message>
</context>
<context>
    <name>AnimFramePage</name>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>&amp;Yaw Offset</source>
        <translation>&amp;Gierversatz</translation>
    </message>
    <message>
        <source>Turn of the whole model on this frame about its upright axis, in radians</source>
        <translation>Drehung des ganzen Modells in diesem Frame um seine Hochachse, im Bogenmaß</translation>
    </message>
    <message>
        <source>In Degrees</source>
        <translation>In Grad</translation>
    </message>
    <message>
        <source>The same turn in degrees</source>
        <translation>Dieselbe Drehung in Grad</translation>
    </message>
    <message>
        <source>Anim %1 - Frame %2 Properties</source>
        <translation>Eigenschaften von Anim %1 - Frame %2</translation>
    </message>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>AnimNodePage</name>
    <message>
        <source>Tracks</source>
        <translation>Spuren</translation>
    </message>
    <message>
        <source>Bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>The bone of the open mesh that this entry moves</source>
        <translation>Der Knochen des geöffneten Meshs, den dieser Eintrag bewegt</translation>
    </message>
    <message>
        <source>Track of the translation table that moves the bone; 65535 keeps it at its initial translation</source>
        <translation>Spur der Translationstabelle, die den Knochen bewegt; 65535 lässt ihn an seiner Anfangsposition</translation>
    </message>
    <message>
        <source>&amp;Rotation</source>
        <translation>&amp;Rotation</translation>
    </message>
    <message>
        <source>Track of the rotation table that turns the bone; 65535 keeps it at its initial rotation</source>
        <translation>Spur der Rotationstabelle, die den Knochen dreht; 65535 lässt ihn in seiner Anfangsdrehung</translation>
    </message>
    <message>
        <source>Initial Translation</source>
        <translation>Anfangstranslation</translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation>&amp;Position</translation>
    </message>
    <message>
        <source>Position of the bone relative to its parent where no track moves it, in game units</source>
        <translation>Position des Knochens relativ zu seinem Elternknochen, wo ihn keine Spur bewegt, in Spieleinheiten</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Position Z</source>
        <translation>Position Z</translation>
    </message>
    <message>
        <source>Initial Rotation</source>
        <translation>Anfangsrotation</translation>
    </message>
    <message>
        <source>&amp;Quaternion</source>
        <translation>&amp;Quaternion</translation>
    </message>
    <message>
        <source>Rotation of the bone relative to its parent where no track turns it, as a quaternion (0, 0, 0, 1 for none)</source>
        <translation>Drehung des Knochens relativ zu seinem Elternknochen, wo ihn keine Spur dreht, als Quaternion (0, 0, 0, 1 für keine)</translation>
    </message>
    <message>
        <source>Quaternion X</source>
        <translation>Quaternion X</translation>
    </message>
    <message>
        <source>Quaternion Y</source>
        <translation>Quaternion Y</translation>
    </message>
    <message>
        <source>Quaternion Z</source>
        <translation>Quaternion Z</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Quaternion W</source>
        <translation>Quaternion W</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>The same rotation as an angle about an axis</source>
        <translation>Dieselbe Drehung als Winkel um eine Achse</translation>
    </message>
    <message>
        <source>Anim %1 - Bone %2 Properties</source>
        <translation>Eigenschaften von Anim %1 - Knochen %2</translation>
    </message>
    <message>
        <source>%1° about %2</source>
        <translation>%1° um %2</translation>
    </message>
    <message>
        <source>Trans&amp;lation</source>
        <translation>&amp;Translation</translation>
    </message>
</context>
<context>
    <name>AnimRotationPage</name>
    <message>
        <source>Quaternion</source>
        <translation>Quaternion</translation>
    </message>
    <message>
        <source>&amp;Quaternion</source>
        <translation>&amp;Quaternion</translation>
    </message>
    <message>
        <source>Rotation of the bone on this frame relative to its parent, as a quaternion (0, 0, 0, 1 for none)</source>
        <translation>Drehung des Knochens in diesem Frame relativ zu seinem Elternknochen, als Quaternion (0, 0, 0, 1 für keine)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Quaternion X</source>
        <translation>Quaternion X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Quaternion Y</source>
        <translation>Quaternion Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Quaternion Z</source>
        <translation>Quaternion Z</translation>
    </message>
    <message>
        <source>W</source>
        <translation>W</translation>
    </message>
    <message>
        <source>Quaternion W</source>
        <translation>Quaternion W</translation>
    </message>
    <message>
        <source>Axis and Angle</source>
        <translation>Achse und Winkel</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>The axis that the rotation turns about, of length 1; z while there is no rotation</source>
        <translation>Die Achse, um die gedreht wird, mit der Länge 1; z, solange es keine Drehung gibt</translation>
    </message>
    <message>
        <source>&amp;Angle</source>
        <translation>&amp;Winkel</translation>
    </message>
    <message>
        <source>How far the rotation turns about its axis, in degrees; an edit keeps the axis</source>
        <translation>Wie weit um die Achse gedreht wird, in Grad; eine Änderung behält die Achse bei</translation>
    </message>
    <message>
        <source>Anim %1 - Rotation Track %2 - Frame %3 Properties</source>
        <translation>Eigenschaften von Anim %1 - Rotationsspur %2 - Frame %3</translation>
    </message>
</context>
<context>
    <name>AnimTrackFrame</name>
    <message>
        <source>The animation of the file that is played</source>
        <translation>Die Animation der Datei, die abgespielt wird</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Play the animation from its start</source>
        <translation>Die Animation von Anfang an abspielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Stop at the current frame</source>
        <translation>Im aktuellen Frame anhalten</translation>
    </message>
    <message>
        <source>Pose</source>
        <translation>Pose</translation>
    </message>
    <message>
        <source>Show the initial pose</source>
        <translation>Die Anfangspose zeigen</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Force Loop beginning to end</source>
        <translation>Die Schleife vom Anfang bis zum Ende erzwingen</translation>
    </message>
    <message>
        <source>Previous action</source>
        <translation>Vorige Aktion</translation>
    </message>
    <message>
        <source>Go to the previous key frame action</source>
        <translation>Zur vorigen Keyframe-Aktion gehen</translation>
    </message>
    <message>
        <source>Step back</source>
        <translation>Schritt zurück</translation>
    </message>
    <message>
        <source>Go back one frame</source>
        <translation>Einen Frame zurückgehen</translation>
    </message>
    <message>
        <source>Step forward</source>
        <translation>Schritt vor</translation>
    </message>
    <message>
        <source>Go on one frame</source>
        <translation>Einen Frame weitergehen</translation>
    </message>
    <message>
        <source>Next action</source>
        <translation>Nächste Aktion</translation>
    </message>
    <message>
        <source>Go to the next key frame action</source>
        <translation>Zur nächsten Keyframe-Aktion gehen</translation>
    </message>
    <message>
        <source>Frame of the animation</source>
        <translation>Frame der Animation</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>How fast the animation plays here; the file keeps its speed</source>
        <translation>Wie schnell die Animation hier abgespielt wird; die Datei behält ihre Geschwindigkeit</translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation>Abspielgeschwindigkeit</translation>
    </message>
    <message>
        <source>× </source>
        <translation>× </translation>
    </message>
    <message>
        <source>Frame: %1 / %2</source>
        <translation>Frame: %1 / %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Play or Pause</source>
        <translation>Abspielen oder anhalten</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>The frame that is shown, and the last frame; the first one is 0</source>
        <translation>Der gezeigte Frame und der letzte; der erste ist 0</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Show key frame actions, loop and blend below, to be edited there</source>
        <translation>Darunter Keyframe-Aktionen, Schleife und Überblenden zeigen und bearbeiten</translation>
    </message>
    <message>
        <source>Key frame actions on the frames of the animation</source>
        <translation>Keyframe-Aktionen auf den Frames der Animation</translation>
    </message>
</context>
<context>
    <name>AnimTranslationPage</name>
    <message>
        <source>Translation Key</source>
        <translation>Translations-Key</translation>
    </message>
    <message>
        <source>Position of the bone on this frame relative to its parent, in game units</source>
        <translation>Position des Knochens in diesem Frame relativ zu seinem Elternknochen, in Spieleinheiten</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation>Translation X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation>Translation Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation>Translation Z</translation>
    </message>
    <message>
        <source>Anim %1 - Translation Track %2 - Frame %3 Properties</source>
        <translation>Eigenschaften von Anim %1 - Translationsspur %2 - Frame %3</translation>
    </message>
    <message>
        <source>Trans&amp;lation</source>
        <translation>&amp;Translation</translation>
    </message>
</context>
<context>
    <name>AnimationCommands</name>
    <message>
        <source>Ani&amp;mation</source>
        <translation>Ani&amp;mation</translation>
    </message>
    <message>
        <source>&amp;Resample…</source>
        <translation>&amp;Neu abtasten…</translation>
    </message>
    <message>
        <source>Resample Animation</source>
        <translation>Animation neu abtasten</translation>
    </message>
    <message>
        <source>The same motion in another number of frames, or at another rate.</source>
        <translation>Dieselbe Bewegung in einer anderen Zahl von Frames oder mit einer anderen Rate.</translation>
    </message>
    <message>
        <source>Re&amp;verse…</source>
        <translation>&amp;Umkehren…</translation>
    </message>
    <message>
        <source>Reverse Animation</source>
        <translation>Animation umkehren</translation>
    </message>
    <message>
        <source>The last frame becomes the first. The loop frame stays.</source>
        <translation>Der letzte Frame wird der erste. Der Schleifen-Frame bleibt.</translation>
    </message>
    <message>
        <source>&amp;Trim…</source>
        <translation>&amp;Zuschneiden…</translation>
    </message>
    <message>
        <source>Trim Animation</source>
        <translation>Animation zuschneiden</translation>
    </message>
    <message>
        <source>Leaves a range of frames. Key frame actions on other frames go.</source>
        <translation>Lässt einen Bereich von Frames übrig. Keyframe-Aktionen in anderen Frames entfallen.</translation>
    </message>
    <message>
        <source>&amp;Shift…</source>
        <translation>&amp;Verschieben…</translation>
    </message>
    <message>
        <source>Shift Animation</source>
        <translation>Animation verschieben</translation>
    </message>
    <message>
        <source>Moves all frames later, or earlier.</source>
        <translation>Verschiebt alle Frames nach hinten oder nach vorn.</translation>
    </message>
    <message>
        <source>&amp;Close Loop…</source>
        <translation>&amp;Schleife schließen…</translation>
    </message>
    <message>
        <source>Close Animation Loop</source>
        <translation>Schleife der Animation schließen</translation>
    </message>
    <message>
        <source>The last frames go over into the frame that the animation loops to, or into the first.</source>
        <translation>Die letzten Frames gehen in den Frame über, ab dem sich die Animation wiederholt, oder in den ersten.</translation>
    </message>
    <message>
        <source>&amp;Mirror…</source>
        <translation>S&amp;piegeln…</translation>
    </message>
    <message>
        <source>Mirror Animation</source>
        <translation>Animation spiegeln</translation>
    </message>
    <message>
        <source>Left becomes right. Sides are told by the names of bones, else by their symbols; the two sides have to stand alike in the initial pose.</source>
        <translation>Links wird rechts. Die Seiten sagen die Namen der Knochen, sonst ihre Symbole; in der Anfangspose müssen beide Seiten gleich stehen.</translation>
    </message>
    <message>
        <source>&amp;Extract Yaw…</source>
        <translation>&amp;Drehung herausnehmen…</translation>
    </message>
    <message>
        <source>Extract Animation Yaw</source>
        <translation>Drehung der Animation herausnehmen</translation>
    </message>
    <message>
        <source>What turns the root bone about the upright axis goes into the yaw of the frames, by which the game turns the model. It looks the same.</source>
        <translation>Was den Wurzelknochen um die Hochachse dreht, wird zur Drehung der Frames, mit der das Spiel das Modell dreht. Es sieht aus wie vorher.</translation>
    </message>
    <message>
        <source>&amp;Apply Yaw…</source>
        <translation>Drehung an&amp;wenden…</translation>
    </message>
    <message>
        <source>Apply Animation Yaw</source>
        <translation>Drehung der Animation anwenden</translation>
    </message>
    <message>
        <source>The yaw of the frames goes into the root bone and becomes 0. It looks the same.</source>
        <translation>Die Drehung der Frames geht in den Wurzelknochen über und wird 0. Es sieht aus wie vorher.</translation>
    </message>
    <message>
        <source>Remove &amp;Unused Tracks…</source>
        <translation>Unbenutzte Spuren &amp;entfernen…</translation>
    </message>
    <message>
        <source>Remove Unused Tracks</source>
        <translation>Unbenutzte Spuren entfernen</translation>
    </message>
    <message>
        <source>Takes out the tracks that no bone follows.</source>
        <translation>Nimmt die Spuren heraus, denen kein Knochen folgt.</translation>
    </message>
    <message>
        <source>&amp;Join Equal Tracks…</source>
        <translation>&amp;Gleiche Spuren zusammenlegen…</translation>
    </message>
    <message>
        <source>Join Equal Tracks</source>
        <translation>Gleiche Spuren zusammenlegen</translation>
    </message>
    <message>
        <source>Tracks with the same keys become one, which all their bones follow.</source>
        <translation>Spuren mit denselben Schlüsseln werden eine, der alle ihre Knochen folgen.</translation>
    </message>
    <message>
        <source>Renumber &amp;IDs…</source>
        <translation>&amp;IDs umnummerieren…</translation>
    </message>
    <message>
        <source>Renumber Animation IDs</source>
        <translation>IDs von Animationen umnummerieren</translation>
    </message>
    <message>
        <source>Other ids. The names of animations stay with the ids that they are for.</source>
        <translation>Andere IDs. Die Namen von Animationen bleiben bei den IDs, für die sie gelten.</translation>
    </message>
    <message>
        <source>Copy from Another S&amp;keleton…</source>
        <translation>Aus anderem S&amp;kelett kopieren…</translation>
    </message>
    <message>
        <source>Animations of another file, for the bones of the open mesh</source>
        <translation>Animationen einer anderen Datei, für die Knochen des geöffneten Meshes</translation>
    </message>
    <message>
        <source>Copy from Another Skeleton</source>
        <translation>Aus anderem Skelett kopieren</translation>
    </message>
</context>
<context>
    <name>AnimationFollower</name>
    <message>
        <source>Animations Found</source>
        <translation>Gefundene Animationen</translation>
    </message>
    <message>
        <source>Open Animation…</source>
        <translation>Animation öffnen…</translation>
    </message>
    <message>
        <source>Choose an animation file</source>
        <translation>Eine Animationsdatei wählen</translation>
    </message>
    <message>
        <source>Hide this notice</source>
        <translation>Diesen Hinweis ausblenden</translation>
    </message>
    <message>
        <source>Open What Was Found</source>
        <translation>Gefundene öffnen</translation>
    </message>
    <message>
        <source>Animation files that may belong to the mesh</source>
        <translation>Animationsdateien, die zum Mesh gehören könnten</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was opened without its animation.</source>
        <translation>„%1“ wurde ohne die zugehörige Animation geöffnet.</translation>
    </message>
    <message>
        <source>It is not certain which animation belongs to &apos;%1&apos;.</source>
        <translation>Es ist nicht sicher, welche Animation zu „%1“ gehört.</translation>
    </message>
    <message>
        <source>No animation was found for &apos;%1&apos;; &apos;%2&apos; stays open.</source>
        <translation>Für „%1“ wurde keine Animation gefunden, „%2“ bleibt geöffnet.</translation>
    </message>
    <message>
        <source>No animation was found for &apos;%1&apos;.</source>
        <translation>Für „%1“ wurde keine Animation gefunden.</translation>
    </message>
</context>
<context>
    <name>AppearanceBox</name>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Korvane speaks it when it is started the next time.</source>
        <translation>Korvane spricht sie ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>The colors of all windows; the desktop&apos;s change with the desktop</source>
        <translation>Die Farben aller Fenster; die des Desktops ändern sich mit dem Desktop</translation>
    </message>
    <message>
        <source>The language of menus, pages and messages</source>
        <translation>Die Sprache der Menüs, Seiten und Meldungen</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>&amp;Look:</source>
        <translation>Ausse&amp;hen:</translation>
    </message>
    <message>
        <source>Languag&amp;e:</source>
        <translation>Sprach&amp;e:</translation>
    </message>
</context>
<context>
    <name>Archive</name>
    <message>
        <source>It is damaged in its archive.</source>
        <translation>Sie ist in ihrem Archiv beschädigt.</translation>
    </message>
    <message>
        <source>It is no zip archive that can be read.</source>
        <translation>Das ist kein Zip-Archiv, das sich lesen lässt.</translation>
    </message>
    <message>
        <source>The archive has more than %1 entries.</source>
        <translation>Das Archiv hat mehr als %1 Einträge.</translation>
    </message>
    <message>
        <source>The archive is damaged: its directory ends after %1 entries.</source>
        <translation>Das Archiv ist beschädigt: Sein Verzeichnis endet nach %1 Einträgen.</translation>
    </message>
    <message>
        <source>It is encrypted in its archive.</source>
        <translation>Sie ist in ihrem Archiv verschlüsselt.</translation>
    </message>
    <message>
        <source>It is packed in a way that is not read (method %1).</source>
        <translation>Sie ist auf eine Weise gepackt, die nicht gelesen wird (Verfahren %1).</translation>
    </message>
    <message>
        <source>It would unpack to more than %1 MiB.</source>
        <translation>Entpackt hätte sie mehr als %1 MiB.</translation>
    </message>
    <message>
        <source>It would unpack to more than %1 times its size.</source>
        <translation>Entpackt hätte sie mehr als das %1-Fache ihrer Größe.</translation>
    </message>
    <message numerus="yes">
        <source>&apos;%1&apos;: %n entries are left out: links, and what has no place below the archive: %2</source>
        <translation>
            <numerusform>„%1“: %n Eintrag wurde ausgelassen, denn Verknüpfungen und was keinen Platz unter dem Archiv hat, wird nicht gelesen: %2</numerusform>
            <numerusform>„%1“: %n Einträge wurden ausgelassen, denn Verknüpfungen und was keinen Platz unter dem Archiv hat, wird nicht gelesen: %2</numerusform>
        </translation>
    </message>
    <message>
        <source>The names in the archive take more than %1 MiB.</source>
        <translation>Die Namen im Archiv brauchen mehr als %1 MiB.</translation>
    </message>
</context>
<context>
    <name>ArrivalChoice</name>
    <message>
        <source>Arrives</source>
        <translation>Kommt an</translation>
    </message>
    <message>
        <source>As store&amp;d</source>
        <translation>Wie &amp;gespeichert</translation>
    </message>
    <message>
        <source>Its numbers as they are, turned and scaled as you say below.</source>
        <translation>Die Zahlen, wie sie sind, gedreht und skaliert, wie Sie es unten angeben.</translation>
    </message>
    <message>
        <source>Read&amp;y for the game</source>
        <translation>Spiel&amp;fertig</translation>
    </message>
    <message>
        <source>Upright and in one piece, with the bones and animations that it has in its program.</source>
        <translation>Aufrecht und in einem Stück, mit den Knochen und Animationen, die es in seinem Programm hat.</translation>
    </message>
</context>
<context>
    <name>AxisGizmo</name>
    <message>
        <source>Front (-Y)</source>
        <translation>Vorne (-Y)</translation>
    </message>
    <message>
        <source>Back (+Y)</source>
        <translation>Hinten (+Y)</translation>
    </message>
    <message>
        <source>Left (-X)</source>
        <translation>Links (-X)</translation>
    </message>
    <message>
        <source>Right (+X)</source>
        <translation>Rechts (+X)</translation>
    </message>
    <message>
        <source>Top (+Z)</source>
        <translation>Oben (+Z)</translation>
    </message>
    <message>
        <source>Bottom (-Z)</source>
        <translation>Unten (-Z)</translation>
    </message>
</context>
<context>
    <name>BoxFitting</name>
    <message>
        <source>Fit &amp;Boxes to Vertices</source>
        <translation>&amp;Boxen an Vertices anpassen</translation>
    </message>
    <message>
        <source>&amp;Selected Bones</source>
        <translation>Ausge&amp;wählte Knochen</translation>
    </message>
    <message>
        <source>Make the boxes of the selected bones as small as their vertices let them be</source>
        <translation>Die Boxen der ausgewählten Knochen so klein machen, wie ihre Vertices es zulassen</translation>
    </message>
    <message>
        <source>&amp;All Bones</source>
        <translation>&amp;Alle Knochen</translation>
    </message>
    <message>
        <source>Make the boxes of all bones as small as their vertices let them be</source>
        <translation>Die Boxen aller Knochen so klein machen, wie ihre Vertices es zulassen</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>Make the model&apos;s own box as small as the model at rest lets it be</source>
        <translation>Die Box des Modells so klein machen, wie das ruhende Modell es zulässt</translation>
    </message>
    <message>
        <source>No bone is selected in the tree.</source>
        <translation>Im Baum ist kein Knochen ausgewählt.</translation>
    </message>
    <message>
        <source>Boxes changed: %1.</source>
        <translation>Geänderte Boxen: %1.</translation>
    </message>
    <message>
        <source>The boxes fit their vertices already.</source>
        <translation>Die Boxen passen schon zu ihren Vertices.</translation>
    </message>
    <message>
        <source>Bones without vertices stay as they are: %1.</source>
        <translation>Knochen ohne Vertices bleiben, wie sie sind: %1.</translation>
    </message>
    <message>
        <source>The model&apos;s box needs an animation that fits the model: it says where the bones rest.</source>
        <translation>Die Box des Modells braucht eine Animation, die zum Modell passt: Sie sagt, wo die Knochen ruhen.</translation>
    </message>
    <message>
        <source>The model has no vertices.</source>
        <translation>Das Modell hat keine Vertices.</translation>
    </message>
    <message>
        <source>The model&apos;s box fits already.</source>
        <translation>Die Box des Modells passt schon.</translation>
    </message>
    <message>
        <source>The model&apos;s box changed.</source>
        <translation>Die Box des Modells wurde geändert.</translation>
    </message>
</context>
<context>
    <name>BrowserDock</name>
    <message>
        <source>Parts of names and folders</source>
        <translation>Teile von Namen und Ordnern</translation>
    </message>
    <message>
        <source>Show only files that have all of these words in their path</source>
        <translation>Nur Dateien zeigen, in deren Pfad alle diese Wörter stehen</translation>
    </message>
    <message>
        <source>How files are listed</source>
        <translation>Wie Dateien aufgelistet werden</translation>
    </message>
    <message>
        <source>Reading the folders of game and mod</source>
        <translation>Die Ordner von Spiel und Mod werden gelesen</translation>
    </message>
    <message>
        <source>Give up reading the folders of game and mod</source>
        <translation>Das Lesen der Ordner von Spiel und Mod abbrechen</translation>
    </message>
    <message>
        <source>By &amp;Name</source>
        <translation>Nach &amp;Name</translation>
    </message>
    <message>
        <source>By &amp;Kind</source>
        <translation>Nach &amp;Art</translation>
    </message>
    <message>
        <source>By &amp;Folder</source>
        <translation>Nach &amp;Ordner</translation>
    </message>
    <message>
        <source>There are no folders of game and mod.</source>
        <translation>Es gibt keine Ordner von Spiel und Mod.</translation>
    </message>
    <message>
        <source>Name them in the options</source>
        <translation>In den Optionen angeben</translation>
    </message>
    <message>
        <source>The folders of game and mod are being read.</source>
        <translation>Die Ordner von Spiel und Mod werden gelesen.</translation>
    </message>
    <message>
        <source>The folders of game and mod were not read to the end.</source>
        <translation>Die Ordner von Spiel und Mod wurden nicht zu Ende gelesen.</translation>
    </message>
    <message>
        <source>Read them</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>The folders of game and mod hold no models, animations, materials or textures.</source>
        <translation>Die Ordner von Spiel und Mod enthalten keine Modelle, Animationen, Materialien oder Texturen.</translation>
    </message>
    <message>
        <source>Name others in the options</source>
        <translation>Andere in den Optionen angeben</translation>
    </message>
    <message>
        <source>It is not known yet what is unused: the files are being read.</source>
        <translation>Es ist noch nicht bekannt, was unbenutzt ist: Die Dateien werden gelesen.</translation>
    </message>
    <message>
        <source>It is not known what is unused, since the files were not read.</source>
        <translation>Es ist nicht bekannt, was unbenutzt ist, da die Dateien nicht gelesen wurden.</translation>
    </message>
    <message>
        <source>Show all files</source>
        <translation>Alle Dateien zeigen</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Files: %1 of %2</source>
        <translation>Dateien: %1 von %2</translation>
    </message>
    <message>
        <source>&amp;Large Pictures</source>
        <translation>&amp;Große Bilder</translation>
    </message>
    <message>
        <source>No file fits.</source>
        <translation>Keine Datei passt.</translation>
    </message>
    <message>
        <source>The folders hold more than a game and a mod can: the rest is not listed.</source>
        <translation>Die Ordner enthalten mehr, als ein Spiel und ein Mod enthalten können: Der Rest ist nicht aufgeführt.</translation>
    </message>
    <message>
        <source>Files: %1, and more</source>
        <translation>Dateien: %1 und mehr</translation>
    </message>
    <message>
        <source>(incomplete folders: %1)</source>
        <translation>(unvollständige Ordner: %1)</translation>
    </message>
</context>
<context>
    <name>CameraMenu</name>
    <message>
        <source>&amp;Camera</source>
        <translation>Ka&amp;mera</translation>
    </message>
    <message>
        <source>Frame &amp;All</source>
        <translation>&amp;Alles einpassen</translation>
    </message>
    <message>
        <source>Go where the whole model is in view</source>
        <translation>Dorthin gehen, wo das ganze Modell zu sehen ist</translation>
    </message>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>A&amp;uswahl einpassen</translation>
    </message>
    <message>
        <source>Go near to what is selected in the tree</source>
        <translation>Nahe an das gehen, was im Baum ausgewählt ist</translation>
    </message>
    <message>
        <source>&amp;Orbit with the Mouse</source>
        <translation>Mit der &amp;Maus umkreisen</translation>
    </message>
    <message>
        <source>Drags turn the camera around the model, as they do with Alt held</source>
        <translation>Ziehen dreht die Kamera um das Modell, so wie sonst mit gehaltener Alt-Taste</translation>
    </message>
    <message>
        <source>Look at the model&apos;s front</source>
        <translation>Das Modell von vorne ansehen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Hinten</translation>
    </message>
    <message>
        <source>Look at the model&apos;s back</source>
        <translation>Das Modell von hinten ansehen</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>Look from the right, where +X points</source>
        <translation>Von rechts sehen, wohin +X zeigt</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>Look from the left, where -X points</source>
        <translation>Von links sehen, wohin -X zeigt</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>Look down at the model</source>
        <translation>Von oben auf das Modell sehen</translation>
    </message>
    <message>
        <source>Botto&amp;m</source>
        <translation>U&amp;nten</translation>
    </message>
    <message>
        <source>Look up at the model</source>
        <translation>Von unten auf das Modell sehen</translation>
    </message>
    <message>
        <source>Fro&amp;nt</source>
        <translation>&amp;Vorne</translation>
    </message>
    <message>
        <source>Frame Models &amp;When They Open</source>
        <translation>Modelle beim Öffnen &amp;einpassen</translation>
    </message>
    <message>
        <source>Go where the whole model is in view as soon as it is opened</source>
        <translation>Das ganze Modell ins Bild rücken, sobald es geöffnet ist</translation>
    </message>
    <message>
        <source>Turn and &amp;Zoom</source>
        <translation>Drehen und &amp;Zoomen</translation>
    </message>
    <message>
        <source>Turn &amp;Left</source>
        <translation>Nach &amp;links drehen</translation>
    </message>
    <message>
        <source>Turn the camera 15 degrees to the left around the model</source>
        <translation>Die Kamera 15 Grad nach links um das Modell drehen</translation>
    </message>
    <message>
        <source>Turn &amp;Right</source>
        <translation>Nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>Turn the camera 15 degrees to the right around the model</source>
        <translation>Die Kamera 15 Grad nach rechts um das Modell drehen</translation>
    </message>
    <message>
        <source>Turn &amp;Up</source>
        <translation>Nach &amp;oben drehen</translation>
    </message>
    <message>
        <source>Turn the camera 15 degrees up around the model</source>
        <translation>Die Kamera 15 Grad nach oben um das Modell drehen</translation>
    </message>
    <message>
        <source>Turn &amp;Down</source>
        <translation>Nach &amp;unten drehen</translation>
    </message>
    <message>
        <source>Turn the camera 15 degrees down around the model</source>
        <translation>Die Kamera 15 Grad nach unten um das Modell drehen</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Go nearer, as by a notch of the wheel</source>
        <translation>Näher herangehen, wie mit einer Raste des Mausrads</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Go farther away, as by a notch of the wheel</source>
        <translation>Weiter weg gehen, wie mit einer Raste des Mausrads</translation>
    </message>
    <message>
        <source>L&amp;ens</source>
        <translation>Ob&amp;jektiv</translation>
    </message>
    <message>
        <source>&amp;90°, Wide</source>
        <translation>&amp;90°, Weitwinkel</translation>
    </message>
    <message>
        <source>A field of view of 90 degrees from top to bottom; the usual one</source>
        <translation>Ein Bildwinkel von 90 Grad von oben bis unten, der übliche</translation>
    </message>
    <message>
        <source>&amp;60°, Normal</source>
        <translation>&amp;60°, Normal</translation>
    </message>
    <message>
        <source>A field of view of 60 degrees: what is near looks less distorted</source>
        <translation>Ein Bildwinkel von 60 Grad: Nahes ist weniger verzerrt</translation>
    </message>
    <message>
        <source>&amp;45°, Long</source>
        <translation>&amp;45°, Tele</translation>
    </message>
    <message>
        <source>A field of view of 45 degrees: what is near looks least distorted</source>
        <translation>Ein Bildwinkel von 45 Grad: Nahes ist am wenigsten verzerrt</translation>
    </message>
    <message>
        <source>Ort&amp;hographic</source>
        <translation>Ortho&amp;grafisch</translation>
    </message>
    <message>
        <source>Show everything as large, however far away, or in perspective</source>
        <translation>Alles gleich groß zeigen, wie weit entfernt es auch ist, oder perspektivisch</translation>
    </message>
    <message>
        <source>Ortho&amp;graphic Sides</source>
        <translation>Or&amp;thografische Seiten</translation>
    </message>
    <message>
        <source>Show the six sides orthographic, until the camera is turned or flown</source>
        <translation>Die sechs Seiten orthografisch zeigen, bis die Kamera gedreht wird oder fliegt</translation>
    </message>
    <message>
        <source>T&amp;urntable</source>
        <translation>&amp;Drehteller</translation>
    </message>
    <message>
        <source>Turn the camera steadily around the model until you move it</source>
        <translation>Die Kamera gleichmäßig um das Modell drehen, bis Sie sie bewegen</translation>
    </message>
</context>
<context>
    <name>ChangeSizeDialog</name>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 This cannot be undone.</source>
        <translation>%1 Das lässt sich nicht rückgängig machen.</translation>
    </message>
</context>
<context>
    <name>ChannelList</name>
    <message>
        <source>Shown curves</source>
        <translation>Gezeigte Kurven</translation>
    </message>
    <message>
        <source>Which curves are shown; Space switches one on or off</source>
        <translation>Welche Kurven gezeigt werden; die Leertaste schaltet eine ein oder aus</translation>
    </message>
</context>
<context>
    <name>CheckSettings</name>
    <message>
        <source>The file cannot be read, so nothing is silenced: %1</source>
        <translation>Die Datei kann nicht gelesen werden, daher ist nichts stummgeschaltet: %1</translation>
    </message>
    <message>
        <source>it has more than 1 MiB.</source>
        <translation>sie hat mehr als 1 MiB.</translation>
    </message>
    <message>
        <source>it holds no object</source>
        <translation>sie enthält kein Objekt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The file is no JSON (%1), so nothing is silenced. Mend it, or remove it.</source>
        <translation>Die Datei ist kein JSON (%1), daher ist nichts stummgeschaltet. Berichtigen oder entfernen Sie sie.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not known, and is left out. What is known is &apos;check&apos;.</source>
        <translation>„%1“ ist nicht bekannt und wird übergangen. Bekannt ist „check“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not what it has to be, %2, and is left out.</source>
        <translation>„%1“ ist nicht, was es sein muss (%2), und wird übergangen.</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>a whole number of pixels from 1 to %1</source>
        <translation>eine ganze Zahl von Pixeln von 1 bis %1</translation>
    </message>
    <message>
        <source>Entry %1 of &apos;silence&apos; is no object, and silences nothing.</source>
        <translation>Eintrag %1 von „silence“ ist kein Objekt und schaltet nichts stumm.</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not known, and is left out. What is known is &apos;largestTexture&apos; and &apos;silence&apos;.</source>
        <translation>„%1“ ist nicht bekannt und wird übergangen. Bekannt sind „largestTexture“ und „silence“.</translation>
    </message>
    <message>
        <source>Entry %1 of &apos;silence&apos; silences nothing: &apos;%2&apos; is not known. What is known is &apos;rule&apos;, &apos;files&apos; and &apos;why&apos;.</source>
        <translation>Eintrag %1 von „silence“ schaltet nichts stumm: „%2“ ist nicht bekannt. Bekannt sind „rule“, „files“ und „why“.</translation>
    </message>
    <message>
        <source>Entry %1 of &apos;silence&apos; silences nothing: &apos;%2&apos; is no text, or an empty one.</source>
        <translation>Eintrag %1 von „silence“ schaltet nichts stumm: „%2“ ist kein Text oder ein leerer.</translation>
    </message>
    <message>
        <source>Entry %1 of &apos;silence&apos; silences nothing: there is no rule &apos;%2&apos; that can be silenced.</source>
        <translation>Eintrag %1 von „silence“ schaltet nichts stumm: Es gibt keine Regel „%2“, die stummgeschaltet werden kann.</translation>
    </message>
    <message>
        <source>&apos;silence&apos; has more than %1 entries; those behind them silence nothing.</source>
        <translation>„silence“ hat mehr als %1 Einträge; die dahinter schalten nichts stumm.</translation>
    </message>
    <message>
        <source>Entry %1 of &apos;silence&apos; silences nothing: its pattern has more than %2 letters.</source>
        <translation>Eintrag %1 von „silence“ schaltet nichts stumm: Sein Muster hat mehr als %2 Zeichen.</translation>
    </message>
</context>
<context>
    <name>CheckSign</name>
    <message>
        <source>Checking the mod</source>
        <translation>Die Mod wird geprüft</translation>
    </message>
    <message>
        <source>Stop checking the mod</source>
        <translation>Die Prüfung der Mod abbrechen</translation>
    </message>
    <message>
        <source>Checking the mod: %1 of %2</source>
        <translation>Die Mod wird geprüft: %1 von %2</translation>
    </message>
    <message>
        <source>Reading the mod&apos;s folder…</source>
        <translation>Der Ordner der Mod wird gelesen …</translation>
    </message>
</context>
<context>
    <name>ChoicePopup</name>
    <message>
        <source>Nothing has these words.</source>
        <translation>Nichts enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Number or words of a name</source>
        <translation>Nummer oder Wörter eines Namens</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Parts of a path</source>
        <translation>Teile eines Pfads</translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>What to do: a few letters of its name</source>
        <translation>Was zu tun ist: einige Buchstaben des Namens</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Baum</translation>
    </message>
</context>
<context>
    <name>CommunityTab</name>
    <message>
        <source>Community</source>
        <translation>Community</translation>
    </message>
</context>
<context>
    <name>CompareDock</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>&amp;Take Theirs</source>
        <translation>&amp;Von dort übernehmen</translation>
    </message>
    <message>
        <source>Let the document have what the file has in the selected records and fields</source>
        <translation>Übernimmt in den gewählten Datensätzen und Feldern, was die Datei hat</translation>
    </message>
    <message>
        <source>Compare &amp;Again</source>
        <translation>Noch einmal &amp;vergleichen</translation>
    </message>
    <message>
        <source>Read the file anew, which another program may have written</source>
        <translation>Liest die Datei neu, falls ein anderes Programm sie geschrieben hat</translation>
    </message>
    <message>
        <source>Compare with File</source>
        <translation>Mit Datei vergleichen</translation>
    </message>
    <message>
        <source>Nothing is compared. View ▸ Compare with File… chooses a file.</source>
        <translation>Es wird nichts verglichen. Ansicht ▸ Mit Datei vergleichen… wählt eine Datei.</translation>
    </message>
    <message>
        <source>%1 with %2, different in: %3</source>
        <translation>%1 mit %2, Unterschiede: %3</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <translation>%1 mit %2</translation>
    </message>
    <message>
        <source>The file is being compared.</source>
        <translation>Die Datei wird verglichen.</translation>
    </message>
    <message>
        <source>No record differs.</source>
        <translation>Kein Datensatz unterscheidet sich.</translation>
    </message>
    <message>
        <source>Compare Game and Mod</source>
        <translation>Spiel und Mod vergleichen</translation>
    </message>
    <message>
        <source>Game and mod have no other file in the place of &apos;%1&apos;.</source>
        <translation>Spiel und Mod haben an der Stelle von „%1“ keine andere Datei.</translation>
    </message>
</context>
<context>
    <name>CompareTree</name>
    <message>
        <source>up to %1° apart</source>
        <translation>bis zu %1° auseinander</translation>
    </message>
    <message>
        <source>up to %1 apart</source>
        <translation>bis zu %1 auseinander</translation>
    </message>
    <message>
        <source>only here</source>
        <translation>nur hier</translation>
    </message>
    <message>
        <source>only there</source>
        <translation>nur dort</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Hier</translation>
    </message>
    <message>
        <source>In the File</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>Condition</name>
    <message>
        <source>and</source>
        <translation>und</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>not</source>
        <translation>nicht</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>Something is missing at the end.</source>
        <translation>Am Ende fehlt etwas.</translation>
    </message>
    <message>
        <source>That is too long for a condition.</source>
        <translation>Das ist zu lang für eine Bedingung.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not understood.</source>
        <translation>„%1“ wird nicht verstanden.</translation>
    </message>
    <message>
        <source>That has too many parentheses.</source>
        <translation>Das hat zu viele Klammern.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed.</source>
        <translation>Eine Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is neither a field nor a kind of records.</source>
        <translation>„%1“ ist weder ein Feld noch eine Art von Datensätzen.</translation>
    </message>
    <message>
        <source>Behind &apos;%1&apos; a comparison is wanted, such as = 1 or &gt; 1.</source>
        <translation>Nach „%1“ wird ein Vergleich erwartet, etwa = 1 oder &gt; 1.</translation>
    </message>
    <message>
        <source>A quotation mark is not closed.</source>
        <translation>Ein Anführungszeichen ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a text, which is compared by =, != or ~.</source>
        <translation>„%1“ ist ein Text, der mit =, != oder ~ verglichen wird.</translation>
    </message>
    <message>
        <source>~ finds texts and names, and bits of flags, but no &apos;%1&apos;.</source>
        <translation>~ findet Texte und Namen und Bits von Flags, aber kein „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is whole numbers, which %2 is not.</source>
        <translation>„%1“ sind ganze Zahlen, was %2 nicht ist.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number for &apos;%2&apos;, and nothing there is called so.</source>
        <translation>„%1“ ist keine Zahl für „%2“, und nichts dort heißt so.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number for &apos;%2&apos;.</source>
        <translation>„%1“ ist keine Zahl für „%2“.</translation>
    </message>
    <message>
        <source>Character %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
</context>
<context>
    <name>ConsoleButton</name>
    <message>
        <source>Show the console</source>
        <translation>Die Konsole zeigen</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation>Fehler: %1, Warnungen: %2</translation>
    </message>
</context>
<context>
    <name>ConsoleLog</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Copy the selected lines</source>
        <translation>Die ausgewählten Zeilen kopieren</translation>
    </message>
    <message>
        <source>%1 (%2 times)</source>
        <translation>%1 (%2-mal)</translation>
    </message>
</context>
<context>
    <name>ControlsDialog</name>
    <message>
        <source>Keyboard and Mouse</source>
        <translation>Tastatur und Maus</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Bedienung</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Fly forward / back</source>
        <translation>Vorwärts / rückwärts fliegen</translation>
    </message>
    <message>
        <source>Fly left / right</source>
        <translation>Nach links / rechts fliegen</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Fly three times as fast</source>
        <translation>Dreimal so schnell fliegen</translation>
    </message>
    <message>
        <source>Reset the camera</source>
        <translation>Die Kamera zurücksetzen</translation>
    </message>
    <message>
        <source>Left drag</source>
        <translation>Links ziehen</translation>
    </message>
    <message>
        <source>Move over the ground</source>
        <translation>Über dem Boden bewegen</translation>
    </message>
    <message>
        <source>Right drag</source>
        <translation>Rechts ziehen</translation>
    </message>
    <message>
        <source>Look around</source>
        <translation>Umsehen</translation>
    </message>
    <message>
        <source>Left + right drag</source>
        <translation>Links + rechts ziehen</translation>
    </message>
    <message>
        <source>Move up, down and sideways</source>
        <translation>Nach oben, unten und zur Seite bewegen</translation>
    </message>
    <message>
        <source>3D view</source>
        <translation>3D-Ansicht</translation>
    </message>
    <message>
        <source>Ctrl+click, Shift+click</source>
        <translation>Strg+Klick, Umschalt+Klick</translation>
    </message>
    <message>
        <source>Select several records; an edit goes to all of them</source>
        <translation>Mehrere Datensätze auswählen; eine Änderung gilt für alle</translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation>Tasten und Mausgesten</translation>
    </message>
    <message>
        <source>Click</source>
        <translation>Klick</translation>
    </message>
    <message>
        <source>Select the surface, bone or hot point under the mouse</source>
        <translation>Die Fläche, den Knochen oder den Hotpoint unter der Maus auswählen</translation>
    </message>
    <message>
        <source>Alt + left drag</source>
        <translation>Alt + links ziehen</translation>
    </message>
    <message>
        <source>Turn around the model</source>
        <translation>Um das Modell drehen</translation>
    </message>
    <message>
        <source>Alt + middle drag</source>
        <translation>Alt + Mitte ziehen</translation>
    </message>
    <message>
        <source>Move the model sideways, up and down</source>
        <translation>Das Modell zur Seite, nach oben und unten schieben</translation>
    </message>
    <message>
        <source>Go nearer or farther away</source>
        <translation>Näher oder weiter weg gehen</translation>
    </message>
    <message>
        <source>Several records</source>
        <translation>Mehrere Datensätze</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Drag of a grip or mark</source>
        <translation>Ziehen an Griff oder Marke</translation>
    </message>
    <message>
        <source>Move a face of the selected box, the selected hot point or action offset</source>
        <translation>Eine Seite der ausgewählten Box, den ausgewählten Hotpoint oder Versatz einer Aktion bewegen</translation>
    </message>
    <message>
        <source>X, Y, Z while dragging</source>
        <translation>X, Y, Z beim Ziehen</translation>
    </message>
    <message>
        <source>Move along an axis; again: along the bone&apos;s</source>
        <translation>Entlang einer Achse bewegen; nochmals: entlang der des Knochens</translation>
    </message>
    <message>
        <source>Ctrl, B, Esc while dragging</source>
        <translation>Strg, B, Esc beim Ziehen</translation>
    </message>
    <message>
        <source>Snap; let the bone below take it; give up</source>
        <translation>Einrasten; den Knochen darunter übernehmen lassen; aufgeben</translation>
    </message>
    <message>
        <source>Click on an end of the axis gizmo</source>
        <translation>Klick auf ein Ende des Achsenkreuzes</translation>
    </message>
    <message>
        <source>Look from that side; a drag turns around the model</source>
        <translation>Von dieser Seite sehen; Ziehen dreht um das Modell</translation>
    </message>
</context>
<context>
    <name>CopyMotionDialog</name>
    <message>
        <source>Copy Animation from Another Skeleton</source>
        <translation>Animation aus anderem Skelett kopieren</translation>
    </message>
    <message>
        <source>The bones of the open mesh do what those of another one do, which find each other by names, else by symbols. The copies come behind the animations that there are.</source>
        <translation>Die Knochen des geöffneten Meshes tun, was die eines anderen tun; sie finden einander nach Namen, sonst nach Symbolen. Die Kopien kommen hinter die vorhandenen Animationen.</translation>
    </message>
    <message>
        <source>&amp;Animations of</source>
        <translation>&amp;Animationen aus</translation>
    </message>
    <message>
        <source>No file is chosen</source>
        <translation>Keine Datei gewählt</translation>
    </message>
    <message>
        <source>&amp;Choose…</source>
        <translation>&amp;Wählen…</translation>
    </message>
    <message>
        <source>Choose the animation file that is copied from</source>
        <translation>Die Animationsdatei wählen, aus der kopiert wird</translation>
    </message>
    <message>
        <source>Their &amp;mesh</source>
        <translation>Deren &amp;Mesh</translation>
    </message>
    <message>
        <source>C&amp;hoose…</source>
        <translation>Wä&amp;hlen…</translation>
    </message>
    <message>
        <source>Choose the skinned mesh that has the bones of these animations, where it is not found by itself</source>
        <translation>Das Skinned Mesh wählen, das die Knochen dieser Animationen hat, wenn es nicht von selbst gefunden wird</translation>
    </message>
    <message>
        <source>Anima&amp;tions to copy</source>
        <translation>Anima&amp;tionen, die kopiert werden</translation>
    </message>
    <message>
        <source>&amp;Bones</source>
        <translation>K&amp;nochen</translation>
    </message>
    <message>
        <source>Of the open mesh</source>
        <translation>Des geöffneten Meshes</translation>
    </message>
    <message>
        <source>Of the other one</source>
        <translation>Des anderen</translation>
    </message>
    <message>
        <source>&amp;What is copied</source>
        <translation>Was kopiert wir&amp;d</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be read. %2</source>
        <translation>„%1“ kann nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Ko&amp;pieren</translation>
    </message>
    <message>
        <source>Choose an animation file.</source>
        <translation>Wählen Sie eine Animationsdatei.</translation>
    </message>
    <message>
        <source>Which bones there are is in the mesh: open the one that the animations belong to.</source>
        <translation>Welche Knochen es gibt, steht im Mesh: Öffnen Sie das, zu dem die Animationen gehören.</translation>
    </message>
    <message>
        <source>Copy Animations of</source>
        <translation>Animationen kopieren aus</translation>
    </message>
    <message>
        <source>The Mesh of These Animations</source>
        <translation>Das Mesh dieser Animationen</translation>
    </message>
    <message>
        <source>The mesh that &apos;%1&apos; belongs to was not found: choose it.</source>
        <translation>Das Mesh, zu dem „%1“ gehört, wurde nicht gefunden: Wählen Sie es.</translation>
    </message>
    <message>
        <source>Being read…</source>
        <translation>Wird gelesen…</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no animations.</source>
        <translation>„%1“ hat keine Animationen.</translation>
    </message>
    <message>
        <source>Choose the animations to be copied.</source>
        <translation>Wählen Sie die Animationen, die kopiert werden sollen.</translation>
    </message>
    <message>
        <source>Being worked out…</source>
        <translation>Wird ausgerechnet…</translation>
    </message>
    <message>
        <source>It is not copied.</source>
        <translation>Sie wird nicht kopiert.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keiner</translation>
    </message>
</context>
<context>
    <name>CrashReportDialog</name>
    <message>
        <source>Crash Report</source>
        <translation>Absturzbericht</translation>
    </message>
    <message>
        <source>Crash report</source>
        <translation>Absturzbericht</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation>Den ganzen Bericht kopieren</translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation>Sch&amp;ließen</translation>
    </message>
    <message>
        <source>Nothing was sent. The report stays on this computer, in
%1</source>
        <translation>Es wurde nichts gesendet. Der Bericht bleibt auf diesem Computer, in
%1</translation>
    </message>
    <message>
        <source>Unable to read &apos;%1&apos;</source>
        <translation>„%1“ kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>CsvPreview</name>
    <message>
        <source>There are no rows in it below a first one that names the fields.</source>
        <translation>Darin stehen keine Zeilen unter einer ersten, die die Felder nennt.</translation>
    </message>
    <message>
        <source>These records have no field &apos;%1&apos;.</source>
        <translation>Diese Datensätze haben kein Feld „%1“.</translation>
    </message>
    <message>
        <source>Line %1 is about no record of the table.</source>
        <translation>Zeile %1 gehört zu keinem Datensatz der Tabelle.</translation>
    </message>
    <message>
        <source>Line %1 has more cells than there are names.</source>
        <translation>Zeile %1 hat mehr Zellen, als es Namen gibt.</translation>
    </message>
    <message>
        <source>Line %1, %2: %3</source>
        <translation>Zeile %1, %2: %3</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tabelle importieren</translation>
    </message>
    <message>
        <source>The table holds what is there already.</source>
        <translation>Die Tabelle enthält, was schon da ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n values change</source>
        <translation>
            <numerusform>%n Wert ändert sich</numerusform>
            <numerusform>%n Werte ändern sich</numerusform>
        </translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n weitere</numerusform>
            <numerusform>%n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CurveChannel</name>
    <message>
        <source>Translation %1</source>
        <translation>Translation %1</translation>
    </message>
    <message>
        <source>Rotation %1</source>
        <translation>Rotation %1</translation>
    </message>
    <message>
        <source>Yaw</source>
        <translation>Gierversatz</translation>
    </message>
</context>
<context>
    <name>CurveEdits</name>
    <message>
        <source>Move Keys</source>
        <translation>Schlüssel verschieben</translation>
    </message>
    <message>
        <source>Set Keys</source>
        <translation>Schlüssel setzen</translation>
    </message>
    <message>
        <source>Smooth Keys</source>
        <translation>Schlüssel glätten</translation>
    </message>
    <message>
        <source>Straighten Keys</source>
        <translation>Schlüssel begradigen</translation>
    </message>
</context>
<context>
    <name>CurveView</name>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>%1, frame %2: %3</source>
        <translation>%1, Frame %2: %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CurvesDock</name>
    <message>
        <source>Keep Bones</source>
        <translation>Knochen beibehalten</translation>
    </message>
    <message>
        <source>How the selected bones move, as curves over the frames</source>
        <translation>Wie sich die ausgewählten Knochen bewegen, als Kurven über den Frames</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Go on showing these bones, whatever is selected</source>
        <translation>Diese Knochen weiter zeigen, was auch ausgewählt wird</translation>
    </message>
    <message>
        <source>Frames to smooth over</source>
        <translation>Frames, über die geglättet wird</translation>
    </message>
    <message>
        <source>How many frames to either side are smoothed over</source>
        <translation>Über wie viele Frames zu jeder Seite geglättet wird</translation>
    </message>
    <message>
        <source>S&amp;mooth</source>
        <translation>&amp;Glätten</translation>
    </message>
    <message>
        <source>Smooth the selected keys; what is not selected stays, and so do the ends</source>
        <translation>Die ausgewählten Schlüssel glätten; was nicht ausgewählt ist, bleibt, und auch die Enden bleiben</translation>
    </message>
    <message>
        <source>S&amp;traighten</source>
        <translation>&amp;Begradigen</translation>
    </message>
    <message>
        <source>Lead straight from the first to the last of the selected keys</source>
        <translation>Vom ersten bis zum letzten der ausgewählten Schlüssel gerade führen</translation>
    </message>
    <message>
        <source>Show &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>Show all frames and all values</source>
        <translation>Alle Frames und alle Werte zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Selected Keys</source>
        <translation>Ausgewählte &amp;Schlüssel zeigen</translation>
    </message>
    <message>
        <source>Show the selected keys as large as they can be</source>
        <translation>Die ausgewählten Schlüssel so groß wie möglich zeigen</translation>
    </message>
    <message>
        <source>Select All &amp;Keys</source>
        <translation>Alle Schlüssel aus&amp;wählen</translation>
    </message>
    <message>
        <source>Value of the selected keys</source>
        <translation>Wert der ausgewählten Schlüssel</translation>
    </message>
    <message>
        <source>The value of the key that was selected last; what is entered goes to all selected keys of its unit, a calculation such as *=2 to each by its own</source>
        <translation>Der Wert des zuletzt ausgewählten Schlüssels; was eingegeben wird, erhalten alle ausgewählten Schlüssel seiner Einheit, eine Rechnung wie *=2 jeder mit seinem eigenen Wert</translation>
    </message>
    <message>
        <source>Bone %1</source>
        <translation>Knochen %1</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>No animation is open.</source>
        <translation>Es ist keine Animation geöffnet.</translation>
    </message>
    <message>
        <source>The animation has no frames.</source>
        <translation>Die Animation hat keine Frames.</translation>
    </message>
    <message>
        <source>Check the curves that are to be shown in the list at the left.</source>
        <translation>Setzen Sie in der Liste links Häkchen bei den Kurven, die gezeigt werden sollen.</translation>
    </message>
    <message>
        <source>Select a bone in a tree or in the view to see its curves.</source>
        <translation>Wählen Sie einen Knochen in einem Baum oder in der Ansicht, um seine Kurven zu sehen.</translation>
    </message>
    <message>
        <source>The bone follows no track of these kinds: it stays as it is in the initial pose.</source>
        <translation>Der Knochen folgt keiner Spur dieser Arten: Er bleibt, wie er in der Anfangspose ist.</translation>
    </message>
    <message numerus="yes">
        <source>%n other bones follow the same tracks</source>
        <translation>
            <numerusform>%n anderer Knochen folgt denselben Spuren</numerusform>
            <numerusform>%n andere Knochen folgen denselben Spuren</numerusform>
        </translation>
    </message>
    <message>
        <source>also followed by bone %1</source>
        <translation>Spuren auch von Knochen %1 genutzt</translation>
    </message>
    <message>
        <source>No key selected</source>
        <translation>Kein Schlüssel ausgewählt</translation>
    </message>
    <message numerus="yes">
        <source>%n keys selected</source>
        <translation>
            <numerusform>%n Schlüssel ausgewählt</numerusform>
            <numerusform>%n Schlüssel ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, frame %2:</source>
        <translation>%1, Frame %2:</translation>
    </message>
    <message numerus="yes">
        <source>%n keys, %1</source>
        <translation>
            <numerusform>%n Schlüssel, %1</numerusform>
            <numerusform>%n Schlüssel, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DamageShow</name>
    <message>
        <source>&amp;Off</source>
        <translation>&amp;Aus</translation>
    </message>
    <message>
        <source>Show the model in its own colors</source>
        <translation>Das Modell in seinen eigenen Farben zeigen</translation>
    </message>
    <message>
        <source>Damage &amp;Scale</source>
        <translation>&amp;Schadensfaktor</translation>
    </message>
    <message>
        <source>Color the model by how much damage its bones take, with a legend</source>
        <translation>Das Modell danach färben, wie viel Schaden seine Knochen nehmen, mit einer Legende</translation>
    </message>
    <message>
        <source>&amp;Impact Type</source>
        <translation>Au&amp;fpralltyp</translation>
    </message>
    <message>
        <source>Color the model by the impact types of its bones, with a legend</source>
        <translation>Das Modell nach den Aufpralltypen seiner Knochen färben, mit einer Legende</translation>
    </message>
    <message>
        <source>Damage scale</source>
        <translation>Schadensfaktor</translation>
    </message>
    <message>
        <source>Impact type</source>
        <translation>Aufpralltyp</translation>
    </message>
    <message>
        <source>Bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>and others: %1</source>
        <translation>und weitere: %1</translation>
    </message>
    <message>
        <source>Sho&amp;w Damage</source>
        <translation>S&amp;chaden zeigen</translation>
    </message>
</context>
<context>
    <name>DatabaseTab</name>
    <message>
        <source>Actors</source>
        <translation>Akteure</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sounds</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Stimmen</translation>
    </message>
    <message>
        <source>Particles</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>Impacts</source>
        <translation>Aufpralltypen</translation>
    </message>
    <message>
        <source>Open Folder of O&amp;wn Tables</source>
        <translation>Ordner eigener &amp;Tabellen öffnen</translation>
    </message>
    <message>
        <source>Tables in this folder (%1) take the place of the built-in ones</source>
        <translation>Tabellen in diesem Ordner (%1) treten an die Stelle der eingebauten</translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Read all tables anew</source>
        <translation>Alle Tabellen neu einlesen</translation>
    </message>
    <message>
        <source>What the game&apos;s numbers stand for. A double click copies a row.</source>
        <translation>Wofür die Zahlen des Spiels stehen. Ein Doppelklick kopiert eine Zeile.</translation>
    </message>
    <message>
        <source>Filter by id or name</source>
        <translation>Nach ID oder Name filtern</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>Copied &quot;%1&quot;</source>
        <translation>„%1“ kopiert</translation>
    </message>
    <message>
        <source>Copied %1 rows</source>
        <translation>%1 Zeilen kopiert</translation>
    </message>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation>Öffnen fehlgeschlagen
%1</translation>
    </message>
    <message>
        <source>Loaded the tables again</source>
        <translation>Die Tabellen wurden neu geladen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>DisplayOptions</name>
    <message>
        <source>Show the bones over the model; a click selects one</source>
        <translation>Die Knochen über dem Modell zeigen; ein Klick wählt einen aus</translation>
    </message>
    <message>
        <source>Hot &amp;Points</source>
        <translation>Hot&amp;points</translation>
    </message>
    <message>
        <source>Show the hot points over the model; a click selects one</source>
        <translation>Die Hotpoints über dem Modell zeigen; ein Klick wählt einen aus</translation>
    </message>
    <message>
        <source>Frame Ra&amp;te</source>
        <translation>B&amp;ildrate</translation>
    </message>
    <message>
        <source>Skelet&amp;on</source>
        <translation>Sk&amp;elett</translation>
    </message>
    <message>
        <source>&amp;Selection Tint</source>
        <translation>Aus&amp;wahl einfärben</translation>
    </message>
    <message>
        <source>Tint and outline the selected surface; without, its material can be judged</source>
        <translation>Die ausgewählte Fläche einfärben und umranden; ohne beides lässt sich ihr Material beurteilen</translation>
    </message>
    <message>
        <source>Show frames a second, what the graphics card takes for one, and the number of triangles</source>
        <translation>Bilder je Sekunde, die Zeit der Grafikkarte für eines und die Zahl der Dreiecke zeigen</translation>
    </message>
    <message>
        <source>E&amp;vents</source>
        <translation>Ak&amp;tionsereignisse</translation>
    </message>
    <message>
        <source>Show key frame actions as they happen, and the selected ones: how far damage goes, and what the others are</source>
        <translation>Keyframe-Aktionen zeigen, wenn sie geschehen, und die ausgewählten: wie weit Schaden reicht, und was die anderen sind</translation>
    </message>
    <message>
        <source>Show the boxes of the bones and of the model; faces of the selected one can be dragged</source>
        <translation>Die Boxen der Knochen und des Modells zeigen; Seiten der ausgewählten können gezogen werden</translation>
    </message>
    <message>
        <source>Bo&amp;xes</source>
        <translation>Bo&amp;xen</translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The model has no surfaces.</source>
        <translation>Das Modell hat keine Flächen.</translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>[Open] Unable to read &apos;%1&apos;</source>
        <translation>[Öffnen] „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>[Open] &apos;%1&apos;: %2</source>
        <translation>[Öffnen] „%1“: %2</translation>
    </message>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation>Öffnen fehlgeschlagen
%1</translation>
    </message>
    <message>
        <source>Would you like to save the %2?

%1</source>
        <translation>Möchten Sie die Änderungen speichern (%2)?

%1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>[Save] &apos;%1&apos;: %2</source>
        <translation>[Speichern] „%1“: %2</translation>
    </message>
    <message>
        <source>%1

Go on without it?</source>
        <translation>%1

Ohne diese Eingabe fortfahren?</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>[Close] &apos;%1&apos;: Not stored. %2</source>
        <translation>[Schließen] „%1“: Nicht gespeichert. %2</translation>
    </message>
    <message>
        <source>Material files (*.kmat)</source>
        <translation>Materialdateien (*.kmat)</translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>Skinned Mesh</source>
        <translation>Skinned Mesh</translation>
    </message>
    <message>
        <source>Open Skinned Mesh</source>
        <translation>Skin-Mesh öffnen</translation>
    </message>
    <message>
        <source>Save Skinned Mesh</source>
        <translation>Skin-Mesh speichern</translation>
    </message>
    <message>
        <source>Skinned Mesh (*.skinnedmesh)</source>
        <translation>Skin-Mesh (*.skinnedmesh)</translation>
    </message>
    <message>
        <source>Skinned Mesh Folder</source>
        <translation>Ordner der Skin-Meshes</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation>Animation öffnen</translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation>Animation speichern</translation>
    </message>
    <message>
        <source>Animation (*.anim)</source>
        <translation>Animation (*.anim)</translation>
    </message>
    <message>
        <source>Animation Folder</source>
        <translation>Ordner der Animationen</translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation>Statisches Mesh</translation>
    </message>
    <message>
        <source>Open Static Mesh</source>
        <translation>Statisches Mesh öffnen</translation>
    </message>
    <message>
        <source>Save Static Mesh</source>
        <translation>Statisches Mesh speichern</translation>
    </message>
    <message>
        <source>Static Mesh (*.staticmesh)</source>
        <translation>Statisches Mesh (*.staticmesh)</translation>
    </message>
    <message>
        <source>Static Mesh Folder</source>
        <translation>Ordner der statischen Meshes</translation>
    </message>
</context>
<context>
    <name>DocumentPanes</name>
    <message>
        <source>The filter above the tree hides %1.</source>
        <translation>Der Filter über dem Baum blendet %1 aus.</translation>
    </message>
    <message>
        <source>The tree leaves such records out. The options can make it show them.</source>
        <translation>Der Baum lässt solche Datensätze aus. Die Optionen können sie einblenden.</translation>
    </message>
    <message>
        <source>%1 belongs to the skinned mesh, whose tree can select it.</source>
        <translation>%1 gehört zum Skin-Mesh; auswählen lässt es sich in dessen Baum.</translation>
    </message>
    <message>
        <source>The animation that plays does not have %1.</source>
        <translation>%1 gibt es in der laufenden Animation nicht.</translation>
    </message>
    <message>
        <source>The mesh that has the bones is not open.</source>
        <translation>Das Mesh, das die Knochen hat, ist nicht geöffnet.</translation>
    </message>
</context>
<context>
    <name>DocumentTitle</name>
    <message>
        <source>%1 (never saved)</source>
        <translation>%1 (nie gespeichert)</translation>
    </message>
</context>
<context>
    <name>DragEditing</name>
    <message>
        <source>%1: %2    Ctrl: steps of %3    Esc: give up</source>
        <translation>%1: %2    Strg: Schritte von %3    Esc: aufgeben</translation>
    </message>
    <message>
        <source>Bone %1 takes it</source>
        <translation>Knochen %1 übernimmt</translation>
    </message>
    <message>
        <source>Along the model&apos;s %1</source>
        <translation>Entlang %1 des Modells</translation>
    </message>
    <message>
        <source>Along the bone&apos;s %1</source>
        <translation>Entlang %1 des Knochens</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>X Y Z: axis    Ctrl: steps of %1    B: bone    Esc: give up</source>
        <translation>X Y Z: Achse    Strg: Raster %1    B: Knochen    Esc: zurück</translation>
    </message>
</context>
<context>
    <name>EventArguments</name>
    <message>
        <source>Sound ID</source>
        <translation>Sound-ID</translation>
    </message>
    <message>
        <source>Particle ID</source>
        <translation>Partikel-ID</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Damage</source>
        <translation>Schaden</translation>
    </message>
    <message>
        <source>Blood Spray X</source>
        <translation>Blutspritzer X</translation>
    </message>
    <message>
        <source>Blood Spray Y</source>
        <translation>Blutspritzer Y</translation>
    </message>
    <message>
        <source>Blood Spray Z</source>
        <translation>Blutspritzer Z</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
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
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Attack Time</source>
        <translation>Anstiegszeit</translation>
    </message>
    <message>
        <source>Sustain Time</source>
        <translation>Haltezeit</translation>
    </message>
    <message>
        <source>Decay Time</source>
        <translation>Abklingzeit</translation>
    </message>
    <message>
        <source>X Axis</source>
        <translation>X-Achse</translation>
    </message>
    <message>
        <source>Y Axis</source>
        <translation>Y-Achse</translation>
    </message>
    <message>
        <source>Z Axis</source>
        <translation>Z-Achse</translation>
    </message>
    <message>
        <source>UserEvent Arg 1</source>
        <translation>UserEvent-Arg 1</translation>
    </message>
    <message>
        <source>UserEvent Arg 2</source>
        <translation>UserEvent-Arg 2</translation>
    </message>
    <message>
        <source>UserEvent Arg 3</source>
        <translation>UserEvent-Arg 3</translation>
    </message>
    <message>
        <source>UserEvent Arg 4</source>
        <translation>UserEvent-Arg 4</translation>
    </message>
    <message>
        <source>Model Index</source>
        <translation>Modellindex</translation>
    </message>
    <message>
        <source>Hot Point Bit</source>
        <translation>Hotpoint-Bit</translation>
    </message>
    <message>
        <source>Actor Type ID</source>
        <translation>Akteurtyp-ID</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Impact Type</source>
        <translation>Aufpralltyp</translation>
    </message>
    <message>
        <source>Voice ID</source>
        <translation>Stimmen-ID</translation>
    </message>
</context>
<context>
    <name>ExplorerFiles</name>
    <message>
        <source>Show folders that hold no file for the list, too</source>
        <translation>Auch Ordner anzeigen, die keine Datei für die Liste enthalten</translation>
    </message>
    <message>
        <source>Show Emp&amp;ty Folders</source>
        <translation>Lee&amp;re Ordner anzeigen</translation>
    </message>
</context>
<context>
    <name>Expression</name>
    <message>
        <source>That is too long for a calculation.</source>
        <translation>Das ist zu lang für eine Rechnung.</translation>
    </message>
    <message>
        <source>That has too many parentheses or signs.</source>
        <translation>Das hat zu viele Klammern oder Vorzeichen.</translation>
    </message>
    <message>
        <source>A parenthesis is not closed.</source>
        <translation>Eine Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>Something is missing at the end.</source>
        <translation>Am Ende fehlt etwas.</translation>
    </message>
    <message>
        <source>A number in it is too large or too small.</source>
        <translation>Eine Zahl darin ist zu groß oder zu klein.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not understood.</source>
        <translation>„%1“ ist nicht zu verstehen.</translation>
    </message>
</context>
<context>
    <name>FieldChoices</name>
    <message>
        <source>Actors</source>
        <translation>Akteure</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sounds</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Voices</source>
        <translation>Stimmen</translation>
    </message>
    <message>
        <source>Particles</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>Impact Types</source>
        <translation>Aufpralltypen</translation>
    </message>
    <message>
        <source>Bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>no parent</source>
        <translation>kein Elternknochen</translation>
    </message>
    <message>
        <source>no bone</source>
        <translation>kein Knochen</translation>
    </message>
</context>
<context>
    <name>FieldName</name>
    <message>
        <source>Choose by Name</source>
        <translation>Nach Namen wählen</translation>
    </message>
    <message>
        <source>Pick in the View</source>
        <translation>In der Ansicht wählen</translation>
    </message>
    <message>
        <source>click a bone</source>
        <translation>Knochen anklicken</translation>
    </message>
    <message>
        <source>Click a bone in the view; Esc gives that up</source>
        <translation>Klicken Sie in der Ansicht einen Knochen an; Esc bricht das ab</translation>
    </message>
</context>
<context>
    <name>FieldWords</name>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Header Value 1</source>
        <translation>Kopfwert 1</translation>
    </message>
    <message>
        <source>Header Value 2</source>
        <translation>Kopfwert 2</translation>
    </message>
    <message>
        <source>Child Bones</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Yaw Offsets</source>
        <translation>Gierversätze</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
</context>
<context>
    <name>FileComparison</name>
    <message>
        <source>The file could not be opened.</source>
        <translation>Die Datei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be compared: %2</source>
        <translation>%1 kann nicht verglichen werden: %2</translation>
    </message>
    <message>
        <source>Taking from &apos;%1&apos;</source>
        <translation>Übernehmen aus „%1“</translation>
    </message>
    <message>
        <source>Take Theirs</source>
        <translation>Von dort übernehmen</translation>
    </message>
    <message>
        <source>Nothing was taken. %1</source>
        <translation>Nichts wurde übernommen. %1</translation>
    </message>
    <message>
        <source>%1 is a file of another kind: its name does not end in .%2.</source>
        <translation>%1 ist eine Datei anderer Art: Ihr Name endet nicht auf .%2.</translation>
    </message>
</context>
<context>
    <name>FileContent</name>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>A count in the file is negative.</source>
        <translation>Eine Anzahl in der Datei ist negativ.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>This is no regular file.</source>
        <translation>Das ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The name does not end in .%1.</source>
        <translation>Der Name endet nicht auf .%1.</translation>
    </message>
</context>
<context>
    <name>FileList</name>
    <message>
        <source>Files of game and mod</source>
        <translation>Dateien von Spiel und Mod</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Open this file, or show the texture</source>
        <translation>Diese Datei öffnen oder die Textur zeigen</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Enthaltenden O&amp;rdner öffnen</translation>
    </message>
    <message>
        <source>Show the folder in the desktop&apos;s file manager</source>
        <translation>Den Ordner in der Dateiverwaltung des Desktops zeigen</translation>
    </message>
    <message>
        <source>Copy &amp;Name</source>
        <translation>&amp;Namen kopieren</translation>
    </message>
    <message>
        <source>Copy the name by which models and materials name this file, below the folder of game or mod</source>
        <translation>Den Namen kopieren, mit dem Modelle und Materialien diese Datei nennen, unterhalb des Ordners von Spiel oder Mod</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy the full path to the clipboard</source>
        <translation>Den vollen Pfad in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>Mod Browser</source>
        <translation>Mod-Browser</translation>
    </message>
    <message>
        <source>Failed to open %1</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has no materials that could be named.</source>
        <translation>„%1“ hat keine Materialien, die genannt werden könnten.</translation>
    </message>
</context>
<context>
    <name>FileNames</name>
    <message>
        <source>&apos;%1&apos; cannot be a name on Windows: it is that of a device, ends in a dot or a blank, or holds one of &lt; &gt; : &quot; \ | ? *</source>
        <translation>„%1“ kann unter Windows kein Name sein: Es ist der eines Gerätes, endet mit einem Punkt oder Leerzeichen oder enthält eines von &lt; &gt; : &quot; \ | ? *</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>Failed to open %1</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>FilePalette</name>
    <message>
        <source>Go to File</source>
        <translation>Gehe zu Datei</translation>
    </message>
    <message>
        <source>Which file: parts of its name and folders</source>
        <translation>Welche Datei: Teile ihres Namens und ihrer Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>There are no folders of game and mod. Edit ▸ Options… names them.</source>
        <translation>Es gibt keine Ordner von Spiel und Mod. Bearbeiten ▸ Optionen… gibt sie an.</translation>
    </message>
    <message>
        <source>The folders of game and mod are being read.</source>
        <translation>Die Ordner von Spiel und Mod werden gelesen.</translation>
    </message>
    <message>
        <source>No file has these words in its path.</source>
        <translation>Keine Datei hat diese Wörter in ihrem Pfad.</translation>
    </message>
    <message>
        <source>Files: %1 of %2</source>
        <translation>Dateien: %1 von %2</translation>
    </message>
</context>
<context>
    <name>FileReplacement</name>
    <message>
        <source>A count in the file is negative.</source>
        <translation>Eine Anzahl in der Datei ist negativ.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>Writing it would change more than the values.</source>
        <translation>Beim Schreiben würde sich mehr ändern als die Werte.</translation>
    </message>
    <message>
        <source>The file was changed since.</source>
        <translation>Die Datei wurde inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>FileReplacing</name>
    <message>
        <source>Replace in Files…</source>
        <translation>In Dateien ersetzen…</translation>
    </message>
    <message>
        <source>Give records in all files of the mod other values, after a list of what would change</source>
        <translation>Datensätzen in allen Dateien des Mods andere Werte geben, nach einer Liste dessen, was sich ändern würde</translation>
    </message>
    <message>
        <source>Replacements in Files…</source>
        <translation>Ersetzungen in Dateien…</translation>
    </message>
    <message>
        <source>List what was replaced in files, to undo it</source>
        <translation>Auflisten, was in Dateien ersetzt wurde, um es rückgängig zu machen</translation>
    </message>
    <message>
        <source>Replacement broken off</source>
        <translation>Ersetzung abgebrochen</translation>
    </message>
    <message>
        <source>A replacement in %1 files was broken off: %2
Lists the replacements, to end or undo it</source>
        <translation>Eine Ersetzung in %1 Dateien wurde abgebrochen: %2
Führt die Ersetzungen auf, um sie zu Ende zu führen oder rückgängig zu machen</translation>
    </message>
</context>
<context>
    <name>FileRows</name>
    <message>
        <source>Skinned mesh</source>
        <translation>Skinned Mesh</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Static mesh</source>
        <translation>Statisches Mesh</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>Replaces game&apos;s</source>
        <translation>Ersetzt die des Spiels</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Replaced by mod</source>
        <translation>Vom Mod ersetzt</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>%1, unused</source>
        <translation>%1, unbenutzt</translation>
    </message>
    <message>
        <source>In the mod, in the place of the game&apos;s file of this name</source>
        <translation>Im Mod, an Stelle der Datei des Spiels mit diesem Namen</translation>
    </message>
    <message>
        <source>In the mod</source>
        <translation>Im Mod</translation>
    </message>
    <message>
        <source>In the game; the mod has a file of this name in its place</source>
        <translation>Im Spiel; der Mod hat eine Datei dieses Namens an ihrer Stelle</translation>
    </message>
    <message>
        <source>In the game</source>
        <translation>Im Spiel</translation>
    </message>
    <message>
        <source>No material of game and mod names this texture</source>
        <translation>Kein Material von Spiel und Mod nennt diese Textur</translation>
    </message>
    <message>
        <source>No model of game and mod names a material of this file</source>
        <translation>Kein Modell von Spiel und Mod nennt ein Material dieser Datei</translation>
    </message>
</context>
<context>
    <name>FileRun</name>
    <message>
        <source>The copies of the files cannot be kept in &apos;%1&apos;.</source>
        <translation>Die Kopien der Dateien können in „%1“ nicht aufgehoben werden.</translation>
    </message>
    <message>
        <source>It was changed since, and is left as it is.</source>
        <translation>Sie wurde inzwischen geändert und bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Sie ist nicht mehr da.</translation>
    </message>
    <message>
        <source>It cannot be removed.</source>
        <translation>Sie kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>The copy that was kept is damaged.</source>
        <translation>Die aufgehobene Kopie ist beschädigt.</translation>
    </message>
    <message>
        <source>Another program is at work on it.</source>
        <translation>Ein anderes Programm arbeitet daran.</translation>
    </message>
</context>
<context>
    <name>FileRunsDialog</name>
    <message>
        <source>Replacements in Files</source>
        <translation>Ersetzungen in Dateien</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Replacement</source>
        <translation>Ersetzung</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Give the files back what they held; those that were changed since are left as they are</source>
        <translation>Den Dateien zurückgeben, was sie enthielten; was inzwischen geändert wurde, bleibt, wie es ist</translation>
    </message>
    <message>
        <source>Delete the copies; the files stay as they are</source>
        <translation>Die Kopien löschen; die Dateien bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>broken off</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>replaced</source>
        <translation>ersetzt</translation>
    </message>
    <message>
        <source>undone</source>
        <translation>rückgängig gemacht</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Nothing was replaced in files yet, by Edit ▸ Replace in Files… or on the command line.</source>
        <translation>Noch wurde nichts in Dateien ersetzt, weder durch Bearbeiten ▸ In Dateien ersetzen… noch auf der Kommandozeile.</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>Zu &amp;Ende führen</translation>
    </message>
    <message>
        <source>&amp;Do Again</source>
        <translation>&amp;Erneut ausführen</translation>
    </message>
    <message>
        <source>Give the rest of the files their new values</source>
        <translation>Den übrigen Dateien ihre neuen Werte geben</translation>
    </message>
    <message>
        <source>Give the files the new values again</source>
        <translation>Den Dateien die neuen Werte noch einmal geben</translation>
    </message>
    <message>
        <source>Giving the files back what they held</source>
        <translation>Die Dateien bekommen zurück, was sie enthielten</translation>
    </message>
    <message>
        <source>Replacing in files</source>
        <translation>In Dateien wird ersetzt</translation>
    </message>
    <message>
        <source>Broken off.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Files: %1.</source>
        <translation>Dateien: %1.</translation>
    </message>
    <message>
        <source>Delete the copies of this replacement? It cannot be undone then.</source>
        <translation>Sollen die Kopien dieser Ersetzung gelöscht werden? Sie kann dann nicht mehr rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Another program is at work on it.</source>
        <translation>Ein anderes Programm arbeitet daran.</translation>
    </message>
    <message>
        <source>For&amp;get</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>FilterEdit</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Filter, such as %1</source>
        <translation>Filter, etwa %1</translation>
    </message>
    <message>
        <source>Show only the records whose text has these words, and numbers or ranges of them; or that meet a condition over their fields, as Find and Replace has them</source>
        <translation>Nur die Datensätze zeigen, in deren Text diese Wörter und Zahlen oder Bereiche vorkommen oder die eine Bedingung an ihre Felder erfüllen, wie Suchen und Ersetzen sie kennt</translation>
    </message>
</context>
<context>
    <name>FindDock</name>
    <message>
        <source>Find:</source>
        <translation>Suchen:</translation>
    </message>
    <message>
        <source>damage scale &gt; 1, surfaces material ~ tree, sound = 1234, bone in left arm</source>
        <translation>Schadensfaktor &gt; 1, Flächen Material ~ baum, Sound = 1234, Knochen in Oberarm links</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>Fields as the pages call them, compared by = != &lt; &lt;= &gt; &gt;= ~ (contains) and in (bones below), joined by commas, and, or, not. Ctrl+Space proposes words.</source>
        <translation>Felder, wie die Seiten sie nennen, verglichen mit = != &lt; &lt;= &gt; &gt;= ~ (enthält) und in (Knochen darunter), verbunden mit Kommas, und, oder, nicht. Strg+Leertaste schlägt Wörter vor.</translation>
    </message>
    <message>
        <source>This Document</source>
        <translation>Dieses Dokument</translation>
    </message>
    <message>
        <source>Selected Records</source>
        <translation>Ausgewählte Datensätze</translation>
    </message>
    <message>
        <source>All Open Documents</source>
        <translation>Alle offenen Dokumente</translation>
    </message>
    <message>
        <source>Where to search</source>
        <translation>Wo gesucht wird</translation>
    </message>
    <message>
        <source>Where to search; of selected records, what stands below them, too</source>
        <translation>Wo gesucht wird; bei ausgewählten Datensätzen auch in dem, was unter ihnen steht</translation>
    </message>
    <message>
        <source>Select All Hits</source>
        <translation>Alle Treffer auswählen</translation>
    </message>
    <message>
        <source>Select the records in their trees, to edit them on their pages</source>
        <translation>Die Datensätze in ihren Bäumen auswählen, um sie auf ihren Seiten zu bearbeiten</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>Es ist keine Datei geöffnet.</translation>
    </message>
    <message>
        <source>Type what the records are to have, such as %1.</source>
        <translation>Geben Sie ein, was die Datensätze haben sollen, etwa %1.</translation>
    </message>
    <message>
        <source>damage scale &gt; 1</source>
        <translation>Schadensfaktor &gt; 1</translation>
    </message>
    <message>
        <source>The records are being searched.</source>
        <translation>Die Datensätze werden durchsucht.</translation>
    </message>
    <message>
        <source>No record meets the condition.</source>
        <translation>Kein Datensatz erfüllt die Bedingung.</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Sucht…</translation>
    </message>
    <message>
        <source>Not in the trees, and so not selected: %1. The filter or the options hide them.</source>
        <translation>Nicht in den Bäumen und darum nicht ausgewählt: %1. Der Filter oder die Optionen blenden sie aus.</translation>
    </message>
    <message>
        <source>Hits: %1</source>
        <translation>Treffer: %1</translation>
    </message>
</context>
<context>
    <name>FlagsEditor</name>
    <message>
        <source>Bit %1 (0x%2)</source>
        <translation>Bit %1 (0x%2)</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>FlightKeys</name>
    <message>
        <source>3D View</source>
        <translation>3D-Ansicht</translation>
    </message>
    <message>
        <source>Fly Forward</source>
        <translation>Vorwärts fliegen</translation>
    </message>
    <message>
        <source>Fly Back</source>
        <translation>Rückwärts fliegen</translation>
    </message>
    <message>
        <source>Fly Left</source>
        <translation>Nach links fliegen</translation>
    </message>
    <message>
        <source>Fly Right</source>
        <translation>Nach rechts fliegen</translation>
    </message>
    <message>
        <source>Reset the Camera</source>
        <translation>Kamera zurücksetzen</translation>
    </message>
</context>
<context>
    <name>FloatSpinBox</name>
    <message>
        <source>&apos;%1&apos; is no number that can be stored here.</source>
        <translation>„%1“ ist keine Zahl, die hier gespeichert werden kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no number from %2 to %3.</source>
        <translation>„%1“ ist keine Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be stored. %2</source>
        <translation>„%1“ kann nicht gespeichert werden. %2</translation>
    </message>
</context>
<context>
    <name>FolderExplorer</name>
    <message>
        <source>Choose the folder to list</source>
        <translation>Den Ordner wählen, der aufgelistet wird</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Neu einlesen</translation>
    </message>
    <message>
        <source>Read the folder again</source>
        <translation>Den Ordner neu einlesen</translation>
    </message>
    <message>
        <source>&amp;Load On Select</source>
        <translation>Beim Auswählen &amp;laden</translation>
    </message>
    <message>
        <source>Open a file as soon as it is selected</source>
        <translation>Eine Datei öffnen, sobald sie ausgewählt wird</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
    <message>
        <source>There is no folder
%1</source>
        <translation>Es gibt keinen Ordner
%1</translation>
    </message>
    <message>
        <source>No .%1 files in
%2</source>
        <translation>Keine .%1-Dateien in
%2</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Stopped reading
%1</source>
        <translation>Abgebrochen beim Lesen von
%1</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Ordner &amp;wechseln…</translation>
    </message>
    <message>
        <source>No file matches</source>
        <translation>Keine Datei passt</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only the files that have these words in their name or in their folders&apos; names</source>
        <translation>Nur die Dateien anzeigen, in deren Namen oder in den Namen ihrer Ordner diese Wörter vorkommen</translation>
    </message>
</context>
<context>
    <name>FolderMenu</name>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open this file</source>
        <translation>Diese Datei öffnen</translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation>Enthaltenden &amp;Ordner öffnen</translation>
    </message>
    <message>
        <source>Show the folder in the desktop&apos;s file manager</source>
        <translation>Den Ordner in der Dateiverwaltung des Desktops zeigen</translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copy the full path to the clipboard</source>
        <translation>Den vollen Pfad in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alles &amp;aufklappen</translation>
    </message>
    <message>
        <source>Open all folders of the list</source>
        <translation>Alle Ordner der Liste öffnen</translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message>
        <source>Close all folders of the list</source>
        <translation>Alle Ordner der Liste schließen</translation>
    </message>
</context>
<context>
    <name>FolderSwitch</name>
    <message>
        <source>&amp;Game Folder</source>
        <translation>&amp;Spielordner</translation>
    </message>
    <message>
        <source>&amp;Mod Folder</source>
        <translation>&amp;Mod-Ordner</translation>
    </message>
    <message>
        <source>&amp;Other Folder</source>
        <translation>&amp;Anderer Ordner</translation>
    </message>
    <message>
        <source>No other folder was chosen yet</source>
        <translation>Es wurde noch kein anderer Ordner gewählt</translation>
    </message>
    <message>
        <source>The options name no such folder</source>
        <translation>Die Optionen nennen keinen solchen Ordner</translation>
    </message>
    <message>
        <source>List %1</source>
        <translation>%1 auflisten</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderer</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Choose the folder to list</source>
        <translation>Den Ordner wählen, der aufgelistet wird</translation>
    </message>
    <message>
        <source>Folder: %1</source>
        <translation>Ordner: %1</translation>
    </message>
</context>
<context>
    <name>FolderWalk</name>
    <message>
        <source>The folder cannot be read.</source>
        <translation>Der Ordner kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The name of &apos;%1&apos; is no text in the encoding of this system, so the file is passed over. Rename it.</source>
        <translation>Der Name von „%1“ ist in der Zeichenkodierung dieses Systems kein Text; die Datei wird deshalb übergangen. Benennen Sie sie um.</translation>
    </message>
</context>
<context>
    <name>FoundList</name>
    <message>
        <source>Records found</source>
        <translation>Gefundene Datensätze</translation>
    </message>
</context>
<context>
    <name>FoundRows</name>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>FrameLabel</name>
    <message>
        <source>Invalid Animation</source>
        <translation>Ungültige Animation</translation>
    </message>
    <message>
        <source>Initial Pose</source>
        <translation>Anfangspose</translation>
    </message>
    <message>
        <source>Frame: %1 / %2</source>
        <translation>Frame: %1 / %2</translation>
    </message>
</context>
<context>
    <name>Gltf</name>
    <message>
        <source>The file is damaged, or no glTF 2.0: %1</source>
        <translation>Die Datei ist beschädigt oder kein glTF 2.0: %1</translation>
    </message>
    <message>
        <source>The file needs the extension %1, which cannot be read.</source>
        <translation>Die Datei braucht die Erweiterung %1, die nicht gelesen werden kann.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos;, which belongs to it, cannot be read.</source>
        <translation>Die Datei „%1“, die dazugehört, kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Surface %1: &apos;%2&apos;</source>
        <translation>Fläche %1: „%2“</translation>
    </message>
    <message>
        <source>It has more vertices than a model can.</source>
        <translation>Sie hat mehr Vertices, als ein Modell haben kann.</translation>
    </message>
    <message>
        <source>Vertices with other values: %1</source>
        <translation>Vertices mit anderen Werten: %1</translation>
    </message>
    <message>
        <source>Vertices: %1</source>
        <translation>Vertices: %1</translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation>Dreiecke: %1</translation>
    </message>
    <message>
        <source>Vertices that go: %1</source>
        <translation>Vertices, die entfallen: %1</translation>
    </message>
    <message>
        <source>Triangles that go: %1</source>
        <translation>Dreiecke, die entfallen: %1</translation>
    </message>
    <message>
        <source>Objects that hang on no bone, left out: %1</source>
        <translation>Objekte, die an keinem Knochen hängen, ausgelassen: %1</translation>
    </message>
    <message>
        <source>Bone %1 &apos;%2&apos; on bone %3</source>
        <translation>Knochen %1 „%2“ an Knochen %3</translation>
    </message>
    <message>
        <source>Hot point %1</source>
        <translation>Hotpoint %1</translation>
    </message>
    <message>
        <source>Hot point %1: moved on its bone</source>
        <translation>Hotpoint %1: auf seinem Knochen verschoben</translation>
    </message>
    <message>
        <source>Bone %1</source>
        <translation>Knochen %1</translation>
    </message>
    <message>
        <source>Bones that start elsewhere: %1</source>
        <translation>Knochen, die woanders ansetzen: %1</translation>
    </message>
    <message>
        <source>Bones without vertices, left out: %1</source>
        <translation>Knochen ohne Vertices, ausgelassen: %1</translation>
    </message>
    <message>
        <source>Vertices with several bones, of which each follows the strongest: %1</source>
        <translation>Vertices mit mehreren Knochen, die jeweils dem stärksten folgen: %1</translation>
    </message>
    <message>
        <source>Vertices without a bone, which follow bone 0: %1</source>
        <translation>Vertices ohne Knochen, die Knochen 0 folgen: %1</translation>
    </message>
    <message>
        <source>More bones than the game can pose: %1, at most %2</source>
        <translation>Mehr Knochen, als das Spiel bewegen kann: %1, höchstens %2</translation>
    </message>
    <message>
        <source>Lists of points or lines, left out: %1</source>
        <translation>Listen von Punkten oder Linien, ausgelassen: %1</translation>
    </message>
    <message>
        <source>With its new bones the model has %1, more than %2.</source>
        <translation>Mit seinen neuen Knochen hat das Modell %1, mehr als %2.</translation>
    </message>
    <message>
        <source>Animations, left out since none of the model&apos;s is open: %1</source>
        <translation>Animationen, ausgelassen, da keine des Modells geöffnet ist: %1</translation>
    </message>
    <message>
        <source>The file has lost what the export noted in it (custom properties), so bones and animations were found by their names.</source>
        <translation>Die Datei hat verloren, was der Export in ihr vermerkt hat (Custom Properties); Knochen und Animationen wurden deshalb an ihren Namen erkannt.</translation>
    </message>
    <message>
        <source>Nothing in it comes from the model that is open.</source>
        <translation>Nichts in ihr stammt aus dem geöffneten Modell.</translation>
    </message>
    <message>
        <source>Objects that are no part of the model, left out: %1</source>
        <translation>Objekte, die nicht zum Modell gehören, ausgelassen: %1</translation>
    </message>
    <message>
        <source>The bone &apos;%1&apos; has no size in the file.</source>
        <translation>Der Knochen „%1“ hat in der Datei keine Ausdehnung.</translation>
    </message>
    <message>
        <source>None of its bones is one of the model that is open.</source>
        <translation>Keiner ihrer Knochen ist einer des geöffneten Modells.</translation>
    </message>
    <message>
        <source>Animation %1 [%2]</source>
        <translation>Animation %1 [%2]</translation>
    </message>
    <message>
        <source>Bones that are scaled, which the format has no place for: %1</source>
        <translation>Skalierte Knochen, wofür das Format keinen Platz hat: %1</translation>
    </message>
    <message>
        <source>The animations have more than %1 frames.</source>
        <translation>Die Animationen haben mehr als %1 Frames.</translation>
    </message>
    <message>
        <source>%1 frames, not %2</source>
        <translation>%1 Frames, nicht %2</translation>
    </message>
    <message>
        <source>bones that move otherwise: %1</source>
        <translation>Knochen, die sich anders bewegen: %1</translation>
    </message>
    <message>
        <source>other yaw offsets</source>
        <translation>anderer Gierversatz</translation>
    </message>
    <message>
        <source>Animation %1 &apos;%2&apos;: %3</source>
        <translation>Animation %1 „%2“: %3</translation>
    </message>
    <message>
        <source>Animation %1 &apos;%2&apos;: %3 frames</source>
        <translation>Animation %1 „%2“: %3 Frames</translation>
    </message>
    <message>
        <source>loop frame %1</source>
        <translation>Schleifen-Frame %1</translation>
    </message>
    <message>
        <source>blend end %1</source>
        <translation>Überblendende %1</translation>
    </message>
    <message>
        <source>actions: %1</source>
        <translation>Aktionen: %1</translation>
    </message>
    <message>
        <source>The files that belong to it are too large.</source>
        <translation>Die Dateien, die dazugehören, sind zu groß.</translation>
    </message>
    <message>
        <source>Animation %1 &apos;%2&apos; ends before what it has: %3</source>
        <translation>Animation %1 „%2“ endet vor dem, was sie hat: %3</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>As opened</source>
        <translation>Wie geöffnet</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Could not overwrite texture &apos;%1&apos;</source>
        <translation>Die Textur „%1“ konnte nicht überschrieben werden</translation>
    </message>
    <message>
        <source>Could not copy texture from &apos;%1&apos; to &apos;%2&apos;</source>
        <translation>Die Textur konnte nicht von „%1“ nach „%2“ kopiert werden</translation>
    </message>
    <message>
        <source>Model had no textures to copy
</source>
        <translation>Das Modell hatte keine Texturen zu kopieren
</translation>
    </message>
    <message>
        <source>Failed on copying textures
</source>
        <translation>Das Kopieren der Texturen ist fehlgeschlagen
</translation>
    </message>
    <message>
        <source>Successfully copied textures
</source>
        <translation>Die Texturen wurden kopiert
</translation>
    </message>
    <message>
        <source>Material &apos;%1&apos;: the texture &apos;%2&apos; will not be found, for the blank in its path</source>
        <translation>Material „%1“: Die Textur „%2“ wird wegen des Leerzeichens in ihrem Pfad nicht gefunden</translation>
    </message>
    <message>
        <source>Successfully created .kmat file
</source>
        <translation>Die .kmat-Datei wurde erstellt
</translation>
    </message>
    <message>
        <source>Failed on creating .kmat file
</source>
        <translation>Das Erstellen der .kmat-Datei ist fehlgeschlagen
</translation>
    </message>
    <message>
        <source>[Static Mesh Export] Mesh has no triangles</source>
        <translation>[Export statisches Mesh] Das Mesh hat keine Dreiecke</translation>
    </message>
    <message>
        <source>[Static Mesh Export] %1 Could not write file. %2</source>
        <translation>[Export statisches Mesh] %1 Die Datei konnte nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>%1 Animation %2 was cut to %3 frames</source>
        <translation>%1 Animation %2 wurde auf %3 Frames gekürzt</translation>
    </message>
    <message>
        <source>bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>%1 Material %2 does not have any Diffuse textures</source>
        <translation>%1 Material %2 hat keine Diffuse-Texturen</translation>
    </message>
    <message>
        <source>%1 Material %2 could not get Diffuse texture path</source>
        <translation>%1 Material %2: Der Pfad der Diffuse-Textur war nicht zu ermitteln</translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any vertices</source>
        <translation>%1 Mesh %2 enthält keine Vertices</translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any normals</source>
        <translation>%1 Mesh %2 enthält keine Normalen</translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any UVs</source>
        <translation>%1 Mesh %2 enthält keine UVs</translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any faces</source>
        <translation>%1 Mesh %2 enthält keine Polygone</translation>
    </message>
    <message>
        <source>%1 Mesh %2 contains more than 3 indices per face. A face must contain only 3 indices.</source>
        <translation>%1 Mesh %2 enthält mehr als 3 Indizes je Polygon. Ein Polygon darf nur 3 Indizes haben.</translation>
    </message>
    <message>
        <source>%1 Could not read file. %2</source>
        <translation>%1 Die Datei konnte nicht gelesen werden. %2</translation>
    </message>
    <message>
        <source>It has no root node.</source>
        <translation>Sie hat keinen Wurzelknoten.</translation>
    </message>
    <message>
        <source>%1 does not contain any meshes</source>
        <translation>%1 enthält keine Meshes</translation>
    </message>
    <message>
        <source>%1 has %2 vertices. A model of this kind can hold no more than %3.</source>
        <translation>%1 hat %2 Vertices. Ein Modell dieser Art kann höchstens %3 enthalten.</translation>
    </message>
    <message>
        <source>%1 Mesh %2 refers to a material that is not there</source>
        <translation>%1 Mesh %2 verweist auf ein Material, das es nicht gibt</translation>
    </message>
    <message>
        <source>%1 Mesh %2 refers to vertices that are not there</source>
        <translation>%1 Mesh %2 verweist auf Vertices, die es nicht gibt</translation>
    </message>
    <message>
        <source>surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>Vertex</translation>
    </message>
    <message>
        <source>vertices</source>
        <translation>Vertices</translation>
    </message>
    <message>
        <source>triangle</source>
        <translation>Dreieck</translation>
    </message>
    <message>
        <source>triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>%1 has %2 bones. A model can hold no more than %3.</source>
        <translation>%1 hat %2 Knochen. Ein Modell kann höchstens %3 enthalten.</translation>
    </message>
    <message>
        <source>%1 has %2 bones. The parents of those whose parent is bone %3 or beyond cannot be stored; their place in the child lists is kept.</source>
        <translation>%1 hat %2 Knochen. Die Elternknochen derer, deren Elternknochen Knochen %3 oder ein späterer ist, können nicht gespeichert werden; ihr Platz in den Kindlisten bleibt erhalten.</translation>
    </message>
    <message>
        <source>Node %1 already exists.</source>
        <translation>Der Knoten %1 ist schon vorhanden.</translation>
    </message>
    <message>
        <source>%1 has no bones. Creating a default bone.</source>
        <translation>%1 hat keine Knochen. Ein Standardknochen wird erzeugt.</translation>
    </message>
    <message>
        <source>%1 %2 vertices are not assigned to a bone</source>
        <translation>%1 %2 Vertices sind keinem Knochen zugeordnet</translation>
    </message>
    <message>
        <source>[Static Mesh Export] Texture not found &apos;%1&apos;</source>
        <translation>[Export statisches Mesh] Textur nicht gefunden „%1“</translation>
    </message>
    <message>
        <source>[Static Mesh Export] Mesh has no surfaces</source>
        <translation>[Export statisches Mesh] Das Mesh hat keine Flächen</translation>
    </message>
    <message>
        <source>[Static Mesh Export] %1 Could not write file.</source>
        <translation>[Export statisches Mesh] %1 Die Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The model could not be handed over.</source>
        <translation>Das Modell konnte nicht übergeben werden.</translation>
    </message>
    <message>
        <source>%1 Could not write file. %2</source>
        <translation>%1 Die Datei konnte nicht geschrieben werden. %2</translation>
    </message>
    <message>
        <source>[Static Mesh Export] Not all textures could be copied.</source>
        <translation>[Export statisches Mesh] Nicht alle Texturen konnten kopiert werden.</translation>
    </message>
    <message>
        <source>%1 (and %2 more like this)</source>
        <translation>%1 (und %2 weitere dieser Art)</translation>
    </message>
    <message>
        <source>%1 %2 vertices have a position, normal or UV that is no number</source>
        <translation>%1 %2 Vertices haben eine Position, Normale oder UV-Koordinate, die keine Zahl ist</translation>
    </message>
    <message>
        <source>%1 does not contain any triangles</source>
        <translation>%1 enthält keine Dreiecke</translation>
    </message>
    <message>
        <source>%1 has no animation %2</source>
        <translation>%1 hat keine Animation %2</translation>
    </message>
    <message>
        <source>%1 %2 points and lines were left out</source>
        <translation>%1 %2 Punkte und Linien wurden ausgelassen</translation>
    </message>
    <message>
        <source>%1 has %2 bones, of which %3 are left when those go that nothing hangs on or that clips hardly move. A model can be posed with %4.</source>
        <translation>%1 hat %2 Knochen, von denen %3 bleiben, wenn die wegfallen, an denen nichts hängt oder die sich kaum bewegen. Ein Modell kann mit %4 bewegt werden.</translation>
    </message>
    <message>
        <source>%1 has %2 bones, of which a model can be posed with %4: those that nothing hangs on or that clips hardly move went with their parents, %3 are left</source>
        <translation>%1 hat %2 Knochen, von denen ein Modell mit %4 bewegt werden kann: die, an denen nichts hängt oder die sich kaum bewegen, sind in ihren Elternknochen aufgegangen, %3 bleiben</translation>
    </message>
    <message>
        <source>%1 Material &apos;%2&apos;: its texture &apos;%3&apos; was not found</source>
        <translation>%1 Material „%2“: Seine Textur „%3“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>%1 Material &apos;%2&apos;: its texture &apos;%3&apos; is no picture that can be read</source>
        <translation>%1 Material „%2“: Seine Textur „%3“ ist kein lesbares Bild</translation>
    </message>
    <message>
        <source>Bone symbol &apos;%1&apos;, guessed from names, to be reviewed: %2</source>
        <translation>Knochensymbol „%1“, nach Namen geraten, bitte prüfen: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is named &apos;%2&apos; in the new place</source>
        <translation>„%1“ heißt am neuen Ort „%2“</translation>
    </message>
    <message>
        <source>%1 Bones that change their size in animations, which in the game they keep: %2</source>
        <translation>%1 Knochen, die in Animationen ihre Größe ändern, was sie im Spiel nicht tun: %2</translation>
    </message>
    <message>
        <source>[glTF Export] %1 is too fast for times of its frames; it is written with 30 a second</source>
        <translation>[glTF-Export] %1 ist zu schnell für Zeiten der einzelnen Frames und wird mit 30 je Sekunde geschrieben</translation>
    </message>
    <message>
        <source>[glTF Export] The file would be larger than %1 MiB. Export fewer animations at a time.</source>
        <translation>[glTF-Export] Die Datei würde größer als %1 MiB. Exportieren Sie weniger Animationen auf einmal.</translation>
    </message>
    <message>
        <source>[glTF Export] %1 vertices belong to bones that are not there, and move with bone 0</source>
        <translation>[glTF-Export] %1 Vertices gehören zu Knochen, die es nicht gibt, und bewegen sich mit Knochen 0</translation>
    </message>
    <message>
        <source>[glTF Export] The animation has another number of bones than the mesh, and is left out</source>
        <translation>[glTF-Export] Die Animation hat eine andere Knochenzahl als das Mesh und wird ausgelassen</translation>
    </message>
    <message>
        <source>[glTF Export] The mesh has no triangles</source>
        <translation>[glTF-Export] Das Mesh hat keine Dreiecke</translation>
    </message>
    <message>
        <source>[glTF Export] Surface %1: %2 triangles name vertices that are not there and are left out</source>
        <translation>[glTF-Export] Fläche %1: %2 Dreiecke nennen Vertices, die es nicht gibt, und werden ausgelassen</translation>
    </message>
    <message>
        <source>[glTF Export] %1 numbers of vertices are none, and are written as 0</source>
        <translation>[glTF-Export] %1 Zahlen von Vertices sind keine und werden als 0 geschrieben</translation>
    </message>
    <message>
        <source>Texture &apos;%1&apos; not found, or it cannot be read</source>
        <translation>Textur „%1“ nicht gefunden oder nicht lesbar</translation>
    </message>
    <message>
        <source>%1 The texture &apos;%2&apos; could not be written</source>
        <translation>%1 Die Textur „%2“ konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1 Extra bones: %2, which take %3 kB of the animation file. No vertex is farther than %4 % of the model&apos;s size from its place in the source, instead of %5 %.</source>
        <translation>%1 Zusatzknochen: %2, die %3 kB der Animationsdatei belegen. Kein Vertex ist weiter als %4 % der Modellgröße von seinem Platz in der Quelle entfernt, statt %5 %.</translation>
    </message>
    <message>
        <source>%1 No extra bones are needed: no vertex is farther than %2 % of the model&apos;s size from its place in the source.</source>
        <translation>%1 Zusatzknochen sind nicht nötig: Kein Vertex ist weiter als %2 % der Modellgröße von seinem Platz in der Quelle entfernt.</translation>
    </message>
    <message>
        <source>%1 No extra bones were made: no animation was taken, or the model has no bones or no size.</source>
        <translation>%1 Zusatzknochen wurden nicht angelegt: Es wurde keine Animation übernommen, oder das Modell hat keine Knochen oder keine Größe.</translation>
    </message>
    <message>
        <source>%1 There is no room for more extra bones, for a model can be posed with %2. Vertices are up to %3 % of the model&apos;s size from their places in the source.</source>
        <translation>%1 Für weitere Zusatzknochen ist kein Platz, denn ein Modell kann mit %2 Knochen bewegt werden. Vertices sind bis zu %3 % der Modellgröße von ihren Plätzen in der Quelle entfernt.</translation>
    </message>
    <message>
        <source>%1 Extra bones did not help, so none were made. Vertices are up to %2 % of the model&apos;s size from their places in the source.</source>
        <translation>%1 Zusatzknochen halfen nicht, daher wurden keine angelegt. Vertices sind bis zu %2 % der Modellgröße von ihren Plätzen in der Quelle entfernt.</translation>
    </message>
    <message>
        <source>%1 Material &apos;%2&apos;: its texture &apos;%3&apos; is larger than %4 million pixels, and is left out</source>
        <translation>%1 Material „%2“: Seine Textur „%3“ ist größer als %4 Millionen Pixel und bleibt weg</translation>
    </message>
    <message>
        <source>[glTF Export] %1</source>
        <translation>[glTF-Export] %1</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>&amp;Modell</translation>
    </message>
    <message>
        <source>The model file to import</source>
        <translation>Die Modelldatei, die importiert wird</translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation>Keine Datei gewählt</translation>
    </message>
    <message>
        <source>Choose the model file</source>
        <translation>Die Modelldatei wählen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;Generate Normals</source>
        <translation>&amp;Normalen erzeugen</translation>
    </message>
    <message>
        <source>Generates Normals if there are none in the model</source>
        <translation>Erzeugt Normalen, wenn das Modell keine hat</translation>
    </message>
    <message>
        <source>Rotate &amp;Pitch 90</source>
        <translation>&amp;Pitch um 90 drehen</translation>
    </message>
    <message>
        <source>Turn the model about the x axis: by 90 degrees as a skinned mesh, by -90 as a static mesh</source>
        <translation>Das Modell um die x-Achse drehen: um 90 Grad als Skin-Mesh, um -90 als statisches Mesh</translation>
    </message>
    <message>
        <source>Flip &amp;UV Y-Axis</source>
        <translation>&amp;UV-Y-Achse spiegeln</translation>
    </message>
    <message>
        <source>Flip all UV coordinates along the y-axis</source>
        <translation>Alle UV-Koordinaten an der y-Achse spiegeln</translation>
    </message>
    <message>
        <source>&amp;left-handed coordinate space</source>
        <translation>&amp;Linkshändiger Koordinatenraum</translation>
    </message>
    <message>
        <source>By default the data is returned in a right-handed coordinate space (which
OpenGL prefers). In this space, +X points to the right,
+Z points towards the viewer, and +Y points upwards. In the DirectX
coordinate space +X points to the right, +Y points upwards, and +Z points
away from the viewer</source>
        <translation>Normalerweise werden die Daten in einem rechtshändigen Koordinatenraum geliefert
(den OpenGL bevorzugt). Darin zeigt +X nach rechts, +Z zum Betrachter
und +Y nach oben. Im Koordinatenraum von DirectX zeigt +X nach rechts,
+Y nach oben und +Z vom Betrachter weg</translation>
    </message>
    <message>
        <source>Flip &amp;Winding Order</source>
        <translation>Umlauf&amp;sinn umkehren</translation>
    </message>
    <message>
        <source>Adjusts the output face winding order to be CW (Clock Wise)</source>
        <translation>Stellt den Umlaufsinn der Polygone auf CW (im Uhrzeigersinn) um</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>Skali&amp;erung</translation>
    </message>
    <message>
        <source>The factor by which the model is enlarged</source>
        <translation>Der Faktor, um den das Modell vergrößert wird</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Give this import up</source>
        <translation>Diesen Import aufgeben</translation>
    </message>
    <message>
        <source>Warnings and &amp;Info</source>
        <translation>Warnungen und &amp;Infos</translation>
    </message>
    <message>
        <source>Warnings and Info</source>
        <translation>Warnungen und Infos</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>K&amp;opieren</translation>
    </message>
    <message>
        <source>Copy all lines to the clipboard</source>
        <translation>Alle Zeilen in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertig</translation>
    </message>
    <message>
        <source>Close the dialog</source>
        <translation>Den Dialog schließen</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Back to the options</source>
        <translation>Zurück zu den Optionen</translation>
    </message>
    <message>
        <source>Import model to %1</source>
        <translation>Modell importieren als %1</translation>
    </message>
    <message>
        <source>&amp;Import to %1!</source>
        <translation>&amp;Importieren als %1!</translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation>Skinned Mesh</translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation>Statisches Mesh</translation>
    </message>
    <message>
        <source>Import Model to %1</source>
        <translation>Modell importieren als %1</translation>
    </message>
    <message>
        <source>Output Folder Error</source>
        <translation>Fehler im Ausgabeordner</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>„%1“ wird gelesen</translation>
    </message>
    <message>
        <source>%1 s of at most %2 s</source>
        <translation>%1 s von höchstens %2 s</translation>
    </message>
    <message>
        <source>Successfully imported &apos;%1&apos; to %2
</source>
        <translation>„%1“ wurde importiert als %2
</translation>
    </message>
    <message>
        <source>Error importing &apos;%1&apos;</source>
        <translation>Fehler beim Importieren von „%1“</translation>
    </message>
    <message>
        <source>Turok 2 Folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>Den Turok-2-Ordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Turok 2 Folder + kmat Path &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>Turok-2-Ordner + kmat-Pfad „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>Turok 2 Folder + Texture Folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>Turok-2-Ordner + Texturordner „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>&amp;Import!</source>
        <translation>&amp;Importieren!</translation>
    </message>
    <message>
        <source>A model cannot name &apos;%1&apos;: it holds characters outside of Latin-1.</source>
        <translation>Ein Modell kann „%1“ nicht nennen: Es enthält Zeichen außerhalb von Latin-1.</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>What the file &amp;holds</source>
        <translation>Was die Datei ent&amp;hält</translation>
    </message>
    <message>
        <source>Import a&amp;gain, ready for the game</source>
        <translation>Noch einmal &amp;spielfertig importieren</translation>
    </message>
    <message>
        <source>Take the same file once more, upright and in one piece, with the bones and animations that it has in its program. It replaces what was just imported.</source>
        <translation>Dieselbe Datei noch einmal nehmen, aufrecht und in einem Stück, mit den Knochen und Animationen, die sie in ihrem Programm hat. Sie ersetzt, was eben importiert wurde.</translation>
    </message>
</context>
<context>
    <name>ImportExport</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>No dice!</source>
        <translation>Das geht nicht!</translation>
    </message>
</context>
<context>
    <name>ImportFilter</name>
    <message>
        <source>All models (%1)</source>
        <translation>Alle Modelle (%1)</translation>
    </message>
</context>
<context>
    <name>ImportRun</name>
    <message>
        <source>%1 Could not read file. The result was damaged.</source>
        <translation>%1 Die Datei konnte nicht gelesen werden. Das Ergebnis war beschädigt.</translation>
    </message>
    <message>
        <source>Edit ▸ Options… sets this time limit.</source>
        <translation>Bearbeiten ▸ Optionen… legt diese Zeitgrenze fest.</translation>
    </message>
</context>
<context>
    <name>ImportWorker</name>
    <message>
        <source>It took longer than %1 s.</source>
        <translation>Es hat länger als %1 s gedauert.</translation>
    </message>
    <message>
        <source>No temporary folder could be made.</source>
        <translation>Es konnte kein temporärer Ordner angelegt werden.</translation>
    </message>
    <message>
        <source>No temporary file could be written.</source>
        <translation>Es konnte keine temporäre Datei geschrieben werden.</translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation>Es wurde abgebrochen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be started: %2</source>
        <translation>„%1“ konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The process that reads foreign files crashed on it.</source>
        <translation>Der Prozess, der fremde Dateien liest, ist daran abgestürzt.</translation>
    </message>
    <message>
        <source>The process that reads foreign files gave no answer.</source>
        <translation>Der Prozess, der fremde Dateien liest, hat keine Antwort gegeben.</translation>
    </message>
    <message>
        <source>It wrote more than any model needs.</source>
        <translation>Er hat mehr geschrieben, als ein Modell braucht.</translation>
    </message>
    <message>
        <source>It is a folder, a pipe or a device, not a file.</source>
        <translation>Es ist ein Ordner, eine Pipe oder ein Gerät und keine Datei.</translation>
    </message>
    <message>
        <source>Foreign files are read with less protection on this system, without %1.</source>
        <translation>Fremde Dateien werden auf diesem System mit weniger Schutz gelesen, ohne %1.</translation>
    </message>
</context>
<context>
    <name>IndexTargets</name>
    <message>
        <source>there are none</source>
        <translation>es gibt keine</translation>
    </message>
    <message>
        <source>there are 0 to %1</source>
        <translation>es gibt 0 bis %1</translation>
    </message>
    <message>
        <source>no such vertex</source>
        <translation>kein solcher Vertex</translation>
    </message>
    <message>
        <source>The mesh has no vertex %1 (%2).</source>
        <translation>Das Mesh hat keinen Vertex %1 (%2).</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>bei %1</translation>
    </message>
    <message>
        <source>Position of vertex %1: %2</source>
        <translation>Position von Vertex %1: %2</translation>
    </message>
    <message>
        <source>%1 of %2 tracks</source>
        <translation>%1 von %2 Spuren</translation>
    </message>
    <message>
        <source>no such track</source>
        <translation>keine solche Spur</translation>
    </message>
    <message>
        <source>The table has no track %1 (%2): %3.</source>
        <translation>Die Tabelle hat keine Spur %1 (%2): %3.</translation>
    </message>
    <message>
        <source>no such bone</source>
        <translation>kein solcher Knochen</translation>
    </message>
    <message>
        <source>The mesh has no bone %1 (%2).</source>
        <translation>Das Mesh hat keinen Knochen %1 (%2).</translation>
    </message>
    <message>
        <source>no parent</source>
        <translation>kein Elternknochen</translation>
    </message>
    <message>
        <source>The animation has no bone %1 (%2).</source>
        <translation>Die Animation hat keinen Knochen %1 (%2).</translation>
    </message>
    <message>
        <source>%1 of %2 bones</source>
        <translation>%1 von %2 Knochen</translation>
    </message>
    <message>
        <source>Open the mesh that the animation belongs to and the bone&apos;s name appears here.</source>
        <translation>Öffnen Sie das Mesh, zu dem die Animation gehört, dann erscheint hier der Name des Knochens.</translation>
    </message>
    <message>
        <source>no bone</source>
        <translation>kein Knochen</translation>
    </message>
    <message>
        <source>never happens</source>
        <translation>geschieht nie</translation>
    </message>
    <message>
        <source>The animation has no frame %1 (%2).</source>
        <translation>Die Animation hat keinen Frame %1 (%2).</translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation>%1 von %2 Frames</translation>
    </message>
    <message>
        <source>loops from frame 0</source>
        <translation>Schleife ab Frame 0</translation>
    </message>
    <message>
        <source>keeps initial position</source>
        <translation>behält die Anfangsposition</translation>
    </message>
    <message>
        <source>keeps initial rotation</source>
        <translation>behält die Anfangsdrehung</translation>
    </message>
    <message>
        <source>Triangle %1, corner %2 of 3</source>
        <translation>Dreieck %1, Ecke %2 von 3</translation>
    </message>
    <message>
        <source>not in the table</source>
        <translation>nicht in der Tabelle</translation>
    </message>
    <message>
        <source>%1 damage</source>
        <translation>%1 Schaden</translation>
    </message>
    <message>
        <source>values differ</source>
        <translation>Werte verschieden</translation>
    </message>
    <message>
        <source>%1; not so in all selected records</source>
        <translation>%1; nicht in allen ausgewählten Datensätzen</translation>
    </message>
</context>
<context>
    <name>IntSpinBox</name>
    <message>
        <source>&apos;%1&apos; is no whole number from %2 to %3.</source>
        <translation>„%1“ ist keine ganze Zahl von %2 bis %3.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be stored. %2</source>
        <translation>„%1“ kann nicht gespeichert werden. %2</translation>
    </message>
</context>
<context>
    <name>KMatText</name>
    <message>
        <source>Two materials have the name &apos;%1&apos;: the file cannot be read.</source>
        <translation>Zwei Materialien haben den Namen „%1“: Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>A sampler stands before the first material: the file cannot be read.</source>
        <translation>Ein Sampler steht vor dem ersten Material: Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The path of a texture has no blanks and no quotes: &apos;%1&apos;.</source>
        <translation>Der Pfad einer Textur hat weder Leerzeichen noch Anführungszeichen: „%1“.</translation>
    </message>
    <message>
        <source>The encoding of the file does not have all letters of &apos;%1&apos;.</source>
        <translation>Die Kodierung der Datei hat nicht alle Buchstaben von „%1“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be written there without changing other things.</source>
        <translation>„%1“ kann dort nicht stehen, ohne dass sich anderes ändert.</translation>
    </message>
    <message>
        <source>The name of a material has no blanks and no quotes: &apos;%1&apos;.</source>
        <translation>Der Name eines Materials hat weder Leerzeichen noch Anführungszeichen: „%1“.</translation>
    </message>
    <message>
        <source>The file has a material &apos;%1&apos; already.</source>
        <translation>Die Datei hat schon ein Material „%1“.</translation>
    </message>
</context>
<context>
    <name>KVOpenGLWidget</name>
    <message>
        <source>Models cannot be drawn: the graphics driver does not take the program&apos;s shaders.
It must offer OpenGL 3.0 or later.</source>
        <translation>Modelle können nicht gezeichnet werden: Der Grafiktreiber nimmt die Shader des Programms nicht an.
Er muss OpenGL 3.0 oder neuer bieten.</translation>
    </message>
    <message>
        <source>Left out of the picture: vertices that stand far away from all others (%1)</source>
        <translation>Nicht im Bild: Vertices, die weit von allen anderen entfernt sind (%1)</translation>
    </message>
    <message>
        <source>The model reaches farther than the view can show: %1 units</source>
        <translation>Das Modell reicht weiter, als die Ansicht zeigen kann: %1 Einheiten</translation>
    </message>
</context>
<context>
    <name>KVTreeView</name>
    <message>
        <source>No file is open. Choose one in the folder, or press %1.</source>
        <translation>Es ist keine Datei geöffnet. Wählen Sie eine im Ordner, oder drücken Sie %1.</translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation>Nichts entspricht dem Filter.</translation>
    </message>
    <message>
        <source>No file is open. Choose one in the folder.</source>
        <translation>Es ist keine Datei geöffnet. Wählen Sie eine im Ordner.</translation>
    </message>
    <message>
        <source>The filter does not match %1, which is shown all the same: it was changed.</source>
        <translation>Der Filter passt nicht auf %1; der Eintrag wird trotzdem gezeigt, weil er geändert wurde.</translation>
    </message>
    <message>
        <source>frame 10-20 or sound = 12</source>
        <translation>Frame 10-20 oder Sound = 12</translation>
    </message>
    <message>
        <source>left arm or damage scale &gt; 1</source>
        <translation>links arm oder Schadensfaktor &gt; 1</translation>
    </message>
</context>
<context>
    <name>KindsBar</name>
    <message>
        <source>Show skinned meshes</source>
        <translation>Skin-Meshes zeigen</translation>
    </message>
    <message>
        <source>Show animations</source>
        <translation>Animationen zeigen</translation>
    </message>
    <message>
        <source>Show static meshes</source>
        <translation>Statische Meshes zeigen</translation>
    </message>
    <message>
        <source>Show material files</source>
        <translation>Materialdateien zeigen</translation>
    </message>
    <message>
        <source>Show textures</source>
        <translation>Texturen zeigen</translation>
    </message>
    <message>
        <source>%1; without any of these buttons, all kinds are shown</source>
        <translation>%1; ist keiner dieser Knöpfe gedrückt, sind alle Arten zu sehen</translation>
    </message>
    <message>
        <source>Which files</source>
        <translation>Welche Dateien</translation>
    </message>
    <message>
        <source>All Files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>In the Mod</source>
        <translation>Im Mod</translation>
    </message>
    <message>
        <source>In the Game</source>
        <translation>Im Spiel</translation>
    </message>
    <message>
        <source>Replace the Game&apos;s</source>
        <translation>Ersetzen die des Spiels</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unbenutzt</translation>
    </message>
    <message>
        <source>Files of the mod that have the name of one of the game</source>
        <translation>Dateien des Mods, die wie eine des Spiels heißen</translation>
    </message>
    <message>
        <source>Textures that no material names, and materials that no model names</source>
        <translation>Texturen, die kein Material nennt, und Materialien, die kein Modell nennt</translation>
    </message>
</context>
<context>
    <name>LoadingSign</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>How much of the file is read</source>
        <translation>Wie viel von der Datei gelesen ist</translation>
    </message>
    <message>
        <source>Go on with what is open</source>
        <translation>Mit dem weiterarbeiten, was geöffnet ist</translation>
    </message>
    <message>
        <source>Opening &apos;%1&apos;…</source>
        <translation>„%1“ wird geöffnet …</translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Desktop</source>
        <translation>Desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Use the colors of the desktop</source>
        <translation>Die Farben des Desktops verwenden</translation>
    </message>
    <message>
        <source>Show dark text on light windows</source>
        <translation>Dunkle Schrift auf hellen Fenstern zeigen</translation>
    </message>
    <message>
        <source>Show light text on dark windows</source>
        <translation>Helle Schrift auf dunklen Fenstern zeigen</translation>
    </message>
    <message>
        <source>&amp;Desktop</source>
        <translation>&amp;Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation>Ausse&amp;hen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Korvane</source>
        <translation>Korvane</translation>
    </message>
    <message>
        <source>Skinned Meshes &amp;&amp; Animations</source>
        <translation>Skin-Meshes &amp;&amp; Animationen</translation>
    </message>
    <message>
        <source>Characters and their animations</source>
        <translation>Figuren und ihre Animationen</translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation>Skinned Mesh</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>Static Meshes</source>
        <translation>Statische Meshes</translation>
    </message>
    <message>
        <source>Models without bones</source>
        <translation>Modelle ohne Knochen</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>What the game&apos;s numbers stand for</source>
        <translation>Wofür die Zahlen des Spiels stehen</translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>How to work with Korvane</source>
        <translation>Wie man mit Korvane arbeitet</translation>
    </message>
    <message>
        <source>Community</source>
        <translation>Community</translation>
    </message>
    <message>
        <source>Links to places on the web</source>
        <translation>Links zu Orten im Web</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open a file of the current kind</source>
        <translation>Eine Datei der aktuellen Art öffnen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the current document</source>
        <translation>Das aktuelle Dokument speichern</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Save the current document under another name</source>
        <translation>Das aktuelle Dokument unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Save S&amp;kinned Mesh As…</source>
        <translation>S&amp;kin-Mesh speichern unter…</translation>
    </message>
    <message>
        <source>Save the skinned mesh under another name</source>
        <translation>Das Skin-Mesh unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Save A&amp;nimation As…</source>
        <translation>A&amp;nimation speichern unter…</translation>
    </message>
    <message>
        <source>Save the animation under another name</source>
        <translation>Die Animation unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation>A&amp;lle speichern</translation>
    </message>
    <message>
        <source>Save every modified document</source>
        <translation>Jedes geänderte Dokument speichern</translation>
    </message>
    <message>
        <source>List the unsaved work that was kept</source>
        <translation>Die gesicherte, nicht gespeicherte Arbeit auflisten</translation>
    </message>
    <message>
        <source>Import a model of another program to the current tab</source>
        <translation>Ein Modell eines anderen Programms in den aktuellen Reiter importieren</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Export the static mesh as a Wavefront OBJ file</source>
        <translation>Das statische Mesh als Wavefront-OBJ-Datei exportieren</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Close Korvane</source>
        <translation>Korvane schließen</translation>
    </message>
    <message>
        <source>&amp;Ground</source>
        <translation>&amp;Boden</translation>
    </message>
    <message>
        <source>Show the ground</source>
        <translation>Den Boden zeigen</translation>
    </message>
    <message>
        <source>Axis Gi&amp;zmo</source>
        <translation>&amp;Achsenkreuz</translation>
    </message>
    <message>
        <source>&amp;Back-Face Culling</source>
        <translation>&amp;Rückseiten ausblenden</translation>
    </message>
    <message>
        <source>Hide the faces that look away from the camera</source>
        <translation>Die Polygone ausblenden, die von der Kamera abgewandt sind</translation>
    </message>
    <message>
        <source>&amp;Reset Camera</source>
        <translation>&amp;Kamera zurücksetzen</translation>
    </message>
    <message>
        <source>Put the camera back in front of the model (C in the view)</source>
        <translation>Die Kamera wieder vor das Modell stellen (C in der Ansicht)</translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation>&amp;Vollbild</translation>
    </message>
    <message>
        <source>Use the whole screen</source>
        <translation>Den ganzen Bildschirm verwenden</translation>
    </message>
    <message>
        <source>&amp;Refresh Folders</source>
        <translation>&amp;Ordner neu einlesen</translation>
    </message>
    <message>
        <source>&amp;Clear Console</source>
        <translation>&amp;Konsole leeren</translation>
    </message>
    <message>
        <source>Remove all lines from the console</source>
        <translation>Alle Zeilen aus der Konsole entfernen</translation>
    </message>
    <message>
        <source>R&amp;otate…</source>
        <translation>&amp;Drehen…</translation>
    </message>
    <message>
        <source>Turn the whole model</source>
        <translation>Das ganze Modell drehen</translation>
    </message>
    <message>
        <source>&amp;Scale…</source>
        <translation>&amp;Skalieren…</translation>
    </message>
    <message>
        <source>Make the whole model larger or smaller</source>
        <translation>Das ganze Modell vergrößern oder verkleinern</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>&amp;Optionen…</translation>
    </message>
    <message>
        <source>Folders, trees and playback</source>
        <translation>Ordner, Bäume und Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Filter Tree</source>
        <translation>Baum &amp;filtern</translation>
    </message>
    <message>
        <source>Go to the line above the tree that says which records are shown</source>
        <translation>Zur Zeile über dem Baum gehen, die bestimmt, welche Datensätze gezeigt werden</translation>
    </message>
    <message>
        <source>Reset &amp;Layout</source>
        <translation>&amp;Layout zurücksetzen</translation>
    </message>
    <message>
        <source>Put docks, tool bars and panes back where they were at first</source>
        <translation>Docks, Werkzeugleisten und Bereiche dorthin zurücksetzen, wo sie zuerst waren</translation>
    </message>
    <message>
        <source>Comma&amp;nds…</source>
        <translation>&amp;Befehle…</translation>
    </message>
    <message>
        <source>Find anything that the menus can do by its name</source>
        <translation>Alles, was die Menüs können, nach dem Namen finden</translation>
    </message>
    <message>
        <source>Sync View Folder to Skinned Mesh</source>
        <translation>Ansichtsordner mit dem Skin-Mesh abgleichen</translation>
    </message>
    <message>
        <source>Load the animation that belongs to a skinned mesh along with it</source>
        <translation>Mit einem Skin-Mesh die Animation laden, die zu ihm gehört</translation>
    </message>
    <message>
        <source>&amp;Keyboard and Mouse</source>
        <translation>&amp;Tastatur und Maus</translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation>Tasten und Mausgesten</translation>
    </message>
    <message>
        <source>&amp;Query Servers</source>
        <translation>&amp;Server abfragen</translation>
    </message>
    <message>
        <source>Ask the game&apos;s master server which servers are running</source>
        <translation>Den Master-Server des Spiels fragen, welche Server laufen</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>Look for a newer version of Korvane</source>
        <translation>Nach einer neueren Version von Korvane suchen</translation>
    </message>
    <message>
        <source>&amp;About Korvane</source>
        <translation>Über &amp;Korvane</translation>
    </message>
    <message>
        <source>View of the skinned mesh</source>
        <translation>Ansicht des Skin-Meshs</translation>
    </message>
    <message>
        <source>View of the static mesh</source>
        <translation>Ansicht des statischen Meshs</translation>
    </message>
    <message>
        <source>Reco&amp;ver…</source>
        <translation>&amp;Wiederherstellen…</translation>
    </message>
    <message>
        <source>File Tool Bar</source>
        <translation>Werkzeugleiste Datei</translation>
    </message>
    <message>
        <source>Edit Tool Bar</source>
        <translation>Werkzeugleiste Bearbeiten</translation>
    </message>
    <message>
        <source>Save to Mo&amp;d Folder</source>
        <translation>In den Mo&amp;d-Ordner speichern</translation>
    </message>
    <message>
        <source>Save a file of the game folder at the same place of the mod folder</source>
        <translation>Eine Datei des Spielordners an derselben Stelle des Mod-Ordners speichern</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Version and licenses</source>
        <translation>Version und Lizenzen</translation>
    </message>
    <message>
        <source>Read the folders of the explorers and the textures again</source>
        <translation>Die Ordner der Explorer und die Texturen neu einlesen</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>List in what the current document differs from another file of its kind</source>
        <translation>Listet, worin sich das aktuelle Dokument von einer anderen Datei seiner Art unterscheidet</translation>
    </message>
    <message>
        <source>Co&amp;mpare with File…</source>
        <translation>Mit &amp;Datei vergleichen…</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Find records by what is in their fields, and give these other values</source>
        <translation>Datensätze nach dem Inhalt ihrer Felder finden und diesen andere Werte geben</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>Show the next record that was found</source>
        <translation>Den nächsten gefundenen Datensatz zeigen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
    <message>
        <source>Show the record that was found before</source>
        <translation>Den vorigen gefundenen Datensatz zeigen</translation>
    </message>
    <message>
        <source>Find and Rep&amp;lace…</source>
        <translation>Suchen und &amp;Ersetzen…</translation>
    </message>
    <message>
        <source>Texture Coordinates</source>
        <translation>Texturkoordinaten</translation>
    </message>
    <message>
        <source>Show the directions of the axes; a click on one looks from there, a drag turns the view</source>
        <translation>Die Richtungen der Achsen zeigen; ein Klick auf ein Ende zeigt das Modell von dort, Ziehen dreht die Ansicht</translation>
    </message>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Pa&amp;ck Mod…</source>
        <translation>Mod pa&amp;cken…</translation>
    </message>
    <message>
        <source>Make the archive of the mod that others can install</source>
        <translation>Das Archiv der Mod schreiben, das andere einbauen können</translation>
    </message>
    <message>
        <source>Used By</source>
        <translation>Verwendet von</translation>
    </message>
    <message>
        <source>&amp;Where Is This Used?</source>
        <translation>&amp;Wo wird das verwendet?</translation>
    </message>
    <message>
        <source>List the files of game and mod that name what the current record names: its material, sound, id</source>
        <translation>Die Dateien von Spiel und Mod auflisten, die dasselbe nennen wie der aktuelle Datensatz: sein Material, seinen Sound, seine ID</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>List in what the current document differs from the game&apos;s file in its place, or from the mod&apos;s where it is the game&apos;s</source>
        <translation>Auflisten, worin sich das aktuelle Dokument von der Datei des Spiels an seiner Stelle unterscheidet, oder von der des Mods, wenn es die des Spiels ist</translation>
    </message>
    <message>
        <source>Compare Game and Mod</source>
        <translation>Spiel und Mod vergleichen</translation>
    </message>
    <message>
        <source>Mod Browser</source>
        <translation>Mod-Browser</translation>
    </message>
    <message>
        <source>Go &amp;to File…</source>
        <translation>Ge&amp;he zu Datei…</translation>
    </message>
    <message>
        <source>Find any file of game and mod by its name, and open it</source>
        <translation>Jede Datei von Spiel und Mod nach ihrem Namen finden und öffnen</translation>
    </message>
</context>
<context>
    <name>MaterialDocument</name>
    <message>
        <source>There is no such file.</source>
        <translation>Es gibt keine solche Datei.</translation>
    </message>
    <message>
        <source>The file has more than %1 MiB: it is no material file.</source>
        <translation>Die Datei hat mehr als %1 MiB: Sie ist keine Materialdatei.</translation>
    </message>
    <message>
        <source>The file could not be read whole.</source>
        <translation>Die Datei konnte nicht ganz gelesen werden.</translation>
    </message>
    <message>
        <source>Texture of %1</source>
        <translation>Textur von %1</translation>
    </message>
    <message>
        <source>New Material %1</source>
        <translation>Neues Material %1</translation>
    </message>
    <message>
        <source>Rename %1 to %2</source>
        <translation>%1 in %2 umbenennen</translation>
    </message>
</context>
<context>
    <name>MaterialField</name>
    <message>
        <source>Choose by Name</source>
        <translation>Nach Namen wählen</translation>
    </message>
    <message>
        <source>Open Material File</source>
        <translation>Materialdatei öffnen</translation>
    </message>
    <message>
        <source>Open the file that the material is in with the program that the desktop has for it</source>
        <translation>Die Datei, in der das Material steht, mit dem Programm öffnen, das der Desktop dafür hat</translation>
    </message>
    <message>
        <source>&amp;Open Material File</source>
        <translation>Materialdatei ö&amp;ffnen</translation>
    </message>
    <message>
        <source>looking for its file</source>
        <translation>Datei wird gesucht</translation>
    </message>
    <message>
        <source>%1 in the game folder</source>
        <translation>%1 im Spielordner</translation>
    </message>
    <message>
        <source>%1 in the mod folder</source>
        <translation>%1 im Mod-Ordner</translation>
    </message>
    <message>
        <source>drawn white, without a file</source>
        <translation>wird weiß gezeichnet, ohne Datei</translation>
    </message>
    <message>
        <source>no material</source>
        <translation>kein Material</translation>
    </message>
    <message>
        <source>the game and mod folders are not set</source>
        <translation>Spiel- und Mod-Ordner sind nicht gewählt</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Neither the game folder nor the mod folder has this file.</source>
        <translation>Weder der Spielordner noch der Mod-Ordner hat diese Datei.</translation>
    </message>
    <message>
        <source>not in %1</source>
        <translation>nicht in %1</translation>
    </message>
    <message>
        <source>%1 has no material of that name.</source>
        <translation>%1 hat kein Material dieses Namens.</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>There are no materials in the game folder and the mod folder. The options set both.</source>
        <translation>Im Spielordner und im Mod-Ordner gibt es keine Materialien. Beide werden in den Optionen gewählt.</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Failed to open %1</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Material Fields</source>
        <translation>Materialfelder</translation>
    </message>
    <message>
        <source>Open Material &amp;Folder</source>
        <translation>Materialo&amp;rdner öffnen</translation>
    </message>
    <message>
        <source>Edit Material</source>
        <translation>Material bearbeiten</translation>
    </message>
    <message>
        <source>Show the material and its file in the dock of materials</source>
        <translation>Das Material und seine Datei im Dock der Materialien zeigen</translation>
    </message>
    <message>
        <source>&amp;Edit Material</source>
        <translation>Material b&amp;earbeiten</translation>
    </message>
</context>
<context>
    <name>MaterialWork</name>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
</context>
<context>
    <name>MaterialsDock</name>
    <message>
        <source>The materials of a file, their textures, and its text</source>
        <translation>Die Materialien einer Datei, deren Texturen und der Text</translation>
    </message>
    <message>
        <source>Open Material File</source>
        <translation>Materialdatei öffnen</translation>
    </message>
    <message>
        <source>Open a file of materials</source>
        <translation>Eine Datei mit Materialien öffnen</translation>
    </message>
    <message>
        <source>New Material</source>
        <translation>Neues Material</translation>
    </message>
    <message>
        <source>Add a material to this file</source>
        <translation>Dieser Datei ein Material hinzufügen</translation>
    </message>
    <message>
        <source>&amp;New Material…</source>
        <translation>&amp;Neues Material…</translation>
    </message>
    <message>
        <source>New Material &amp;File…</source>
        <translation>Neue Material&amp;datei…</translation>
    </message>
    <message>
        <source>Save Material File</source>
        <translation>Materialdatei speichern</translation>
    </message>
    <message>
        <source>Save this file of materials</source>
        <translation>Diese Datei mit Materialien speichern</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Open the file anew</source>
        <translation>Die Datei neu öffnen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Go on with what is open; saving replaces the file</source>
        <translation>Mit dem weiterarbeiten, was geöffnet ist; Speichern ersetzt die Datei</translation>
    </message>
    <message>
        <source>Materials of the file</source>
        <translation>Materialien der Datei</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Sampler</source>
        <translation>Sampler</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Text der Datei</translation>
    </message>
    <message>
        <source>A surface&apos;s material, or a .kmat file, can be opened here.</source>
        <translation>Hier kann das Material einer Fläche oder eine .kmat-Datei geöffnet werden.</translation>
    </message>
    <message>
        <source>No material file is open.</source>
        <translation>Es ist keine Materialdatei geöffnet.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was removed by another program. Saving writes it anew.</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt. Speichern schreibt es neu.</translation>
    </message>
    <message>
        <source>the view takes the game&apos;s file of this name, not %1</source>
        <translation>die Ansicht nimmt die Datei des Spiels mit diesem Namen, nicht %1</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
    <message>
        <source>Rename Material</source>
        <translation>Material umbenennen</translation>
    </message>
    <message>
        <source>Give this material another name; all else of the file stays</source>
        <translation>Diesem Material einen anderen Namen geben; alles andere in der Datei bleibt</translation>
    </message>
</context>
<context>
    <name>MaterialsPane</name>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Would you like to save the materials?

%1</source>
        <translation>Möchten Sie die Materialien speichern?

%1</translation>
    </message>
    <message>
        <source>[Materials] &apos;%1&apos;: %2</source>
        <translation>[Materialien] „%1“: %2</translation>
    </message>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation>Öffnen fehlgeschlagen
%1</translation>
    </message>
    <message>
        <source>Open Material File</source>
        <translation>Materialdatei öffnen</translation>
    </message>
    <message>
        <source>Material files (*.kmat)</source>
        <translation>Materialdateien (*.kmat)</translation>
    </message>
    <message>
        <source>Load &apos;%1&apos; anew, without your unsaved changes?</source>
        <translation>„%1“ neu laden, ohne Ihre nicht gespeicherten Änderungen?</translation>
    </message>
    <message>
        <source>New Material</source>
        <translation>Neues Material</translation>
    </message>
    <message>
        <source>Name of the material in %1</source>
        <translation>Name des Materials in %1</translation>
    </message>
    <message>
        <source>New Material File</source>
        <translation>Neue Materialdatei</translation>
    </message>
    <message>
        <source>Save Material File</source>
        <translation>Materialdatei speichern</translation>
    </message>
    <message>
        <source>Saved &apos;%1&apos;</source>
        <translation>„%1“ gespeichert</translation>
    </message>
    <message>
        <source>[Save] &apos;%1&apos;: %2</source>
        <translation>[Speichern] „%1“: %2</translation>
    </message>
    <message>
        <source>Rename Material</source>
        <translation>Material umbenennen</translation>
    </message>
    <message>
        <source>New name of %1. Surfaces that use the old one have to be changed, too.</source>
        <translation>Neuer Name von %1. Flächen, die den alten verwenden, müssen auch geändert werden.</translation>
    </message>
</context>
<context>
    <name>Memory</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Es ist nicht genügend Arbeitsspeicher vorhanden.</translation>
    </message>
</context>
<context>
    <name>MeshBones</name>
    <message>
        <source>Bone 0 stays where it is: every pose begins with it.</source>
        <translation>Knochen 0 bleibt, wo er ist: Mit ihm beginnt jede Pose.</translation>
    </message>
    <message>
        <source>The mesh has more than 255 bones, more than the file can name as parents: which numbers would have to follow cannot be told.</source>
        <translation>Das Mesh hat mehr als 255 Knochen, mehr als die Datei als Eltern nennen kann: Welche Nummern folgen müssten, ist nicht zu erkennen.</translation>
    </message>
    <message>
        <source>Bone %1 hangs on bone %2. Select it, too, or give it to another bone.</source>
        <translation>Knochen %1 hängt an Knochen %2. Wählen Sie ihn auch aus, oder hängen Sie ihn an einen anderen.</translation>
    </message>
    <message>
        <source>Bone %1 names bone %2 as its parent. Select it, too, or enter another one.</source>
        <translation>Knochen %1 nennt Knochen %2 als Elternknochen. Wählen Sie ihn auch aus, oder geben Sie einen anderen ein.</translation>
    </message>
    <message>
        <source>Bone %1 moves vertices (%2). Give them to another bone first.</source>
        <translation>Knochen %1 bewegt Vertices (%2). Geben Sie sie zuerst einem anderen Knochen.</translation>
    </message>
    <message>
        <source>Hot point %1 is on bone %2. Put it on another bone first, or remove it.</source>
        <translation>Hotpoint %1 sitzt auf Knochen %2. Setzen Sie ihn zuerst auf einen anderen Knochen, oder entfernen Sie ihn.</translation>
    </message>
    <message>
        <source>The head turns with bone %1. Enter other bones for that on the mesh&apos;s page first.</source>
        <translation>Der Kopf dreht sich mit Knochen %1. Geben Sie dafür zuerst andere Knochen auf der Seite des Meshs ein.</translation>
    </message>
    <message>
        <source>The game poses %1 bones at most; the mesh would have %2.</source>
        <translation>Das Spiel bewegt höchstens %1 Knochen; das Mesh hätte %2.</translation>
    </message>
    <message>
        <source>Something in the mesh names bone %1, which does not exist, but would then. Correct that first; it is among the problems.</source>
        <translation>Etwas im Mesh nennt Knochen %1, den es nicht gibt, dann aber gäbe. Korrigieren Sie das zuerst; es steht unter den Problemen.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 happens at bone %3. Enter another bone there first.</source>
        <translation>Aktion %1 von Animation %2 geschieht an Knochen %3. Geben Sie dort zuerst einen anderen Knochen ein.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names bone %3, which does not exist, but would then. Correct that first; it is among the problems.</source>
        <translation>Aktion %1 von Animation %2 nennt Knochen %3, den es nicht gibt, dann aber gäbe. Korrigieren Sie das zuerst; es steht unter den Problemen.</translation>
    </message>
</context>
<context>
    <name>MessageList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>ModCheck</name>
    <message>
        <source>The name differs from &apos;%1&apos; by case alone. The game and Windows take both for one: only one of them is found. Rename or remove one.</source>
        <translation>Der Name unterscheidet sich von „%1“ nur in der Groß- und Kleinschreibung. Das Spiel und Windows halten beide für eins: Nur eines davon wird gefunden. Benennen Sie eines um oder entfernen Sie es.</translation>
    </message>
    <message>
        <source>The file is the game&apos;s own, byte for byte: it replaces nothing. Remove it from the mod.</source>
        <translation>Die Datei ist Byte für Byte die des Spiels: Sie ersetzt nichts. Entfernen Sie sie aus der Mod.</translation>
    </message>
    <message>
        <source>The file is no picture that can be read, of these kinds: %1. Save it as one of them.</source>
        <translation>Die Datei ist kein lesbares Bild einer dieser Arten: %1. Speichern Sie sie als eine davon.</translation>
    </message>
    <message>
        <source>The texture has %1 × %2 pixels, more than %3 a side, and takes %4 MiB of the graphics card with its smaller copies. Scale it down, or allow it by &apos;largestTexture&apos; in %5.</source>
        <translation>Die Textur hat %1 × %2 Pixel, mehr als %3 je Seite, und belegt mit ihren kleineren Kopien %4 MiB der Grafikkarte. Verkleinern Sie sie oder erlauben Sie sie durch „largestTexture“ in %5.</translation>
    </message>
    <message>
        <source>The mesh has %1 bones, but animation %2 of the file that belongs to it, &apos;%3&apos;, is for %4: it cannot be played right. Give the mod animations for this mesh, or the mesh the bones of these.</source>
        <translation>Das Mesh hat %1 Knochen, aber Animation %2 der zugehörigen Datei „%3“ ist für %4: Sie kann nicht richtig abgespielt werden. Geben Sie der Mod Animationen für dieses Mesh oder dem Mesh die Knochen von diesen.</translation>
    </message>
    <message>
        <source>No model of game or mod names the material &apos;%1&apos;. If nothing else does, remove it.</source>
        <translation>Kein Modell von Spiel oder Mod nennt das Material „%1“. Wenn auch sonst nichts es nennt, entfernen Sie es.</translation>
    </message>
    <message>
        <source>No model of the mod names the material &apos;%1&apos;. If nothing else does, remove it.</source>
        <translation>Kein Modell der Mod nennt das Material „%1“. Wenn auch sonst nichts es nennt, entfernen Sie es.</translation>
    </message>
    <message>
        <source>The texture has %1 × %2 pixels. A side that is no power of two (256, 512, 1024 …) may be scaled, which blurs it, or the texture may not be shown. Scale the picture to the next one.</source>
        <translation>Die Textur hat %1 × %2 Pixel. Eine Seite, die keine Zweierpotenz ist (256, 512, 1024 …), wird womöglich skaliert und damit unscharf, oder die Textur wird nicht gezeigt. Skalieren Sie das Bild auf die nächste.</translation>
    </message>
</context>
<context>
    <name>ModPacking</name>
    <message>
        <source>Pack Mod</source>
        <translation>Mod packen</translation>
    </message>
    <message>
        <source>There is no mod to pack: the options set no mod folder.</source>
        <translation>Es gibt keine Mod zu packen: In den Optionen ist kein Mod-Ordner eingestellt.</translation>
    </message>
    <message>
        <source>There is no mod to pack: &apos;%1&apos; is no folder.</source>
        <translation>Es gibt keine Mod zu packen: „%1“ ist kein Ordner.</translation>
    </message>
    <message>
        <source>Packing &apos;%1&apos;</source>
        <translation>„%1“ wird gepackt</translation>
    </message>
    <message>
        <source>Nothing was packed.</source>
        <translation>Es wurde nichts gepackt.</translation>
    </message>
    <message>
        <source>[Pack Mod] &apos;%1&apos;: %2</source>
        <translation>[Mod packen] „%1“: %2</translation>
    </message>
    <message>
        <source>%1: files packed: %2, together %3</source>
        <translation>%1: gepackte Dateien: %2, zusammen %3</translation>
    </message>
</context>
<context>
    <name>ModProblems</name>
    <message>
        <source>[Problems] &apos;%1&apos; was not searched: %2</source>
        <translation>[Probleme] „%1“ wurde nicht durchsucht: %2</translation>
    </message>
    <message>
        <source>And %1 more in the mod. They are listed when others are mended or silenced.</source>
        <translation>Und %1 weitere in der Mod. Sie werden aufgelistet, wenn andere behoben oder stummgeschaltet sind.</translation>
    </message>
    <message>
        <source>There is no mod folder to write %1 into. The options name it.</source>
        <translation>Es gibt keinen Mod-Ordner, in den %1 geschrieben werden könnte. Die Optionen nennen ihn.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not as it has to be. Mend it first.</source>
        <translation>„%1“ ist nicht so, wie es sein muss. Berichtigen Sie die Datei zuerst.</translation>
    </message>
    <message>
        <source>The file could not be read whole.</source>
        <translation>Die Datei konnte nicht ganz gelesen werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; can silence %2 rules for files at most. Silence a rule everywhere, or write a pattern of files into it.</source>
        <translation>„%1“ kann höchstens %2 Regeln für Dateien stummschalten. Schalten Sie eine Regel überall stumm, oder tragen Sie ein Muster von Dateien ein.</translation>
    </message>
</context>
<context>
    <name>ModelComparison</name>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>%1 numbers</source>
        <translation>%1 Zahlen</translation>
    </message>
    <message>
        <source>%1 of %2 frames differ</source>
        <translation>%1 von %2 Frames verschieden</translation>
    </message>
    <message>
        <source>%1 of %2 numbers differ</source>
        <translation>%1 von %2 Zahlen verschieden</translation>
    </message>
    <message>
        <source>order: %1</source>
        <translation>Reihenfolge: %1</translation>
    </message>
</context>
<context>
    <name>ModelContents</name>
    <message>
        <source>What the file holds</source>
        <translation>Was die Datei enthält</translation>
    </message>
    <message>
        <source>Choose a model, and what it holds is shown here.</source>
        <translation>Wählen Sie ein Modell; hier steht dann, was es enthält.</translation>
    </message>
    <message>
        <source>Looking into the file…</source>
        <translation>Die Datei wird angesehen…</translation>
    </message>
    <message>
        <source>This file cannot be imported.</source>
        <translation>Diese Datei kann nicht importiert werden.</translation>
    </message>
</context>
<context>
    <name>ModelExport</name>
    <message>
        <source>Export as &amp;glTF…</source>
        <translation>Als &amp;glTF exportieren…</translation>
    </message>
    <message>
        <source>Export the model as a glTF file, with its bones and all animations</source>
        <translation>Das Modell als glTF-Datei exportieren, mit seinen Knochen und allen Animationen</translation>
    </message>
    <message>
        <source>Export Ani&amp;mation as glTF…</source>
        <translation>Ani&amp;mation als glTF exportieren…</translation>
    </message>
    <message>
        <source>Export the model as a glTF file, with the selected animation alone</source>
        <translation>Das Modell als glTF-Datei exportieren, nur mit der ausgewählten Animation</translation>
    </message>
    <message>
        <source>Export &amp;Pose as OBJ…</source>
        <translation>&amp;Pose als OBJ exportieren…</translation>
    </message>
    <message>
        <source>Export the model as an OBJ file, in the pose that the view shows</source>
        <translation>Das Modell als OBJ-Datei exportieren, in der Pose, die die Ansicht zeigt</translation>
    </message>
    <message>
        <source>Export as glTF</source>
        <translation>Als glTF exportieren</translation>
    </message>
    <message>
        <source>Export Animation as glTF</source>
        <translation>Animation als glTF exportieren</translation>
    </message>
    <message>
        <source>glTF, one file (*.glb)</source>
        <translation>glTF, eine Datei (*.glb)</translation>
    </message>
    <message>
        <source>glTF, textures beside it (*.gltf)</source>
        <translation>glTF, Texturen daneben (*.gltf)</translation>
    </message>
    <message>
        <source>Exporting &apos;%1&apos;</source>
        <translation>„%1“ wird exportiert</translation>
    </message>
    <message>
        <source>[glTF Export] Exported &apos;%1&apos;</source>
        <translation>[glTF-Export] „%1“ exportiert</translation>
    </message>
    <message>
        <source>Export Pose as OBJ</source>
        <translation>Pose als OBJ exportieren</translation>
    </message>
    <message>
        <source>Wavefront OBJ (*.obj)</source>
        <translation>Wavefront OBJ (*.obj)</translation>
    </message>
    <message>
        <source>Export To Folder</source>
        <translation>In Ordner exportieren</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>[Static Mesh Export] Exported &apos;%1&apos;</source>
        <translation>[Export statisches Mesh] „%1“ exportiert</translation>
    </message>
    <message>
        <source>Exported &apos;%1&apos;</source>
        <translation>„%1“ exportiert</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>[glTF Export] %1</source>
        <translation>[glTF-Export] %1</translation>
    </message>
</context>
<context>
    <name>ModelFiles</name>
    <message>
        <source>Attempting to read %1 tracks without frames.</source>
        <translation>Es sollten %1 Spuren ohne Frames gelesen werden.</translation>
    </message>
    <message>
        <source>nodeLength is different value than initialNodeLength. They should be the same.</source>
        <translation>nodeLength hat einen anderen Wert als initialNodeLength. Sie sollten gleich sein.</translation>
    </message>
    <message>
        <source>An animation file without an animation is not saved.</source>
        <translation>Eine Animationsdatei ohne Animation wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>The file is 2 GiB or larger.</source>
        <translation>Die Datei ist 2 GiB groß oder größer.</translation>
    </message>
    <message>
        <source>Attempting to read %1 value from file, but reached end of file.</source>
        <translation>Ein Wert vom Typ %1 sollte gelesen werden, aber die Datei war zu Ende.</translation>
    </message>
    <message>
        <source>.kMat file has a material with the same name - %1. The file may be invalid - %2</source>
        <translation>Die .kMat-Datei hat ein Material mit demselben Namen - %1. Die Datei ist vielleicht ungültig - %2</translation>
    </message>
    <message>
        <source>.kMat file read a texture path with no material set. The file may be invalid - %1</source>
        <translation>Die .kMat-Datei nennt einen Texturpfad, ohne dass ein Material begonnen hat. Die Datei ist vielleicht ungültig - %1</translation>
    </message>
    <message>
        <source>Unable to read .kMat file at %1</source>
        <translation>Die .kMat-Datei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unable to open file for writing - %1</source>
        <translation>Die Datei kann nicht zum Schreiben geöffnet werden - %1</translation>
    </message>
    <message>
        <source>A skinned mesh without a bone is not saved.</source>
        <translation>Ein Skin-Mesh ohne Knochen wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>Surface %1 has a triangle index of 65535, which would end it.</source>
        <translation>Fläche %1 hat einen Dreiecksindex von 65535, der sie beenden würde.</translation>
    </message>
    <message>
        <source>A static mesh without a surface is not saved.</source>
        <translation>Ein statisches Mesh ohne Fläche wird nicht gespeichert.</translation>
    </message>
    <message>
        <source>%1 tracks without frames are more than can be read back.</source>
        <translation>%1 Spuren ohne Frames sind mehr, als wieder gelesen werden können.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is in Latin-1, which does not have all letters of the new materials.</source>
        <translation>„%1“ ist in Latin-1, worin nicht alle Zeichen der neuen Materialien stehen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is larger than %2 MiB: it is no .kMat file</source>
        <translation>„%1“ ist größer als %2 MiB: Das ist keine .kMat-Datei</translation>
    </message>
</context>
<context>
    <name>ModelJson</name>
    <message>
        <source>The last triangle has no three corners.</source>
        <translation>Das letzte Dreieck hat keine drei Ecken.</translation>
    </message>
    <message>
        <source>The tracks have %1 keys, but there are %2 frames.</source>
        <translation>Die Spuren haben %1 Schlüssel, es gibt aber %2 Frames.</translation>
    </message>
    <message>
        <source>A mesh without a surface has no vertices.</source>
        <translation>Ein Modell ohne Fläche hat keine Vertices.</translation>
    </message>
    <message>
        <source>%1 is wanted here, not %2.</source>
        <translation>Hier muss %1 stehen, nicht %2.</translation>
    </message>
    <message>
        <source>The text should end here, but goes on with %1.</source>
        <translation>Der Text sollte hier enden, geht aber mit %1 weiter.</translation>
    </message>
    <message>
        <source>the end of the text</source>
        <translation>das Ende des Textes</translation>
    </message>
    <message>
        <source>A control character stands in a text.</source>
        <translation>In einem Text steht ein Steuerzeichen.</translation>
    </message>
    <message>
        <source>This text does not end.</source>
        <translation>Dieser Text endet nicht.</translation>
    </message>
    <message>
        <source>This text is no UTF-8.</source>
        <translation>Dieser Text ist kein UTF-8.</translation>
    </message>
    <message>
        <source>There is no such escape: %1.</source>
        <translation>Diese Umschreibung gibt es nicht: %1.</translation>
    </message>
    <message>
        <source>A key in quotes is wanted here, not %1.</source>
        <translation>Hier muss ein Name in Anführungszeichen stehen, nicht %1.</translation>
    </message>
    <message>
        <source>Nothing is nested as deeply as this.</source>
        <translation>So tief ist nichts verschachtelt.</translation>
    </message>
    <message>
        <source>%1 is no value.</source>
        <translation>%1 ist kein Wert.</translation>
    </message>
    <message>
        <source>%1 is too large for a float.</source>
        <translation>%1 ist für eine Gleitkommazahl zu groß.</translation>
    </message>
    <message>
        <source>A number is wanted here, not %1.</source>
        <translation>Hier muss eine Zahl stehen, nicht %1.</translation>
    </message>
    <message>
        <source>A float that is no number is &quot;0x&quot; with the eight hexadecimal digits of its bits, such as &quot;0x7fc00000&quot;.</source>
        <translation>Ein Wert, der keine Zahl ist, ist &quot;0x&quot; mit den acht hexadezimalen Ziffern seiner Bits, etwa &quot;0x7fc00000&quot;.</translation>
    </message>
    <message>
        <source>A whole number from %1 to %2 is wanted here, not %3.</source>
        <translation>Hier muss eine ganze Zahl von %1 bis %2 stehen, nicht %3.</translation>
    </message>
    <message>
        <source>A text in quotes is wanted here, not %1.</source>
        <translation>Hier muss ein Text in Anführungszeichen stehen, nicht %1.</translation>
    </message>
    <message>
        <source>The files hold texts of Latin-1 characters only.</source>
        <translation>Die Dateien fassen nur Texte aus Latin-1-Zeichen.</translation>
    </message>
    <message>
        <source>%1 entries are wanted here, not %2.</source>
        <translation>Hier müssen %1 Einträge stehen, nicht %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; stands here twice.</source>
        <translation>&quot;%1&quot; steht hier zweimal.</translation>
    </message>
    <message>
        <source>There is no &quot;%1&quot; in a record of this kind (%2).</source>
        <translation>In einem Datensatz dieser Art (%2) gibt es kein &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing in this record (%2).</source>
        <translation>In diesem Datensatz (%2) fehlt &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The kind is one of %1.</source>
        <translation>Die Art ist eine von %1.</translation>
    </message>
    <message>
        <source>&quot;kind&quot; is missing, which says of what this is a text.</source>
        <translation>&quot;kind&quot; fehlt, das sagt, wovon dies ein Text ist.</translation>
    </message>
    <message>
        <source>This is a text of schema %1; only %2 can be read.</source>
        <translation>Dies ist ein Text nach Schema %1; nur %2 kann gelesen werden.</translation>
    </message>
    <message>
        <source>Bytes are two hexadecimal digits each.</source>
        <translation>Jedes Byte hat zwei hexadezimale Ziffern.</translation>
    </message>
    <message>
        <source>&quot;schema&quot; is missing, which says how to read this.</source>
        <translation>&quot;schema&quot; fehlt, das sagt, wie dies zu lesen ist.</translation>
    </message>
    <message>
        <source>The key of a name is a number.</source>
        <translation>Der Schlüssel eines Namens ist eine Zahl.</translation>
    </message>
    <message>
        <source>A name is a line of 1 to %1 characters.</source>
        <translation>Ein Name ist eine Zeile von 1 bis %1 Zeichen.</translation>
    </message>
    <message>
        <source>There is no bone %1, which has a name here.</source>
        <translation>Es gibt keinen Knochen %1, der hier einen Namen hat.</translation>
    </message>
</context>
<context>
    <name>ModelNames</name>
    <message>
        <source>The names in &apos;%1&apos; could not be read.</source>
        <translation>Die Namen in „%1“ konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The names in &apos;%1&apos; are damaged.</source>
        <translation>Die Namen in „%1“ sind beschädigt.</translation>
    </message>
</context>
<context>
    <name>ModelUpdateDialog</name>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>What it would &amp;change</source>
        <translation>Was sie ä&amp;ndern würde</translation>
    </message>
    <message>
        <source>What the update would change</source>
        <translation>Was die Aktualisierung ändern würde</translation>
    </message>
    <message>
        <source>&amp;Remove the animations that are missing in the file</source>
        <translation>Animationen &amp;entfernen, die in der Datei fehlen</translation>
    </message>
    <message>
        <source>Otherwise they stay. Bones, hot points and surfaces always do, since the game knows them by their numbers.</source>
        <translation>Sonst bleiben sie. Knochen, Hotpoints und Flächen bleiben immer, da das Spiel sie an ihren Nummern kennt.</translation>
    </message>
    <message>
        <source>Flags, boxes, hot points, actions and ids stay. Undo takes the update back.</source>
        <translation>Flags, Boxen, Hotpoints, Aktionen und IDs bleiben. „Rückgängig“ nimmt die Aktualisierung zurück.</translation>
    </message>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>Import as &amp;New</source>
        <translation>Als ne&amp;ues Modell importieren</translation>
    </message>
    <message>
        <source>Imports the file as a model of its own, in place of the one that is open</source>
        <translation>Importiert die Datei als eigenes Modell anstelle des geöffneten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>%1 aktualisieren</translation>
    </message>
    <message>
        <source>%1 comes from this program. It can update %2, which is open.</source>
        <translation>%1 stammt aus diesem Programm. Die Datei kann das geöffnete Modell %2 aktualisieren.</translation>
    </message>
    <message>
        <source>%1 comes from this program, and holds %2 just as it is open.</source>
        <translation>%1 stammt aus diesem Programm und enthält %2 genau so, wie es geöffnet ist.</translation>
    </message>
    <message>
        <source>It was exported from &apos;%1&apos;, not from &apos;%2&apos;.</source>
        <translation>Sie wurde aus „%1“ exportiert, nicht aus „%2“.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Missing in the file, stays</source>
        <translation>Fehlt in der Datei, bleibt</translation>
    </message>
    <message>
        <source>To be known</source>
        <translation>Zu beachten</translation>
    </message>
    <message>
        <source>Materials stay. Undo takes the update back.</source>
        <translation>Materialien bleiben. „Rückgängig“ nimmt die Aktualisierung zurück.</translation>
    </message>
</context>
<context>
    <name>ModelUpdater</name>
    <message>
        <source>%1 Could not read file. The result was damaged.</source>
        <translation>%1 Die Datei konnte nicht gelesen werden. Das Ergebnis war beschädigt.</translation>
    </message>
    <message>
        <source>Updated %1 from %2</source>
        <translation>%1 aus %2 aktualisiert</translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation>„%1“ wird gelesen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Update %1</source>
        <translation>%1 aktualisieren</translation>
    </message>
    <message>
        <source>%1 stays as it is.</source>
        <translation>%1 bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Import as &amp;New</source>
        <translation>Als ne&amp;ues Modell importieren</translation>
    </message>
</context>
<context>
    <name>Motion</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>id: %1 → %2</source>
        <translation>ID: %1 → %2</translation>
    </message>
    <message>
        <source>frames: %1 → %2</source>
        <translation>Frames: %1 → %2</translation>
    </message>
    <message>
        <source>speed: %1 → %2 frames a second</source>
        <translation>Geschwindigkeit: %1 → %2 Frames pro Sekunde</translation>
    </message>
    <message>
        <source>duration: %1 → %2 s</source>
        <translation>Dauer: %1 → %2 s</translation>
    </message>
    <message>
        <source>loop frame: %1 → %2</source>
        <translation>Schleifen-Frame: %1 → %2</translation>
    </message>
    <message>
        <source>blend: %1 → %2</source>
        <translation>Überblendung: %1 → %2</translation>
    </message>
    <message>
        <source>%1 frames, %2 to %3</source>
        <translation>%1 Frames, %2 bis %3</translation>
    </message>
    <message>
        <source>key frame actions moved: %1</source>
        <translation>verschobene Keyframe-Aktionen: %1</translation>
    </message>
    <message>
        <source>key frame actions dropped: %1</source>
        <translation>entfallene Keyframe-Aktionen: %1</translation>
    </message>
    <message>
        <source>translation tracks: %1 → %2</source>
        <translation>Translationsspuren: %1 → %2</translation>
    </message>
    <message>
        <source>rotation tracks: %1 → %2</source>
        <translation>Rotationsspuren: %1 → %2</translation>
    </message>
    <message>
        <source>bytes: %1 → %2</source>
        <translation>Bytes: %1 → %2</translation>
    </message>
    <message>
        <source>It would need %1 tracks; %2 is the most that it can have.</source>
        <translation>Sie bräuchte %1 Spuren; mehr als %2 kann sie nicht haben.</translation>
    </message>
    <message>
        <source>Its id would be %1, which is more than 32 bits hold.</source>
        <translation>Ihre ID wäre %1; das passt nicht in 32 Bit.</translation>
    </message>
    <message>
        <source>Its id would be %1, which animation %2 has.</source>
        <translation>Ihre ID wäre %1; die hat Animation %2.</translation>
    </message>
    <message>
        <source>Animation %1 (id %2)</source>
        <translation>Animation %1 (ID %2)</translation>
    </message>
    <message>
        <source>Animation %1 (%2: %3)</source>
        <translation>Animation %1 (%2: %3)</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Which bones are left and right is in the mesh: open the one that it belongs to.</source>
        <translation>Welche Knochen links und rechts sind, steht im Mesh: Öffnen Sie das, zu dem sie gehört.</translation>
    </message>
    <message>
        <source>It is for %1 bones, but the mesh has %2.</source>
        <translation>Sie ist für %1 Knochen, das Mesh hat aber %2.</translation>
    </message>
    <message>
        <source>It is for %1 bones, but its mesh has %2.</source>
        <translation>Sie ist für %1 Knochen, ihr Mesh hat aber %2.</translation>
    </message>
    <message>
        <source>There is no animation that tells how the bones stand initially.</source>
        <translation>Es gibt keine Animation, die sagt, wie die Knochen anfangs stehen.</translation>
    </message>
    <message>
        <source>No bone of one skeleton has a partner in the other: neither names nor symbols agree.</source>
        <translation>Kein Knochen des einen Skeletts hat einen Partner im anderen: Weder Namen noch Symbole stimmen überein.</translation>
    </message>
    <message>
        <source>Bones without a partner, which keep their initial pose: %1.</source>
        <translation>Knochen ohne Partner, die ihre Anfangspose behalten: %1.</translation>
    </message>
    <message>
        <source>Bones of the other skeleton that are left out: %1.</source>
        <translation>Knochen des anderen Skeletts, die entfallen: %1.</translation>
    </message>
    <message>
        <source>Distances are scaled by %1.</source>
        <translation>Abstände werden mit %1 skaliert.</translation>
    </message>
    <message>
        <source>Key frame actions that happen at no bone any more: %1.</source>
        <translation>Keyframe-Aktionen, die an keinem Knochen mehr stattfinden: %1.</translation>
    </message>
    <message>
        <source>The id %1 is taken: it gets %2.</source>
        <translation>Die ID %1 ist vergeben: Sie bekommt %2.</translation>
    </message>
    <message>
        <source>It has no frames.</source>
        <translation>Sie hat keine Frames.</translation>
    </message>
    <message>
        <source>It would have %1 frames; %2 is the most that it can have.</source>
        <translation>Sie hätte %1 Frames; mehr als %2 kann sie nicht haben.</translation>
    </message>
    <message>
        <source>Its speed is infinite.</source>
        <translation>Ihre Geschwindigkeit ist unendlich.</translation>
    </message>
    <message>
        <source>The game plays no animation slower than one frame a second.</source>
        <translation>Das Spiel spielt keine Animation langsamer als einen Frame pro Sekunde ab.</translation>
    </message>
    <message>
        <source>An animation has one frame at least.</source>
        <translation>Eine Animation hat mindestens einen Frame.</translation>
    </message>
    <message>
        <source>To last as long, it would have to play %1 frames a second; the game plays one at least.</source>
        <translation>Um so lange zu dauern, müsste sie %1 Frames pro Sekunde abspielen; das Spiel spielt mindestens einen ab.</translation>
    </message>
    <message>
        <source>It still loops to frame %1, which shows what frame %2 showed.</source>
        <translation>Sie wiederholt sich weiter ab Frame %1, der jetzt zeigt, was Frame %2 zeigte.</translation>
    </message>
    <message>
        <source>It has the frames 0 to %1, not %2 to %3.</source>
        <translation>Sie hat die Frames 0 bis %1, nicht %2 bis %3.</translation>
    </message>
    <message>
        <source>It has %1 frames: nothing would be left of it.</source>
        <translation>Sie hat %1 Frames: Es bliebe nichts von ihr übrig.</translation>
    </message>
    <message>
        <source>It still loops to frame %1, which shows another pose now.</source>
        <translation>Sie wiederholt sich weiter ab Frame %1, der jetzt eine andere Haltung zeigt.</translation>
    </message>
    <message>
        <source>It ends as it begins, so a round has %1 frames; it does afterwards, too.</source>
        <translation>Sie endet, wie sie beginnt, ein Durchlauf hat also %1 Frames; das bleibt so.</translation>
    </message>
    <message>
        <source>It takes two frames at least to loop.</source>
        <translation>Für eine Schleife braucht es mindestens zwei Frames.</translation>
    </message>
    <message>
        <source>From 1 to %1 frames can go over into frame %2.</source>
        <translation>1 bis %1 Frames können in Frame %2 übergehen.</translation>
    </message>
    <message>
        <source>Frames %1 to %2 go over into frame %3.</source>
        <translation>Die Frames %1 bis %2 gehen in Frame %3 über.</translation>
    </message>
    <message>
        <source>It still holds its last frame, since that is its loop frame.</source>
        <translation>Sie hält weiter ihren letzten Frame, denn der ist ihr Schleifen-Frame.</translation>
    </message>
    <message>
        <source>It has no bones.</source>
        <translation>Sie hat keine Knochen.</translation>
    </message>
    <message>
        <source>The frames turn the model by up to %1°, instead of the root bone.</source>
        <translation>Die Frames drehen das Modell um bis zu %1°, an Stelle des Wurzelknochens.</translation>
    </message>
    <message>
        <source>The yaw of a frame is no number.</source>
        <translation>Die Drehung eines Frames ist keine Zahl.</translation>
    </message>
    <message>
        <source>The root bone turns the model by up to %1°, instead of the frames.</source>
        <translation>Der Wurzelknochen dreht das Modell um bis zu %1°, an Stelle der Frames.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not an old id, an equals sign and a new id.</source>
        <translation>„%1“ ist nicht eine alte ID, ein Gleichheitszeichen und eine neue ID.</translation>
    </message>
    <message>
        <source>The id %1 stands in the table twice.</source>
        <translation>Die ID %1 steht zweimal in der Tabelle.</translation>
    </message>
    <message>
        <source>translation keys that change: %1</source>
        <translation>geänderte Translations-Keys: %1</translation>
    </message>
    <message>
        <source>rotation keys that change: %1</source>
        <translation>geänderte Rotations-Keys: %1</translation>
    </message>
    <message>
        <source>frames whose yaw changes: %1</source>
        <translation>Frames mit geändertem Gierversatz: %1</translation>
    </message>
    <message>
        <source>bones that follow other tracks: %1</source>
        <translation>Knochen, die anderen Spuren folgen: %1</translation>
    </message>
    <message>
        <source>The keys of %1 bones in %2 frames would take %3 MiB; %4 is the most.</source>
        <translation>Die Keys von %1 Knochen in %2 Frames bräuchten %3 MiB; höchstens %4 sind möglich.</translation>
    </message>
    <message>
        <source>Key frame actions whose blood sprays to the same side as before: %1.</source>
        <translation>Keyframe-Aktionen, deren Blut zur selben Seite spritzt wie zuvor: %1.</translation>
    </message>
    <message>
        <source>Pairs of bones that change sides: %1. Bones without a partner, mirrored in place: %2.</source>
        <translation>Paare von Knochen, die die Seite wechseln: %1. Knochen ohne Partner, an Ort und Stelle gespiegelt: %2.</translation>
    </message>
    <message>
        <source>Bones that found their partner: %1.</source>
        <translation>Knochen, die ihren Partner gefunden haben: %1.</translation>
    </message>
    <message>
        <source>It still blends in the frames %1 to %2, which show other poses now.</source>
        <translation>Sie blendet weiter in den Frames %1 bis %2, die jetzt andere Haltungen zeigen.</translation>
    </message>
    <message>
        <source>Frames for which the first pose stands longer: %1.</source>
        <translation>Frames, um die die erste Haltung länger steht: %1.</translation>
    </message>
    <message>
        <source>Frames for which the last pose stands longer: %1.</source>
        <translation>Frames, um die die letzte Haltung länger steht: %1.</translation>
    </message>
    <message>
        <source>It looped, and stands still on its last frame now.</source>
        <translation>Sie wiederholte sich und bleibt jetzt auf ihrem letzten Frame stehen.</translation>
    </message>
    <message>
        <source>What was frame %1, to which it looped, goes: it loops to frame %2 now.</source>
        <translation>Der bisherige Frame %1, ab dem sie sich wiederholte, entfällt: Sie wiederholt sich jetzt ab Frame %2.</translation>
    </message>
</context>
<context>
    <name>MotionDialog</name>
    <message>
        <source>A&amp;pply to</source>
        <translation>A&amp;nwenden auf</translation>
    </message>
    <message>
        <source>The animations that are changed, in one undo step</source>
        <translation>Die Animationen, die in einem Rückgängig-Schritt geändert werden</translation>
    </message>
    <message>
        <source>&amp;Frames</source>
        <translation>&amp;Frames</translation>
    </message>
    <message>
        <source>How many frames the animation has then</source>
        <translation>Wie viele Frames die Animation dann hat</translation>
    </message>
    <message>
        <source>&amp;Rate</source>
        <translation>&amp;Rate</translation>
    </message>
    <message>
        <source>How many frames a second there are then</source>
        <translation>Wie viele Frames pro Sekunde es dann sind</translation>
    </message>
    <message>
        <source>&amp;Goal</source>
        <translation>&amp;Ziel</translation>
    </message>
    <message>
        <source>Which number counts, and whether the motion lasts as long as before</source>
        <translation>Welche Zahl zählt, und ob die Bewegung so lange dauert wie vorher</translation>
    </message>
    <message>
        <source>So many frames, lasting as long</source>
        <translation>So viele Frames, gleiche Dauer</translation>
    </message>
    <message>
        <source>So many frames, at the same speed</source>
        <translation>So viele Frames, gleiche Geschwindigkeit</translation>
    </message>
    <message>
        <source>This rate, lasting as long</source>
        <translation>Diese Rate, gleiche Dauer</translation>
    </message>
    <message>
        <source>&amp;First frame</source>
        <translation>&amp;Erster Frame</translation>
    </message>
    <message>
        <source>The first frame that stays</source>
        <translation>Der erste Frame, der bleibt</translation>
    </message>
    <message>
        <source>&amp;Last frame</source>
        <translation>&amp;Letzter Frame</translation>
    </message>
    <message>
        <source>The last frame that stays</source>
        <translation>Der letzte Frame, der bleibt</translation>
    </message>
    <message>
        <source>Frames &amp;later</source>
        <translation>Frames s&amp;päter</translation>
    </message>
    <message>
        <source>How many frames later everything happens; earlier below 0</source>
        <translation>Um wie viele Frames alles später geschieht; unter 0 früher</translation>
    </message>
    <message>
        <source>&amp;Around</source>
        <translation>&amp;Umlaufend</translation>
    </message>
    <message>
        <source>Whether what leaves at one end comes in at the other; otherwise the pose at the end stands still</source>
        <translation>Ob an einem Ende hereinkommt, was das andere verlässt; sonst steht die Haltung am Ende still</translation>
    </message>
    <message>
        <source>Animations that loop to frame 0</source>
        <translation>Animationen, die sich ab Frame 0 wiederholen</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>How many frames at the end go over into the frame that is looped to</source>
        <translation>Wie viele Frames am Ende in den Frame übergehen, ab dem sich die Animation wiederholt</translation>
    </message>
    <message>
        <source>O&amp;ffset</source>
        <translation>&amp;Versatz</translation>
    </message>
    <message>
        <source>What is added to each id that the table does not have</source>
        <translation>Was zu jeder ID addiert wird, die nicht in der Tabelle steht</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>&amp;Tabelle</translation>
    </message>
    <message>
        <source>Ids and what becomes of them, such as 3=103, 4=110</source>
        <translation>IDs und was aus ihnen wird, etwa 3=103, 4=110</translation>
    </message>
    <message>
        <source>3=103, 4=110</source>
        <translation>3=103, 4=110</translation>
    </message>
    <message>
        <source>W&amp;hat changes</source>
        <translation>Was sic&amp;h ändert</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Selected animations (%1)</source>
        <translation>Ausgewählte Animationen (%1)</translation>
    </message>
    <message>
        <source>All animations (%1)</source>
        <translation>Alle Animationen (%1)</translation>
    </message>
    <message>
        <source>Being worked out…</source>
        <translation>Wird ausgerechnet…</translation>
    </message>
    <message>
        <source>Nothing can be done.</source>
        <translation>Es kann nichts getan werden.</translation>
    </message>
    <message>
        <source>It stays as it is.</source>
        <translation>Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>Nothing changes.</source>
        <translation>Nichts ändert sich.</translation>
    </message>
</context>
<context>
    <name>MotionPreview</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>NameTables</name>
    <message>
        <source>Body</source>
        <translation>Rumpf</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>Kopf</translation>
    </message>
    <message>
        <source>Arm</source>
        <translation>Arm</translation>
    </message>
    <message>
        <source>Leg</source>
        <translation>Bein</translation>
    </message>
    <message>
        <source>Root</source>
        <translation>Wurzel</translation>
    </message>
    <message>
        <source>Upper Torso</source>
        <translation>Oberkörper</translation>
    </message>
    <message>
        <source>Lower Torso</source>
        <translation>Unterkörper</translation>
    </message>
    <message>
        <source>Pelvis</source>
        <translation>Becken</translation>
    </message>
    <message>
        <source>Skull</source>
        <translation>Schädel</translation>
    </message>
    <message>
        <source>Face</source>
        <translation>Gesicht</translation>
    </message>
    <message>
        <source>Chin</source>
        <translation>Kinn</translation>
    </message>
    <message>
        <source>Neck</source>
        <translation>Hals</translation>
    </message>
    <message>
        <source>Shoulder</source>
        <translation>Schulter</translation>
    </message>
    <message>
        <source>Upper Arm</source>
        <translation>Oberarm</translation>
    </message>
    <message>
        <source>Lower Arm</source>
        <translation>Unterarm</translation>
    </message>
    <message>
        <source>Hand</source>
        <translation>Hand</translation>
    </message>
    <message>
        <source>Hip</source>
        <translation>Hüfte</translation>
    </message>
    <message>
        <source>Upper Leg</source>
        <translation>Oberschenkel</translation>
    </message>
    <message>
        <source>Lower Leg</source>
        <translation>Unterschenkel</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fuß</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Water</source>
        <translation>Wasser</translation>
    </message>
    <message>
        <source>Metal</source>
        <translation>Metall</translation>
    </message>
    <message>
        <source>Stone</source>
        <translation>Stein</translation>
    </message>
    <message>
        <source>Flesh</source>
        <translation>Fleisch</translation>
    </message>
    <message>
        <source>Creature Flesh</source>
        <translation>Kreaturenfleisch</translation>
    </message>
    <message>
        <source>Water Flesh</source>
        <translation>Wasserfleisch</translation>
    </message>
    <message>
        <source>Lava</source>
        <translation>Lava</translation>
    </message>
    <message>
        <source>Slime</source>
        <translation>Schleim</translation>
    </message>
    <message>
        <source>Forcefield</source>
        <translation>Kraftfeld</translation>
    </message>
    <message>
        <source>00: Play Sound</source>
        <translation>00: Sound abspielen</translation>
    </message>
    <message>
        <source>01: Spawn Particle</source>
        <translation>01: Partikel erzeugen</translation>
    </message>
    <message>
        <source>02: Normal Damage</source>
        <translation>02: Normaler Schaden</translation>
    </message>
    <message>
        <source>03: Normal Radial Damage</source>
        <translation>03: Normaler Umkreisschaden</translation>
    </message>
    <message>
        <source>04: Normal Radial Damage</source>
        <translation>04: Normaler Umkreisschaden</translation>
    </message>
    <message>
        <source>05: Trigger (Unused)</source>
        <translation>05: Auslöser (unbenutzt)</translation>
    </message>
    <message>
        <source>06: Unblock Region</source>
        <translation>06: Gebiet freigeben</translation>
    </message>
    <message>
        <source>07: Block Region</source>
        <translation>07: Gebiet sperren</translation>
    </message>
    <message>
        <source>08: Spawn Particle</source>
        <translation>08: Partikel erzeugen</translation>
    </message>
    <message>
        <source>09: Screen Flash</source>
        <translation>09: Bildschirmblitz</translation>
    </message>
    <message>
        <source>10: Spawn Trails (Unused)</source>
        <translation>10: Spuren erzeugen (unbenutzt)</translation>
    </message>
    <message>
        <source>11: Fire Weapon Particle</source>
        <translation>11: Partikel der Waffe abfeuern</translation>
    </message>
    <message>
        <source>12: Shake Screen Sinwave</source>
        <translation>12: Bildschirm als Sinuswelle schütteln</translation>
    </message>
    <message>
        <source>13: Shake Screen Random</source>
        <translation>13: Bildschirm zufällig schütteln</translation>
    </message>
    <message>
        <source>14: Display Text (Unused)</source>
        <translation>14: Text zeigen (unbenutzt)</translation>
    </message>
    <message>
        <source>15: Violent Radial Damage</source>
        <translation>15: Heftiger Umkreisschaden</translation>
    </message>
    <message>
        <source>16: Violent Radial Damage</source>
        <translation>16: Heftiger Umkreisschaden</translation>
    </message>
    <message>
        <source>17: Explosive Radial Damage</source>
        <translation>17: Explosiver Umkreisschaden</translation>
    </message>
    <message>
        <source>18: Explosive Radial Damage</source>
        <translation>18: Explosiver Umkreisschaden</translation>
    </message>
    <message>
        <source>19: Extreme Radial Damage</source>
        <translation>19: Extremer Umkreisschaden</translation>
    </message>
    <message>
        <source>20: Extreme Radial Damage</source>
        <translation>20: Extremer Umkreisschaden</translation>
    </message>
    <message>
        <source>21: Gamepad Rumble (Unused)</source>
        <translation>21: Gamepad-Rütteln (unbenutzt)</translation>
    </message>
    <message>
        <source>22: User/Script Event</source>
        <translation>22: Benutzer-/Skriptereignis</translation>
    </message>
    <message>
        <source>23: Play Sound On Model</source>
        <translation>23: Sound am Modell abspielen</translation>
    </message>
    <message>
        <source>24: Spawn Particle On Model</source>
        <translation>24: Partikel am Modell erzeugen</translation>
    </message>
    <message>
        <source>25: Explosive Ground Radial Damage</source>
        <translation>25: Explosiver Umkreisschaden am Boden</translation>
    </message>
    <message>
        <source>26: Turn On Hot Point</source>
        <translation>26: Hotpoint einschalten</translation>
    </message>
    <message>
        <source>27: Turn Off Hot Point</source>
        <translation>27: Hotpoint ausschalten</translation>
    </message>
    <message>
        <source>28: Spawn Actor</source>
        <translation>28: Akteur erzeugen</translation>
    </message>
    <message>
        <source>29: Play Material Sound</source>
        <translation>29: Materialsound abspielen</translation>
    </message>
    <message>
        <source>30: Play Voice</source>
        <translation>30: Stimme abspielen</translation>
    </message>
    <message>
        <source>31: Play Looping Sound</source>
        <translation>31: Soundschleife abspielen</translation>
    </message>
    <message>
        <source>32: Stop Looping Sound</source>
        <translation>32: Soundschleife anhalten</translation>
    </message>
    <message>
        <source>33: Nuke Explosion</source>
        <translation>33: Atomexplosion</translation>
    </message>
    <message>
        <source>34: Delete Actor</source>
        <translation>34: Akteur löschen</translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation>%1 links</translation>
    </message>
    <message>
        <source>Right %1</source>
        <translation>%1 rechts</translation>
    </message>
</context>
<context>
    <name>NamedFiles</name>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation>Öffnen fehlgeschlagen
%1</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>It is not stored; Esc brings %1 back.</source>
        <translation>Die Eingabe wird nicht gespeichert; Esc bringt %1 zurück.</translation>
    </message>
    <message>
        <source>Set &amp;All to This</source>
        <translation>&amp;Alle auf diesen Wert setzen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation>Schritt &amp;hoch</translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation>Schritt &amp;runter</translation>
    </message>
    <message>
        <source>C&amp;hoose by Name…</source>
        <translation>Nach Namen &amp;wählen…</translation>
    </message>
</context>
<context>
    <name>NumberRange</name>
    <message>
        <source>That is no number.</source>
        <translation>Das ist keine Zahl.</translation>
    </message>
    <message>
        <source>That divides by 0 or is too large.</source>
        <translation>Das teilt durch 0 oder ist zu groß.</translation>
    </message>
    <message>
        <source>%1 is no whole number.</source>
        <translation>%1 ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is too large to be stored.</source>
        <translation>%1 ist zu groß zum Speichern.</translation>
    </message>
    <message>
        <source>%1 is not from %2 to %3.</source>
        <translation>%1 liegt nicht zwischen %2 und %3.</translation>
    </message>
</context>
<context>
    <name>OnionSkinMenu</name>
    <message>
        <source>&amp;Onion Skin</source>
        <translation>&amp;Zwiebelhaut</translation>
    </message>
    <message>
        <source>Show the frames before (blue) and after (orange) behind the one that is shown</source>
        <translation>Die Frames davor (blau) und danach (orange) hinter dem gezeigten zeigen</translation>
    </message>
    <message>
        <source>&amp;1 Frame on Either Side</source>
        <translation>&amp;1 Frame auf jeder Seite</translation>
    </message>
    <message>
        <source>&amp;%1 Frames on Either Side</source>
        <translation>&amp;%1 Frames auf jeder Seite</translation>
    </message>
    <message>
        <source>So many frames before and after are shown</source>
        <translation>So viele Frames davor und danach werden gezeigt</translation>
    </message>
    <message>
        <source>&amp;Every Frame</source>
        <translation>&amp;Jeder Frame</translation>
    </message>
    <message>
        <source>Every &amp;Second Frame</source>
        <translation>Jeder z&amp;weite Frame</translation>
    </message>
    <message>
        <source>Every &amp;Fifth Frame</source>
        <translation>Jeder &amp;fünfte Frame</translation>
    </message>
    <message>
        <source>Every &amp;Tenth Frame</source>
        <translation>Jeder ze&amp;hnte Frame</translation>
    </message>
    <message>
        <source>So far apart are the frames that are shown</source>
        <translation>So weit liegen die gezeigten Frames auseinander</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>Pfade</translation>
    </message>
    <message>
        <source>&amp;game Folder</source>
        <translation>&amp;Spielordner</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
    <message>
        <source>Choose the folder of the unzipped game.kpf</source>
        <translation>Den Ordner mit der entpackten game.kpf wählen</translation>
    </message>
    <message>
        <source>Browse for the game folder</source>
        <translation>Nach dem Spielordner suchen</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Es gibt keinen solchen Ordner.</translation>
    </message>
    <message>
        <source>Turok &amp;2 Folder</source>
        <translation>Turok-&amp;2-Ordner</translation>
    </message>
    <message>
        <source>the folder to the your Turok 2 - Seeds of Evil Folder.
This is the root folder for your mod and should contain
a textures, materials, and anims folders.</source>
        <translation>der Ordner Ihres Turok 2 - Seeds of Evil.
Das ist der Stammordner Ihrer Mod; er sollte die Ordner
textures, materials und anims enthalten.</translation>
    </message>
    <message>
        <source>What the game folder does not hold is looked for in this folder, and imports write their materials and textures here.</source>
        <translation>Was der Spielordner nicht enthält, wird in diesem Ordner gesucht, und Importe schreiben ihre Materialien und Texturen hierher.</translation>
    </message>
    <message>
        <source>Choose the root folder of your mod</source>
        <translation>Den Stammordner Ihrer Mod wählen</translation>
    </message>
    <message>
        <source>Browse for the mod folder</source>
        <translation>Nach dem Mod-Ordner suchen</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>Check for &amp;updates on startup</source>
        <translation>Beim Start nach &amp;Updates suchen</translation>
    </message>
    <message>
        <source>When Korvane starts will check if there&apos;s a new version</source>
        <translation>Beim Start sieht Korvane nach, ob es eine neue Version gibt</translation>
    </message>
    <message>
        <source>Hide &amp;Mesh Data</source>
        <translation>&amp;Mesh-Daten ausblenden</translation>
    </message>
    <message>
        <source>Don&apos;t add all mesh data to the tree view. Performance Increase.
Recommended to leave on.</source>
        <translation>Nicht alle Mesh-Daten in den Baum aufnehmen. Das ist schneller.
Es wird empfohlen, dies eingeschaltet zu lassen.</translation>
    </message>
    <message>
        <source>Hide &amp;Animation Data</source>
        <translation>&amp;Animationsdaten ausblenden</translation>
    </message>
    <message>
        <source>Don&apos;t add all animation data to the tree view. Performance Increase.
Recommended to leave on.</source>
        <translation>Nicht alle Animationsdaten in den Baum aufnehmen. Das ist schneller.
Es wird empfohlen, dies eingeschaltet zu lassen.</translation>
    </message>
    <message>
        <source>Animation Auto &amp;Play</source>
        <translation>Animationen automatisch abs&amp;pielen</translation>
    </message>
    <message>
        <source>Play animations when selecting them</source>
        <translation>Animationen abspielen, wenn sie ausgewählt werden</translation>
    </message>
    <message>
        <source>game.kpf unzipped folder</source>
        <translation>Ordner der entpackten game.kpf</translation>
    </message>
    <message>
        <source>Turok 2(Your Mod) Folder</source>
        <translation>Turok-2-Ordner (Ihre Mod)</translation>
    </message>
    <message>
        <source>Ge&amp;neral</source>
        <translation>All&amp;gemein</translation>
    </message>
    <message>
        <source>Open the f&amp;iles of the last session at the start</source>
        <translation>Be&amp;im Start die Dateien der letzten Sitzung öffnen</translation>
    </message>
    <message>
        <source>The files, tabs, records and cameras as they were when the window was closed</source>
        <translation>Die Dateien, Reiter, Datensätze und Kameras, wie sie beim Schließen des Fensters waren</translation>
    </message>
    <message>
        <source>&amp;Shortcuts</source>
        <translation>&amp;Tastenkürzel</translation>
    </message>
    <message>
        <source>Imports and exports &amp;take at most</source>
        <translation>&amp;Zeitgrenze für Importe und Exporte</translation>
    </message>
    <message>
        <source>An import or export that takes longer is given up (1 to 3600 seconds). Some damaged files would never end.</source>
        <translation>Ein Import oder Export, der länger dauert, wird aufgegeben (1 bis 3600 Sekunden). Manche beschädigten Dateien fänden sonst kein Ende.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>Du&amp;rchsuchen…</translation>
    </message>
    <message>
        <source>S&amp;ounds Folder</source>
        <translation>S&amp;ound-Ordner</translation>
    </message>
    <message>
        <source>Sounds that key frame actions play in the view: files such as 1234.wav,
named for a sound&apos;s number, or for its name in the table of sounds.
Where there is no file it stays silent.</source>
        <translation>Sounds, die Keyframe-Aktionen in der Ansicht abspielen: Dateien wie 1234.wav,
benannt nach der Nummer eines Sounds oder seinem Namen in der Tabelle der Sounds.
Wo keine Datei ist, bleibt es still.</translation>
    </message>
    <message>
        <source>Bro&amp;wse…</source>
        <translation>Durchsu&amp;chen…</translation>
    </message>
    <message>
        <source>Choose the folder of sounds</source>
        <translation>Den Ordner der Sounds wählen</translation>
    </message>
    <message>
        <source>Browse for the folder of sounds</source>
        <translation>Nach dem Ordner der Sounds suchen</translation>
    </message>
    <message>
        <source>Folder of sounds</source>
        <translation>Ordner der Sounds</translation>
    </message>
    <message>
        <source>the folder to the unzipped game.kpf, or game.kpf itself</source>
        <translation>Der Ordner des entpackten game.kpf, oder game.kpf selbst</translation>
    </message>
    <message>
        <source>Textures and materials are looked for here first. Saving a file of the folder asks first; the archive is only read.</source>
        <translation>Texturen und Materialien werden zuerst hier gesucht. Das Speichern einer Datei des Ordners fragt vorher nach; das Archiv wird nur gelesen.</translation>
    </message>
    <message>
        <source>Archi&amp;ve…</source>
        <translation>Archi&amp;v…</translation>
    </message>
    <message>
        <source>Choose game.kpf itself: it is read as it is</source>
        <translation>game.kpf selbst wählen: Es wird gelesen, wie es ist</translation>
    </message>
    <message>
        <source>Browse for the game&apos;s archive</source>
        <translation>Nach dem Archiv des Spiels suchen</translation>
    </message>
    <message>
        <source>Archives of the game (*.kpf *.zip)</source>
        <translation>Archive des Spiels (*.kpf *.zip)</translation>
    </message>
    <message>
        <source>The game&apos;s archive, game.kpf</source>
        <translation>Das Archiv des Spiels, game.kpf</translation>
    </message>
    <message>
        <source>The name of an archive ends in .kpf or .zip.</source>
        <translation>Der Name eines Archivs endet auf .kpf oder .zip.</translation>
    </message>
</context>
<context>
    <name>OutputPaths</name>
    <message>
        <source>Output Paths</source>
        <translation>Ausgabepfade</translation>
    </message>
    <message>
        <source>Turok &amp;2 Folder</source>
        <translation>Turok-&amp;2-Ordner</translation>
    </message>
    <message>
        <source>The root folder of your mod. The paths below are relative to it.</source>
        <translation>Der Stammordner Ihrer Mod. Die Pfade darunter sind relativ zu ihm.</translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation>Kein Ordner gewählt</translation>
    </message>
    <message>
        <source>Browse…</source>
        <translation>Durchsuchen…</translation>
    </message>
    <message>
        <source>Choose the root folder of your mod</source>
        <translation>Den Stammordner Ihrer Mod wählen</translation>
    </message>
    <message>
        <source>&amp;kmat Path</source>
        <translation>&amp;kmat-Pfad</translation>
    </message>
    <message>
        <source>The material file that the surfaces of the model refer to</source>
        <translation>Die Materialdatei, auf die die Flächen des Modells verweisen</translation>
    </message>
    <message>
        <source>materials/mat_NAME.kmat</source>
        <translation>materials/mat_NAME.kmat</translation>
    </message>
    <message>
        <source>Choose the material file</source>
        <translation>Die Materialdatei wählen</translation>
    </message>
    <message>
        <source>&amp;Texture Folder</source>
        <translation>&amp;Texturordner</translation>
    </message>
    <message>
        <source>The folder that the materials take their textures from</source>
        <translation>Der Ordner, aus dem die Materialien ihre Texturen nehmen</translation>
    </message>
    <message>
        <source>textures</source>
        <translation>textures</translation>
    </message>
    <message>
        <source>Choose the texture folder</source>
        <translation>Den Texturordner wählen</translation>
    </message>
    <message>
        <source>C&amp;reate .kmat file</source>
        <translation>.kmat-Datei e&amp;rstellen</translation>
    </message>
    <message>
        <source>Will create the .kmat file for the model in Turok 2 Folder + kmat Path</source>
        <translation>Erstellt die .kmat-Datei für das Modell in Turok-2-Ordner + kmat-Pfad</translation>
    </message>
    <message>
        <source>C&amp;opy .png textures</source>
        <translation>.png-Texturen k&amp;opieren</translation>
    </message>
    <message>
        <source>Will copy any .png textures used by the model to the Turok 2 Folder + Texture Folder</source>
        <translation>Kopiert alle .png-Texturen des Modells nach Turok-2-Ordner + Texturordner</translation>
    </message>
    <message>
        <source>Write te&amp;xtures as .png</source>
        <translation>Te&amp;xturen als .png schreiben</translation>
    </message>
    <message>
        <source>Will write the textures of the model, whatever their format, to the Turok 2 Folder + Texture Folder</source>
        <translation>Schreibt die Texturen des Modells, gleich welchen Formats, in Turok-2-Ordner + Texturordner</translation>
    </message>
    <message>
        <source>kmat Path Error</source>
        <translation>Fehler im kmat-Pfad</translation>
    </message>
    <message>
        <source>Path must be relative to Turok 2 Folder</source>
        <translation>Der Pfad muss relativ zum Turok-2-Ordner sein</translation>
    </message>
    <message>
        <source>Turok 2 Output Folder</source>
        <translation>Turok-2-Ausgabeordner</translation>
    </message>
    <message>
        <source>Save .kmat</source>
        <translation>.kmat speichern</translation>
    </message>
    <message>
        <source>Material (*.kmat)</source>
        <translation>Material (*.kmat)</translation>
    </message>
    <message>
        <source>Texture Output Folder</source>
        <translation>Texturausgabeordner</translation>
    </message>
</context>
<context>
    <name>PackDialog</name>
    <message>
        <source>Pack Mod</source>
        <translation>Mod packen</translation>
    </message>
    <message>
        <source>Mod folder</source>
        <translation>Mod-Ordner</translation>
    </message>
    <message>
        <source>&amp;Archive</source>
        <translation>&amp;Archiv</translation>
    </message>
    <message>
        <source>The .kpf or .zip file to write</source>
        <translation>Die .kpf- oder .zip-Datei, die geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Choose the file to write</source>
        <translation>Die Datei wählen, die geschrieben wird</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>Names of files that stay out, with * and ?, or paths below the mod folder; a semicolon stands between two</source>
        <translation>Namen von Dateien, die draußen bleiben, mit * und ?, oder Pfade unter dem Mod-Ordner; zwischen zweien steht ein Semikolon</translation>
    </message>
    <message>
        <source>What goes into the archive, and what stays out</source>
        <translation>Was in das Archiv kommt und was draußen bleibt</translation>
    </message>
    <message>
        <source>What replaces files of the game is not known: the options set no game folder.</source>
        <translation>Was Dateien des Spiels ersetzt, ist nicht bekannt: In den Optionen ist kein Spielordner eingestellt.</translation>
    </message>
    <message>
        <source>Pack &amp;in spite of the errors</source>
        <translation>&amp;Trotz der Fehler packen</translation>
    </message>
    <message>
        <source>Files with errors go into the archive as they are</source>
        <translation>Dateien mit Fehlern kommen in das Archiv, wie sie sind</translation>
    </message>
    <message>
        <source>Looking through the mod</source>
        <translation>Die Mod wird durchgesehen</translation>
    </message>
    <message>
        <source>Checking the mod</source>
        <translation>Die Mod wird geprüft</translation>
    </message>
    <message>
        <source>This is no whole path of a file.</source>
        <translation>Das ist kein vollständiger Pfad einer Datei.</translation>
    </message>
    <message>
        <source>The name of an archive ends in .kpf or .zip.</source>
        <translation>Der Name eines Archivs endet auf .kpf oder .zip.</translation>
    </message>
    <message>
        <source>This is in the game folder, which is left as it is.</source>
        <translation>Das liegt im Spielordner, der bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>&amp;Pack</source>
        <translation>&amp;Packen</translation>
    </message>
    <message>
        <source>Names that no archive can hold</source>
        <translation>Namen, die kein Archiv haben kann</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Replace files of the game</source>
        <translation>Ersetzen Dateien des Spiels</translation>
    </message>
    <message>
        <source>New files</source>
        <translation>Neue Dateien</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelassen</translation>
    </message>
    <message>
        <source>There is nothing to pack in this folder.</source>
        <translation>In diesem Ordner gibt es nichts zu packen.</translation>
    </message>
    <message>
        <source>Files: %1, together %2 before they are packed</source>
        <translation>Dateien: %1, ungepackt zusammen %2</translation>
    </message>
    <message>
        <source>Archives (*.kpf)</source>
        <translation>Archive (*.kpf)</translation>
    </message>
</context>
<context>
    <name>Packing</name>
    <message>
        <source>a backup</source>
        <translation>eine Sicherungskopie</translation>
    </message>
    <message>
        <source>left by a save that was cut off</source>
        <translation>Rest eines abgebrochenen Speicherns</translation>
    </message>
    <message>
        <source>names of bones and animations, for Korvane</source>
        <translation>Namen von Knochen und Animationen, für Korvane</translation>
    </message>
    <message>
        <source>a source, for other programs</source>
        <translation>eine Vorlage, für andere Programme</translation>
    </message>
    <message>
        <source>an archive</source>
        <translation>ein Archiv</translation>
    </message>
    <message>
        <source>a program</source>
        <translation>ein Programm</translation>
    </message>
    <message>
        <source>of the desktop</source>
        <translation>vom Desktop</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no name that an archive can hold.</source>
        <translation>„%1“ ist kein Name, den ein Archiv haben kann.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is larger than %2 MiB.</source>
        <translation>„%1“ ist größer als %2 MiB.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; differ only in upper and lower case.</source>
        <translation>„%1“ und „%2“ unterscheiden sich nur in Groß- und Kleinschreibung.</translation>
    </message>
    <message>
        <source>as asked for</source>
        <translation>wie gewünscht</translation>
    </message>
    <message>
        <source>These are more than %1 files.</source>
        <translation>Das sind mehr als %1 Dateien.</translation>
    </message>
    <message>
        <source>There is no memory for the archive.</source>
        <translation>Für das Archiv ist kein Speicher da.</translation>
    </message>
    <message>
        <source>The archive cannot be written.</source>
        <translation>Das Archiv kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be read whole, or was changed meanwhile.</source>
        <translation>„%1“ konnte nicht ganz gelesen werden oder wurde inzwischen geändert.</translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message numerus="yes">
        <source>%n child bone indexes selected</source>
        <translation>
            <numerusform>%n Kindknochen-Index ausgewählt</numerusform>
            <numerusform>%n Kindknochen-Indizes ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hot points selected</source>
        <translation>
            <numerusform>%n Hotpoint ausgewählt</numerusform>
            <numerusform>%n Hotpoints ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bones selected</source>
        <translation>
            <numerusform>%n Knochen ausgewählt</numerusform>
            <numerusform>%n Knochen ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n surfaces selected</source>
        <translation>
            <numerusform>%n Fläche ausgewählt</numerusform>
            <numerusform>%n Flächen ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n triangle indexes selected</source>
        <translation>
            <numerusform>%n Dreiecksindex ausgewählt</numerusform>
            <numerusform>%n Dreiecksindizes ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n vertices selected</source>
        <translation>
            <numerusform>%n Vertex ausgewählt</numerusform>
            <numerusform>%n Vertices ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n animations selected</source>
        <translation>
            <numerusform>%n Animation ausgewählt</numerusform>
            <numerusform>%n Animationen ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frames selected</source>
        <translation>
            <numerusform>%n Frame ausgewählt</numerusform>
            <numerusform>%n Frames ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n translation keys selected</source>
        <translation>
            <numerusform>%n Translations-Key ausgewählt</numerusform>
            <numerusform>%n Translations-Keys ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rotation keys selected</source>
        <translation>
            <numerusform>%n Rotations-Key ausgewählt</numerusform>
            <numerusform>%n Rotations-Keys ausgewählt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key frame actions selected</source>
        <translation>
            <numerusform>%n Keyframe-Aktion ausgewählt</numerusform>
            <numerusform>%n Keyframe-Aktionen ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>Select a record in the tree to see its properties.</source>
        <translation>Wählen Sie im Baum einen Datensatz aus, um seine Eigenschaften zu sehen.</translation>
    </message>
    <message>
        <source>%1; values in italics differ</source>
        <translation>%1; kursive Werte unterscheiden sich</translation>
    </message>
    <message>
        <source>Choose by Name</source>
        <translation>Nach Namen wählen</translation>
    </message>
    <message>
        <source>Pick in the View</source>
        <translation>In der Ansicht wählen</translation>
    </message>
    <message>
        <source>Click a bone in the view. Esc gives that up.</source>
        <translation>Klicken Sie in der Ansicht einen Knochen an. Esc bricht das ab.</translation>
    </message>
</context>
<context>
    <name>PaneKeys</name>
    <message>
        <source>&amp;Next Pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>Give the keys to the next part of the window</source>
        <translation>Die Tasten dem nächsten Teil des Fensters geben</translation>
    </message>
    <message>
        <source>&amp;Previous Pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>Give the keys to the part of the window before</source>
        <translation>Die Tasten dem Teil des Fensters davor geben</translation>
    </message>
    <message>
        <source>&amp;Other Tree</source>
        <translation>&amp;Anderer Baum</translation>
    </message>
    <message>
        <source>Go to the tree of the animation, or of the skinned mesh</source>
        <translation>Zum Baum der Animation gehen oder zu dem des Skin-Meshs</translation>
    </message>
    <message>
        <source>&amp;Jump To</source>
        <translation>&amp;Gehe zu</translation>
    </message>
</context>
<context>
    <name>Patience</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>Wird beendet…</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>Width of the picture in pixels</source>
        <translation>Breite des Bildes in Pixeln</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>Height of the picture in pixels; it shows as much from top to bottom as the view does</source>
        <translation>Höhe des Bildes in Pixeln; es zeigt von oben bis unten so viel wie die Ansicht</translation>
    </message>
    <message>
        <source>Width and height follow each other, as the view has them</source>
        <translation>Breite und Höhe folgen einander, wie in der Ansicht</translation>
    </message>
    <message>
        <source>&amp;Keep proportions of the view</source>
        <translation>&amp;Verhältnis der Ansicht beibehalten</translation>
    </message>
    <message>
        <source>As large as the view is now</source>
        <translation>So groß wie die Ansicht jetzt ist</translation>
    </message>
    <message>
        <source>Size of the &amp;View</source>
        <translation>&amp;Größe der Ansicht</translation>
    </message>
    <message>
        <source>The picture can be laid over others; otherwise it has the background color of the view</source>
        <translation>Das Bild lässt sich über andere legen; sonst hat es die Hintergrundfarbe der Ansicht</translation>
    </message>
    <message>
        <source>&amp;Transparent background</source>
        <translation>&amp;Transparenter Hintergrund</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>&amp;Content</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>One picture, or a sequence of numbered ones for a video</source>
        <translation>Ein Bild, oder eine Folge nummerierter Bilder für ein Video</translation>
    </message>
    <message>
        <source>The view as it is</source>
        <translation>Die Ansicht, wie sie ist</translation>
    </message>
    <message>
        <source>Frames of the animation</source>
        <translation>Frames der Animation</translation>
    </message>
    <message>
        <source>Turntable</source>
        <translation>Drehteller</translation>
    </message>
    <message>
        <source>&amp;Pictures of a turn</source>
        <translation>Bilder &amp;je Umdrehung</translation>
    </message>
    <message>
        <source>How many pictures a whole turn around the model has; the camera goes around the middle of the model as it stands</source>
        <translation>Wie viele Bilder eine ganze Umdrehung um das Modell hat; die Kamera geht um die Mitte des Modells, wie es steht</translation>
    </message>
    <message>
        <source>The animation goes on from picture to picture; the shorter of turn and frames begins anew until the longer ends</source>
        <translation>Die Animation läuft von Bild zu Bild weiter; was von Umdrehung und Frames kürzer ist, beginnt von vorn, bis das Längere endet</translation>
    </message>
    <message>
        <source>&amp;Move the model meanwhile</source>
        <translation>&amp;Modell dabei bewegen</translation>
    </message>
    <message>
        <source>&amp;First frame</source>
        <translation>E&amp;rster Frame</translation>
    </message>
    <message>
        <source>The frames that are selected on the timeline, at first; otherwise all of the animation</source>
        <translation>Zuerst die Frames, die auf der Zeitleiste ausgewählt sind; sonst alle der Animation</translation>
    </message>
    <message>
        <source>&amp;Last frame</source>
        <translation>&amp;Letzter Frame</translation>
    </message>
    <message>
        <source>St&amp;ep</source>
        <translation>S&amp;chrittweite</translation>
    </message>
    <message>
        <source>From one frame to the next: 2 leaves out every other one</source>
        <translation>Von einem Frame zum nächsten: 2 lässt jeden zweiten aus</translation>
    </message>
    <message>
        <source>F&amp;older</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>The folder for the pictures; it is made where there is none</source>
        <translation>Der Ordner für die Bilder; er wird angelegt, wo es ihn nicht gibt</translation>
    </message>
    <message>
        <source>&amp;Browse…</source>
        <translation>&amp;Durchsuchen…</translation>
    </message>
    <message>
        <source>Choose the folder for the pictures</source>
        <translation>Den Ordner für die Bilder wählen</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>What the names of the pictures begin with; their number follows</source>
        <translation>Womit die Namen der Bilder beginnen; ihre Nummer folgt</translation>
    </message>
    <message>
        <source>This is no whole path of a folder.</source>
        <translation>Das ist kein vollständiger Pfad eines Ordners.</translation>
    </message>
    <message>
        <source>This is no name of a file.</source>
        <translation>Das ist kein Name einer Datei.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>%1 to %2 (pictures: %3)</source>
        <translation>%1 bis %2 (Bilder: %3)</translation>
    </message>
    <message>
        <source>Folder for the Pictures</source>
        <translation>Ordner für die Bilder</translation>
    </message>
</context>
<context>
    <name>PicturePopup</name>
    <message>
        <source>The texture is being read.</source>
        <translation>Die Textur wird gelesen.</translation>
    </message>
    <message>
        <source>The texture cannot be read.</source>
        <translation>Die Textur kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 × %2, %3</source>
        <translation>%1 × %2, %3</translation>
    </message>
</context>
<context>
    <name>PictureSaver</name>
    <message>
        <source>Save Pictur&amp;e…</source>
        <translation>Bild speicher&amp;n…</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>PNG pictures (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>The picture was saved as %1</source>
        <translation>Das Bild wurde als %1 gespeichert</translation>
    </message>
    <message>
        <source>[Save Picture] &apos;%1&apos;: %2</source>
        <translation>[Bild speichern] „%1“: %2</translation>
    </message>
    <message>
        <source>Save what the view shows as a picture, or as many for a video</source>
        <translation>Speichert, was die Ansicht zeigt, als Bild, oder als viele für ein Video</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>bild</translation>
    </message>
</context>
<context>
    <name>PosedModel</name>
    <message>
        <source>%1: There is no skinned mesh of this name for the animation.</source>
        <translation>%1: Zur Animation gibt es kein Skinned Mesh dieses Namens.</translation>
    </message>
    <message>
        <source>%1: This is no mesh.</source>
        <translation>%1: Das ist kein Mesh.</translation>
    </message>
    <message>
        <source>%1: A static mesh has no animation.</source>
        <translation>%1: Ein statisches Mesh hat keine Animation.</translation>
    </message>
    <message>
        <source>%1: This is no animation.</source>
        <translation>%1: Das ist keine Animation.</translation>
    </message>
    <message>
        <source>%1: The animation does not have as many bones as &apos;%2&apos;.</source>
        <translation>%1: Die Animation hat nicht so viele Knochen wie „%2“.</translation>
    </message>
    <message>
        <source>%1: There is no animation to take a block or a frame of.</source>
        <translation>%1: Es gibt keine Animation, aus der ein Block oder ein Frame zu nehmen wäre.</translation>
    </message>
    <message>
        <source>%1: There is no block %2, only %3 of them.</source>
        <translation>%1: Es gibt keinen Block %2, nur %3 davon.</translation>
    </message>
    <message>
        <source>%1: Block %2 has no frame %3, only %4 of them.</source>
        <translation>%1: Block %2 hat keinen Frame %3, nur %4 davon.</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Setup Folder Paths</source>
        <translation>Ordnerpfade einrichten</translation>
    </message>
    <message>
        <source>Please setup your folder paths before using Korvane. Thank you!</source>
        <translation>Bitte richten Sie Ihre Ordnerpfade ein, bevor Sie Korvane verwenden. Vielen Dank!</translation>
    </message>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation>Öffnen fehlgeschlagen
%1</translation>
    </message>
    <message>
        <source>Game Folder</source>
        <translation>Spielordner</translation>
    </message>
    <message>
        <source>The options have this archive as the game folder already.

%1</source>
        <translation>Dieses Archiv ist in den Optionen schon als Spielordner eingestellt.

%1</translation>
    </message>
    <message>
        <source>Use this archive as the game folder?

%1</source>
        <translation>Dieses Archiv als Spielordner verwenden?

%1</translation>
    </message>
    <message>
        <source>Models, materials and textures of the game are read from it then. Nothing is written into it.</source>
        <translation>Modelle, Materialien und Texturen des Spiels werden dann daraus gelesen. Hineingeschrieben wird nichts.</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>[Problems] &apos;%1&apos; was not searched: %2</source>
        <translation>[Probleme] „%1“ wurde nicht durchsucht: %2</translation>
    </message>
</context>
<context>
    <name>ProblemsButton</name>
    <message>
        <source>No problems</source>
        <translation>Keine Probleme</translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation>Probleme: %1</translation>
    </message>
    <message>
        <source>Show what is wrong with the open files (errors: %1, warnings: %2, notes: %3)</source>
        <translation>Zeigen, was an den geöffneten Dateien nicht stimmt (Fehler: %1, Warnungen: %2, Hinweise: %3)</translation>
    </message>
    <message>
        <source>Show what is wrong with the mod and the open files (errors: %1, warnings: %2, notes: %3)</source>
        <translation>Zeigen, was an der Mod und den geöffneten Dateien nicht stimmt (Fehler: %1, Warnungen: %2, Hinweise: %3)</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>List errors: the file cannot be saved or used as it stands</source>
        <translation>Fehler auflisten: Die Datei kann so nicht gespeichert oder verwendet werden</translation>
    </message>
    <message>
        <source>List warnings: a part of the model does not do what it says</source>
        <translation>Warnungen auflisten: Ein Teil des Modells tut nicht, was er angibt</translation>
    </message>
    <message>
        <source>List notes: nothing goes wrong</source>
        <translation>Hinweise auflisten: Nichts geht schief</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>&amp;Fix</source>
        <translation>&amp;Beheben</translation>
    </message>
    <message>
        <source>Fix &amp;All of This Kind</source>
        <translation>&amp;Alle dieser Art beheben</translation>
    </message>
    <message>
        <source>Repair every problem of this kind in this file</source>
        <translation>Jedes Problem dieser Art in dieser Datei beheben</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation>Fehler: %1</translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation>Warnungen: %1</translation>
    </message>
    <message>
        <source>Notes: %1</source>
        <translation>Hinweise: %1</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>Es ist keine Datei geöffnet.</translation>
    </message>
    <message>
        <source>All problems are hidden by the buttons above.</source>
        <translation>Alle Probleme sind durch die Knöpfe oben ausgeblendet.</translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation>Keine Probleme gefunden.</translation>
    </message>
    <message>
        <source>Repair what is selected, where there is only one way to do it</source>
        <translation>Das Ausgewählte beheben, wo es nur einen Weg dazu gibt</translation>
    </message>
    <message>
        <source>Silence This Rule for This F&amp;ile</source>
        <translation>Diese Regel für diese &amp;Datei stummschalten</translation>
    </message>
    <message>
        <source>Write into %1 of the mod that this is as it should be in this file</source>
        <translation>In %1 der Mod schreiben, dass dies in dieser Datei so sein soll</translation>
    </message>
    <message>
        <source>Silence This Rule &amp;Everywhere</source>
        <translation>Diese Regel übera&amp;ll stummschalten</translation>
    </message>
    <message>
        <source>Write into %1 of the mod that nothing of this kind is to be told</source>
        <translation>In %1 der Mod schreiben, dass nichts dieser Art gemeldet werden soll</translation>
    </message>
    <message>
        <source>&amp;Hear This Rule Again</source>
        <translation>Diese Regel wieder &amp;melden</translation>
    </message>
    <message>
        <source>Take out of %1 what silences this</source>
        <translation>Aus %1 nehmen, was dies stummschaltet</translation>
    </message>
    <message>
        <source>List Si&amp;lenced</source>
        <translation>&amp;Stummgeschaltete auflisten</translation>
    </message>
    <message>
        <source>List what %1 of the mod silences, too</source>
        <translation>Auch auflisten, was %1 der Mod stummschaltet</translation>
    </message>
    <message>
        <source>List what is wrong with all files in the mod&apos;s folder, too</source>
        <translation>Auch auflisten, was an allen Dateien im Mod-Ordner nicht stimmt</translation>
    </message>
    <message>
        <source>Silenced: %1</source>
        <translation>Stumm: %1</translation>
    </message>
    <message>
        <source>The mod is being checked.</source>
        <translation>Die Mod wird geprüft.</translation>
    </message>
    <message>
        <source>The check of the mod was stopped. Refresh Folders (F5) starts it again.</source>
        <translation>Die Prüfung der Mod wurde abgebrochen. Ordner neu einlesen (F5) beginnt sie von Neuem.</translation>
    </message>
    <message>
        <source>The options name no mod folder.</source>
        <translation>Die Optionen nennen keinen Mod-Ordner.</translation>
    </message>
    <message>
        <source>%1 silences &apos;%2&apos; in the whole mod.</source>
        <translation>%1 schaltet „%2“ in der ganzen Mod stumm.</translation>
    </message>
    <message>
        <source>%1 silences &apos;%2&apos; for &apos;%3&apos;.</source>
        <translation>%1 schaltet „%2“ für „%3“ stumm.</translation>
    </message>
    <message>
        <source>%1 silences &apos;%2&apos; for &apos;%3&apos; no more.</source>
        <translation>%1 schaltet „%2“ für „%3“ nicht mehr stumm.</translation>
    </message>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to write %1</source>
        <translation>%1 konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Check Whole &amp;Mod</source>
        <translation>&amp;Ganze Mod prüfen</translation>
    </message>
    <message>
        <source>Whole Mod</source>
        <translation>Ganze Mod</translation>
    </message>
</context>
<context>
    <name>ProblemsList</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Stelle</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Silenced: %1</source>
        <translation>Stumm: %1</translation>
    </message>
    <message>
        <source>Silenced (%1): %2</source>
        <translation>Stumm (%1): %2</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>Regel: %1</translation>
    </message>
</context>
<context>
    <name>PropertyPage</name>
    <message>
        <source>Surface %1 Properties</source>
        <translation>Eigenschaften von Fläche %1</translation>
    </message>
    <message>
        <source>Surface %1 - Triangle Index %2 Properties</source>
        <translation>Eigenschaften von Fläche %1 - Dreiecksindex %2</translation>
    </message>
    <message>
        <source>Vertex at this corner of the triangle (0 to %1)</source>
        <translation>Vertex an dieser Ecke des Dreiecks (0 bis %1)</translation>
    </message>
    <message>
        <source>Vertex %1 Properties</source>
        <translation>Eigenschaften von Vertex %1</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>Nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Of %1: %2</source>
        <translation>Bei %1: %2</translation>
    </message>
    <message>
        <source>%1 numbers do not fit into %2 fields.</source>
        <translation>%1 Zahlen passen nicht in %2 Felder.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Exporting &apos;%1&apos;</source>
        <translation>„%1“ wird exportiert</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QuestionMenu</name>
    <message>
        <source>What Actor is this?</source>
        <translation>Welcher Akteur ist das?</translation>
    </message>
    <message>
        <source>Actor</source>
        <translation>Akteur</translation>
    </message>
    <message>
        <source>What Animation is this?</source>
        <translation>Welche Animation ist das?</translation>
    </message>
    <message>
        <source>Animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>What Sound is this?</source>
        <translation>Welcher Sound ist das?</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>What Voice is this?</source>
        <translation>Welche Stimme ist das?</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>What Particle is this?</source>
        <translation>Welcher Partikel ist das?</translation>
    </message>
    <message>
        <source>Particle</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>What Impact Type is this?</source>
        <translation>Welcher Aufpralltyp ist das?</translation>
    </message>
    <message>
        <source>Impact Types</source>
        <translation>Aufpralltypen</translation>
    </message>
    <message>
        <source>How much damage is this?</source>
        <translation>Wie viel Schaden ist das?</translation>
    </message>
    <message>
        <source>Actual Damage</source>
        <translation>Tatsächlicher Schaden</translation>
    </message>
    <message>
        <source>QObject is not a spinbox or DoubleSpinbox </source>
        <translation>Das QObject ist weder SpinBox noch DoubleSpinBox </translation>
    </message>
    <message>
        <source>Failed to check Spinbox ID</source>
        <translation>Die SpinBox konnte nicht geprüft werden</translation>
    </message>
    <message>
        <source>Failed to check DoubleSpinbox ID</source>
        <translation>Die DoubleSpinBox konnte nicht geprüft werden</translation>
    </message>
    <message>
        <source>%1 is %2 damage (Value is divided by 256)

Head (x10): %3
Neck (x5): %4
Body (x1): %2
Arms and Legs(x0.5): %5
Hands and Feet(x0.25): %6</source>
        <translation>%1 ist %2 Schaden (der Wert wird durch 256 geteilt)

Kopf (x10): %3
Hals (x5): %4
Rumpf (x1): %2
Arme und Beine (x0.5): %5
Hände und Füße (x0.25): %6</translation>
    </message>
    <message>
        <source>Number Fields</source>
        <translation>Zahlenfelder</translation>
    </message>
</context>
<context>
    <name>ReadingSign</name>
    <message>
        <source>Reading the folder</source>
        <translation>Der Ordner wird gelesen</translation>
    </message>
    <message>
        <source>Stop reading the folder</source>
        <translation>Das Lesen des Ordners abbrechen</translation>
    </message>
</context>
<context>
    <name>ReadyPage</name>
    <message>
        <source>Ready for the game</source>
        <translation>Spielfertig</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>Skali&amp;erung</translation>
    </message>
    <message>
        <source>Units of the game to one of the file. It is proposed for each file.</source>
        <translation>Einheiten des Spiels auf eine der Datei. Sie wird für jede Datei vorgeschlagen.</translation>
    </message>
    <message>
        <source>&amp;Frames a second</source>
        <translation>Frames pro Sekun&amp;de</translation>
    </message>
    <message>
        <source>How many poses of a second are kept</source>
        <translation>Wie viele Posen einer Sekunde behalten werden</translation>
    </message>
    <message>
        <source>As in the fil&amp;e</source>
        <translation>&amp;Wie in der Datei</translation>
    </message>
    <message>
        <source>What each animation says, if it is between 10 and 60; 30 else</source>
        <translation>Was jede Animation angibt, wenn es zwischen 10 und 60 liegt; sonst 30</translation>
    </message>
    <message>
        <source>&amp;Animations</source>
        <translation>&amp;Animationen</translation>
    </message>
    <message>
        <source>A&amp;ll</source>
        <translation>A&amp;lle</translation>
    </message>
    <message>
        <source>Take all animations</source>
        <translation>Alle Animationen nehmen</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>Kei&amp;ne</translation>
    </message>
    <message>
        <source>Take no animation, just the pose at rest</source>
        <translation>Keine Animation nehmen, nur die Ruhepose</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Those with a mark are taken. Space changes the mark of the selected ones.</source>
        <translation>Die mit einem Haken werden genommen. Die Leertaste ändert den Haken der ausgewählten.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Schleife</translation>
    </message>
    <message>
        <source>Loo&amp;p of the selected</source>
        <translation>Schleife &amp;bei Auswahl</translation>
    </message>
    <message>
        <source>Whether the selected animations begin anew at their end</source>
        <translation>Ob die ausgewählten Animationen an ihrem Ende von vorn beginnen</translation>
    </message>
    <message>
        <source>Where it closes</source>
        <translation>Wo sie sich schließt</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Immer</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>%1 units; a person is about 200 high</source>
        <translation>%1 Einheiten; eine Person ist etwa 200 hoch</translation>
    </message>
    <message>
        <source>Extra &amp;bones where one does not do</source>
        <translation>&amp;Zusatzknochen, wo einer nicht reicht</translation>
    </message>
    <message>
        <source>A vertex of the game follows one bone. Those that several bones or stretched ones move, and that would be off by more than 1 % of the model&apos;s size, get bones of their own, up to 128 in all. The animation file grows.</source>
        <translation>Im Spiel folgt ein Vertex einem Knochen. Vertices, die mehrere oder gestreckte Knochen bewegen und die um mehr als 1 % der Modellgröße daneben lägen, bekommen eigene Knochen, bis zu 128 insgesamt. Die Animationsdatei wird größer.</translation>
    </message>
    <message>
        <source>Up axis</source>
        <translation>Achse nach oben</translation>
    </message>
    <message>
        <source>Which axis of the file points up. It is proposed for each file: z where its format has it so, such as SMD and STL, and y else. The other one sets upright what arrives lying down.</source>
        <translation>Welche Achse der Datei nach oben zeigt. Sie wird für jede Datei vorgeschlagen: z, wo das Format es so hat, etwa SMD und STL, sonst y. Die andere richtet auf, was liegend ankommt.</translation>
    </message>
    <message>
        <source>Y is up in the file</source>
        <translation>In der Datei ist Y oben</translation>
    </message>
    <message>
        <source>Z is up in the file</source>
        <translation>In der Datei ist Z oben</translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No file was opened yet</source>
        <translation>Es wurde noch keine Datei geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation>Diese Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Materials</source>
        <translation>Materialien</translation>
    </message>
</context>
<context>
    <name>RecordEdits</name>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Verdoppeln</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>The text of the clipboard cannot be pasted here. Line %1, column %2: %3</source>
        <translation>Der Text der Zwischenablage kann hier nicht eingefügt werden. Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>hot points</source>
        <translation>Hotpoints</translation>
    </message>
    <message>
        <source>child bones</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>key frame actions</source>
        <translation>Keyframe-Aktionen</translation>
    </message>
    <message>
        <source>The clipboard holds %1, not %2.</source>
        <translation>Die Zwischenablage enthält %1, nicht %2.</translation>
    </message>
    <message>
        <source>The animations of the mesh are another file and have its bones as they were: change them there, too.</source>
        <translation>Die Animationen des Meshs stehen in einer anderen Datei und haben seine Knochen wie zuvor: Ändern Sie sie auch dort.</translation>
    </message>
    <message>
        <source>&quot;numbers&quot; was expected: those of the bones.</source>
        <translation>&quot;numbers&quot; wurde erwartet: die Nummern der Knochen.</translation>
    </message>
    <message>
        <source>The mesh has no bone that these could hang on.</source>
        <translation>Das Mesh hat keinen Knochen, an dem diese hängen könnten.</translation>
    </message>
    <message>
        <source>A surface of the clipboard has a corner at vertex %1, and the mesh has %2 vertices. Surfaces come without vertices: paste them into the model they were copied of.</source>
        <translation>Eine Fläche der Zwischenablage hat eine Ecke bei Vertex %1, und das Mesh hat %2 Vertices. Flächen kommen ohne Vertices: Fügen Sie sie in das Modell ein, aus dem sie kopiert wurden.</translation>
    </message>
    <message>
        <source>The last surface stays: the file format keeps no vertices without one.</source>
        <translation>Die letzte Fläche bleibt: Ohne sie bewahrt das Dateiformat keine Vertices.</translation>
    </message>
    <message>
        <source>Copy Hot Point</source>
        <translation>Hotpoint kopieren</translation>
    </message>
    <message>
        <source>Paste Hot Point</source>
        <translation>Hotpoint einfügen</translation>
    </message>
    <message>
        <source>Copy Child Bone</source>
        <translation>Kindknochen kopieren</translation>
    </message>
    <message>
        <source>Paste Child Bone</source>
        <translation>Kindknochen einfügen</translation>
    </message>
    <message>
        <source>bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Copy Bone</source>
        <translation>Knochen kopieren</translation>
    </message>
    <message>
        <source>Paste Bone</source>
        <translation>Knochen einfügen</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>Copy Surface</source>
        <translation>Fläche kopieren</translation>
    </message>
    <message>
        <source>Paste Surface</source>
        <translation>Fläche einfügen</translation>
    </message>
    <message>
        <source>Copy Animation</source>
        <translation>Animation kopieren</translation>
    </message>
    <message>
        <source>Paste Animation</source>
        <translation>Animation einfügen</translation>
    </message>
    <message>
        <source>translation tracks</source>
        <translation>Translationsspuren</translation>
    </message>
    <message>
        <source>Copy Translation Track</source>
        <translation>Translationsspur kopieren</translation>
    </message>
    <message>
        <source>Paste Translation Track</source>
        <translation>Translationsspur einfügen</translation>
    </message>
    <message>
        <source>rotation tracks</source>
        <translation>Rotationsspuren</translation>
    </message>
    <message>
        <source>Copy Rotation Track</source>
        <translation>Rotationsspur kopieren</translation>
    </message>
    <message>
        <source>Paste Rotation Track</source>
        <translation>Rotationsspur einfügen</translation>
    </message>
    <message>
        <source>Copy Key Frame Action</source>
        <translation>Keyframe-Aktion kopieren</translation>
    </message>
    <message>
        <source>Paste Key Frame Action</source>
        <translation>Keyframe-Aktion einfügen</translation>
    </message>
    <message>
        <source>The animation has room for %1 tracks; it would have %2.</source>
        <translation>Die Animation hat Platz für %1 Spuren; es wären %2.</translation>
    </message>
    <message>
        <source>Bones that followed what was cut keep their initial position: %1.</source>
        <translation>Knochen, die dem Ausgeschnittenen folgten, behalten ihre Anfangsposition: %1.</translation>
    </message>
    <message>
        <source>Bones that followed what was cut keep their initial rotation: %1.</source>
        <translation>Knochen, die dem Ausgeschnittenen folgten, behalten ihre Anfangsrotation: %1.</translation>
    </message>
    <message>
        <source>No bone follows the new tracks yet: enter their numbers on the pages of bones.</source>
        <translation>Noch folgt kein Knochen den neuen Spuren: Geben Sie ihre Nummern auf den Seiten von Knochen ein.</translation>
    </message>
    <message>
        <source>The tracks of the clipboard have %1 keys each, and the animation has %2 frames.</source>
        <translation>Die Spuren der Zwischenablage haben je %1 Keys, und die Animation hat %2 Frames.</translation>
    </message>
    <message>
        <source>A bone follows track %1, which does not exist, but would then. Correct that first; it is among the problems.</source>
        <translation>Ein Knochen folgt der Spur %1, die es nicht gibt, dann aber gäbe. Korrigieren Sie das zuerst; es steht unter den Problemen.</translation>
    </message>
    <message>
        <source>So in all animations with as many bones: %1. The mesh is another file: change its bones there, too.</source>
        <translation>So in allen Animationen mit ebenso vielen Knochen: %1. Das Mesh ist eine andere Datei: Ändern Sie seine Knochen auch dort.</translation>
    </message>
    <message>
        <source>A bone of the clipboard follows track %1, which the animation does not have.</source>
        <translation>Ein Knochen der Zwischenablage folgt Spur %1, die die Animation nicht hat.</translation>
    </message>
    <message>
        <source>The selected tracks are of several animations, whose lengths differ: cut those of one at a time.</source>
        <translation>Die ausgewählten Spuren gehören zu mehreren Animationen, deren Längen verschieden sind: Schneiden Sie jeweils nur die einer Animation aus.</translation>
    </message>
</context>
<context>
    <name>RecordFields</name>
    <message>
        <source>Bounding Box Min</source>
        <translation>Begrenzungsbox Min</translation>
    </message>
    <message>
        <source>Bounding Box Max</source>
        <translation>Begrenzungsbox Max</translation>
    </message>
    <message>
        <source>Head Track Start Bone</source>
        <translation>Kopfdrehung: Startknochen</translation>
    </message>
    <message>
        <source>Head Track End Bone</source>
        <translation>Kopfdrehung: Endknochen</translation>
    </message>
    <message>
        <source>Head Track Factor</source>
        <translation>Kopfdrehung: Faktor</translation>
    </message>
    <message>
        <source>Child Bone</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>Child Bone Index</source>
        <translation>Kindknochen-Index</translation>
    </message>
    <message>
        <source>Position On Bone</source>
        <translation>Position am Knochen</translation>
    </message>
    <message>
        <source>Hot Point Origin %1</source>
        <translation>Hotpoint: Ursprung %1</translation>
    </message>
    <message>
        <source>Bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Hot Point BoneID</source>
        <translation>Hotpoint: Knochen-ID</translation>
    </message>
    <message>
        <source>Deal Damage</source>
        <translation>Schaden verursachen</translation>
    </message>
    <message>
        <source>Hot Point Particle Effect 1</source>
        <translation>Hotpoint: Partikeleffekt 1</translation>
    </message>
    <message>
        <source>Particle Effect 1</source>
        <translation>Partikeleffekt 1</translation>
    </message>
    <message>
        <source>Particle Effect 2</source>
        <translation>Partikeleffekt 2</translation>
    </message>
    <message>
        <source>Hot Point Particle Effect 2</source>
        <translation>Hotpoint: Partikeleffekt 2</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flags</translation>
    </message>
    <message>
        <source>Hot Point Flags</source>
        <translation>Hotpoint: Flags</translation>
    </message>
    <message>
        <source>Symbol Type</source>
        <translation>Symboltyp</translation>
    </message>
    <message>
        <source>Bone Symbol Flags</source>
        <translation>Knochen: Symbol-Flags</translation>
    </message>
    <message>
        <source>Symbol Side</source>
        <translation>Symbolseite</translation>
    </message>
    <message>
        <source>Symbol Part</source>
        <translation>Symbolteil</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Bone Name</source>
        <translation>Knochen: Name</translation>
    </message>
    <message>
        <source>Parent Bone</source>
        <translation>Elternknochen</translation>
    </message>
    <message>
        <source>Parent Bone Index</source>
        <translation>Knochen: Elternknochen-Index</translation>
    </message>
    <message>
        <source>Impact Type</source>
        <translation>Aufpralltyp</translation>
    </message>
    <message>
        <source>Bone Impact Type</source>
        <translation>Knochen: Aufpralltyp</translation>
    </message>
    <message>
        <source>Damage Scale</source>
        <translation>Schadensfaktor</translation>
    </message>
    <message>
        <source>Bone Damage Scale</source>
        <translation>Knochen: Schadensfaktor</translation>
    </message>
    <message>
        <source>Bone Bounding Box Min %1</source>
        <translation>Knochen: Begrenzungsbox Min %1</translation>
    </message>
    <message>
        <source>Bone Bounding Box Max %1</source>
        <translation>Knochen: Begrenzungsbox Max %1</translation>
    </message>
    <message>
        <source>Bone Flags</source>
        <translation>Knochen-Flags</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Surface Material</source>
        <translation>Fläche: Material</translation>
    </message>
    <message>
        <source>Vertex</source>
        <translation>Vertex</translation>
    </message>
    <message>
        <source>Triangle Index</source>
        <translation>Dreiecksindex</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Vertex Position %1</source>
        <translation>Vertex: Position %1</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Vertex Normal %1</source>
        <translation>Vertex: Normale %1</translation>
    </message>
    <message>
        <source>UV</source>
        <translation>UV</translation>
    </message>
    <message>
        <source>Vertex UV %1</source>
        <translation>Vertex: UV %1</translation>
    </message>
    <message>
        <source>Vertex Bone Index</source>
        <translation>Vertex: Knochenindex</translation>
    </message>
    <message>
        <source>Anim ID</source>
        <translation>Anim-ID</translation>
    </message>
    <message>
        <source>Animation AnimID</source>
        <translation>Animation: Anim-ID</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Animation Speed</source>
        <translation>Animation: Geschwindigkeit</translation>
    </message>
    <message>
        <source>Loop Frame</source>
        <translation>Schleifen-Frame</translation>
    </message>
    <message>
        <source>Animation Loop Frame</source>
        <translation>Animation: Schleifen-Frame</translation>
    </message>
    <message>
        <source>Frame Scale</source>
        <translation>Frame-Skalierung</translation>
    </message>
    <message>
        <source>Animation Frame Scale</source>
        <translation>Animation: Frame-Skalierung</translation>
    </message>
    <message>
        <source>Blend Length</source>
        <translation>Überblendlänge</translation>
    </message>
    <message>
        <source>Animation Blend Length</source>
        <translation>Animation: Überblendlänge</translation>
    </message>
    <message>
        <source>Blend Start</source>
        <translation>Überblendstart</translation>
    </message>
    <message>
        <source>Animation Blend Start</source>
        <translation>Animation: Überblendstart</translation>
    </message>
    <message>
        <source>Blend End</source>
        <translation>Überblendende</translation>
    </message>
    <message>
        <source>Animation Blend End</source>
        <translation>Animation: Überblendende</translation>
    </message>
    <message>
        <source>Translation Track</source>
        <translation>Translationsspur</translation>
    </message>
    <message>
        <source>Bone Translation Index</source>
        <translation>Knochen: Translationsindex</translation>
    </message>
    <message>
        <source>Rotation Track</source>
        <translation>Rotationsspur</translation>
    </message>
    <message>
        <source>Bone Rotation Index</source>
        <translation>Knochen: Rotationsindex</translation>
    </message>
    <message>
        <source>Initial Translation</source>
        <translation>Anfangstranslation</translation>
    </message>
    <message>
        <source>Bone Initial Translation %1</source>
        <translation>Knochen: Anfangstranslation %1</translation>
    </message>
    <message>
        <source>Initial Rotation</source>
        <translation>Anfangsrotation</translation>
    </message>
    <message>
        <source>Bone Initial Rotation %1</source>
        <translation>Knochen: Anfangsrotation %1</translation>
    </message>
    <message>
        <source>Yaw Offset</source>
        <translation>Gierversatz</translation>
    </message>
    <message>
        <source>Frame Yaw Offset</source>
        <translation>Frame: Gierversatz</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Translation</translation>
    </message>
    <message>
        <source>Animation Translation %1</source>
        <translation>Animation: Translation %1</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Animation Rotation %1</source>
        <translation>Animation: Rotation %1</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Animation Rotation Angle</source>
        <translation>Animation: Rotationswinkel</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Key Frame Action Frame</source>
        <translation>Keyframe-Aktion: Frame</translation>
    </message>
    <message>
        <source>Event Type</source>
        <translation>Ereignistyp</translation>
    </message>
    <message>
        <source>Key Frame Action Event Type</source>
        <translation>Keyframe-Aktion: Ereignistyp</translation>
    </message>
    <message>
        <source>Key Frame Action Node</source>
        <translation>Keyframe-Aktion: Knochen</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Key Frame Action Offset %1</source>
        <translation>Keyframe-Aktion: Versatz %1</translation>
    </message>
    <message>
        <source>Arg</source>
        <translation>Arg</translation>
    </message>
    <message>
        <source>Key Frame Action Args</source>
        <translation>Keyframe-Aktion: Argumente</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>The file format cannot hold &apos;%1&apos;: only characters of Latin-1.</source>
        <translation>Das Dateiformat kann „%1“ nicht aufnehmen, sondern nur Zeichen aus Latin-1.</translation>
    </message>
    <message>
        <source>The name belongs to the mesh, and is saved with it (Save All).</source>
        <translation>Der Name gehört zum Mesh und wird mit ihm gespeichert (Alle speichern).</translation>
    </message>
    <message>
        <source>Open the mesh to name its animations.</source>
        <translation>Öffnen Sie das Mesh, um seine Animationen zu benennen.</translation>
    </message>
    <message>
        <source>A name has at most %1 characters.</source>
        <translation>Ein Name hat höchstens %1 Zeichen.</translation>
    </message>
</context>
<context>
    <name>RecordFinder</name>
    <message>
        <source>Replace %1 (%2)</source>
        <translation>%1 ersetzen (%2)</translation>
    </message>
    <message>
        <source>The records are being searched.</source>
        <translation>Die Datensätze werden durchsucht.</translation>
    </message>
</context>
<context>
    <name>RecordNotes</name>
    <message>
        <source>particle %1</source>
        <translation>Partikel %1</translation>
    </message>
    <message>
        <source>event %1</source>
        <translation>Ereignis %1</translation>
    </message>
    <message>
        <source>1 triangle</source>
        <translation>1 Dreieck</translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation>%1 Dreiecke</translation>
    </message>
    <message>
        <source>damage %1</source>
        <translation>Schaden %1</translation>
    </message>
    <message>
        <source>triangle %1</source>
        <translation>Dreieck %1</translation>
    </message>
    <message>
        <source>at %1</source>
        <translation>bei %1</translation>
    </message>
    <message>
        <source>bone %1</source>
        <translation>Knochen %1</translation>
    </message>
    <message>
        <source>no bone follows it</source>
        <translation>kein Knochen folgt ihr</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>frame %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source>id %1</source>
        <translation>ID %1</translation>
    </message>
    <message>
        <source>1 frame</source>
        <translation>1 Frame</translation>
    </message>
    <message>
        <source>%1 frames</source>
        <translation>%1 Frames</translation>
    </message>
    <message>
        <source>yaw %1</source>
        <translation>Gieren %1</translation>
    </message>
    <message>
        <source>%1° about %2</source>
        <translation>%1° um %2</translation>
    </message>
    <message>
        <source>1 vertex</source>
        <translation>1 Vertex</translation>
    </message>
    <message>
        <source>%1 vertices</source>
        <translation>%1 Vertices</translation>
    </message>
    <message>
        <source>1 child</source>
        <translation>1 Kind</translation>
    </message>
    <message>
        <source>%1 children</source>
        <translation>%1 Kinder</translation>
    </message>
</context>
<context>
    <name>RecordTableView</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Esc gives it up.</source>
        <translation>Esc gibt es auf.</translation>
    </message>
    <message>
        <source>Not stored. %1</source>
        <translation>Nicht gespeichert. %1</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Order of the &amp;File</source>
        <translation>Reihenfolge der &amp;Datei</translation>
    </message>
    <message>
        <source>Row %1, %2</source>
        <translation>Zeile %1, %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Edit Table</source>
        <translation>Tabelle bearbeiten</translation>
    </message>
    <message>
        <source>%1 rows of %2 cells do not fit from here on.</source>
        <translation>%1 Zeilen mit %2 Zellen passen von hier an nicht hinein.</translation>
    </message>
    <message>
        <source>Paste Cells</source>
        <translation>Zellen einfügen</translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation>Nichts wurde eingefügt. %1</translation>
    </message>
</context>
<context>
    <name>RecordTips</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
</context>
<context>
    <name>Records</name>
    <message>
        <source>Bones (%1)</source>
        <translation>Knochen (%1)</translation>
    </message>
    <message>
        <source>bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Child Bone Indexes (%1)</source>
        <translation>Kindknochen-Indizes (%1)</translation>
    </message>
    <message>
        <source>child</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>Hot Points (%1)</source>
        <translation>Hotpoints (%1)</translation>
    </message>
    <message>
        <source>hot point</source>
        <translation>Hotpoint</translation>
    </message>
    <message>
        <source>Surfaces (%1)</source>
        <translation>Flächen (%1)</translation>
    </message>
    <message>
        <source>surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Triangle Indexes (%1)</source>
        <translation>Dreiecksindizes (%1)</translation>
    </message>
    <message>
        <source>triangle index</source>
        <translation>Dreiecksindex</translation>
    </message>
    <message>
        <source>Vertices (%1)</source>
        <translation>Vertices (%1)</translation>
    </message>
    <message>
        <source>vertex</source>
        <translation>Vertex</translation>
    </message>
    <message>
        <source>Anim %1</source>
        <translation>Anim %1</translation>
    </message>
    <message>
        <source>anim</source>
        <translation>Anim</translation>
    </message>
    <message>
        <source>Frames (%1)</source>
        <translation>Frames (%1)</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Translations (%1)</source>
        <translation>Translationen (%1)</translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation>Spur %1</translation>
    </message>
    <message>
        <source>translation track</source>
        <translation>Translationsspur</translation>
    </message>
    <message>
        <source>Rotations (%1)</source>
        <translation>Rotationen (%1)</translation>
    </message>
    <message>
        <source>rotation track</source>
        <translation>Rotationsspur</translation>
    </message>
    <message>
        <source>Key Frame Actions (%1)</source>
        <translation>Keyframe-Aktionen (%1)</translation>
    </message>
    <message>
        <source>action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>Animation</translation>
    </message>
    <message>
        <source>animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message>
        <source>child bone</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>child bones</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>keys</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>track</source>
        <translation>Spur</translation>
    </message>
    <message>
        <source>actor</source>
        <translation>Akteur</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>Sound</translation>
    </message>
    <message>
        <source>voice</source>
        <translation>Stimme</translation>
    </message>
    <message>
        <source>particle</source>
        <translation>Partikel</translation>
    </message>
    <message>
        <source>impact</source>
        <translation>Aufprall</translation>
    </message>
    <message>
        <source>damage</source>
        <translation>Schaden</translation>
    </message>
    <message>
        <source>mesh</source>
        <translation>Mesh</translation>
    </message>
    <message>
        <source>meshes</source>
        <translation>Meshes</translation>
    </message>
    <message>
        <source>bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>children</source>
        <translation>Kinder</translation>
    </message>
    <message>
        <source>hot points</source>
        <translation>Hotpoints</translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation>Flächen</translation>
    </message>
    <message>
        <source>triangle indexes</source>
        <translation>Dreiecksindizes</translation>
    </message>
    <message>
        <source>vertices</source>
        <translation>Vertices</translation>
    </message>
    <message>
        <source>anims</source>
        <translation>Anims</translation>
    </message>
    <message>
        <source>frames</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>translation tracks</source>
        <translation>Translationsspuren</translation>
    </message>
    <message>
        <source>translation key</source>
        <translation>Translationsschlüssel</translation>
    </message>
    <message>
        <source>translation keys</source>
        <translation>Translationsschlüssel</translation>
    </message>
    <message>
        <source>rotation tracks</source>
        <translation>Rotationsspuren</translation>
    </message>
    <message>
        <source>rotation key</source>
        <translation>Rotationsschlüssel</translation>
    </message>
    <message>
        <source>rotation keys</source>
        <translation>Rotationsschlüssel</translation>
    </message>
    <message>
        <source>actions</source>
        <translation>Aktionen</translation>
    </message>
</context>
<context>
    <name>RecoverDialog</name>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Unsaved work that Korvane has kept. Restoring opens it as a modified document; its file changes only when you save.</source>
        <translation>Nicht gespeicherte Arbeit, die Korvane gesichert hat. Das Wiederherstellen öffnet sie als geändertes Dokument; seine Datei ändert sich erst, wenn Sie speichern.</translation>
    </message>
    <message>
        <source>Kept documents</source>
        <translation>Gesicherte Dokumente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Kept</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Give up the selected documents for good</source>
        <translation>Die ausgewählten Dokumente endgültig aufgeben</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Open the selected documents, one of a kind</source>
        <translation>Die ausgewählten Dokumente öffnen, eines je Art</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translation>(nie gespeichert)</translation>
    </message>
    <message>
        <source>There is no unsaved work beside what is open now.</source>
        <translation>Es gibt keine nicht gespeicherte Arbeit außer dem, was jetzt geöffnet ist.</translation>
    </message>
    <message>
        <source>Delete what was kept of &apos;%1&apos;?</source>
        <translation>Löschen, was von „%1“ gesichert wurde?</translation>
    </message>
    <message>
        <source>Delete what was kept of %1 documents?</source>
        <translation>Löschen, was von %1 Dokumenten gesichert wurde?</translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation>Dies kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>What was kept of &apos;%1&apos; is damaged and cannot be opened.</source>
        <translation>Was von „%1“ gesichert war, ist beschädigt und lässt sich nicht öffnen.</translation>
    </message>
    <message>
        <source>It can be kept, to see what can be saved of it, and is not offered any more:
%1</source>
        <translation>Es kann behalten werden, falls daran etwas zu retten ist, und wird nicht mehr angeboten:
%1</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>[Recovery] Unsaved work cannot be kept: %1</source>
        <translation>[Wiederherstellung] Nicht gespeicherte Arbeit kann nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>[Recovery] What was kept of &apos;%1&apos; is damaged</source>
        <translation>[Wiederherstellung] Was von „%1“ gesichert wurde, ist beschädigt</translation>
    </message>
</context>
<context>
    <name>RecoveryPrompt</name>
    <message>
        <source>Open the newest of each kind as a modified document</source>
        <translation>Das neueste jeder Art als geändertes Dokument öffnen</translation>
    </message>
    <message>
        <source>List all kept work, to restore or delete it</source>
        <translation>Alle gesicherte Arbeit auflisten, um sie wiederherzustellen oder zu löschen</translation>
    </message>
    <message>
        <source>Show what was written down when Korvane ended</source>
        <translation>Zeigen, was festgehalten wurde, als Korvane endete</translation>
    </message>
    <message>
        <source>Hide; File &gt; Recover… lists what is kept</source>
        <translation>Ausblenden; Datei &gt; Wiederherstellen… listet auf, was gesichert ist</translation>
    </message>
    <message>
        <source>Korvane ended unexpectedly. A report was written here; nothing was sent.</source>
        <translation>Korvane wurde unerwartet beendet. Hier wurde ein Bericht geschrieben; gesendet wurde nichts.</translation>
    </message>
    <message>
        <source>Korvane ended unexpectedly. It has kept unsaved work from %1: %2</source>
        <translation>Korvane wurde unerwartet beendet. Es hat nicht gespeicherte Arbeit vom %1 gesichert: %2</translation>
    </message>
    <message>
        <source>Korvane has kept unsaved work from %1: %2</source>
        <translation>Korvane hat nicht gespeicherte Arbeit vom %1 gesichert: %2</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Show All…</source>
        <translation>Alle zeigen…</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation>Bericht zeigen</translation>
    </message>
    <message>
        <source>Delete all of this kept work; files are not touched</source>
        <translation>All diese gesicherte Arbeit löschen; Dateien bleiben unberührt</translation>
    </message>
    <message>
        <source>The newest was restored. Older unsaved work is kept, too: %1</source>
        <translation>Das Neueste ist wiederhergestellt. Auch ältere nicht gespeicherte Arbeit ist gesichert: %1</translation>
    </message>
    <message>
        <source>Korvane has kept unsaved work, but it is damaged.</source>
        <translation>Korvane hat nicht gespeicherte Arbeit gesichert, aber sie ist beschädigt.</translation>
    </message>
    <message>
        <source>Show Damaged…</source>
        <translation>Beschädigte zeigen…</translation>
    </message>
    <message>
        <source>Say what is damaged, to keep its files or delete them</source>
        <translation>Sagen, was beschädigt ist, um die Dateien zu behalten oder zu löschen</translation>
    </message>
    <message>
        <source>%1. Other work that was kept is damaged.</source>
        <translation>%1. Andere gesicherte Arbeit ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>ReferenceTable</name>
    <message>
        <source>Unable to read database file at %1</source>
        <translation>Die Datenbankdatei %1 kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>References</name>
    <message>
        <source>The file names more than any model has.</source>
        <translation>Die Datei nennt mehr, als irgendein Modell hat.</translation>
    </message>
    <message>
        <source>The file cannot be opened.</source>
        <translation>Die Datei kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>A count in the file is negative.</source>
        <translation>Eine Anzahl in der Datei ist negativ.</translation>
    </message>
</context>
<context>
    <name>ReloadPrompt</name>
    <message>
        <source>Open the file anew</source>
        <translation>Die Datei neu öffnen</translation>
    </message>
    <message>
        <source>Go on with what is open; saving replaces the file</source>
        <translation>Mit dem weiterarbeiten, was geöffnet ist; Speichern ersetzt die Datei</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was changed by another program.</source>
        <translation>„%1“ wurde von einem anderen Programm geändert.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; was removed by another program. Saving writes it anew.</source>
        <translation>„%1“ wurde von einem anderen Programm entfernt. Speichern schreibt es neu.</translation>
    </message>
    <message>
        <source>Load &apos;%1&apos; anew, without your unsaved changes?

File &gt; Recover… keeps a copy of them.</source>
        <translation>„%1“ neu laden, ohne Ihre nicht gespeicherten Änderungen?

Datei &gt; Wiederherstellen… sichert eine Kopie davon.</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
</context>
<context>
    <name>RenewableGLWidget</name>
    <message>
        <source>Models cannot be drawn: the system offers no OpenGL.
Look for a driver of the graphics card, or install a software renderer such as Mesa.</source>
        <translation>Modelle können nicht gezeichnet werden: Das System bietet kein OpenGL.
Suchen Sie einen Treiber für die Grafikkarte, oder installieren Sie einen Software-Renderer wie Mesa.</translation>
    </message>
    <message>
        <source>Models are not drawn any more: the graphics driver has failed several times.
Everything else works on. Start Korvane again to see models.</source>
        <translation>Modelle werden nicht mehr gezeichnet: Der Grafiktreiber ist mehrmals ausgefallen.
Alles andere funktioniert weiter. Starten Sie Korvane neu, um Modelle zu sehen.</translation>
    </message>
    <message>
        <source>[Viewport] The graphics driver was reset; the view is built anew</source>
        <translation>[Ansicht] Der Grafiktreiber wurde zurückgesetzt; die Ansicht wird neu aufgebaut</translation>
    </message>
    <message>
        <source>Models cannot be drawn: the system has OpenGL, but gives the window no context of it.
Everything else works on.</source>
        <translation>Modelle können nicht gezeichnet werden: Das System hat OpenGL, gibt dem Fenster aber keinen Kontext.
Alles andere funktioniert weiter.</translation>
    </message>
</context>
<context>
    <name>ReplaceBar</name>
    <message>
        <source>Set:</source>
        <translation>Setzen:</translation>
    </message>
    <message>
        <source>The field that gets another value: the one of the condition, or any other</source>
        <translation>Das Feld, das einen anderen Wert bekommt: das der Bedingung oder ein beliebiges</translation>
    </message>
    <message>
        <source>Field to replace</source>
        <translation>Zu ersetzendes Feld</translation>
    </message>
    <message>
        <source>to:</source>
        <translation>auf:</translation>
    </message>
    <message>
        <source>77, +=5, *=1.5, =x*2+i</source>
        <translation>77, +=5, *=1,5, =x*2+i</translation>
    </message>
    <message>
        <source>A value, a name, or a calculation: x is the old number, i the place among the hits</source>
        <translation>Ein Wert, ein Name oder eine Rechnung: x ist die alte Zahl, i der Platz unter den Treffern</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Give the current hit this value, and go on to the next one</source>
        <translation>Dem aktuellen Treffer diesen Wert geben und zum nächsten gehen</translation>
    </message>
    <message>
        <source>Replace All</source>
        <translation>Alle ersetzen</translation>
    </message>
    <message>
        <source>Give all hits this value, as one undo step a document</source>
        <translation>Allen Treffern diesen Wert geben, als ein Rückgängig-Schritt je Dokument</translation>
    </message>
    <message>
        <source>Find and Replace</source>
        <translation>Suchen und Ersetzen</translation>
    </message>
    <message>
        <source>Nothing was changed. %1: %2</source>
        <translation>Nichts wurde geändert. %1: %2</translation>
    </message>
    <message>
        <source>Nothing was changed: the value is there already.</source>
        <translation>Nichts wurde geändert: Der Wert steht schon da.</translation>
    </message>
    <message>
        <source>Changed records: %1</source>
        <translation>Geänderte Datensätze: %1</translation>
    </message>
    <message>
        <source>Changed records: %1, in %2 documents</source>
        <translation>Geänderte Datensätze: %1, in %2 Dokumenten</translation>
    </message>
</context>
<context>
    <name>ReplaceFilesDialog</name>
    <message>
        <source>Replace in Files</source>
        <translation>In Dateien ersetzen</translation>
    </message>
    <message>
        <source>What would change</source>
        <translation>Was sich ändern würde</translation>
    </message>
    <message>
        <source>File and Record</source>
        <translation>Datei und Datensatz</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Looking through the files: %1</source>
        <translation>Die Dateien werden durchsucht: %1</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Bedingung</translation>
    </message>
    <message>
        <source>actions sound = 1234, surfaces material ~ old/</source>
        <translation>Aktionen Sound = 1234, Flächen Material ~ alt/</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>the field that gets the value</source>
        <translation>das Feld, das den Wert bekommt</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>a value, a name, or a calculation such as *=1.5</source>
        <translation>ein Wert, ein Name oder eine Rechnung wie *=1,5</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Fi&amp;eld:</source>
        <translation>Fel&amp;d:</translation>
    </message>
    <message>
        <source>&amp;New value:</source>
        <translation>Neuer &amp;Wert:</translation>
    </message>
    <message>
        <source>In all files of:</source>
        <translation>In allen Dateien von:</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Auflisten</translation>
    </message>
    <message>
        <source>List what would change; nothing is written</source>
        <translation>Auflisten, was sich ändern würde; nichts wird geschrieben</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Write the files that are ticked; Edit ▸ Replacements in Files… undoes it</source>
        <translation>Die angehakten Dateien schreiben; Bearbeiten ▸ Ersetzungen in Dateien… macht es rückgängig</translation>
    </message>
    <message>
        <source>The mod&apos;s folder is not set: Edit ▸ Options names it.</source>
        <translation>Der Ordner des Mods ist nicht festgelegt: Bearbeiten ▸ Optionen nennt ihn.</translation>
    </message>
    <message>
        <source>Nothing is written before you have seen what would change.</source>
        <translation>Nichts wird geschrieben, bevor Sie gesehen haben, was sich ändern würde.</translation>
    </message>
    <message>
        <source>It is open and has unsaved changes.</source>
        <translation>Sie ist geöffnet und hat nicht gespeicherte Änderungen.</translation>
    </message>
    <message>
        <source>Nothing to replace. Files looked through: %1.</source>
        <translation>Nichts zu ersetzen. Durchsuchte Dateien: %1.</translation>
    </message>
    <message>
        <source>Values that would change: %1; files: %2.</source>
        <translation>Werte, die sich ändern würden: %1; Dateien: %2.</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Werte: %1</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Given up.</source>
        <translation>Aufgegeben.</translation>
    </message>
    <message>
        <source>Replacing in files</source>
        <translation>In Dateien wird ersetzt</translation>
    </message>
    <message>
        <source>Nothing was changed. %1</source>
        <translation>Nichts wurde geändert. %1</translation>
    </message>
    <message>
        <source>Broken off. Edit ▸ Replacements in Files… ends it, or takes it back.</source>
        <translation>Abgebrochen. Bearbeiten ▸ Ersetzungen in Dateien… führt es zu Ende oder macht es rückgängig.</translation>
    </message>
    <message>
        <source>Replaced. Files: %1. Edit ▸ Replacements in Files… undoes it.</source>
        <translation>Ersetzt. Dateien: %1. Bearbeiten ▸ Ersetzungen in Dateien… macht es rückgängig.</translation>
    </message>
    <message>
        <source>Values that would change: %1; files: %2. Left out: %3.</source>
        <translation>Werte, die sich ändern würden: %1; Dateien: %2. Ausgelassen: %3.</translation>
    </message>
</context>
<context>
    <name>ReplacePrompt</name>
    <message>
        <source>%1
… and %2 more</source>
        <translation>%1
… und %2 weitere</translation>
    </message>
    <message>
        <source>Use &amp;Free Names</source>
        <translation>&amp;Freie Namen verwenden</translation>
    </message>
    <message>
        <source>These files exist already. Replace them?

%1</source>
        <translation>Diese Dateien gibt es schon. Sollen sie ersetzt werden?

%1</translation>
    </message>
    <message>
        <source>Leaves these files alone and puts a number to the new names: steel_2.png</source>
        <translation>Lässt diese Dateien in Ruhe und hängt den neuen Namen eine Zahl an: steel_2.png</translation>
    </message>
    <message>
        <source>&amp;Keep the other materials of the .kmat file (%1)</source>
        <translation>Die &amp;übrigen Materialien der .kmat-Datei behalten (%1)</translation>
    </message>
</context>
<context>
    <name>Replacement</name>
    <message>
        <source>&apos;%1&apos; is several fields: name one of them.</source>
        <translation>„%1“ sind mehrere Felder: Nennen Sie eines davon.</translation>
    </message>
    <message>
        <source>It has no &apos;%1&apos;.</source>
        <translation>Es hat kein „%1“.</translation>
    </message>
    <message>
        <source>It does not exist any more.</source>
        <translation>Es existiert nicht mehr.</translation>
    </message>
    <message>
        <source>Several things are called &apos;%1&apos;.</source>
        <translation>Mehrere heißen „%1“.</translation>
    </message>
    <message>
        <source>The field to replace is missing.</source>
        <translation>Das zu ersetzende Feld fehlt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no field.</source>
        <translation>„%1“ ist kein Feld.</translation>
    </message>
</context>
<context>
    <name>RotateDialog</name>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s y axis</source>
        <translation>Grad um die y-Achse des Modells</translation>
    </message>
    <message>
        <source>-90</source>
        <translation>-90</translation>
    </message>
    <message>
        <source>Turn by -90 degrees at once</source>
        <translation>Sofort um -90 Grad drehen</translation>
    </message>
    <message>
        <source>+90</source>
        <translation>+90</translation>
    </message>
    <message>
        <source>Turn by +90 degrees at once</source>
        <translation>Sofort um +90 Grad drehen</translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s x axis</source>
        <translation>Grad um die x-Achse des Modells</translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s z axis</source>
        <translation>Grad um die z-Achse des Modells</translation>
    </message>
    <message>
        <source>&amp;Yaw</source>
        <translation>&amp;Gieren</translation>
    </message>
    <message>
        <source>Yaw: -90 degrees</source>
        <translation>Gieren: -90 Grad</translation>
    </message>
    <message>
        <source>Yaw: +90 degrees</source>
        <translation>Gieren: +90 Grad</translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation>&amp;Nicken</translation>
    </message>
    <message>
        <source>Pitch: -90 degrees</source>
        <translation>Nicken: -90 Grad</translation>
    </message>
    <message>
        <source>Pitch: +90 degrees</source>
        <translation>Nicken: +90 Grad</translation>
    </message>
    <message>
        <source>&amp;Roll</source>
        <translation>&amp;Rollen</translation>
    </message>
    <message>
        <source>Roll: -90 degrees</source>
        <translation>Rollen: -90 Grad</translation>
    </message>
    <message>
        <source>Roll: +90 degrees</source>
        <translation>Rollen: +90 Grad</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>SaveGuard</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&apos;%1&apos; belongs to the game folder.</source>
        <translation>„%1“ gehört zum Spielordner.</translation>
    </message>
    <message>
        <source>There is no mod folder that it could be saved into; the options set one.</source>
        <translation>Es gibt keinen Mod-Ordner, in den gespeichert werden könnte; die Optionen legen einen fest.</translation>
    </message>
    <message>
        <source>In the mod folder it would be
%1</source>
        <translation>Im Mod-Ordner wäre es
%1</translation>
    </message>
    <message>
        <source>&amp;Overwrite</source>
        <translation>Ü&amp;berschreiben</translation>
    </message>
    <message>
        <source>Save into the &amp;Mod</source>
        <translation>In den &amp;Mod speichern</translation>
    </message>
    <message>
        <source>In the mod folder a link in its place leads back there:
%1</source>
        <translation>Im Mod-Ordner führt an dieser Stelle ein Link dorthin zurück:
%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has changed since this work began. Replace it by what is open here?</source>
        <translation>„%1“ hat sich geändert, seit diese Arbeit begonnen wurde. Durch das ersetzen, was hier geöffnet ist?</translation>
    </message>
    <message>
        <source>&apos;%1&apos; stands in an archive, which is never written.</source>
        <translation>„%1“ steht in einem Archiv, in das nie geschrieben wird.</translation>
    </message>
</context>
<context>
    <name>SavePath</name>
    <message>
        <source>File error</source>
        <translation>Dateifehler</translation>
    </message>
    <message>
        <source>Failed to save
%1</source>
        <translation>Speichern fehlgeschlagen
%1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; exists already. Replace it?</source>
        <translation>„%1“ gibt es schon. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>ScaleDialog</name>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>The factor for every position and box</source>
        <translation>Der Faktor für jede Position und Box</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Skalierung</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
</context>
<context>
    <name>SequenceSaver</name>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>%1 of the pictures exist already, the first as &apos;%2&apos;. Replace them?</source>
        <translation>%1 der Bilder gibt es schon, das erste als „%2“. Sollen sie ersetzt werden?</translation>
    </message>
    <message>
        <source>the graphics driver cannot paint a picture of %1 by %2 pixels</source>
        <translation>der Grafiktreiber kann kein Bild von %1 mal %2 Pixeln malen</translation>
    </message>
    <message>
        <source>The folder cannot be made.</source>
        <translation>Der Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Saving pictures in &apos;%1&apos;</source>
        <translation>Bilder werden in „%1“ gespeichert</translation>
    </message>
    <message>
        <source>[Save Picture] &apos;%1&apos;: %2</source>
        <translation>[Bild speichern] „%1“: %2</translation>
    </message>
    <message>
        <source>Pictures saved in %1: %2 of %3</source>
        <translation>Bilder gespeichert in %1: %2 von %3</translation>
    </message>
</context>
<context>
    <name>ServerListQuery</name>
    <message>
        <source>the look-up takes too long</source>
        <translation>die Namensauflösung dauert zu lange</translation>
    </message>
    <message>
        <source>The master server did not answer.</source>
        <translation>Der Master-Server hat nicht geantwortet.</translation>
    </message>
    <message>
        <source>[Query Servers] No master server is set</source>
        <translation>[Serverabfrage] Es ist kein Master-Server eingestellt</translation>
    </message>
    <message>
        <source>No master server is set. Its name belongs under MasterServerHost in %1.</source>
        <translation>Es ist kein Master-Server eingestellt. Sein Name gehört unter MasterServerHost in %1.</translation>
    </message>
    <message>
        <source>Failed to obtain address from %1 - %2</source>
        <translation>Die Adresse von %1 war nicht zu ermitteln - %2</translation>
    </message>
    <message>
        <source>The master server %1 was not found.</source>
        <translation>Der Master-Server %1 wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Found address: %1</source>
        <translation>Adresse gefunden: %1</translation>
    </message>
    <message>
        <source>sending server list request %1</source>
        <translation>Anfrage nach der Serverliste wird gesendet: %1</translation>
    </message>
    <message>
        <source>The request could not be sent: %1.</source>
        <translation>Die Anfrage konnte nicht gesendet werden: %1.</translation>
    </message>
    <message>
        <source>Received list of all Servers</source>
        <translation>Liste aller Server erhalten</translation>
    </message>
    <message>
        <source>[Query Servers] Stopped at %1 servers</source>
        <translation>[Serverabfrage] Bei %1 Servern abgebrochen</translation>
    </message>
    <message>
        <source>Found Server: %1</source>
        <translation>Server gefunden: %1</translation>
    </message>
</context>
<context>
    <name>ServersDock</name>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>&amp;Copy Address</source>
        <translation>Adresse &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the addresses and ports of the selected servers</source>
        <translation>Die Adressen und Ports der ausgewählten Server kopieren</translation>
    </message>
    <message>
        <source>1 server</source>
        <translation>1 Server</translation>
    </message>
    <message>
        <source>%1 servers</source>
        <translation>%1 Server</translation>
    </message>
    <message>
        <source>No query yet.</source>
        <translation>Noch keine Abfrage.</translation>
    </message>
    <message>
        <source>Asking the master server…</source>
        <translation>Der Master-Server wird gefragt…</translation>
    </message>
    <message>
        <source>Asking the master server… %1</source>
        <translation>Der Master-Server wird gefragt… %1</translation>
    </message>
    <message>
        <source>No server is running.</source>
        <translation>Es läuft kein Server.</translation>
    </message>
    <message>
        <source>Copied &quot;%1&quot;</source>
        <translation>„%1“ kopiert</translation>
    </message>
    <message>
        <source>Copied %1 addresses</source>
        <translation>%1 Adressen kopiert</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>[Session] &apos;%1&apos; is not there any more</source>
        <translation>[Sitzung] „%1“ gibt es nicht mehr</translation>
    </message>
    <message>
        <source>[Session] Unable to read &apos;%1&apos;</source>
        <translation>[Sitzung] „%1“ kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>[Session] &apos;%1&apos;: %2</source>
        <translation>[Sitzung] „%1“: %2</translation>
    </message>
    <message>
        <source>[Session] &apos;%1&apos; has changed since the last session</source>
        <translation>[Sitzung] „%1“ hat sich seit der letzten Sitzung geändert</translation>
    </message>
</context>
<context>
    <name>SettingsHold</name>
    <message>
        <source>[Settings] &apos;%1&apos; cannot be written: what is set from now on is forgotten at the end.</source>
        <translation>[Einstellungen] „%1“ kann nicht geschrieben werden: Was von jetzt an eingestellt wird, ist am Ende vergessen.</translation>
    </message>
</context>
<context>
    <name>ShadingMenu</name>
    <message>
        <source>S&amp;hading</source>
        <translation>&amp;Schattierung</translation>
    </message>
    <message>
        <source>How the surfaces are drawn</source>
        <translation>Wie die Flächen gezeichnet werden</translation>
    </message>
    <message>
        <source>&amp;Shaded</source>
        <translation>&amp;Schattiert</translation>
    </message>
    <message>
        <source>Draw the surfaces</source>
        <translation>Die Flächen zeichnen</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>&amp;Drahtgitter</translation>
    </message>
    <message>
        <source>Draw the edges of all triangles</source>
        <translation>Die Kanten aller Dreiecke zeichnen</translation>
    </message>
    <message>
        <source>Shaded W&amp;ireframe</source>
        <translation>Schattiertes Draht&amp;gitter</translation>
    </message>
    <message>
        <source>Draw the surfaces and the edges of their triangles</source>
        <translation>Die Flächen und die Kanten ihrer Dreiecke zeichnen</translation>
    </message>
    <message>
        <source>&amp;Textured</source>
        <translation>&amp;Texturiert</translation>
    </message>
    <message>
        <source>Surfaces show their textures alone</source>
        <translation>Flächen zeigen allein ihre Texturen</translation>
    </message>
    <message>
        <source>&amp;Lit</source>
        <translation>&amp;Beleuchtet</translation>
    </message>
    <message>
        <source>A lamp at the camera shows the shape of the surfaces; what has its normals on the wrong side stays dark</source>
        <translation>Eine Lampe an der Kamera zeigt die Form der Flächen; was seine Normalen auf der falschen Seite hat, bleibt dunkel</translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation>&amp;Normalen</translation>
    </message>
    <message>
        <source>Surfaces have the colors of their normals: red along X, green along Y, blue along Z</source>
        <translation>Flächen haben die Farben ihrer Normalen: rot entlang X, grün entlang Y, blau entlang Z</translation>
    </message>
    <message>
        <source>&amp;Vertex Normals</source>
        <translation>&amp;Vertexnormalen</translation>
    </message>
    <message>
        <source>Show the normals of vertices as lines: of the selected surface, or of all when none is selected</source>
        <translation>Die Normalen der Vertices als Linien zeigen: der ausgewählten Fläche oder, wenn keine ausgewählt ist, aller</translation>
    </message>
    <message>
        <source>Sorted Trans&amp;parency</source>
        <translation>Sortierte Trans&amp;parenz</translation>
    </message>
    <message>
        <source>Draw what is half transparent last, from back to front, so that it hides nothing</source>
        <translation>Halb Durchsichtiges zuletzt zeichnen, von hinten nach vorn, damit es nichts verdeckt</translation>
    </message>
    <message>
        <source>Sharp Te&amp;xels</source>
        <translation>Scharfe Te&amp;xel</translation>
    </message>
    <message>
        <source>Show the texels of textures as they are, without smoothing between them</source>
        <translation>Die Texel der Texturen zeigen, wie sie sind, ohne zwischen ihnen zu glätten</translation>
    </message>
    <message>
        <source>Smooth &amp;Edges</source>
        <translation>Glatte &amp;Kanten</translation>
    </message>
    <message>
        <source>Draw with four samples a pixel, which graphics cards do easily</source>
        <translation>Mit vier Abtastpunkten je Pixel zeichnen, was Grafikkarten leicht fällt</translation>
    </message>
    <message>
        <source>Fa&amp;ding Ground</source>
        <translation>A&amp;uslaufender Boden</translation>
    </message>
    <message>
        <source>Let the ground fade out around the model, without an edge or flicker</source>
        <translation>Den Boden um das Modell herum auslaufen lassen, ohne Rand und Flimmern</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
</context>
<context>
    <name>ShortcutsPage</name>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Show only the commands with these words in their name or keys</source>
        <translation>Nur die Befehle mit diesen Wörtern im Namen oder in den Tasten zeigen</translation>
    </message>
    <message>
        <source>Part of a command or of its keys, such as Ctrl+S</source>
        <translation>Teil eines Befehls oder seiner Tasten, etwa Strg+S</translation>
    </message>
    <message>
        <source>Commands and their keys</source>
        <translation>Befehle und ihre Tasten</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>&amp;Keys</source>
        <translation>Taste&amp;n</translation>
    </message>
    <message>
        <source>Press the keys that the command is to have; Tab leaves the field</source>
        <translation>Drücken Sie die Tasten, die der Befehl haben soll; Tab verlässt das Feld</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Let the command have no keys</source>
        <translation>Dem Befehl keine Tasten geben</translation>
    </message>
    <message>
        <source>Rese&amp;t</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Give the command its usual keys</source>
        <translation>Dem Befehl seine üblichen Tasten geben</translation>
    </message>
    <message>
        <source>R&amp;eset All</source>
        <translation>&amp;Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Give all commands their usual keys</source>
        <translation>Allen Befehlen ihre üblichen Tasten geben</translation>
    </message>
    <message>
        <source>Take O&amp;ver</source>
        <translation>Übe&amp;rnehmen</translation>
    </message>
    <message>
        <source>Take these keys from the other command</source>
        <translation>Dem anderen Befehl diese Tasten wegnehmen</translation>
    </message>
    <message>
        <source>%1: %2 and %3</source>
        <translation>%1: %2 und %3</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Commands that share their keys do nothing when these are pressed:

%1

Keep them like this?</source>
        <translation>Befehle, die sich Tasten teilen, tun nichts, wenn diese gedrückt werden:

%1

So lassen?</translation>
    </message>
    <message>
        <source>These keys also belong to %1</source>
        <translation>Diese Tasten gehören auch zu %1</translation>
    </message>
    <message>
        <source>These keys are always the same</source>
        <translation>Diese Tasten sind immer dieselben</translation>
    </message>
    <message>
        <source>Usually without keys</source>
        <translation>Üblicherweise ohne Tasten</translation>
    </message>
    <message>
        <source>Usually %1</source>
        <translation>Üblicherweise %1</translation>
    </message>
    <message>
        <source>These keys also belong to %1.</source>
        <translation>Diese Tasten gehören auch zu %1.</translation>
    </message>
    <message>
        <source>%1 ▸ %2</source>
        <translation>%1 ▸ %2</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
</context>
<context>
    <name>SimilarMenu</name>
    <message>
        <source>Select S&amp;imilar</source>
        <translation>Ähn&amp;liche auswählen</translation>
    </message>
    <message>
        <source>(empty)</source>
        <translation>(leer)</translation>
    </message>
</context>
<context>
    <name>SkinnedMeshCnodePage</name>
    <message>
        <source>Child Bone</source>
        <translation>Kindknochen</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>Bone that hangs on this one and moves with it (0 to 65535)</source>
        <translation>Knochen, der an diesem hängt und sich mit ihm bewegt (0 bis 65535)</translation>
    </message>
    <message>
        <source>Bone %1 - Child Bone Index %2 Properties</source>
        <translation>Eigenschaften von Knochen %1 - Kindknochen-Index %2</translation>
    </message>
</context>
<context>
    <name>SkinnedMeshHPPage</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>&amp;Position On Bone</source>
        <translation>&amp;Position am Knochen</translation>
    </message>
    <message>
        <source>in local model space</source>
        <translation>im lokalen Modellraum</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Position On Bone X</source>
        <translation>Position am Knochen X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Position On Bone Y</source>
        <translation>Position am Knochen Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Position On Bone Z</source>
        <translation>Position am Knochen Z</translation>
    </message>
    <message>
        <source>Bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>&amp;Bone ID</source>
        <translation>&amp;Knochen-ID</translation>
    </message>
    <message>
        <source>which bone to associate this hotpoint to</source>
        <translation>zu welchem Knochen dieser Hotpoint gehört</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Wirkungen</translation>
    </message>
    <message>
        <source>&amp;Deal Damage</source>
        <translation>&amp;Schaden verursachen</translation>
    </message>
    <message>
        <source>Deals damage instead of spawning a first particle effect</source>
        <translation>Verursacht Schaden, statt einen ersten Partikeleffekt zu erzeugen</translation>
    </message>
    <message>
        <source>Particle Effect &amp;1 ID</source>
        <translation>ID Partikeleffekt &amp;1</translation>
    </message>
    <message>
        <source>Particle that the hot point spawns (0 to 65535; 65535 deals damage instead)</source>
        <translation>Partikel, den der Hotpoint erzeugt (0 bis 65535; 65535 verursacht stattdessen Schaden)</translation>
    </message>
    <message>
        <source>Particle Effect &amp;2 ID</source>
        <translation>ID Partikeleffekt &amp;2</translation>
    </message>
    <message>
        <source>Second particle that the hot point spawns (0 to 65535), or the damage that it deals</source>
        <translation>Zweiter Partikel, den der Hotpoint erzeugt (0 bis 65535), oder der Schaden, den er verursacht</translation>
    </message>
    <message>
        <source>The Hot Point Bits</source>
        <translation>Die Hotpoint-Bits</translation>
    </message>
    <message>
        <source>The Hot Point Bits: key frame actions turn hot points on and off by them</source>
        <translation>Die Hotpoint-Bits: Keyframe-Aktionen schalten Hotpoints damit ein und aus</translation>
    </message>
    <message>
        <source>Hot Point %1 Properties</source>
        <translation>Eigenschaften von Hotpoint %1</translation>
    </message>
    <message>
        <source>Damage</source>
        <translation>Schaden</translation>
    </message>
</context>
<context>
    <name>SkinnedMeshNodePage</name>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>The part of the body that the bone belongs to</source>
        <translation>Der Körperteil, zu dem der Knochen gehört</translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation>&amp;Seite</translation>
    </message>
    <message>
        <source>The side of the body, from the character&apos;s own view</source>
        <translation>Die Seite des Körpers, aus der Sicht der Figur</translation>
    </message>
    <message>
        <source>&amp;Part</source>
        <translation>Te&amp;il</translation>
    </message>
    <message>
        <source>Which bone of that part of the body</source>
        <translation>Welcher Knochen dieses Körperteils</translation>
    </message>
    <message>
        <source>Bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Parent &amp;Bone</source>
        <translation>Eltern&amp;knochen</translation>
    </message>
    <message>
        <source>Index of the parent bone; 255 for none</source>
        <translation>Index des Elternknochens; 255 für keinen</translation>
    </message>
    <message>
        <source>&amp;Impact Type</source>
        <translation>Auf&amp;pralltyp</translation>
    </message>
    <message>
        <source>What the bone is made of: sound and particles of a hit</source>
        <translation>Woraus der Knochen besteht: Sound und Partikel eines Treffers</translation>
    </message>
    <message>
        <source>&amp;Damage Scale</source>
        <translation>Schadens&amp;faktor</translation>
    </message>
    <message>
        <source>Factor on the damage of a hit on this bone</source>
        <translation>Faktor für den Schaden eines Treffers an diesem Knochen</translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation>Begrenzungsbox</translation>
    </message>
    <message>
        <source>Mi&amp;n</source>
        <translation>Mi&amp;n</translation>
    </message>
    <message>
        <source>Smallest corner of the bone&apos;s box, in the bone&apos;s space</source>
        <translation>Kleinste Ecke der Box des Knochens, im Raum des Knochens</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Min X</source>
        <translation>Min X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Min Y</source>
        <translation>Min Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Min Z</source>
        <translation>Min Z</translation>
    </message>
    <message>
        <source>M&amp;ax</source>
        <translation>&amp;Max</translation>
    </message>
    <message>
        <source>Largest corner of the bone&apos;s box, in the bone&apos;s space</source>
        <translation>Größte Ecke der Box des Knochens, im Raum des Knochens</translation>
    </message>
    <message>
        <source>Max X</source>
        <translation>Max X</translation>
    </message>
    <message>
        <source>Max Y</source>
        <translation>Max Y</translation>
    </message>
    <message>
        <source>Max Z</source>
        <translation>Max Z</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flags</translation>
    </message>
    <message>
        <source>The bone&apos;s 32 flags</source>
        <translation>Die 32 Flags des Knochens</translation>
    </message>
    <message>
        <source>Bone Flags</source>
        <translation>Knochen-Flags</translation>
    </message>
    <message>
        <source>Bone %1 Properties</source>
        <translation>Eigenschaften von Knochen %1</translation>
    </message>
    <message>
        <source>T&amp;ype</source>
        <translation>&amp;Typ</translation>
    </message>
    <message>
        <source>Na&amp;me</source>
        <translation>Nam&amp;e</translation>
    </message>
    <message>
        <source>What you call the bone. It is kept in a file beside the model, which the game does not look at.</source>
        <translation>Wie Sie den Knochen nennen. Das steht in einer Datei neben dem Modell, die das Spiel nicht beachtet.</translation>
    </message>
</context>
<context>
    <name>SkinnedMeshPage</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation>Formatversion, bleibt so, wie sie in der Datei steht</translation>
    </message>
    <message>
        <source>Header Values</source>
        <translation>Kopfwerte</translation>
    </message>
    <message>
        <source>Two numbers of the file whose meaning is not known; kept as they stand</source>
        <translation>Zwei Zahlen der Datei, deren Bedeutung nicht bekannt ist; sie bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation>Begrenzungsbox</translation>
    </message>
    <message>
        <source>Bounding Box M&amp;in</source>
        <translation>Begrenzungsbox Mi&amp;n</translation>
    </message>
    <message>
        <source>Smallest corner of the whole model, in game units (z is up)</source>
        <translation>Kleinste Ecke des ganzen Modells, in Spieleinheiten (z zeigt nach oben)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Bounding Box Min X</source>
        <translation>Begrenzungsbox Min X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Bounding Box Min Y</source>
        <translation>Begrenzungsbox Min Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Bounding Box Min Z</source>
        <translation>Begrenzungsbox Min Z</translation>
    </message>
    <message>
        <source>Bounding Box M&amp;ax</source>
        <translation>Begrenzungsbox &amp;Max</translation>
    </message>
    <message>
        <source>Largest corner of the whole model, in game units (z is up)</source>
        <translation>Größte Ecke des ganzen Modells, in Spieleinheiten (z zeigt nach oben)</translation>
    </message>
    <message>
        <source>Bounding Box Max X</source>
        <translation>Begrenzungsbox Max X</translation>
    </message>
    <message>
        <source>Bounding Box Max Y</source>
        <translation>Begrenzungsbox Max Y</translation>
    </message>
    <message>
        <source>Bounding Box Max Z</source>
        <translation>Begrenzungsbox Max Z</translation>
    </message>
    <message>
        <source>Head Track</source>
        <translation>Kopfdrehung</translation>
    </message>
    <message>
        <source>&amp;Start Bone</source>
        <translation>&amp;Startknochen</translation>
    </message>
    <message>
        <source>First bone that turns when the character looks at something</source>
        <translation>Erster Knochen, der sich dreht, wenn die Figur etwas ansieht</translation>
    </message>
    <message>
        <source>Last bone that turns when the character looks at something</source>
        <translation>Letzter Knochen, der sich dreht, wenn die Figur etwas ansieht</translation>
    </message>
    <message>
        <source>How far the head turns (-128 to 127)</source>
        <translation>Wie weit sich der Kopf dreht (-128 bis 127)</translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation>Skinned Mesh</translation>
    </message>
    <message>
        <source>En&amp;d Bone</source>
        <translation>&amp;Endknochen</translation>
    </message>
    <message>
        <source>Fa&amp;ctor</source>
        <translation>&amp;Faktor</translation>
    </message>
</context>
<context>
    <name>SkinnedMeshVertPage</name>
    <message>
        <source>Place of the vertex in the space of its bone, in game units</source>
        <translation>Ort des Vertex im Raum seines Knochens, in Spieleinheiten</translation>
    </message>
</context>
<context>
    <name>SnapshotStore</name>
    <message>
        <source>[Recovery] Unsaved work cannot be kept in &apos;%1&apos;</source>
        <translation>[Wiederherstellung] Nicht gespeicherte Arbeit kann in „%1“ nicht gesichert werden</translation>
    </message>
    <message>
        <source>[Recovery] &apos;%1&apos; is damaged and was left out</source>
        <translation>[Wiederherstellung] „%1“ ist beschädigt und wurde ausgelassen</translation>
    </message>
</context>
<context>
    <name>StaticMeshPage</name>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation>Formatversion, bleibt so, wie sie in der Datei steht</translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation>Begrenzungsbox</translation>
    </message>
    <message>
        <source>Bounding Box M&amp;in</source>
        <translation>Begrenzungsbox Mi&amp;n</translation>
    </message>
    <message>
        <source>Smallest corner of the whole model, in game units (z is up)</source>
        <translation>Kleinste Ecke des ganzen Modells, in Spieleinheiten (z zeigt nach oben)</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Bounding Box Min X</source>
        <translation>Begrenzungsbox Min X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Bounding Box Min Y</source>
        <translation>Begrenzungsbox Min Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Bounding Box Min Z</source>
        <translation>Begrenzungsbox Min Z</translation>
    </message>
    <message>
        <source>Bounding Box M&amp;ax</source>
        <translation>Begrenzungsbox &amp;Max</translation>
    </message>
    <message>
        <source>Largest corner of the whole model, in game units (z is up)</source>
        <translation>Größte Ecke des ganzen Modells, in Spieleinheiten (z zeigt nach oben)</translation>
    </message>
    <message>
        <source>Bounding Box Max X</source>
        <translation>Begrenzungsbox Max X</translation>
    </message>
    <message>
        <source>Bounding Box Max Y</source>
        <translation>Begrenzungsbox Max Y</translation>
    </message>
    <message>
        <source>Bounding Box Max Z</source>
        <translation>Begrenzungsbox Max Z</translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation>Statisches Mesh</translation>
    </message>
</context>
<context>
    <name>StaticMeshVertPage</name>
    <message>
        <source>Place of the vertex in the model, in game units (z is up)</source>
        <translation>Ort des Vertex im Modell, in Spieleinheiten (z zeigt nach oben)</translation>
    </message>
</context>
<context>
    <name>StructureActions</name>
    <message>
        <source>Add Hot Point</source>
        <translation>Hotpoint hinzufügen</translation>
    </message>
    <message>
        <source>Remove Hot Point</source>
        <translation>Hotpoint entfernen</translation>
    </message>
    <message>
        <source>Copy Bone Flags</source>
        <translation>Knochen-Flags kopieren</translation>
    </message>
    <message>
        <source>Add Animation</source>
        <translation>Animation hinzufügen</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Animation entfernen</translation>
    </message>
    <message>
        <source>Add Key Frame Action</source>
        <translation>Keyframe-Aktion hinzufügen</translation>
    </message>
    <message>
        <source>Remove Key Frame Action</source>
        <translation>Keyframe-Aktion entfernen</translation>
    </message>
    <message>
        <source>Change Frame Count…</source>
        <translation>Zahl der Frames ändern…</translation>
    </message>
    <message>
        <source>Change Translation Count…</source>
        <translation>Zahl der Translationen ändern…</translation>
    </message>
    <message>
        <source>Change Rotation Count…</source>
        <translation>Zahl der Rotationen ändern…</translation>
    </message>
    <message>
        <source>&amp;Expand All Below</source>
        <translation>Alles darunter &amp;aufklappen</translation>
    </message>
    <message>
        <source>&amp;Collapse All Below</source>
        <translation>Alles darunter &amp;zuklappen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Frame Count</source>
        <translation>Zahl der Frames</translation>
    </message>
    <message>
        <source>Translation Count</source>
        <translation>Zahl der Translationen</translation>
    </message>
    <message>
        <source>Rotation Count</source>
        <translation>Zahl der Rotationen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Change Count</source>
        <translation>Anzahl ändern</translation>
    </message>
    <message>
        <source>Trees</source>
        <translation>Bäume</translation>
    </message>
    <message>
        <source>Fewer tracks: the last ones go, with all their keys; bones keep their track numbers. More: the last track is repeated.</source>
        <translation>Weniger Spuren: Die letzten fallen weg, mit allen ihren Keys; Knochen behalten ihre Spurnummern. Mehr: Die letzte Spur wird wiederholt.</translation>
    </message>
    <message>
        <source>Fewer frames: the last ones go, with their keys in all tracks. More: the last keys are repeated.</source>
        <translation>Weniger Frames: Die letzten fallen weg, mit ihren Keys in allen Spuren. Mehr: Die letzten Keys werden wiederholt.</translation>
    </message>
</context>
<context>
    <name>SummaryText</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 (in the model)</source>
        <translation>%1 (im Modell)</translation>
    </message>
    <message>
        <source>%1 (missing)</source>
        <translation>%1 (fehlt)</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Vertices</source>
        <translation>Vertices</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 high, %2 in all</source>
        <translation>%1 hoch, insgesamt %2</translation>
    </message>
    <message>
        <source>Animations</source>
        <translation>Animationen</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>Texturen</translation>
    </message>
    <message>
        <source>What cannot come along</source>
        <translation>Was nicht mitkommen kann</translation>
    </message>
</context>
<context>
    <name>SurfacePage</name>
    <message>
        <source>Surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation>&amp;Material</translation>
    </message>
    <message>
        <source>Folder and file of the .kmat file, then the material&apos;s name: materials/mat_house/colormap</source>
        <translation>Ordner und Datei der .kmat-Datei, dann der Name des Materials: materials/mat_house/colormap</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Number of triangles of the surface</source>
        <translation>Anzahl der Dreiecke der Fläche</translation>
    </message>
</context>
<context>
    <name>Survey</name>
    <message>
        <source>Vertices: %1. A model can hold no more than %2.</source>
        <translation>Vertices: %1. Ein Modell kann höchstens %2 enthalten.</translation>
    </message>
    <message>
        <source>Bones: %1. The game poses %2, so bones that nothing follows or nothing moves have to go.</source>
        <translation>Knochen: %1. Das Spiel bewegt %2, also müssen Knochen weichen, denen nichts folgt oder die nichts bewegt.</translation>
    </message>
    <message>
        <source>Objects with shapes to blend (morph targets): %1. They keep the shape that they have at rest.</source>
        <translation>Objekte mit Formen zum Überblenden (Morph Targets): %1. Sie behalten die Form der Ruhelage.</translation>
    </message>
    <message>
        <source>Animations that jump from key to key: %1. They will glide.</source>
        <translation>Animationen, die von Key zu Key springen: %1. Sie werden gleiten.</translation>
    </message>
    <message>
        <source>Points and lines: %1. They are left out.</source>
        <translation>Punkte und Linien: %1. Sie bleiben weg.</translation>
    </message>
    <message>
        <source>Objects with more than one set of texture coordinates: %1. The first one comes along.</source>
        <translation>Objekte mit mehr als einem Satz Texturkoordinaten: %1. Der erste kommt mit.</translation>
    </message>
    <message>
        <source>Objects with colored vertices: %1. The colors are left out.</source>
        <translation>Objekte mit farbigen Vertices: %1. Die Farben bleiben weg.</translation>
    </message>
    <message>
        <source>Textures beside those of the color, such as relief or shine: %1. They are left out.</source>
        <translation>Texturen neben denen der Farbe, etwa für Relief oder Glanz: %1. Sie bleiben weg.</translation>
    </message>
    <message>
        <source>Vertices that follow several bones: %1 of %2. Each will follow the one with the greatest weight, unless extra bones are wanted.</source>
        <translation>Vertices, die mehreren Knochen folgen: %1 von %2. Jeder folgt dann dem mit dem größten Gewicht, wenn keine Zusatzknochen gewünscht sind.</translation>
    </message>
    <message>
        <source>Bones or objects that change their size in animations: %1. In the game they keep it, unless extra bones are wanted.</source>
        <translation>Knochen oder Objekte, die in Animationen ihre Größe ändern: %1. Im Spiel behalten sie sie, wenn keine Zusatzknochen gewünscht sind.</translation>
    </message>
</context>
<context>
    <name>TableDock</name>
    <message>
        <source>Select a record or a group in the tree to see its table.</source>
        <translation>Wählen Sie im Baum einen Datensatz oder eine Gruppe, um die Tabelle zu sehen.</translation>
    </message>
    <message>
        <source>In the Whole File</source>
        <translation>In der ganzen Datei</translation>
    </message>
    <message>
        <source>The records of the current group as a table</source>
        <translation>Die Datensätze der aktuellen Gruppe als Tabelle</translation>
    </message>
    <message>
        <source>Also the records of this kind that other records have: the actions of all animations</source>
        <translation>Auch die Datensätze dieser Art, die andere Datensätze haben: die Aktionen aller Animationen</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Show in the Tree</source>
        <translation>Im &amp;Baum zeigen</translation>
    </message>
    <message>
        <source>&amp;Export as CSV…</source>
        <translation>Als CSV &amp;exportieren…</translation>
    </message>
    <message>
        <source>Write what is shown as a file of comma-separated values</source>
        <translation>Schreibt, was zu sehen ist, als Datei mit durch Kommas getrennten Werten</translation>
    </message>
    <message>
        <source>&amp;Import CSV…</source>
        <translation>CSV &amp;importieren…</translation>
    </message>
    <message>
        <source>Read values from a file, after a look at what changes</source>
        <translation>Liest Werte aus einer Datei, nach einem Blick auf das, was sich ändert</translation>
    </message>
    <message numerus="yes">
        <source>%n records</source>
        <translation>
            <numerusform>%n Datensatz</numerusform>
            <numerusform>%n Datensätze</numerusform>
        </translation>
    </message>
    <message>
        <source>Export as CSV</source>
        <translation>Als CSV exportieren</translation>
    </message>
    <message>
        <source>Tables (*.csv)</source>
        <translation>Tabellen (*.csv)</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Import CSV</source>
        <translation>CSV importieren</translation>
    </message>
    <message>
        <source>Tables (*.csv *.tsv *.txt);;All Files (*)</source>
        <translation>Tabellen (*.csv *.tsv *.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>%1
Nothing was changed. %2</source>
        <translation>%1
Nichts wurde geändert. %2</translation>
    </message>
    <message>
        <source>The file is too large for a table.</source>
        <translation>Die Datei ist zu groß für eine Tabelle.</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tabelle importieren</translation>
    </message>
</context>
<context>
    <name>TextField</name>
    <message>
        <source>It is not stored; Esc brings the old one back.</source>
        <translation>Die Eingabe wird nicht gespeichert; Esc bringt den alten Text zurück.</translation>
    </message>
</context>
<context>
    <name>TextureField</name>
    <message>
        <source>Texture</source>
        <translation>Textur</translation>
    </message>
    <message>
        <source>The path of the texture below the game or the mod folder</source>
        <translation>Der Pfad der Textur unter dem Spielordner oder dem Mod-Ordner</translation>
    </message>
    <message>
        <source>Choose a Texture</source>
        <translation>Eine Textur wählen</translation>
    </message>
    <message>
        <source>Choose one of the textures of game and mod</source>
        <translation>Eine der Texturen von Spiel und Mod wählen</translation>
    </message>
    <message>
        <source>Textures</source>
        <translation>Texturen</translation>
    </message>
</context>
<context>
    <name>TexturePreview</name>
    <message>
        <source>no texture</source>
        <translation>keine Textur</translation>
    </message>
    <message>
        <source>drawn white, without a file</source>
        <translation>wird weiß gezeichnet, ohne Datei</translation>
    </message>
    <message>
        <source>looking for the texture</source>
        <translation>die Textur wird gesucht</translation>
    </message>
    <message>
        <source>not found in game and mod</source>
        <translation>in Spiel und Mod nicht gefunden</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 × %2, of the game</source>
        <translation>%1 × %2, des Spiels</translation>
    </message>
    <message>
        <source>%1 × %2, of the mod</source>
        <translation>%1 × %2, der Mod</translation>
    </message>
</context>
<context>
    <name>ThumbnailMaker</name>
    <message>
        <source>The texture cannot be read.</source>
        <translation>Die Textur kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Too large for a small picture</source>
        <translation>Zu groß für ein kleines Bild</translation>
    </message>
    <message>
        <source>None of its textures can be read.</source>
        <translation>Keine ihrer Texturen kann gelesen werden.</translation>
    </message>
</context>
<context>
    <name>TimelineEdits</name>
    <message>
        <source>Add &amp;Event</source>
        <translation>&amp;Ereignis hinzufügen</translation>
    </message>
    <message>
        <source>Add Key Frame Action</source>
        <translation>Keyframe-Aktion hinzufügen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Select &amp;All Actions</source>
        <translation>&amp;Alle Aktionen auswählen</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selected Frames</source>
        <translation>Auf ausgewählte Frames &amp;vergrößern</translation>
    </message>
    <message>
        <source>Sho&amp;w All Frames</source>
        <translation>Alle Frames &amp;zeigen</translation>
    </message>
    <message>
        <source>&amp;Play All Frames Again</source>
        <translation>&amp;Wieder alle Frames abspielen</translation>
    </message>
    <message>
        <source>Show the &amp;Frame of a Selected Action</source>
        <translation>Den &amp;Frame einer ausgewählten Aktion zeigen</translation>
    </message>
    <message>
        <source>P&amp;lay Sounds from the Folder</source>
        <translation>&amp;Sounds aus dem Ordner abspielen</translation>
    </message>
    <message>
        <source>Add Key Frame Action at Frame %1</source>
        <translation>Keyframe-Aktion in Frame %1 hinzufügen</translation>
    </message>
    <message>
        <source>Add &amp;Event at Frame %1</source>
        <translation>&amp;Ereignis in Frame %1 hinzufügen</translation>
    </message>
    <message>
        <source>Paste at Frame %1</source>
        <translation>In Frame %1 einfügen</translation>
    </message>
    <message>
        <source>The clipboard holds no key frame actions.</source>
        <translation>Die Zwischenablage enthält keine Keyframe-Aktionen.</translation>
    </message>
    <message>
        <source>A key frame action can stand on frame %1 at most.</source>
        <translation>Eine Keyframe-Aktion kann höchstens in Frame %1 stehen.</translation>
    </message>
    <message>
        <source>Actions that would lie behind the last frame were put on it: %1</source>
        <translation>In den letzten Frame gesetzt, weil sie dahinter lägen: %1</translation>
    </message>
</context>
<context>
    <name>TrackSlider</name>
    <message>
        <source>Action %1: %2</source>
        <translation>Aktion %1: %2</translation>
    </message>
    <message>
        <source>Frame %1
%2</source>
        <translation>Frame %1
%2</translation>
    </message>
    <message>
        <source>Arg %1</source>
        <translation>Arg %1</translation>
    </message>
</context>
<context>
    <name>TriIndexPage</name>
    <message>
        <source>Triangle Index</source>
        <translation>Dreiecksindex</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>Corner</source>
        <translation>Ecke</translation>
    </message>
    <message>
        <source>Which corner of which triangle of the surface this is; a triangle has three</source>
        <translation>Welche Ecke welches Dreiecks der Fläche dies ist; ein Dreieck hat drei</translation>
    </message>
</context>
<context>
    <name>TutorialsTab</name>
    <message>
        <source>Tutorials</source>
        <translation>Anleitungen</translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation>Anleitung</translation>
    </message>
</context>
<context>
    <name>TypingField</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;holen</translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>Animation AnimID</source>
        <translation>Animation: Anim-ID</translation>
    </message>
    <message>
        <source>Animation Frame Scale</source>
        <translation>Animation: Frame-Skalierung</translation>
    </message>
    <message>
        <source>Animation Blend Length</source>
        <translation>Animation: Überblendlänge</translation>
    </message>
    <message>
        <source>Animation Blend Start</source>
        <translation>Animation: Überblendstart</translation>
    </message>
    <message>
        <source>Animation Blend End</source>
        <translation>Animation: Überblendende</translation>
    </message>
    <message>
        <source>Animation Speed</source>
        <translation>Animation: Geschwindigkeit</translation>
    </message>
    <message>
        <source>Animation Loop Frame</source>
        <translation>Animation: Schleifen-Frame</translation>
    </message>
    <message>
        <source>Bone Translation Index</source>
        <translation>Knochen: Translationsindex</translation>
    </message>
    <message>
        <source>Bone Rotation Index</source>
        <translation>Knochen: Rotationsindex</translation>
    </message>
    <message>
        <source>Bone Initial Translation</source>
        <translation>Knochen: Anfangstranslation</translation>
    </message>
    <message>
        <source>Bone Initial Rotation</source>
        <translation>Knochen: Anfangsrotation</translation>
    </message>
    <message>
        <source>Frame Yaw Offset</source>
        <translation>Frame: Gierversatz</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Translation</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Key Frame Action Frame</source>
        <translation>Keyframe-Aktion: Frame</translation>
    </message>
    <message>
        <source>Key Frame Action Bone</source>
        <translation>Keyframe-Aktion: Knochen</translation>
    </message>
    <message>
        <source>Key Frame Action Offset</source>
        <translation>Keyframe-Aktion: Versatz</translation>
    </message>
    <message>
        <source>Key Frame Action Event Type</source>
        <translation>Keyframe-Aktion: Ereignistyp</translation>
    </message>
    <message>
        <source>Key Frame Action Args</source>
        <translation>Keyframe-Aktion: Argumente</translation>
    </message>
    <message>
        <source>Add Key Frame Action</source>
        <translation>Keyframe-Aktion hinzufügen</translation>
    </message>
    <message>
        <source>Remove Key Frame Action</source>
        <translation>Keyframe-Aktion entfernen</translation>
    </message>
    <message>
        <source>Add Animation</source>
        <translation>Animation hinzufügen</translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation>Animation entfernen</translation>
    </message>
    <message>
        <source>Paste Animation</source>
        <translation>Animation einfügen</translation>
    </message>
    <message>
        <source>Fix %1 Problems</source>
        <translation>%1 Probleme beheben</translation>
    </message>
    <message>
        <source>Bounding Box Min</source>
        <translation>Begrenzungsbox Min</translation>
    </message>
    <message>
        <source>Bounding Box Max</source>
        <translation>Begrenzungsbox Max</translation>
    </message>
    <message>
        <source>Head Track Start Bone</source>
        <translation>Kopfdrehung: Startknochen</translation>
    </message>
    <message>
        <source>Head Track End Bone</source>
        <translation>Kopfdrehung: Endknochen</translation>
    </message>
    <message>
        <source>Head Track Factor</source>
        <translation>Kopfdrehung: Faktor</translation>
    </message>
    <message>
        <source>Child Bone Index</source>
        <translation>Kindknochen-Index</translation>
    </message>
    <message>
        <source>Hot Point Origin</source>
        <translation>Hotpoint: Ursprung</translation>
    </message>
    <message>
        <source>Hot Point Flags</source>
        <translation>Hotpoint: Flags</translation>
    </message>
    <message>
        <source>Hot Point BoneID</source>
        <translation>Hotpoint: Knochen-ID</translation>
    </message>
    <message>
        <source>Hot Point Particle Effect</source>
        <translation>Hotpoint: Partikeleffekt</translation>
    </message>
    <message>
        <source>Bone Bounding Box Min</source>
        <translation>Knochen: Begrenzungsbox Min</translation>
    </message>
    <message>
        <source>Bone Bounding Box Max</source>
        <translation>Knochen: Begrenzungsbox Max</translation>
    </message>
    <message>
        <source>Bone Symbol Flags</source>
        <translation>Knochen: Symbol-Flags</translation>
    </message>
    <message>
        <source>Bone Impact Type</source>
        <translation>Knochen: Aufpralltyp</translation>
    </message>
    <message>
        <source>Parent Bone Index</source>
        <translation>Knochen: Elternknochen-Index</translation>
    </message>
    <message>
        <source>Bone Damage Scale</source>
        <translation>Knochen: Schadensfaktor</translation>
    </message>
    <message>
        <source>Bone Flags</source>
        <translation>Knochen-Flags</translation>
    </message>
    <message>
        <source>Surface Material</source>
        <translation>Fläche: Material</translation>
    </message>
    <message>
        <source>Triangle Index</source>
        <translation>Dreiecksindex</translation>
    </message>
    <message>
        <source>Vertex Bone Index</source>
        <translation>Vertex: Knochenindex</translation>
    </message>
    <message>
        <source>Vertex Position</source>
        <translation>Vertex: Position</translation>
    </message>
    <message>
        <source>Vertex UV</source>
        <translation>Vertex: UV</translation>
    </message>
    <message>
        <source>Vertex Normal</source>
        <translation>Vertex: Normale</translation>
    </message>
    <message>
        <source>Add Hot Point</source>
        <translation>Hotpoint hinzufügen</translation>
    </message>
    <message>
        <source>Remove Hot Point</source>
        <translation>Hotpoint entfernen</translation>
    </message>
    <message>
        <source>Paste Hot Point</source>
        <translation>Hotpoint einfügen</translation>
    </message>
    <message>
        <source>Add Child Bone Index</source>
        <translation>Kindknochen-Index hinzufügen</translation>
    </message>
    <message>
        <source>Remove Child Bone Index</source>
        <translation>Kindknochen-Index entfernen</translation>
    </message>
    <message>
        <source>Rotate Vertices</source>
        <translation>Vertices drehen</translation>
    </message>
    <message>
        <source>Scale Vertices</source>
        <translation>Vertices skalieren</translation>
    </message>
    <message>
        <source>Fix Bounding Box</source>
        <translation>Begrenzungsbox beheben</translation>
    </message>
    <message>
        <source>Bone Name</source>
        <translation>Knochen: Name</translation>
    </message>
    <message>
        <source>Update from %1</source>
        <translation>Aktualisierung aus %1</translation>
    </message>
    <message>
        <source>Animation Name</source>
        <translation>Animation: Name</translation>
    </message>
    <message>
        <source>Take from %1</source>
        <translation>Aus %1 übernehmen</translation>
    </message>
    <message>
        <source>Translation Tracks</source>
        <translation>Translationsspuren</translation>
    </message>
    <message>
        <source>Rotation Tracks</source>
        <translation>Rotationsspuren</translation>
    </message>
    <message>
        <source>Paste Surface</source>
        <translation>Fläche einfügen</translation>
    </message>
    <message>
        <source>Remove Surface</source>
        <translation>Fläche entfernen</translation>
    </message>
    <message>
        <source>Bones</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>Fit Boxes to Vertices</source>
        <translation>Boxen an Vertices anpassen</translation>
    </message>
    <message>
        <source>Animation Command</source>
        <translation>Animationsbefehl</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Schlüssel</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>[Update Check] &apos;%1&apos; is no https address</source>
        <translation>[Update-Suche] „%1“ ist keine https-Adresse</translation>
    </message>
    <message>
        <source>[Update Check] No address is set to ask for releases</source>
        <translation>[Update-Suche] Es ist keine Adresse für Veröffentlichungen eingestellt</translation>
    </message>
</context>
<context>
    <name>UpdatePrompt</name>
    <message>
        <source>Checking for updates…</source>
        <translation>Nach Updates wird gesucht…</translation>
    </message>
    <message>
        <source>New Version Available</source>
        <translation>Neue Version verfügbar</translation>
    </message>
    <message>
        <source>Korvane v%1 is now available! Do you want to update?

%2</source>
        <translation>Korvane v%1 ist jetzt verfügbar! Möchten Sie aktualisieren?

%2</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>You are up to date!</source>
        <translation>Sie sind auf dem neuesten Stand!</translation>
    </message>
    <message>
        <source>No address is set that tells of new versions.</source>
        <translation>Es ist keine Adresse eingestellt, die neue Versionen nennt.</translation>
    </message>
</context>
<context>
    <name>UsedByDock</name>
    <message>
        <source>Material %1</source>
        <translation>Material %1</translation>
    </message>
    <message>
        <source>Texture %1</source>
        <translation>Textur %1</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>Sound %1</source>
        <translation>Sound %1</translation>
    </message>
    <message>
        <source>Particle %1</source>
        <translation>Partikel %1</translation>
    </message>
    <message>
        <source>Actor %1</source>
        <translation>Akteur %1</translation>
    </message>
    <message>
        <source>Voice %1</source>
        <translation>Stimme %1</translation>
    </message>
    <message>
        <source>Impact Type %1</source>
        <translation>Aufpralltyp %1</translation>
    </message>
    <message>
        <source>Damage %1</source>
        <translation>Schaden %1</translation>
    </message>
    <message>
        <source>Who names:</source>
        <translation>Wer nennt:</translation>
    </message>
    <message>
        <source>What the current record names; the list has all records that name it, as their files are saved</source>
        <translation>Was der aktuelle Datensatz nennt; die Liste hat alle Datensätze, die es nennen, so wie ihre Dateien gespeichert sind</translation>
    </message>
    <message>
        <source>Reading the files of game and mod</source>
        <translation>Die Dateien von Spiel und Mod werden gelesen</translation>
    </message>
    <message>
        <source>The files of game and mod are being read.</source>
        <translation>Die Dateien von Spiel und Mod werden gelesen.</translation>
    </message>
    <message>
        <source>The files of game and mod were not read to the end.</source>
        <translation>Die Dateien von Spiel und Mod wurden nicht zu Ende gelesen.</translation>
    </message>
    <message>
        <source>There are no folders of game and mod. Edit ▸ Options… names them.</source>
        <translation>Es gibt keine Ordner von Spiel und Mod. Bearbeiten ▸ Optionen… nennt sie.</translation>
    </message>
    <message>
        <source>Select a surface, a bone, a hot point, an animation or a key frame action: listed is who names the same.</source>
        <translation>Wählen Sie eine Fläche, einen Knochen, einen Hotpoint, eine Animation oder eine Keyframe-Aktion: Aufgelistet wird, wer dasselbe nennt.</translation>
    </message>
    <message>
        <source>No file of game or mod names it.</source>
        <translation>Keine Datei von Spiel oder Mod nennt es.</translation>
    </message>
    <message>
        <source>Give up reading the files of game and mod</source>
        <translation>Das Lesen der Dateien von Spiel und Mod abbrechen</translation>
    </message>
    <message>
        <source>Look for files of game and mod that have changed</source>
        <translation>Nach Dateien von Spiel und Mod suchen, die sich geändert haben</translation>
    </message>
    <message>
        <source>Uses: %1</source>
        <translation>Verwendungen: %1</translation>
    </message>
    <message>
        <source>(not read: %1)</source>
        <translation>(nicht gelesen: %1)</translation>
    </message>
    <message>
        <source>(incomplete folders: %1)</source>
        <translation>(unvollständige Ordner: %1)</translation>
    </message>
    <message>
        <source>(not all files)</source>
        <translation>(nicht alle Dateien)</translation>
    </message>
    <message>
        <source>The folders hold more than a game and a mod can: the rest is not read.</source>
        <translation>Die Ordner enthalten mehr, als ein Spiel und ein Mod enthalten können: Der Rest wird nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>UsesList</name>
    <message>
        <source>Who names it</source>
        <translation>Wer es nennt</translation>
    </message>
</context>
<context>
    <name>UsesRows</name>
    <message>
        <source>Material %1</source>
        <translation>Material %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>By Material</source>
        <translation>Durch Material</translation>
    </message>
</context>
<context>
    <name>UvDock</name>
    <message>
        <source>no texture</source>
        <translation>keine Textur</translation>
    </message>
    <message>
        <source>no texture: %1 cannot be read</source>
        <translation>keine Textur: %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1, %2 × %3</source>
        <translation>%1, %2 × %3</translation>
    </message>
    <message>
        <source>The triangles of the current surface over its texture</source>
        <translation>Die Dreiecke der aktuellen Fläche über ihrer Textur</translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation>Texturkoordinaten</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>The surface that is shown, which the tree selects too</source>
        <translation>Die gezeigte Fläche, die auch der Baum auswählt</translation>
    </message>
    <message>
        <source>The tree leaves vertices out. &lt;a href=&quot;#&quot;&gt;Show them&lt;/a&gt;</source>
        <translation>Der Baum lässt Vertices weg. &lt;a href=&quot;#&quot;&gt;Zeigen&lt;/a&gt;</translation>
    </message>
    <message>
        <source>Texture Coordinates</source>
        <translation>Texturkoordinaten</translation>
    </message>
    <message>
        <source>Fit &amp;All</source>
        <translation>&amp;Alles einpassen</translation>
    </message>
    <message>
        <source>Bring the texture and all triangles into view</source>
        <translation>Die Textur und alle Dreiecke ins Bild bringen</translation>
    </message>
    <message>
        <source>&amp;Fit Selection</source>
        <translation>Auswahl &amp;einpassen</translation>
    </message>
    <message>
        <source>Bring the selected vertices into view</source>
        <translation>Die ausgewählten Vertices ins Bild bringen</translation>
    </message>
    <message>
        <source>&amp;Select All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>Select all vertices of the surface</source>
        <translation>Alle Vertices der Fläche auswählen</translation>
    </message>
    <message>
        <source>The model has no surfaces.</source>
        <translation>Das Modell hat keine Flächen.</translation>
    </message>
    <message>
        <source>No mesh is open.</source>
        <translation>Kein Mesh ist geöffnet.</translation>
    </message>
    <message>
        <source>The filter above the tree hides %1.</source>
        <translation>Der Filter über dem Baum verbirgt %1.</translation>
    </message>
    <message>
        <source>u %1  v %2</source>
        <translation>u %1  v %2</translation>
    </message>
    <message>
        <source>texel %1, %2</source>
        <translation>Texel %1, %2</translation>
    </message>
    <message>
        <source>vertex %1</source>
        <translation>Vertex %1</translation>
    </message>
    <message>
        <source>triangles: %1</source>
        <translation>Dreiecke: %1</translation>
    </message>
    <message>
        <source>vertices: %1</source>
        <translation>Vertices: %1</translation>
    </message>
    <message>
        <source>triangles beyond its edges: %1</source>
        <translation>Dreiecke über ihren Rand hinaus: %1</translation>
    </message>
    <message>
        <source>triangles left out: %1</source>
        <translation>ausgelassene Dreiecke: %1</translation>
    </message>
    <message>
        <source>Surface %1</source>
        <translation>Fläche %1</translation>
    </message>
    <message>
        <source>The surface is being read…</source>
        <translation>Die Fläche wird gelesen…</translation>
    </message>
</context>
<context>
    <name>Validation</name>
    <message>
        <source>And %1 more like these.</source>
        <translation>Und %1 weitere wie diese.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names sound %3, which the table of sounds does not have: nothing is heard, unless your mod adds it. Choose one from the Database tab.</source>
        <translation>Aktion %1 von Animation %2 nennt Sound %3, den die Tabelle der Sounds nicht enthält: Es ist nichts zu hören, wenn Ihre Mod ihn nicht hinzufügt. Wählen Sie einen aus dem Reiter Datenbank.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names particle %3, which the table of particles does not have: nothing is seen, unless your mod adds it. Choose one from the Database tab.</source>
        <translation>Aktion %1 von Animation %2 nennt Partikel %3, den die Tabelle der Partikel nicht enthält: Es ist nichts zu sehen, wenn Ihre Mod ihn nicht hinzufügt. Wählen Sie einen aus dem Reiter Datenbank.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names actor type %3, which the table of actors does not have: nobody appears, unless your mod adds it. Choose one from the Database tab.</source>
        <translation>Aktion %1 von Animation %2 nennt Akteurtyp %3, den die Tabelle der Akteure nicht enthält: Niemand erscheint, wenn Ihre Mod ihn nicht hinzufügt. Wählen Sie einen aus dem Reiter Datenbank.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names voice %3, which the table of voices does not have: nothing is said, unless your mod adds it. Choose one from the Database tab.</source>
        <translation>Aktion %1 von Animation %2 nennt Stimme %3, die die Tabelle der Stimmen nicht enthält: Nichts wird gesagt, wenn Ihre Mod sie nicht hinzufügt. Wählen Sie eine aus dem Reiter Datenbank.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names impact type %3, which the table of impacts does not have. Choose one from the Database tab.</source>
        <translation>Aktion %1 von Animation %2 nennt Aufpralltyp %3, den die Tabelle der Aufpralltypen nicht enthält. Wählen Sie einen aus dem Reiter Datenbank.</translation>
    </message>
    <message>
        <source>Fixing it enters the last frame.</source>
        <translation>Beim Beheben wird der letzte Frame eingetragen.</translation>
    </message>
    <message>
        <source>Animation %1 loops to frame %2, which it does not have (%3), so it begins from frame 0 again. %4</source>
        <translation>Animation %1 springt zurück zu Frame %2, den sie nicht hat (%3), und beginnt daher wieder bei Frame 0. %4</translation>
    </message>
    <message>
        <source>Bone %1 of animation %2 follows translation track %3, which does not exist (%4), so it keeps its initial position. Fixing it enters 65535, which says so.</source>
        <translation>Knochen %1 von Animation %2 folgt Translationsspur %3, die es nicht gibt (%4), und behält daher seine Anfangsposition. Beim Beheben wird 65535 eingetragen, das eben dies besagt.</translation>
    </message>
    <message>
        <source>Bone %1 of animation %2 follows rotation track %3, which does not exist (%4), so it keeps its initial rotation. Fixing it enters 65535, which says so.</source>
        <translation>Knochen %1 von Animation %2 folgt Rotationsspur %3, die es nicht gibt (%4), und behält daher seine Anfangsdrehung. Beim Beheben wird 65535 eingetragen, das eben dies besagt.</translation>
    </message>
    <message>
        <source>No bone follows translation track %1 of animation %2: it does nothing but make the file larger. Give it to a bone, or leave it.</source>
        <translation>Kein Knochen folgt Translationsspur %1 von Animation %2: Sie vergrößert nur die Datei. Geben Sie sie einem Knochen, oder lassen Sie sie stehen.</translation>
    </message>
    <message>
        <source>No bone follows rotation track %1 of animation %2: it does nothing but make the file larger. Give it to a bone, or leave it.</source>
        <translation>Kein Knochen folgt Rotationsspur %1 von Animation %2: Sie vergrößert nur die Datei. Geben Sie sie einem Knochen, oder lassen Sie sie stehen.</translation>
    </message>
    <message>
        <source>%1 is zero, which is no rotation at all: the view shows the bone unturned; the game may let it vanish. Fixing it enters 0, 0, 0, 1: unturned.</source>
        <translation>%1 ist null, was gar keine Drehung ist: Die Ansicht zeigt den Knochen ungedreht; das Spiel lässt ihn vielleicht verschwinden. Beim Beheben wird 0, 0, 0, 1 eingetragen: ungedreht.</translation>
    </message>
    <message>
        <source>%1 has the length %2 instead of 1: the view makes up for it; the game may shear the bone. Fixing it keeps the direction and makes the length 1.</source>
        <translation>%1 hat die Länge %2 statt 1: Die Ansicht gleicht das aus; das Spiel verzerrt den Knochen vielleicht. Beim Beheben bleibt die Richtung, und die Länge wird 1.</translation>
    </message>
    <message>
        <source>The initial rotation of bone %1 of animation %2</source>
        <translation>Die Anfangsrotation von Knochen %1 von Animation %2</translation>
    </message>
    <message>
        <source>The rotation at frame %1 of track %2 of animation %3</source>
        <translation>Die Rotation in Frame %1 von Spur %2 von Animation %3</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 is due at frame %3, which does not exist (%4): it never happens. Enter a frame of the animation, or remove the action.</source>
        <translation>Aktion %1 von Animation %2 ist in Frame %3 fällig, den es nicht gibt (%4): Sie geschieht nie. Tragen Sie einen Frame der Animation ein, oder entfernen Sie die Aktion.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 happens at bone %3, which does not exist (%4). Enter a bone, or 65535 for none.</source>
        <translation>Aktion %1 von Animation %2 geschieht an Knochen %3, den es nicht gibt (%4). Tragen Sie einen Knochen ein, oder 65535 für keinen.</translation>
    </message>
    <message>
        <source>Action %1 of animation %2 has the event type %3, which the game does not know: nothing happens. Choose one from the list.</source>
        <translation>Aktion %1 von Animation %2 hat den Ereignistyp %3, den das Spiel nicht kennt: Nichts geschieht. Wählen Sie einen aus der Liste.</translation>
    </message>
    <message>
        <source>The animations are for %1 bones, but the open mesh has %2: they cannot be played on it. Open the mesh and the animations that belong together.</source>
        <translation>Die Animationen sind für %1 Knochen, aber das geöffnete Mesh hat %2: Sie können darauf nicht abgespielt werden. Öffnen Sie Mesh und Animationen, die zusammengehören.</translation>
    </message>
    <message>
        <source>Animation %1 is for %2 bones, but the mesh has %3: it cannot be played right. Replace it by one for this mesh.</source>
        <translation>Animation %1 ist für %2 Knochen, aber das Mesh hat %3: Sie kann nicht richtig abgespielt werden. Ersetzen Sie sie durch eine für dieses Mesh.</translation>
    </message>
    <message>
        <source>Animation %1 is for %2 bones, but animation 0 for %3: they cannot be for the same mesh. Replace one of them.</source>
        <translation>Animation %1 ist für %2 Knochen, Animation 0 aber für %3: Sie können nicht für dasselbe Mesh sein. Ersetzen Sie eine davon.</translation>
    </message>
    <message>
        <source>Animation %1 has the id %2, as animation %3 has: the game finds only one of them. Give it an id of its own.</source>
        <translation>Animation %1 hat die ID %2, wie auch Animation %3: Das Spiel findet nur eine davon. Geben Sie ihr eine eigene ID.</translation>
    </message>
    <message>
        <source>The file has no animations: there is nothing to play, and it cannot be saved. Add one.</source>
        <translation>Die Datei hat keine Animationen: Es gibt nichts abzuspielen, und sie kann nicht gespeichert werden. Fügen Sie eine hinzu.</translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: the file of its material &apos;%2&apos; cannot be read. %3</source>
        <translation>Fläche %1 wird weiß gezeichnet: Die Datei ihres Materials „%2“ kann nicht gelesen werden. %3</translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: there is no file of its material &apos;%2&apos;. Tried: %3. Correct the surface&apos;s material path, or put the file into one of these places.</source>
        <translation>Fläche %1 wird weiß gezeichnet: Es gibt keine Datei ihres Materials „%2“. Gesucht: %3. Berichtigen Sie den Materialpfad der Fläche, oder legen Sie die Datei an einen dieser Orte.</translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: %2. Correct the surface&apos;s material path, or add the material to the file.</source>
        <translation>Fläche %1 wird weiß gezeichnet: %2. Berichtigen Sie den Materialpfad der Fläche, oder fügen Sie das Material der Datei hinzu.</translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: the texture &apos;%2&apos; of its material &apos;%3&apos; is no picture that can be read. Tried: %4. Put the picture into one of these places, or name another one in the material&apos;s file.</source>
        <translation>Fläche %1 wird weiß gezeichnet: Die Textur „%2“ ihres Materials „%3“ ist kein lesbares Bild. Gesucht: %4. Legen Sie das Bild an einen dieser Orte, oder nennen Sie in der Datei des Materials ein anderes.</translation>
    </message>
    <message>
        <source>Bone %1</source>
        <translation>Knochen %1</translation>
    </message>
    <message>
        <source>Hot point %1</source>
        <translation>Hotpoint %1</translation>
    </message>
    <message>
        <source>Vertex %1</source>
        <translation>Vertex %1</translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation>Animation %1</translation>
    </message>
    <message>
        <source>Bone %2 of animation %1</source>
        <translation>Knochen %2 von Animation %1</translation>
    </message>
    <message>
        <source>Frame %2 of animation %1</source>
        <translation>Frame %2 von Animation %1</translation>
    </message>
    <message>
        <source>Frame %3 of translation track %2 of animation %1</source>
        <translation>Frame %3 von Translationsspur %2 von Animation %1</translation>
    </message>
    <message>
        <source>Frame %3 of rotation track %2 of animation %1</source>
        <translation>Frame %3 von Rotationsspur %2 von Animation %1</translation>
    </message>
    <message>
        <source>Action %2 of animation %1</source>
        <translation>Aktion %2 von Animation %1</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>Das Modell</translation>
    </message>
    <message>
        <source>there are none</source>
        <translation>es gibt keine</translation>
    </message>
    <message>
        <source>there are 0 to %1</source>
        <translation>es gibt 0 bis %1</translation>
    </message>
    <message>
        <source>position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>UV</source>
        <translation>UV</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>bounding box</source>
        <translation>Begrenzungsbox</translation>
    </message>
    <message>
        <source>origin</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>damage scale</source>
        <translation>Schadensfaktor</translation>
    </message>
    <message>
        <source>frame scale</source>
        <translation>Frame-Skalierung</translation>
    </message>
    <message>
        <source>speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>yaw offset</source>
        <translation>Gierversatz</translation>
    </message>
    <message>
        <source>initial position</source>
        <translation>Anfangsposition</translation>
    </message>
    <message>
        <source>initial rotation</source>
        <translation>Anfangsrotation</translation>
    </message>
    <message>
        <source>translation</source>
        <translation>Translation</translation>
    </message>
    <message>
        <source>rotation</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>arguments</source>
        <translation>Argumente</translation>
    </message>
    <message>
        <source>%1 holds what is no number, or infinite, as %2. Whatever is computed from it is lost: the part vanishes or tears. Enter a proper number.</source>
        <translation>%1: %2 enthält etwas, das keine Zahl oder unendlich ist. Was daraus berechnet wird, ist verloren: Der Teil verschwindet oder zerreißt. Tragen Sie eine richtige Zahl ein.</translation>
    </message>
    <message>
        <source>Surface %1 has no triangles: nothing of it is drawn. If it is not needed, leave its object out when you import the model again.</source>
        <translation>Fläche %1 hat keine Dreiecke: Nichts von ihr wird gezeichnet. Wenn sie nicht gebraucht wird, lassen Sie ihr Objekt weg, wenn Sie das Modell wieder importieren.</translation>
    </message>
    <message>
        <source>Surface %1 has %2 triangle indexes, which is not a multiple of three: the last triangle lacks a corner, and whoever counts in triangles reads on behind the list. Import the model again.</source>
        <translation>Fläche %1 hat %2 Dreiecksindizes, was kein Vielfaches von drei ist: Dem letzten Dreieck fehlt eine Ecke, und wer in Dreiecken zählt, liest über die Liste hinaus. Importieren Sie das Modell neu.</translation>
    </message>
    <message>
        <source>Triangle index %1 of surface %2 is 65535, the value that ends the list in the file: the model cannot be saved. Enter the index of a vertex.</source>
        <translation>Dreiecksindex %1 von Fläche %2 ist 65535, der Wert, der die Liste in der Datei beendet: Das Modell kann nicht gespeichert werden. Tragen Sie den Index eines Vertex ein.</translation>
    </message>
    <message>
        <source>Triangle index %1 of surface %2 names vertex %3, which does not exist (%4). The view leaves the triangle out; the game may crash. Enter the index of a vertex.</source>
        <translation>Dreiecksindex %1 von Fläche %2 nennt Vertex %3, den es nicht gibt (%4). Die Ansicht lässt das Dreieck aus; das Spiel stürzt vielleicht ab. Tragen Sie den Index eines Vertex ein.</translation>
    </message>
    <message>
        <source>The normal of vertex %1 is zero: it points nowhere, so light falls on the vertex from no side. Enter its direction, or import the model again with &quot;Generate Normals&quot;.</source>
        <translation>Die Normale von Vertex %1 ist null: Sie zeigt nirgendwohin, daher fällt von keiner Seite Licht auf den Vertex. Tragen Sie ihre Richtung ein, oder importieren Sie das Modell neu mit „Normalen erzeugen“.</translation>
    </message>
    <message>
        <source>Child %1 of bone %2 is bone %3, which does not exist (%4). The view leaves it out; the game may crash. Fixing it removes the entry.</source>
        <translation>Kind %1 von Knochen %2 ist Knochen %3, den es nicht gibt (%4). Die Ansicht lässt ihn aus; das Spiel stürzt vielleicht ab. Beim Beheben wird der Eintrag entfernt.</translation>
    </message>
    <message>
        <source>Bone %1 lists itself as a child.</source>
        <translation>Knochen %1 führt sich selbst als Kind.</translation>
    </message>
    <message>
        <source>Bone %1 lists bone %2 as a child, but hangs on it itself.</source>
        <translation>Knochen %1 führt Knochen %2 als Kind, hängt aber selbst an ihm.</translation>
    </message>
    <message>
        <source>The hierarchy goes in a circle: the view ignores the entry; the game may hang. Fixing it removes the entry.</source>
        <translation>Die Hierarchie läuft im Kreis: Die Ansicht übergeht den Eintrag; das Spiel bleibt vielleicht hängen. Beim Beheben wird der Eintrag entfernt.</translation>
    </message>
    <message>
        <source>Bone %1 lists bone %2 as a child, which another entry lists too, but a bone can move with one parent only. Fixing it removes this entry.</source>
        <translation>Knochen %1 führt Knochen %2 als Kind, den auch ein anderer Eintrag führt, aber ein Knochen kann sich nur mit einem Elternknochen bewegen. Beim Beheben wird dieser Eintrag entfernt.</translation>
    </message>
    <message>
        <source>No chain of child lists leads from bone 0 to bone %1, so neither it nor what hangs on it follows any animation.</source>
        <translation>Keine Kette von Kindlisten führt von Knochen 0 zu Knochen %1, daher folgt weder er noch was an ihm hängt einer Animation.</translation>
    </message>
    <message>
        <source>Its parent is bone %1: fixing it adds it to that bone&apos;s list.</source>
        <translation>Sein Elternknochen ist Knochen %1: Beim Beheben wird er in dessen Liste aufgenommen.</translation>
    </message>
    <message>
        <source>Name it in the child list of the bone that it belongs to.</source>
        <translation>Nennen Sie ihn in der Kindliste des Knochens, zu dem er gehört.</translation>
    </message>
    <message>
        <source>The parent of bone %1 is bone %2, which does not exist (%3). The view goes by the child lists; the game may not. %4</source>
        <translation>Der Elternknochen von Knochen %1 ist Knochen %2, den es nicht gibt (%3). Die Ansicht richtet sich nach den Kindlisten; das Spiel vielleicht nicht. %4</translation>
    </message>
    <message>
        <source>no parent</source>
        <translation>keinen Elternknochen</translation>
    </message>
    <message>
        <source>bone %1 as its parent</source>
        <translation>Knochen %1 als Elternknochen</translation>
    </message>
    <message>
        <source>every model begins with bone 0</source>
        <translation>jedes Modell beginnt mit Knochen 0</translation>
    </message>
    <message>
        <source>bone %1 lists it as a child</source>
        <translation>Knochen %1 führt ihn als Kind</translation>
    </message>
    <message>
        <source>Bone %1 names %2, but %3. The view goes by the child lists; the game may not. %4</source>
        <translation>Knochen %1 nennt %2, aber %3. Die Ansicht richtet sich nach den Kindlisten; das Spiel vielleicht nicht. %4</translation>
    </message>
    <message>
        <source>Enter its parent, or 255 for none.</source>
        <translation>Tragen Sie seinen Elternknochen ein, oder 255 für keinen.</translation>
    </message>
    <message>
        <source>Fixing it sets the parent to 255: none.</source>
        <translation>Beim Beheben wird 255 als Elternknochen eingetragen: keiner.</translation>
    </message>
    <message>
        <source>Fixing it sets the parent to %1.</source>
        <translation>Beim Beheben wird %1 als Elternknochen eingetragen.</translation>
    </message>
    <message>
        <source>The head track goes from bone %1 to bone %2, which do not both exist (%3): the head cannot be turned. Enter the bones that it turns with.</source>
        <translation>Die Kopfdrehung geht von Knochen %1 zu Knochen %2, die es nicht beide gibt (%3): Der Kopf kann nicht gedreht werden. Tragen Sie die Knochen ein, mit denen er sich dreht.</translation>
    </message>
    <message>
        <source>The mesh has %1 bones, but at most %2 can be posed: what belongs to the others is drawn with the wrong one. Leave bones out when you import the model again.</source>
        <translation>Das Mesh hat %1 Knochen, aber höchstens %2 können in Pose gesetzt werden: Was zu den anderen gehört, wird mit dem falschen gezeichnet. Lassen Sie Knochen weg, wenn Sie das Modell neu importieren.</translation>
    </message>
    <message>
        <source>Hot point %1 is on bone %2, which does not exist (%3): it has no place in the game. Enter the bone that it belongs to, or remove it.</source>
        <translation>Hotpoint %1 ist an Knochen %2, den es nicht gibt (%3): Er hat keinen Platz im Spiel. Tragen Sie den Knochen ein, zu dem er gehört, oder entfernen Sie ihn.</translation>
    </message>
    <message>
        <source>Vertex %1 belongs to bone %2, which does not exist (%3): it stays behind when the model moves, and the game may crash. Enter the bone that moves it.</source>
        <translation>Vertex %1 gehört zu Knochen %2, den es nicht gibt (%3): Er bleibt zurück, wenn sich das Modell bewegt, und das Spiel stürzt vielleicht ab. Tragen Sie den Knochen ein, der ihn bewegt.</translation>
    </message>
    <message>
        <source>The mesh has no bones: nothing can be posed, and it cannot be saved. Import the model again; one without a skeleton then gets one bone.</source>
        <translation>Das Mesh hat keine Knochen: Nichts kann in Pose gesetzt werden, und es kann nicht gespeichert werden. Importieren Sie das Modell neu; eines ohne Skelett erhält dann einen Knochen.</translation>
    </message>
    <message>
        <source>The mesh has no surfaces: there is nothing to show, and it cannot be saved. Import the model again.</source>
        <translation>Das Mesh hat keine Flächen: Es gibt nichts zu zeigen, und es kann nicht gespeichert werden. Importieren Sie das Modell neu.</translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: its material &apos;%2&apos; names no texture. Add a sampler with the path of a picture to it, or name another material.</source>
        <translation>Fläche %1 wird weiß gezeichnet: Ihr Material „%2“ nennt keine Textur. Fügen Sie ihm einen Sampler mit dem Pfad eines Bildes hinzu, oder nennen Sie ein anderes Material.</translation>
    </message>
    <message>
        <source>The material path &apos;%2&apos; of surface %1 holds characters outside of Latin-1, which the file cannot: saving makes question marks of them. Give the material and its file another name.</source>
        <translation>Der Materialpfad „%2“ der Fläche %1 enthält Zeichen außerhalb von Latin-1, die die Datei nicht aufnehmen kann: Beim Speichern werden Fragezeichen daraus. Geben Sie dem Material und seiner Datei einen anderen Namen.</translation>
    </message>
    <message>
        <source>Material &apos;%1&apos; names no texture: what has it is drawn white. Add a sampler with the path of a picture to it.</source>
        <translation>Das Material „%1“ nennt keine Textur: Was es trägt, wird weiß gezeichnet. Fügen Sie ihm einen Sampler mit dem Pfad eines Bildes hinzu.</translation>
    </message>
    <message>
        <source>Material &apos;%1&apos; is drawn white: its texture &apos;%2&apos; is no picture that can be read. Tried: %3. Put the picture into one of these places, or name another one.</source>
        <translation>Das Material „%1“ wird weiß gezeichnet: Seine Textur „%2“ ist kein lesbares Bild. Gesucht: %3. Legen Sie das Bild an einen dieser Orte, oder nennen Sie ein anderes.</translation>
    </message>
    <message>
        <source>%1 has a bounding box whose minimum is above its maximum: the game may take it for empty, hide the model at the edge of the screen, or miss it.</source>
        <translation>%1 hat eine Begrenzungsbox, deren Minimum über ihrem Maximum liegt: Das Spiel hält sie vielleicht für leer, lässt das Modell am Bildrand verschwinden oder trifft es nicht.</translation>
    </message>
    <message>
        <source>Fixing it makes it the box around the vertices.</source>
        <translation>Beim Beheben wird daraus die Box um die Vertices.</translation>
    </message>
    <message>
        <source>Exchange the numbers that are the wrong way round.</source>
        <translation>Vertauschen Sie die Zahlen, die verkehrt herum stehen.</translation>
    </message>
    <message>
        <source>Bone %1 has impact type %2, which the table of impact types does not have: hits there look and sound like nothing. Enter one of the table.</source>
        <translation>Knochen %1 hat den Aufpralltyp %2, der in der Tabelle der Aufpralltypen fehlt: Treffer sind dort weder zu sehen noch zu hören. Tragen Sie einen aus der Tabelle ein.</translation>
    </message>
    <message>
        <source>Hot point %1 spawns particle %2, which the table of particles does not have: nothing is seen of it. Enter one of the table.</source>
        <translation>Hotpoint %1 erzeugt den Partikel %2, der in der Tabelle der Partikel fehlt: Von ihm ist nichts zu sehen. Tragen Sie einen aus der Tabelle ein.</translation>
    </message>
    <message>
        <source>The file goes on for %1 bytes behind the end of the model, which belong to no record. Saving drops them: keep a copy of the file if something else needs them.</source>
        <translation>Die Datei geht hinter dem Ende des Modells noch %1 Bytes weiter, die zu keinem Datensatz gehören. Speichern lässt sie weg: Sichern Sie eine Kopie der Datei, falls etwas anderes sie braucht.</translation>
    </message>
    <message>
        <source>Fixing it enters 65535: it loops from frame 0.</source>
        <translation>Beim Beheben wird 65535 eingetragen: Die Schleife beginnt bei Frame 0.</translation>
    </message>
    <message>
        <source>Fixing it exchanges the numbers that are the wrong way round.</source>
        <translation>Beim Beheben werden die vertauschten Zahlen ausgetauscht.</translation>
    </message>
    <message>
        <source>%1 names &apos;%2&apos;, which is called &apos;%3&apos; where it stands. The game on Windows finds it all the same, other systems do not. Spell both alike.</source>
        <translation>%1 nennt „%2“, was dort, wo es steht, „%3“ heißt. Das Spiel findet es unter Windows trotzdem, andere Systeme finden es nicht. Schreiben Sie beides gleich.</translation>
    </message>
    <message>
        <source>Surface %1</source>
        <translation>Fläche %1</translation>
    </message>
    <message>
        <source>Material &apos;%1&apos;</source>
        <translation>Material „%1“</translation>
    </message>
</context>
<context>
    <name>VertPage</name>
    <message>
        <source>Vertex</source>
        <translation>Vertex</translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation>&amp;Position</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Position X</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Z</source>
        <translation>Z</translation>
    </message>
    <message>
        <source>Position Z</source>
        <translation>Position Z</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normale</translation>
    </message>
    <message>
        <source>Direction that the surface faces here, of length 1; lights the model</source>
        <translation>Richtung, in die die Fläche hier zeigt, mit der Länge 1; beleuchtet das Modell</translation>
    </message>
    <message>
        <source>Normal X</source>
        <translation>Normale X</translation>
    </message>
    <message>
        <source>Normal Y</source>
        <translation>Normale Y</translation>
    </message>
    <message>
        <source>Normal Z</source>
        <translation>Normale Z</translation>
    </message>
    <message>
        <source>&amp;UV</source>
        <translation>&amp;UV</translation>
    </message>
    <message>
        <source>Place in the texture; when read in TurokEX, the y coordinate is always read as 1.0f - UV.y</source>
        <translation>Ort in der Textur; beim Lesen in TurokEX wird die y-Koordinate immer als 1.0f - UV.y gelesen</translation>
    </message>
    <message>
        <source>UV X</source>
        <translation>UV X</translation>
    </message>
    <message>
        <source>UV Y</source>
        <translation>UV Y</translation>
    </message>
    <message>
        <source>Bone</source>
        <translation>Knochen</translation>
    </message>
    <message>
        <source>&amp;Bone Index</source>
        <translation>&amp;Knochenindex</translation>
    </message>
    <message>
        <source>The node this vertex belongs to</source>
        <translation>Der Knochen, zu dem dieser Vertex gehört</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>Skinned Mesh View</source>
        <translation>Ansicht Skin-Mesh</translation>
    </message>
    <message>
        <source>Static Mesh View</source>
        <translation>Ansicht statisches Mesh</translation>
    </message>
</context>
<context>
    <name>ViewPreferences</name>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>ViewStatistics</name>
    <message>
        <source>%1 triangles</source>
        <translation>%1 Dreiecke</translation>
    </message>
    <message>
        <source>%1 frames/s</source>
        <translation>%1 Bilder/s</translation>
    </message>
    <message>
        <source>%1 ms on the graphics card</source>
        <translation>%1 ms auf der Grafikkarte</translation>
    </message>
</context>
<context>
    <name>ViewToolBar</name>
    <message>
        <source>Background color of the view</source>
        <translation>Hintergrundfarbe der Ansicht</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Lines Hidden</source>
        <translation>Linien verdeckt</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Points Hidden</source>
        <translation>Punkte verdeckt</translation>
    </message>
    <message>
        <source>How the selected surface is marked; the hidden kinds show through the model</source>
        <translation>Wie die ausgewählte Fläche markiert wird; die verdeckten Arten scheinen durch das Modell</translation>
    </message>
    <message>
        <source>Selection display</source>
        <translation>Anzeige der Auswahl</translation>
    </message>
    <message>
        <source>Move Speed </source>
        <translation>Tempo </translation>
    </message>
    <message>
        <source>Brightness </source>
        <translation>Helligkeit </translation>
    </message>
    <message>
        <source>Speed of the camera: %1</source>
        <translation>Geschwindigkeit der Kamera: %1</translation>
    </message>
    <message>
        <source>Brightness of the model: %1</source>
        <translation>Helligkeit des Modells: %1</translation>
    </message>
</context>
<context>
    <name>Viewport</name>
    <message>
        <source>Failed to load texture &apos;%1&apos; using blank texture instead</source>
        <translation>Die Textur „%1“ konnte nicht geladen werden, stattdessen wird die leere Textur verwendet</translation>
    </message>
    <message>
        <source>[%1] Surface %2: %3 triangles name vertices beyond the %4 of the model and are not drawn, the first is triangle %5</source>
        <translation>[%1] Fläche %2: %3 Dreiecke nennen Vertices jenseits der %4 des Modells und werden nicht gezeichnet, das erste ist Dreieck %5</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is left out: the model&apos;s textures have more than %2 million pixels</source>
        <translation>„%1“ wird ausgelassen: Die Texturen des Modells haben mehr als %2 Millionen Pixel</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is no picture of a kind that is read: %2</source>
        <translation>„%1“ ist kein Bild einer Art, die gelesen wird: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has %2 × %3 pixels: more than %4 million are not read</source>
        <translation>„%1“ hat %2 × %3 Pixel: Mehr als %4 Millionen werden nicht gelesen</translation>
    </message>
    <message>
        <source>[Viewport] The graphics driver cannot fade the ground; it is drawn as usual</source>
        <translation>[Viewport] Der Grafiktreiber kann den Boden nicht auslaufen lassen; er wird wie üblich gezeichnet</translation>
    </message>
    <message>
        <source>[Viewport] The graphics driver cannot smooth edges; they are drawn as usual</source>
        <translation>[Viewport] Der Grafiktreiber kann Kanten nicht glätten; sie werden wie üblich gezeichnet</translation>
    </message>
    <message>
        <source>[Viewport] The graphics driver cannot light or color models; they are drawn textured</source>
        <translation>[Viewport] Der Grafiktreiber kann Modelle nicht beleuchten oder färben; sie werden texturiert gezeichnet</translation>
    </message>
</context>
<context>
    <name>WebLink</name>
    <message>
        <source>Link</source>
        <translation>Link</translation>
    </message>
    <message>
        <source>The browser did not open
%1</source>
        <translation>Der Browser hat dies nicht geöffnet
%1</translation>
    </message>
    <message>
        <source>This is no web page, so it was not opened:
%1</source>
        <translation>Dies ist keine Webseite und wurde daher nicht geöffnet:
%1</translation>
    </message>
</context>
<context>
    <name>WhereUsed</name>
    <message>
        <source>Files name materials and textures: select one of these</source>
        <translation>Dateien nennen Materialien und Texturen: Wählen Sie eine davon</translation>
    </message>
    <message>
        <source>Select a material of a file in the folder of game or mod</source>
        <translation>Wählen Sie ein Material einer Datei im Ordner von Spiel oder Mod aus</translation>
    </message>
</context>
<context>
    <name>WholeFile</name>
    <message>
        <source>This is a device or a pipe, which would be replaced by a file.</source>
        <translation>Das ist ein Gerät oder eine Pipe, an deren Stelle eine Datei träte.</translation>
    </message>
    <message>
        <source>Another program holds it open, so it cannot be replaced. What was to be saved stands in &apos;%1&apos;.</source>
        <translation>Ein anderes Programm hält sie offen, deshalb kann sie nicht ersetzt werden. Was gespeichert werden sollte, steht in „%1“.</translation>
    </message>
    <message>
        <source>It is held open by %1 and cannot be replaced. What was to be saved stands in &apos;%2&apos;.</source>
        <translation>Offen gehalten von %1, deshalb kann sie nicht ersetzt werden. Was gespeichert werden sollte, steht in „%2“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a file and no folder. Nothing is written into archives.</source>
        <translation>„%1“ ist eine Datei und kein Ordner. In Archive wird nichts geschrieben.</translation>
    </message>
</context>
</TS>
