#version 130
#ifdef GL_ES
precision mediump int;
precision mediump float;
#endif

// "texture" names the sampler and so hides the function of that name.
uniform sampler2D texture;
uniform float brightness;
uniform float tiling;
uniform vec4 color_highlight;

in vec2 v_texcoord;

out vec4 outColor;

void main()
{
    vec4 c = texture2D(texture, v_texcoord * tiling);
    // The tint is brightened with the texture.
    c.rgb += color_highlight.rgb;
    c.rgb *= brightness;
    if (c.a < 0.01)
        c = vec4(0.0, 0.0, 0.0, 0.0);
    outColor = c;
}
