#version 130
#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// Skinned models: every vertex lies in the space of its one bone.

uniform mat4 mvp_matrix;
uniform mat4 gBones[128];

in vec4 a_position;
in vec2 a_texcoord;
in vec2 a_normal;
in int a_boneID;

out vec2 v_texcoord;

void main()
{
    // Files hold any bone number; one beyond the array would read past it.
    mat4 bone = gBones[clamp(a_boneID, 0, 127)];
    gl_Position = mvp_matrix * (bone * a_position);
    gl_PointSize = 5.0;
    v_texcoord = a_texcoord;
}
