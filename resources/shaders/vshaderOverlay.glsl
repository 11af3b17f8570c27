#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// Lines and marks in the pixels of the picture, over everything.

uniform mat4 mvp_matrix;

attribute vec4 a_position;
attribute vec4 a_color;

varying vec4 v_color;

void main()
{
    gl_Position = mvp_matrix * a_position;
    v_color = a_color;
}
