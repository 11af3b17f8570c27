#version 130
#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// Models of both kinds, with what tells their shape.

uniform mat4 mvp_matrix;
uniform bool skinned;
uniform mat4 gBones[128];
uniform bool colored;
uniform vec4 bone_colors[128];

in vec4 a_position;
in vec2 a_texcoord;
in vec3 a_normal;
in int a_boneID;

out vec2 v_texcoord;
// In the space that the model is posed in.
out vec3 v_normal;
out vec3 v_place;
// Laid over the texture by its alpha.
out vec4 v_color;

void main()
{
    vec4 place = a_position;
    vec3 normal = a_normal;
    v_color = vec4(0.0);
    if (skinned) {
        // Files hold any bone number; one beyond the array would read past it.
        int number = clamp(a_boneID, 0, 127);
        mat4 bone = gBones[number];
        place = bone * a_position;
        normal = mat3(bone) * a_normal;
        if (colored)
            v_color = bone_colors[number];
    }
    gl_Position = mvp_matrix * place;
    v_texcoord = a_texcoord;
    v_normal = normal;
    v_place = place.xyz;
}
