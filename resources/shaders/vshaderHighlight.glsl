#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// Points and lines over the selected surface.

uniform mat4 mvp_matrix;

attribute vec4 a_position;

void main()
{
    gl_Position = mvp_matrix * a_position;
    gl_PointSize = 5.0;
}
