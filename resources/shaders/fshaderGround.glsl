#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

uniform sampler2D texture;
uniform float brightness;
uniform float tiling;

varying vec2 v_texcoord;

void main()
{
    vec4 c = texture2D(texture, v_texcoord * tiling);
    c.rgb *= brightness;
    // 1 at the edges of the plane, and more in its corners.
    float fromMiddle = 2.0 * length(v_texcoord - vec2(0.5));
    c.a *= 1.0 - smoothstep(0.3, 1.0, fromMiddle);
    gl_FragColor = c;
}
