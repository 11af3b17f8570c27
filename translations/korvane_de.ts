<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A model and animation editor for modders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version of Qt and its license</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LGPL version 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BSD, 3 clauses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISC, some icons MIT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licences of what is built in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane v%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimActionPage</name>
    <message>
        <source>Key Frame Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What happens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>which frame this event occurs on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>which bone this event is associated with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where it happens, relative to the bone (or the model where there is no bone), in game units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position To Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the position on the bone: an offset of 0, 0, 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 1; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 2; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 3; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 4; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 5; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 6; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 7; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument 8; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 - Key Frame Action %2 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Event Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Offset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Args</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damage is this value / 256. Example: 64 damage = 16384
By default most enemies head have damage scaling of 10.
Which means head shots will take 640 damage.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Argument %1; what it means depends on the event type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Position To Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event T&amp;ype</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rame</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimBlockPage</name>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Anim ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier by which the game starts this animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames per second; below 1 plays as 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Loop Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame from which the animation repeats; beyond the last frame (65535) it repeats from frame 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale of the animation&apos;s frames in the game; the view does not use it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames over which the game blends into this animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame at which blending starts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend E&amp;nd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame at which blending ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing time at the block&apos;s speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of bones that the block animates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation AnimID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Loop Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Frame Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F&amp;rame Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blend Len&amp;gth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blend Start</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimFilePage</name>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of animations in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimFramePage</name>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yaw Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn of the whole model on this frame about its upright axis, in radians</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In Degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same turn in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 - Frame %2 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame Yaw Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1°</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimNodePage</name>
    <message>
        <source>Tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bone of the open mesh that this entry moves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track of the translation table that moves the bone; 65535 keeps it at its initial translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track of the rotation table that turns the bone; 65535 keeps it at its initial rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the bone relative to its parent where no track moves it, in game units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation of the bone relative to its parent where no track turns it, as a quaternion (0, 0, 0, 1 for none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same rotation as an angle about an axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 - Bone %2 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Translation Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Rotation Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Initial Translation X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Initial Translation Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Initial Rotation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1° about %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans&amp;lation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimRotationPage</name>
    <message>
        <source>Quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quaternion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation of the bone on this frame relative to its parent, as a quaternion (0, 0, 0, 1 for none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quaternion W</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis and Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The axis that the rotation turns about, of length 1; z while there is no rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the rotation turns about its axis, in degrees; an edit keeps the axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 - Rotation Track %2 - Frame %3 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Rotation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Rotation Angle</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimTrackFrame</name>
    <message>
        <source>The animation of the file that is played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the animation from its start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop at the current frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the initial pose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Force Loop beginning to end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the previous key frame action ([)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back one frame (,)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on one frame (.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next key frame action (])</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame of the animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast the animation plays here; the file keeps its speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playing speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>× </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame: %1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AnimTranslationPage</name>
    <message>
        <source>Translation Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the bone on this frame relative to its parent, in game units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1 - Translation Track %2 - Frame %3 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Translation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trans&amp;lation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AppearanceBox</name>
    <message>
        <source>Appearance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane speaks it when it is started the next time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colors of all windows; the desktop&apos;s change with the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The language of menus, pages and messages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>La&amp;nguage:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChangeSizeDialog</name>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommandPalette</name>
    <message>
        <source>Commands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do: a few letters of its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1    (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CommunityTab</name>
    <message>
        <source>Community</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConsoleButton</name>
    <message>
        <source>Show the console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors: %1, warnings: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConsoleLog</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected lines</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ControlsDialog</name>
    <message>
        <source>Keyboard and Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Control</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W / S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly forward / back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A / D</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly left / right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly three times as fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move over the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look around</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left + right drag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up, down and sideways</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the animation, or pause it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, / .</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back / on one frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[ / ]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the previous / next key frame action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3D view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a record after the current one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+C / Ctrl+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy / paste a hot point or an animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+click, Shift+click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select several records; an edit goes to all of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CrashReportDialog</name>
    <message>
        <source>Crash Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crash report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the whole report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was sent. The report stays on this computer, in
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DatabaseTab</name>
    <message>
        <source>Actors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impacts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder of O&amp;wn Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables in this folder (%1) take the place of the built-in ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read all tables anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game&apos;s numbers stand for. A double click copies a row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by id or name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded the tables again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Document</name>
    <message>
        <source>The model has no surfaces.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentFiles</name>
    <message>
        <source>[Open] Unable to read &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Open] &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to save the %2?

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Save] Unable to write &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Save] &apos;%1&apos;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to save
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentKind</name>
    <message>
        <source>Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh (*.skinnedmesh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation (*.anim)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Static Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Static Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh (*.staticmesh)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EventArguments</name>
    <message>
        <source>Sound ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Radius</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blood Spray X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blood Spray Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blood Spray Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attack Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sustain Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Decay Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserEvent Arg 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserEvent Arg 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserEvent Arg 3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UserEvent Arg 4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Bit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actor Type ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impact Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice ID</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Filter, such as %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the records whose text has these words, and numbers or ranges of them (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlagsEditor</name>
    <message>
        <source>Bit %1 (0x%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FolderExplorer</name>
    <message>
        <source>&amp;Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Containing &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the folder in the desktop&apos;s file manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the full path to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change Folder...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder to list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the folder again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load On Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a file as soon as it is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open all folders of the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close all folders of the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no folder
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No .%1 files in
%2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrameLabel</name>
    <message>
        <source>Invalid Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initial Pose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame: %1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>Could not overwrite texture &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Could not copy texture from &apos;%1&apos; to &apos;%2&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; and &apos;%2&apos; have one name: only one of them can be used</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model had no textures to copy
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed on copying textures
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully copied textures
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material &apos;%1&apos;: the texture &apos;%2&apos; will not be found, for the blank in its path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully created .kmat file
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed on creating .kmat file
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] Mesh has no triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] %1 Could not write file. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Animation %2 was cut to %3 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Material %2 does not have any Diffuse textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Material %2 could not get Diffuse texture path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any vertices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any normals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any UVs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 does not contain any faces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 contains more than 3 indices per face. A face must contain only 3 indices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Could not read file. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has no root node.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not contain any meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has %2 vertices. A model of this kind can hold no more than %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 refers to a material that is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Mesh %2 refers to vertices that are not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has %2 bones. A model can hold no more than %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has %2 bones. The parents of those whose parent is bone %3 or beyond cannot be stored; their place in the child lists is kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node %1 already exists.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no bones. Creating a default bone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 vertices are not assigned to a bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] Texture not found &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] Mesh has no surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] %1 Could not write file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model could not be handed over.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Could not write file. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model file to import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the model file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Generate Normals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generates Normals if there are none in the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate &amp;Pitch 90</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the model about the x axis: by 90 degrees as a skinned mesh, by -90 as a static mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;UV Y-Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip all UV coordinates along the y-axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;left-handed coordinate space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By default the data is returned in a right-handed coordinate space (which
OpenGL prefers). In this space, +X points to the right,
+Z points towards the viewer, and +Y points upwards. In the DirectX
coordinate space +X points to the right, +Y points upwards, and +Z points
away from the viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip &amp;Winding Order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adjusts the output face winding order to be CW (Clock Wise)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The factor by which the model is enlarged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok &amp;2 Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The root folder of your mod. The paths below are relative to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the root folder of your mod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;kmat Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The material file that the surfaces of the model refer to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>materials/mat_NAME.kmat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the material file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Texture Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder that the materials take their textures from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the texture folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;reate .kmat file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will create the .kmat file for the model in Turok 2 Folder + kmat Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy .png textures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Will copy any .png textures used by the model to the Turok 2 Folder + Texture Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give this import up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings and &amp;Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings and Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy all lines to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import model to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import to %1!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import Model to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok 2 Output Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save .kmat</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Material (*.kmat)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture Output Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>kmat Path Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Path must be relative to Turok 2 Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Folder Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s of at most %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Could not read file. The result was damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Successfully imported &apos;%1&apos; to %2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error importing &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok 2 Folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok 2 Folder + kmat Path &apos;%1&apos; doesn&apos;t exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok 2 Folder + Texture Folder &apos;%1&apos; doesn&apos;t exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportExport</name>
    <message>
        <source>Export To Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Static Mesh Export] Exported &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImportWorker</name>
    <message>
        <source>It took longer than %1 s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No temporary folder could be made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No temporary file could be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; could not be started: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The process that reads foreign files crashed on it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The process that reads foreign files gave no answer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>IndexTargets</name>
    <message>
        <source>there are none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are 0 to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mesh has no vertex %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of vertex %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 tracks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has no track %1 (%2): %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no such bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mesh has no bone %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no parent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation has no bone %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the mesh that the animation belongs to and the bone&apos;s name appears here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>never happens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animation has no frame %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 frames</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loops from frame 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keeps initial position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>keeps initial rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle %1, corner %2 of 3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KVOpenGLWidget</name>
    <message>
        <source>Models cannot be drawn: the system offers no OpenGL.
Look for a driver of the graphics card, or install a software renderer such as Mesa.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models cannot be drawn: the graphics driver does not take the program&apos;s shaders.
It must offer OpenGL 3.0 or later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models are not drawn any more: the graphics driver has failed several times.
Everything else works on. Start Korvane again to see models.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Viewport] The graphics driver was reset; the view is built anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models cannot be drawn: the system has OpenGL, but gives the window no context of it.
Everything else works on.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KVTreeView</name>
    <message>
        <source>event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame 10-20 or event 30</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertex 100-120 or left arm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is open. Choose one in the folder, or press %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing matches the filter.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Look</name>
    <message>
        <source>Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the colors of the desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show dark text on light windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show light text on dark windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Desktop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loo&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Meshes &amp;&amp; Animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Characters and their animations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Models without bones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Database</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game&apos;s numbers stand for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tutorials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How to work with Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Community</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Links to places on the web</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a file of the current kind (Ctrl+O)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a file of the current kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current document (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current document under another name (Ctrl+Shift+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the current document under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save S&amp;kinned Mesh As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the skinned mesh under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save A&amp;nimation As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the animation under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save A&amp;ll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every modified document (Ctrl+Alt+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every modified document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Alt+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List the unsaved work that was kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a model of another program to the current tab (Ctrl+I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import a model of another program to the current tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+I</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the static mesh as a Wavefront OBJ file (Ctrl+E)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export the static mesh as a Wavefront OBJ file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Korvane (Ctrl+Q)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis Gi&amp;zmo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the directions of the axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back-Face Culling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide the faces that look away from the camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the camera back in front of the model (C in the view)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the whole screen (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the whole screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F11</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh Folders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the folders of the explorers again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read the folders of the explorers again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all lines from the console</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;otate…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn the whole model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the whole model larger or smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders, trees and playback (Ctrl+,)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders, trees and playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Filter Tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the line above the tree that says which records are shown (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the line above the tree that says which records are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+F</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &amp;Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put docks, tool bars and panes back where they were at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma&amp;nds…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find anything that the menus can do by its name (Ctrl+Shift+P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find anything that the menus can do by its name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Shift+P</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sync View Folder to Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load the animation that belongs to a skinned mesh along with it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keyboard and Mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys and mouse gestures (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Query Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the game&apos;s master server which servers are running</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for a newer version of Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Korvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version and licences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tree leaves such records out. The options can make it show them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to open
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup Folder Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please setup your folder paths before using Korvane. Thank you!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dice!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View of the skinned mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View of the static mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reco&amp;ver…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageList</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ModelFiles</name>
    <message>
        <source>Attempting to read %1 tracks without frames.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nodeLength is different value than initialNodeLength. They should be the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An animation file without an animation is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is 2 GiB or larger.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Attempting to read %1 value from file, but reached end of file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.kMat file has a material with the same name - %1. The file may be invalid - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.kMat file read a texture path with no material set. The file may be invalid - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read .kMat file at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open file for writing - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A skinned mesh without a bone is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 has a triangle index of 65535, which would end it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A static mesh without a surface is not saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NameTables</name>
    <message>
        <source>Body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Root</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper Torso</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower Torso</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pelvis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skull</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Face</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shoulder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper Arm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower Arm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upper Leg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lower Leg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Water</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Metal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creature Flesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Water Flesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lava</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slime</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forcefield</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>00: Play Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>01: Spawn Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>02: Normal Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>03: Normal Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>04: Normal Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>05: Trigger (Unused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>06: Unblock Region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>07: Block Region</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>08: Spawn Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>09: Screen Flash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10: Spawn Trails (Unused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>11: Fire Weapon Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12: Shake Screen Sinwave</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>13: Shake Screen Random</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>14: Display Text (Unused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15: Violent Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>16: Violent Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>17: Explosive Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>18: Explosive Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>19: Extreme Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>20: Extreme Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>21: Gamepad Rumble (Unused)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>22: User/Script Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>23: Play Sound On Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>24: Spawn Particle On Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>25: Explosive Ground Radial Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>26: Turn On Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>27: Turn Off Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>28: Spawn Actor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>29: Play Material Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>30: Play Voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>31: Play Looping Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>32: Stop Looping Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>33: Nuke Explosion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>34: Delete Actor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paths</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;game Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder to the unzipped game.kpf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Textures and materials are looked for in this folder first. It is never written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the folder of the unzipped game.kpf</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the game folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok &amp;2 Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the folder to the your Turok 2 - Seeds of Evil Folder.
This is the root folder for your mod and should contain
a textures, materials, and anims folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the game folder does not hold is looked for in this folder, and imports write their materials and textures here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the root folder of your mod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the mod folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check for &amp;updates on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When Korvane starts will check if there&apos;s a new version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide &amp;Mesh Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t add all mesh data to the tree view. Performance Increase.
Recommended to leave on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide &amp;Animation Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t add all animation data to the tree view. Performance Increase.
Recommended to leave on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Auto &amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play animations when selecting them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>game.kpf unzipped folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turok 2(Your Mod) Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PageStack</name>
    <message numerus="yes">
        <source>%n child bone indexes selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hot points selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n bones selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n surfaces selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n triangle indexes selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n vertices selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n animations selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n frames selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n translation keys selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n rotation keys selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n key frame actions selected</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Select a record in the tree to see its properties.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; values in italics differ</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemsButton</name>
    <message>
        <source>No problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what is wrong with the open files (errors: %1, warnings: %2, notes: %3)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>List errors: the file cannot be saved or used as it stands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List warnings: a part of the model does not do what it says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List notes: nothing goes wrong</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair what is selected, where there is only one way to do it (Ctrl+.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fix &amp;All of This Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repair every problem of this kind in this file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warnings: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All problems are hidden by the buttons above.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No problems found.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemsList</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Severity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyPage</name>
    <message>
        <source>Surface %1 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 - Triangle Index %2 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex at this corner of the triangle (0 to %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex %1 Properties</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Exporting &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files exist already. Replace them?

%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QuestionMenu</name>
    <message>
        <source>What Actor is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Animation is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Sound is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Voice is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Voice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Particle is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What Impact Type is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Impact Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much damage is this?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QObject is not a spinbox or DoubleSpinbox </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to check Spinbox ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to check DoubleSpinbox ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step &amp;down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is %2 damage (Value is divided by 256)

Head (x10): %3
Neck (x5): %4
Body (x1): %2
Arms and Legs(x0.5): %5
Hands and Feet(x0.25): %6</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecentFiles</name>
    <message>
        <source>No file was opened yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear This List</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Records</name>
    <message>
        <source>Bones (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child Bone Indexes (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>child</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Points (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>hot point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle Indexes (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>triangle index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertices (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Anim %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>anim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frames (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translations (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Track %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>translation track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotations (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rotation track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Actions (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoverDialog</name>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved work that Korvane has kept. Restoring opens it as a modified document; its file changes only when you save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Give up the selected documents for good</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the selected documents, one of a kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(never saved)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no unsaved work beside what is open now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete what was kept of &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete what was kept of %1 documents?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This cannot be undone.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Recovery</name>
    <message>
        <source>[Recovery] &apos;%1&apos; is not kept as long as it cannot be saved: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Recovery] Unsaved work cannot be kept: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Recovery] What was kept of &apos;%1&apos; is damaged</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryPrompt</name>
    <message>
        <source>Open the newest of each kind as a modified document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List all kept work, to restore or delete it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete this kept work; files are not touched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what was written down when Korvane ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide; File &gt; Recover… lists what is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane ended unexpectedly. A report was written here; nothing was sent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane ended unexpectedly. It has kept unsaved work from %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane has kept unsaved work from %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Report</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReferenceTable</name>
    <message>
        <source>Unable to read database file at %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ReloadPrompt</name>
    <message>
        <source>Open the file anew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with what is open; saving replaces the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; was changed by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos;%1&apos; was removed by another program. Saving writes it anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load &apos;%1&apos; anew, without your unsaved changes?

File &gt; Recover… keeps a copy of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RotateDialog</name>
    <message>
        <source>Rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s y axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>-90</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn by -90 degrees at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+90</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn by +90 degrees at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s x axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Degrees about the model&apos;s z axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yaw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yaw: -90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yaw: +90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pitch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch: -90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pitch: +90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll: -90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll: +90 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScaleDialog</name>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The factor for every position and box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerListQuery</name>
    <message>
        <source>the look-up takes too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The master server did not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Query Servers] No master server is set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No master server is set. Its name belongs under MasterServerHost in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to obtain address from %1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The master server %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found address: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sending server list request %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The request could not be sent: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received list of all Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Query Servers] Stopped at %1 servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found Server: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServersDock</name>
    <message>
        <source>Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the addresses and ports of the selected servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No query yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the master server…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asking the master server… %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server is running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copied %1 addresses</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshCnodePage</name>
    <message>
        <source>Child Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone that hangs on this one and moves with it (0 to 65535)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 - Child Bone Index %2 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshHPPage</name>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position On Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in local model space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position On Bone X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position On Bone Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position On Bone Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bone ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>which bone to associate this hotpoint to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effects</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Deal Damage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deals damage instead of spawning a first particle effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle Effect &amp;1 ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle that the hot point spawns (0 to 65535; 65535 deals damage instead)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Particle Effect &amp;2 ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second particle that the hot point spawns (0 to 65535), or the damage that it deals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Hot Point Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The Hot Point Bits: key frame actions turn hot points on and off by them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point %1 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Origin %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point BoneID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Particle Effect 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Particle Effect 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshNodePage</name>
    <message>
        <source>Symbol</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part of the body that the bone belongs to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The side of the body, from the character&apos;s own view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which bone of that part of the body</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parent &amp;Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index of the parent bone; 255 for none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Impact Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the bone is made of: sound and particles of a hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Damage Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Factor on the damage of a hit on this bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mi&amp;n</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest corner of the bone&apos;s box, in the bone&apos;s space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>M&amp;ax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest corner of the bone&apos;s box, in the bone&apos;s space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bone&apos;s 32 flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Symbol Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parent Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Impact Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Damage Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Bounding Box Min %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Bounding Box Max %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>T&amp;ype</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshPage</name>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Header Values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two numbers of the file whose meaning is not known; kept as they stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box M&amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest corner of the whole model, in game units (z is up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box M&amp;ax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest corner of the whole model, in game units (z is up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head Track</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First bone that turns when the character looks at something</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last bone that turns when the character looks at something</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How far the head turns (-128 to 127)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skinned Mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>En&amp;d Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fa&amp;ctor</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshSurfacePage</name>
    <message>
        <source>Surface Material</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshTriIndexPage</name>
    <message>
        <source>Triangle Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SkinnedMeshVertPage</name>
    <message>
        <source>Place of the vertex in the space of its bone, in game units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Position %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Normal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex UV %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SnapshotStore</name>
    <message>
        <source>[Recovery] Unsaved work cannot be kept in &apos;%1&apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Recovery] &apos;%1&apos; is damaged and was left out</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StaticMeshPage</name>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format version, kept as it stands in the file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box M&amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest corner of the whole model, in game units (z is up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box M&amp;ax</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest corner of the whole model, in game units (z is up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Static Mesh</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StaticMeshSurfacePage</name>
    <message>
        <source>Surface Material</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StaticMeshTriIndexPage</name>
    <message>
        <source>Triangle Index</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StaticMeshVertPage</name>
    <message>
        <source>Place of the vertex in the model, in game units (z is up)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Position %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Normal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex UV %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StructureActions</name>
    <message>
        <source>Add Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Bone Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Key Frame Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Key Frame Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Frame Count…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Translation Count…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Rotation Count…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Expand All Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Collapse All Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation Count</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SurfacePage</name>
    <message>
        <source>Surface</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder and file of the .kmat file, then the material&apos;s name: materials/mat_house/colormap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of triangles of the surface</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TrackSlider</name>
    <message>
        <source>Action %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %1
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arg %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TriIndexPage</name>
    <message>
        <source>Triangle Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which corner of which triangle of the surface this is; a triangle has three</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TutorialsTab</name>
    <message>
        <source>Tutorials</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tutorial</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoActions</name>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UndoCommands</name>
    <message>
        <source>Animation AnimID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Frame Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Blend End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation Loop Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Translation Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Rotation Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Initial Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Initial Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame Yaw Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Frame</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Event Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key Frame Action Args</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Key Frame Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Key Frame Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Animation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fix %1 Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounding Box Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head Track Start Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head Track End Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Head Track Factor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point BoneID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Point Particle Effect</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Bounding Box Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Bounding Box Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Symbol Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Impact Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parent Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Damage Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone Flags</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface Material</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex UV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste Hot Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Child Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Child Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotate Vertices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale Vertices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>[Update Check] &apos;%1&apos; is no https address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[Update Check] No address is set to ask for releases</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdatePrompt</name>
    <message>
        <source>Checking for updates…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Version Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Korvane v%1 is now available! Do you want to update?

%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are up to date!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Validation</name>
    <message>
        <source>And %1 more like these.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names sound %3, which the table of sounds does not have: nothing is heard, unless your mod adds it. Choose one from the Database tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names particle %3, which the table of particles does not have: nothing is seen, unless your mod adds it. Choose one from the Database tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names actor type %3, which the table of actors does not have: nobody appears, unless your mod adds it. Choose one from the Database tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names voice %3, which the table of voices does not have: nothing is said, unless your mod adds it. Choose one from the Database tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 names impact type %3, which the table of impacts does not have. Choose one from the Database tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixing it enters 65535: no loop frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixing it enters the last frame.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1 loops to frame %2, which it does not have (%3), so it begins from frame 0 again. %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 of animation %2 follows translation track %3, which does not exist (%4), so it keeps its initial position. Fixing it enters 65535, which says so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 of animation %2 follows rotation track %3, which does not exist (%4), so it keeps its initial rotation. Fixing it enters 65535, which says so.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bone follows translation track %1 of animation %2: it does nothing but make the file larger. Give it to a bone, or leave it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bone follows rotation track %1 of animation %2: it does nothing but make the file larger. Give it to a bone, or leave it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is zero, which is no rotation at all: the view shows the bone unturned; the game may let it vanish. Fixing it enters 0, 0, 0, 1: unturned.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has the length %2 instead of 1: the view makes up for it; the game may shear the bone. Fixing it keeps the direction and makes the length 1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The initial rotation of bone %1 of animation %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rotation at frame %1 of track %2 of animation %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 is due at frame %3, which does not exist (%4): it never happens. Enter a frame of the animation, or remove the action.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 happens at bone %3, which does not exist (%4). Enter a bone, or 65535 for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %1 of animation %2 has the event type %3, which the game does not know: nothing happens. Choose one from the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The animations are for %1 bones, but the open mesh has %2: they cannot be played on it. Open the mesh and the animations that belong together.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1 is for %2 bones, but the mesh has %3: it cannot be played right. Replace it by one for this mesh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1 is for %2 bones, but animation 0 for %3: they cannot be for the same mesh. Replace one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1 has the id %2, as animation %3 has: the game finds only one of them. Give it an id of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file has no animations: there is nothing to play, and it cannot be saved. Add one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: the file of its material &apos;%2&apos; cannot be read. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: there is no file of its material &apos;%2&apos;. Tried: %3. Correct the surface&apos;s material path, or put the file into one of these places.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: %2. Correct the surface&apos;s material path, or add the material to the file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 is drawn white: the texture &apos;%2&apos; of its material &apos;%3&apos; is no picture that can be read. Tried: %4. Put the picture into one of these places, or name another one in the material&apos;s file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot point %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %2 of animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %2 of animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %3 of translation track %2 of animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame %3 of rotation track %2 of animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action %2 of animation %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are 0 to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bounding box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>origin</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>damage scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>frame scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yaw offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>initial position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>initial rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>arguments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 holds what is no number, or infinite, as %2. Whatever is computed from it is lost: the part vanishes or tears. Enter a proper number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 has no triangles: nothing of it is drawn. If it is not needed, leave its object out when you import the model again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surface %1 has %2 triangle indexes, which is not a multiple of three: the last triangle lacks a corner, and whoever counts in triangles reads on behind the list. Import the model again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle index %1 of surface %2 is 65535, the value that ends the list in the file: the model cannot be saved. Enter the index of a vertex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangle index %1 of surface %2 names vertex %3, which does not exist (%4). The view leaves the triangle out; the game may crash. Enter the index of a vertex.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The normal of vertex %1 is zero: it points nowhere, so light falls on the vertex from no side. Enter its direction, or import the model again with &quot;Generate Normals&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Child %1 of bone %2 is bone %3, which does not exist (%4). The view leaves it out; the game may crash. Fixing it removes the entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 lists itself as a child.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 lists bone %2 as a child, but hangs on it itself.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The hierarchy goes in a circle: the view ignores the entry; the game may hang. Fixing it removes the entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 lists bone %2 as a child, which another entry lists too, but a bone can move with one parent only. Fixing it removes this entry.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No chain of child lists leads from bone 0 to bone %1, so neither it nor what hangs on it follows any animation.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Its parent is bone %1: fixing it adds it to that bone&apos;s list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name it in the child list of the bone that it belongs to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The parent of bone %1 is bone %2, which does not exist (%3). The view goes by the child lists; the game may not. %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no parent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bone %1 as its parent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>every model begins with bone 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bone %1 lists it as a child</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone %1 names %2, but %3. The view goes by the child lists; the game may not. %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter its parent, or 255 for none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixing it sets the parent to 255: none.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixing it sets the parent to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The head track goes from bone %1 to bone %2, which do not both exist (%3): the head cannot be turned. Enter the bones that it turns with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mesh has %1 bones, but at most %2 can be posed: what belongs to the others is drawn with the wrong one. Leave bones out when you import the model again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot point %1 is on bone %2, which does not exist (%3): it has no place in the game. Enter the bone that it belongs to, or remove it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vertex %1 belongs to bone %2, which does not exist (%3): it stays behind when the model moves, and the game may crash. Enter the bone that moves it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mesh has no bones: nothing can be posed, and it cannot be saved. Import the model again; one without a skeleton then gets one bone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The mesh has no surfaces: there is nothing to show, and it cannot be saved. Import the model again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VertPage</name>
    <message>
        <source>Vertex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Direction that the surface faces here, of length 1; lights the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;UV</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place in the texture; when read in TurokEX, the y coordinate is always read as 1.0f - UV.y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UV X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UV Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bone Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node this vertex belongs to</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewPreferences</name>
    <message>
        <source>Background Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewToolBar</name>
    <message>
        <source>Background color of the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lines Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the selected surface is marked; the hidden kinds show through the model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Speed </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed of the camera: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brightness of the model: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Viewport</name>
    <message>
        <source>Failed to load texture &apos;%1&apos; using blank texture instead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[%1] Surface %2: %3 triangles name vertices beyond the %4 of the model and are not drawn, the first is triangle %5</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WebLink</name>
    <message>
        <source>Link</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The browser did not open
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is no web page, so it was not opened:
%1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
