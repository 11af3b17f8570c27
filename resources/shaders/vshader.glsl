#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// Textured geometry that no bone moves: static models, the ground, markers, the axis gizmo.

uniform mat4 mvp_matrix;

attribute vec4 a_position;
attribute vec2 a_texcoord;
attribute vec2 a_normal;

varying vec2 v_texcoord;

void main()
{
    gl_Position = mvp_matrix * a_position;
    gl_PointSize = 8.0;
    v_texcoord = a_texcoord;
}
